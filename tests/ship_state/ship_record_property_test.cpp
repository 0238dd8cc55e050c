#include "ship_state/ship_condition.h"
#include "stored_ship.h"

#include <QFile>

#include <cmath>
#include <optional>
#include <random>

// Random records, opened and saved untouched, compared with what each key may become.

namespace torvane::testing {
namespace {

constexpr int rounds = 300;
constexpr double drift = 1e-12; // a percentage has 15 digits

class UntouchedRecord : public StoredShips
{
protected:
    double random(double low, double high) { return std::uniform_real_distribution(low, high)(m_random); }
    int pick(int count) { return std::uniform_int_distribution(0, count - 1)(m_random); }

    QString randomValue()
    {
        switch (pick(9)) {
        case 0:
            return QString();
        case 1:
            return QStringLiteral("-1");
        case 2:
            return QStringLiteral("0");
        case 3:
            return QString::number(pick(20000));
        case 4:
            return QString::number(random(-500, 500), 'f', 4);
        case 5:
            return QStringLiteral("Elite");
        case 6:
            return QStringLiteral("1E+12");
        case 7:
            return QStringLiteral("some words, not numbers");
        default:
            return QString::number(-pick(1000));
        }
    }

    void randomiseLimits()
    {
        const auto limit = [this] { return pick(4) == 0 ? 0 : pick(20000); };
        limits.hull = limit();
        limits.floatation = limit();
        std::generate(limits.rounds.begin(), limits.rounds.end(), limit);
    }

    /// What the class has of something of which the record says how much is left.
    std::optional<double> limitOf(const QString& key) const
    {
        static const QStringList order{"MAGAHE",         "MAGAAP",         "MAGACOM",
                                       "MAGBHE",         "MAGBAP",         "MAGBCOM",
                                       "SECONDARYMAGHE", "SECONDARYMAGAP", "SECONDARYMAGCOM"};
        if (key == QStringLiteral("CURRENTHITPOINTS")) {
            return limits.hull;
        }
        if (key == QStringLiteral("CURRENTFLOATPOINTS")) {
            return limits.floatation;
        }
        const qsizetype round = order.indexOf(key);
        return round < 0 ? std::nullopt
                         : std::optional<double>(limits.rounds.at(static_cast<std::size_t>(round)));
    }

    /// Text as a number, as plain as can be: what these values need.
    static double number(const QString& text)
    {
        bool isNumber = false;
        const double value = text.toDouble(&isNumber);
        return isNumber ? value : 0;
    }

    /// What a German save makes of the rudder; anything else of it stays.
    static QString germanRudder(const QString& word)
    {
        static const QHash<QString, QString> german{
            {"Port", "Backbord"}, {"Center", "Mitte"}, {"Strb", "Steuerbord"}};
        return german.value(word, word);
    }

    void checkKey(const QString& key, const QString& before, const QString& after, Language language) const
    {
        SCOPED_TRACE(key.toStdString() + ": " + before.toStdString() + " -> " + after.toStdString());
        const double old = number(before);
        const QString read = before.isEmpty() ? QStringLiteral("INVALID") : before;
        static const QStringList repairs{"MANUEVERSYSTEMDAMAGE", "ELECTRICALSYSTEMDAMAGE",
                                         "DAMAGECONTROLDAMAGE", "BRIDGEDAMAGE", "RADARDAMAGE"};
        static const QStringList numbers{"CURRENTFIRECOUNT", "PROPULSIONSYSTEMPERCENTAGE"};
        if (!ownedKeys().contains(key)) {
            EXPECT_EQ(after, before);
        } else if (const std::optional<double> limit = limitOf(key)) {
            EXPECT_NEAR(number(after), *limit == 0 ? 0 : old, std::abs(old) * drift);
        } else if (numbers.contains(key)) {
            EXPECT_EQ(number(after), old);
        } else if (key == QStringLiteral("PROPULSIONSYSTEMDAMAGE")) {
            EXPECT_NEAR(number(after), old == -1 ? -1 : old * 60, std::abs(old) * 60 * drift);
        } else if (repairs.contains(key)) {
            EXPECT_EQ(number(after), old == -1 ? -1 : std::trunc(old / 60) * 60);
        } else if (key.endsWith(QStringLiteral("DAMAGE"))) {
            EXPECT_EQ(after, old == -1 ? QStringLiteral("-1") : QStringLiteral("0"));
        } else if (key == QStringLiteral("MANUEVERSYSTEMDIRECTION") && language == Language::German) {
            EXPECT_EQ(after, germanRudder(read));
        } else {
            // Lists and gun counts are stored as they were read.
            EXPECT_EQ(after, read);
        }
    }

    /// Opens and saves random records and checks what has become of each key.
    void openAndSave(Language language)
    {
        const QString section = shipSection(2, 3);
        const ProfileStore::Batch batch(store);
        for (int round = 0; round < rounds && !HasFailure(); ++round) {
            SCOPED_TRACE(round);
            randomiseLimits();
            const Record before = randomRecord();
            put(section, before);
            ShipCondition condition;
            loadRecord(
                condition, QStringLiteral("Exeter"),
                [&](QStringView key) { return profile.GetIniKey(section, key); }, limits, language);
            for (const auto& [key, value] : recordOf(condition, limits, language)) {
                profile.write(section, key, value);
            }
            for (const QStringView shipKey : shipKeys) {
                const QString key = shipKey.toString();
                const QString after = profile.GetIniKey(section, key);
                const bool stillEmpty = after == invalidValue && before.value(key).isEmpty();
                checkKey(key, before.value(key), stillEmpty && !ownedKeys().contains(key) ? QString() : after,
                         language);
            }
        }
    }

    ClassLimits limits;

private:
    Record randomRecord()
    {
        static const QStringList rudder{"Port", "Center", "Strb", "Mitte"};
        Record record;
        for (const QStringView key : shipKeys) {
            record.insert(key.toString(), randomValue());
        }
        if (pick(2) == 0) {
            record.insert(QStringLiteral("MANUEVERSYSTEMDIRECTION"), rudder.at(pick(4)));
        }
        return record;
    }

    std::mt19937 m_random{20}; // the same records in every run
};

TEST_F(UntouchedRecord, ChangesOnlyInWhatTheDialogOwnsAndOnlyAsItMust)
{
    openAndSave(Language::English);
}

TEST_F(UntouchedRecord, ChangesInGermanInTheWordOfItsRudderBesides)
{
    openAndSave(Language::German);
}

TEST_F(UntouchedRecord, KeepsItsCrewInGermanToo)
{
    for (const ListRow& list : crewLists) {
        for (const QString& word : entriesOf(list, Language::English) + QStringList{"INVALID", "odd"}) {
            ShipCondition condition;
            loadRecord(
                condition, QStringLiteral("Exeter"),
                [&](QStringView key) { return key == list.key ? word : QStringLiteral("0"); }, limits,
                Language::German);
            for (const auto& [key, value] : recordOf(condition, limits, Language::German)) {
                if (key == list.key) {
                    EXPECT_EQ(value, word) << list.list;
                }
            }
        }
    }
}

} // namespace
} // namespace torvane::testing
