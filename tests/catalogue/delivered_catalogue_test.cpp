#include "actions.h"
#include "program_run.h"
#include "support/printers.h"
#include "support/raw_database.h"

#include <QHash>
#include <QRegularExpression>
#include <QSet>
#include <QTemporaryDir>

#include <gmock/gmock.h>

#include <memory>

namespace torvane {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using testing::RawDatabase;
using testing::runMakeCatalogue;
using ::testing::UnorderedElementsAre;

/// The catalogue that comes with the editor, in the database that the build makes of it.
class DeliveredCatalogue : public ::testing::Test
{
protected:
    static void SetUpTestSuite()
    {
        s_folder = std::make_unique<QTemporaryDir>();
        const QString path = s_folder->filePath("ShipDatabase.mdb");
        const testing::ProgramRun run = runMakeCatalogue({QStringLiteral(CATALOGUE_FILES), path});
        ASSERT_EQ(run.exitCode, 0) << run.errors.toStdString();
        s_database = std::make_unique<RawDatabase>(path);
    }

    static void TearDownTestSuite()
    {
        s_database.reset();
        s_folder.reset();
    }

    void SetUp() override { ASSERT_NE(s_database, nullptr); }

    static QStringList ask(const QString& query)
    {
        QStringList texts;
        for (const QVariant& value : s_database->run(query)) {
            texts.append(value.toString());
        }
        return texts;
    }

    static QString ofClass(const QString& ship, const QString& field)
    {
        return ask(QStringLiteral("SELECT \"%1\" FROM ShipDaClass WHERE b = (SELECT Class FROM ShipDataB "
                                  "WHERE Name = '%2')")
                       .arg(field, ship))
            .value(0);
    }

    static int number(const QString& ship, const QString& field) { return ofClass(ship, field).toInt(); }

    /// Classes in which a field is not a number from `least` to `most`.
    static QStringList outside(const QString& field, double least, double most)
    {
        const QStringList names = ask("SELECT b FROM ShipDaClass");
        const QStringList values = ask(QStringLiteral("SELECT \"%1\" FROM ShipDaClass").arg(field));
        QStringList wrong;
        for (qsizetype i = 0; i < names.size(); ++i) {
            bool isNumber = false;
            const double value = values.at(i).toDouble(&isNumber);
            if (!isNumber || value < least || value > most) {
                wrong.append(names.at(i) + ": " + values.at(i));
            }
        }
        return wrong;
    }

private:
    static inline std::unique_ptr<QTemporaryDir> s_folder;
    static inline std::unique_ptr<RawDatabase> s_database;
};

TEST_F(DeliveredCatalogue, HoldsTheNumberOfShipsThatTheEditorNeeds)
{
    EXPECT_THAT(ask("SELECT Navy || ' ' || count(*) FROM ShipDataB GROUP BY Navy"),
                UnorderedElementsAre("RN 424", "USN 399", "KM 198", "IJN 245"));
    EXPECT_THAT(ask("SELECT count(*) FROM ShipDataB"), ElementsAre("1266"));
}

TEST_F(DeliveredCatalogue, HasShipsOfEveryTypeInEveryNavy)
{
    EXPECT_THAT(ask("SELECT DISTINCT Type FROM ShipDataB"),
                UnorderedElementsAre("BB", "BC", "CA", "CL", "DD", "TR"));
    EXPECT_THAT(ask("SELECT DISTINCT Navy || Type FROM ShipDataB"), ::testing::SizeIs(24));
}

TEST_F(DeliveredCatalogue, NamesAreUniqueWhateverTheirCase)
{
    QSet<QString> names;
    for (const QString& name : ask("SELECT Name FROM ShipDataB")) {
        EXPECT_FALSE(names.contains(name.toUpper())) << qPrintable(name);
        names.insert(name.toUpper());
    }
    EXPECT_EQ(names.size(), 1266);
}

TEST_F(DeliveredCatalogue, DuncanIsTheOnlyShortNameOfTwoShips)
{
    QSet<QString> once;
    QStringList twice;
    for (const QString& name : ask("SELECT ShortName FROM ShipDataB")) {
        if (once.contains(name.toUpper())) {
            twice.append(name);
        }
        once.insert(name.toUpper());
    }
    EXPECT_THAT(twice, ElementsAre("Duncan"));
    EXPECT_THAT(ask("SELECT Name FROM ShipDataB WHERE ShortName = 'Duncan'"),
                UnorderedElementsAre("Duncan RN", "Duncan USN"));
}

TEST_F(DeliveredCatalogue, TheEditorTellsTheDuncansApartByTheClassBenson)
{
    EXPECT_THAT(ask("SELECT Class FROM ShipDataB WHERE Name = 'Duncan USN'"), ElementsAre("Benson"));
    EXPECT_THAT(ask("SELECT count(*) FROM ShipDataB WHERE Name = 'Duncan RN' AND Class <> 'Benson'"),
                ElementsAre("1"));
    EXPECT_THAT(ask("SELECT DISTINCT Type FROM ShipDataB WHERE ShortName = 'Duncan'"), ElementsAre("DD"));
}

TEST_F(DeliveredCatalogue, ShipsThatShareANameCarryTheirNavyInIt)
{
    for (const QString name : {"Birmingham RN", "Birmingham USN", "Canberra RN", "Canberra USN", "Jaguar RN",
                               "Jaguar KM", "Orion RN", "Orion KM"}) {
        const QString query =
            QStringLiteral("SELECT Navy || ' ' || ShortName FROM ShipDataB WHERE Name = '%1'").arg(name);
        const QStringList found = ask(query);
        ASSERT_EQ(found.size(), 1) << qPrintable(name);
        const QString navy = name.section(' ', 1);
        EXPECT_TRUE(found.at(0).startsWith(navy + ' ') && found.at(0).endsWith(' ' + navy))
            << qPrintable(found.at(0));
    }
    for (const QString name : {"Birmingham", "Canberra", "Jaguar", "Orion", "Duncan"}) {
        EXPECT_THAT(ask(QStringLiteral("SELECT Name FROM ShipDataB WHERE Name = '%1'").arg(name)), IsEmpty());
    }
}

TEST_F(DeliveredCatalogue, NamesFitIntoAScenarioAndOntoTheMap)
{
    static const QRegularExpression plain("^[^\\s\",=\\[\\];'][^\",=\\[\\];\\t]*(?<!\\s)$");
    for (const auto& [query, longest] :
         {std::pair{"SELECT Name FROM ShipDataB", 24}, std::pair{"SELECT ShortName FROM ShipDataB", 12},
          std::pair{"SELECT b FROM ShipDaClass", 24}}) {
        for (const QString& name : ask(query)) {
            EXPECT_TRUE(plain.match(name).hasMatch()) << qPrintable(name);
            EXPECT_LE(name.size(), longest) << qPrintable(name);
            EXPECT_EQ(QString::fromLatin1(name.toUpper().toLatin1()), name.toUpper()) << qPrintable(name);
        }
    }
}

TEST_F(DeliveredCatalogue, EveryClassIsKnownUsedAndThereOnce)
{
    EXPECT_THAT(ask("SELECT Name FROM ShipDataB WHERE Class NOT IN (SELECT b FROM ShipDaClass)"), IsEmpty());
    EXPECT_THAT(ask("SELECT b FROM ShipDaClass WHERE b NOT IN (SELECT Class FROM ShipDataB)"), IsEmpty());
    EXPECT_THAT(ask("SELECT lower(b) FROM ShipDaClass GROUP BY lower(b) HAVING count(*) > 1"), IsEmpty());
    EXPECT_THAT(ask("SELECT Class FROM ShipDataB GROUP BY Class HAVING count(DISTINCT Navy || Type) > 1"),
                IsEmpty());
}

TEST_F(DeliveredCatalogue, ExactlyTheClassesWithMainGunsHaveARange)
{
    const QString armed =
        "SELECT b FROM ShipDaClass WHERE TurA + TurB + TurC + TurD + TurE + TurG + TurH + TurI + TurJ + "
        "TurL + TurM + TurN + TurO + TurQ + TurR + TurT + TurU + TurX + TurY + TurZ > 0 ORDER BY b";
    const QStringList classes = ask(armed);
    EXPECT_GT(classes.size(), 300);
    EXPECT_EQ(ask("SELECT Class FROM GunsRang ORDER BY Class"), classes);
    EXPECT_THAT(ask("SELECT Class FROM GunsRang WHERE Range + 0 NOT BETWEEN 9000 AND 47000"), IsEmpty());
}

TEST_F(DeliveredCatalogue, SizesAndSpeedsArePlausible)
{
    EXPECT_THAT(outside("length", 150, 900), IsEmpty());
    EXPECT_THAT(outside("width", 20, 130), IsEmpty());
    EXPECT_THAT(outside("e", 10, 42), IsEmpty());
    EXPECT_THAT(ask("SELECT b FROM ShipDaClass WHERE CAST(e AS INTEGER) <> e"), IsEmpty());
    EXPECT_THAT(ask("SELECT b FROM ShipDaClass WHERE length * 1.0 / width NOT BETWEEN 4.5 AND 13"),
                IsEmpty());
}

TEST_F(DeliveredCatalogue, WeaponsAndPointsArePlausible)
{
    EXPECT_THAT(outside("f", 20, 5000), IsEmpty());
    EXPECT_THAT(outside("g", 20, 3500), IsEmpty());
    for (const char* field : {"h", "i", "j", "k", "l", "m", "t", "u", "v"}) {
        EXPECT_THAT(outside(field, 0, 4000), IsEmpty()) << field;
    }
    for (const char* field : {"o", "p", "q", "r"}) {
        EXPECT_THAT(outside(field, 0, 10), IsEmpty()) << field;
    }
    for (const char* field : {"x", "y", "z", "aa"}) {
        EXPECT_THAT(outside(field, 0, 12), IsEmpty()) << field;
    }
    for (const QChar letter : QStringLiteral("ABCDEGHIJLMNOQRTUXYZ")) {
        EXPECT_THAT(outside(QStringLiteral("Tur") + letter, 0, 4), IsEmpty()) << qPrintable(QString(letter));
    }
}

TEST_F(DeliveredCatalogue, ShipsShowThePointsAndTorpedoesOfTheirClass)
{
    EXPECT_THAT(
        ask("SELECT Name FROM ShipDataB JOIN ShipDaClass ON b = Class WHERE HitPts <> f OR FloatPts <> g OR "
            "\"Torps?\" + 0 <> x + y + z + aa"),
        IsEmpty());
}

// The rules of docs/catalogue.md for the letters of turrets.
TEST_F(DeliveredCatalogue, TurretLettersFollowOneRuleInAllNavies)
{
    const auto classesWith = [](const QString& condition) {
        return ask(QStringLiteral("SELECT b FROM ShipDaClass WHERE ") + condition);
    };
    EXPECT_THAT(classesWith("TurB > '0' AND TurA = '0' OR TurC > '0' AND TurB = '0'"), IsEmpty());
    EXPECT_THAT(classesWith("TurX > '0' AND TurY = '0' OR TurZ > '0' AND TurX = '0'"), IsEmpty());
    // Waist guns stand in pairs, L and R, then N and M, then O and Q.
    EXPECT_THAT(classesWith("TurL <> TurR OR TurN > '0' AND TurL = '0' OR TurN > '0' AND TurM <> TurN"),
                IsEmpty());
    EXPECT_THAT(classesWith("TurO > '0' AND (TurN = '0' OR TurO <> TurQ)"), IsEmpty());
    // A single gun amidships on the centre line is Q; M is the front one of two.
    EXPECT_THAT(classesWith("TurM > '0' AND TurN = '0' AND TurQ = '0'"), IsEmpty());
    // The wings bear as many guns to port as to starboard.
    EXPECT_THAT(classesWith("TurD + TurE <> TurG + TurH OR TurT + TurU <> TurI + TurJ"), IsEmpty());
}

TEST_F(DeliveredCatalogue, HoldsTheShipsOfTheGreatActions)
{
    const QStringList names = ask("SELECT Name FROM ShipDataB");
    const QSet<QString> known(names.begin(), names.end());
    for (const testing::Action& action : testing::actions()) {
        for (const QString& ship : action.ships) {
            EXPECT_TRUE(known.contains(ship)) << action.name << ": " << qPrintable(ship);
        }
    }
}

TEST_F(DeliveredCatalogue, ThePlainNameOfANamesakeIsTheShipOfTheBetterKnownAction)
{
    EXPECT_THAT(ask("SELECT DISTINCT Type FROM ShipDataB WHERE Name IN ('Astoria', 'Quincy', 'Vincennes', "
                    "'Houston')"),
                ElementsAre("CA"));
    EXPECT_THAT(ask("SELECT DISTINCT Class FROM ShipDataB WHERE Name IN ('Monssen', 'Barton', 'Laffey')"),
                ::testing::Each(::testing::AnyOf(QString("Benson"), QString("Gleaves"))));
}

TEST_F(DeliveredCatalogue, HeavierAndBetterProtectedShipsTakeMore)
{
    const QStringList ships{"Yamato", "Bismarck", "Hood",     "Admiral Graf Spee",
                            "Exeter", "Fletcher", "Hyderabad"};
    for (qsizetype i = 1; i < ships.size(); ++i) {
        EXPECT_GT(number(ships.at(i - 1), "f"), number(ships.at(i), "f")) << qPrintable(ships.at(i));
        EXPECT_GT(number(ships.at(i - 1), "g"), number(ships.at(i), "g")) << qPrintable(ships.at(i));
    }
    // Two destroyers of like displacement: within a tenth of each other.
    EXPECT_NEAR(number("Fubuki", "f"), number("Fletcher", "f"), 16);
    EXPECT_NEAR(number("Fubuki", "g"), number("Fletcher", "g"), 15);
    EXPECT_GT(number("Fubuki", "f"), number("Hyderabad", "f"));
    // A liner with guns takes less than a light cruiser of half her size.
    EXPECT_LT(number("Jervis Bay", "f"), number("Ajax", "f"));
    EXPECT_LT(number("Jervis Bay", "g"), number("Ajax", "g"));
}

TEST_F(DeliveredCatalogue, WellKnownShipsHaveTheirGunsTorpedoesAndSpeed)
{
    const auto fields = [](const QString& ship, const QStringList& names) {
        QStringList values;
        for (const QString& name : names) {
            values.append(ofClass(ship, name));
        }
        return values.join(' ');
    };
    EXPECT_EQ(fields("Bismarck", {"TurA", "TurB", "TurX", "TurY", "TurQ", "e"}), "2 2 2 2 0 30");
    EXPECT_EQ(fields("Yamato", {"TurA", "TurB", "TurX", "TurY", "e"}), "3 3 0 3 27");
    EXPECT_EQ(fields("Rodney", {"TurA", "TurB", "TurC", "TurY"}), "3 3 3 0");
    EXPECT_EQ(fields("Fuso", {"TurA", "TurB", "TurM", "TurQ", "TurX", "TurY"}), "2 2 2 2 2 2");
    EXPECT_EQ(fields("Arkansas", {"TurA", "TurB", "TurM", "TurQ", "TurX", "TurY", "TurZ"}), "2 2 2 2 2 2 0");
    EXPECT_EQ(fields("Duke of York", {"TurA", "TurB", "TurY"}), "4 2 4");
    EXPECT_EQ(fields("Admiral Graf Spee", {"TurA", "TurY", "x", "y"}), "3 3 12 12");
    EXPECT_EQ(fields("Shimakaze", {"x", "y", "z", "aa"}), "5 5 5 0");
    EXPECT_EQ(fields("Fletcher", {"TurA", "TurB", "TurQ", "TurX", "TurY", "x", "y", "z"}), "1 1 1 1 1 5 5 0");
    EXPECT_EQ(fields("Johnston", {"length"}).toDouble(), 376.4);
}

} // namespace
} // namespace torvane
