#include "shell/commands.h"

#include "support/printers.h"

#include <QMap>

#include <gmock/gmock.h>

namespace torvane {
namespace {

const MenuRow& rowOf(const QString& name)
{
    for (const MenuRow& row : menuRows()) {
        if (row.name == name) {
            return row;
        }
    }
    throw std::runtime_error("no menu row " + name.toStdString());
}

QStringList childrenOf(const QString& parent)
{
    QStringList names;
    for (const MenuRow& row : menuRows()) {
        if (row.parent == parent) {
            names.append(row.name);
        }
    }
    return names;
}

struct Fixed
{
    const char* name;
    const char* parent;
    const char* design;
    const char* english; // null: the procedure leaves the entry alone
    const char* german;
    bool enabled;
};

class FixedEntries : public ::testing::TestWithParam<Fixed>
{
};

TEST_P(FixedEntries, HaveTheirCaptionsPlaceAndStartState)
{
    const Fixed& expected = GetParam();
    const MenuRow& row = rowOf(QLatin1StringView(expected.name));
    EXPECT_EQ(row.parent, QLatin1StringView(expected.parent));
    EXPECT_EQ(row.designCaption, QString::fromUtf8(expected.design));
    EXPECT_EQ(row.englishCaption, QString::fromUtf8(expected.english));
    EXPECT_EQ(row.germanCaption, QString::fromUtf8(expected.german));
    EXPECT_EQ(row.germanCaption.isNull(), expected.german == nullptr);
    EXPECT_EQ(row.enabled, expected.enabled);
    EXPECT_TRUE(row.visible);
}

INSTANTIATE_TEST_SUITE_P(
    Tree, FixedEntries,
    ::testing::Values(
        Fixed{"File", "", "&File", "&File", "Datei", true},
        Fixed{"mnuNew", "File", "&New", "&New", "Neu", true},
        Fixed{"mnuLoad", "File", "&Load", "&Load", "Laden", true},
        Fixed{"mnuSave", "File", "&Save", "&Save", "Speichern", false},
        Fixed{"mnuSaveAs", "File", "Save &As", "Save &As", nullptr, false},
        Fixed{"mnuExit", "File", "E&xit", "&Exit", "Beenden", true},
        Fixed{"OverView", "", "&Overview", "&Overview", "Übersicht", true},
        Fixed{"mnuOverView", "OverView", "&Overview", "&Overview", "Übersicht", false},
        Fixed{"mnuTargetBox", "OverView", "Target Area", "Target Area", "Zielfeld", true},
        Fixed{"mnuEditDivison", "", "&Create Division", "&Create Division", "Verband erstellen", true},
        Fixed{"mnuCreateForceA", "mnuEditDivison", "Force &A", "Force &A", "Streitkraft A", false},
        Fixed{"mnuCreateForceB", "mnuEditDivison", "Force &B", "Force &B", "Streitkraft B", false},
        Fixed{"CreateDivision", "", "&Edit Division", "&Edit Division", "Verband bearbeiten", true},
        Fixed{"editForceA", "CreateDivision", "Edit Force A", "Edit Force A", "Streitkraft A bearbeiten",
              false},
        Fixed{"editForceB", "CreateDivision", "Edit Force B", "Edit Force B", "Streitkraft B bearbeiten",
              false},
        Fixed{"mnuEditShip", "", "Edit &Ship", "Edit &Ship", "Schiff bearbeiten", true},
        Fixed{"mnuEditShipForceA", "mnuEditShip", "Force A", "Force A", "Streitkraft A", false},
        Fixed{"mnuEditShipForceB", "mnuEditShip", "Force B", "Force B", "Streitkraft B", false},
        Fixed{"RepoDiv", "", "&Reposition Division", "&Reposition Division", "Verband neu positionieren",
              true},
        Fixed{"mnuRepoForceA", "RepoDiv", "Force A", "Force A", "Streitkraft A", false},
        Fixed{"mnuRepoForceB", "RepoDiv", "Force B", "Force B", "Streitkraft B", false},
        Fixed{"mnuHelp", "", "&Help", "&Help", "Hilfe", true},
        Fixed{"mnuHelpTopics", "mnuHelp", "&Help Topics", "&Help Topics", "Hilfethemen", true},
        Fixed{"mnuHotText", "mnuHelp", "Help Tags  ON", "Help Tags ON", "Hilfetexte ein", true},
        Fixed{"mnuAbout", "mnuHelp", "About", "&About", "Über", true}),
    [](const auto& testCase) { return std::string(testCase.param.name); });

TEST(MenuTree, StandsInItsOrder)
{
    const auto list = [](const char* names) { return QString::fromLatin1(names).split(QLatin1Char(' ')); };
    EXPECT_EQ(childrenOf(QString()),
              list("File OverView mnuEditDivison CreateDivision mnuEditShip RepoDiv mnuHelp"));
    EXPECT_EQ(childrenOf(QStringLiteral("File")),
              list("mnuNew mnuLoad mnuSave mnuSaveAs mnuSeperator1 mnuExit"));
    EXPECT_EQ(childrenOf(QStringLiteral("OverView")), list("mnuOverView mnuTargetBox"));
    EXPECT_EQ(childrenOf(QStringLiteral("mnuEditShip")), list("mnuEditShipForceA mnusep5 mnuEditShipForceB"));
    EXPECT_EQ(childrenOf(QStringLiteral("RepoDiv")), list("mnuRepoForceA mnuSeperator3 mnuRepoForceB"));
    EXPECT_EQ(childrenOf(QStringLiteral("mnuRepoForceA")),
              list("mnuDiv1 mnuDiv2 mnuDiv3 mnuDiv4 mnuDiv9 mnuDiv10"));
    EXPECT_EQ(childrenOf(QStringLiteral("mnuRepoForceB")),
              list("mnuDiv5 mnuDiv6 mnuDiv7 mnuDiv8 mnuDiv11 mnuDiv12"));
    EXPECT_EQ(childrenOf(QStringLiteral("editForceA")),
              list("mnuForceA1 mnuForceA2 mnuForceA3 mnuForceA4 mnuForceA5 mnuForceA6"));
    EXPECT_EQ(childrenOf(QStringLiteral("mnuEditShipForceB")),
              list("mnuEditShipBDiv1 mnuEditShipBDiv2 mnuEditShipBDiv3 mnuEditShipBDiv4 mnuEditShipBDiv5 "
                   "mnuEditShipBDiv6"));
    EXPECT_EQ(childrenOf(QStringLiteral("mnuHelp")), list("mnuHelpTopics mnuSeperator4 mnuHotText mnuAbout"));
}

TEST(MenuTree, SeparatorsAreSeparators)
{
    for (const char* name : {"mnuSeperator1", "mnusep5", "mnuSeperator3", "mnuSeperator4"}) {
        const MenuRow& row = rowOf(QLatin1StringView(name));
        EXPECT_EQ(row.kind, MenuRow::Kind::Separator) << name;
        EXPECT_EQ(row.designCaption, QStringLiteral("-"));
    }
}

TEST(MenuTree, NoNameStandsTwice)
{
    QMap<QString, int> seen;
    for (const MenuRow& row : menuRows()) {
        EXPECT_EQ(++seen[row.name], 1) << row.name.toStdString();
    }
}

TEST(MenuTree, HelpTopicsIsTheOneShortcut)
{
    for (const MenuRow& row : menuRows()) {
        EXPECT_EQ(row.shortcut,
                  row.name == QLatin1StringView("mnuHelpTopics") ? QStringLiteral("F1") : QString());
    }
}

TEST(MenuTree, HelpTagsIsTheOneCheckedEntry)
{
    for (const MenuRow& row : menuRows()) {
        EXPECT_EQ(row.checkable, row.name == QLatin1StringView("mnuHotText")) << row.name.toStdString();
    }
}

// Captions of the division entries, by division 1 to 6; "-" is an entry that German leaves alone.
struct Divisions
{
    std::array<const char*, 6> names;
    std::array<const char*, 6> english;
    std::array<const char*, 6> german;
};

const Divisions divisionEntries[] = {
    {{"mnuForceA1", "mnuForceA2", "mnuForceA3", "mnuForceA4", "mnuForceA5", "mnuForceA6"},
     {"Division 1", "Division 2", "Division 3", "Division 4", "Division 5", "Division 6"},
     {"Verband 1", "Verband 2", "Verband 3", "Verband 4", "-", "-"}},
    {{"mnuForceB1", "mnuForceB2", "mnuForceB3", "mnuForceB4", "mnuForceB5", "mnuForceB6"},
     {"Division 1", "Division 2", "Division 3", "Division 4", "Division 5", "Division 6"},
     {"Verband 1", "Verband 2", "Verband 3", "Verband 4", "-", "-"}},
    {{"mnuEditShipADiv1", "mnuEditShipADiv2", "mnuEditShipADiv3", "mnuEditShipADiv4", "mnuEditShipADiv5",
      "mnuEditShipADiv6"},
     {"Div 1", "Div 2", "Div 3", "Div 4", "Div 5", "Div 6"},
     {"Verband 1", "Verband 2", "Verband 3", "Verband 4", "-", "-"}},
    {{"mnuEditShipBDiv1", "mnuEditShipBDiv2", "mnuEditShipBDiv3", "mnuEditShipBDiv4", "mnuEditShipBDiv5",
      "mnuEditShipBDiv6"},
     {"Div 1", "Div 2", "Div 3", "Div 4", "Div 5", "Div 6"},
     {"Verb. 1", "Verb. 2", "Verb. 3", "Verb. 4", "-", "-"}},
    {{"mnuDiv1", "mnuDiv2", "mnuDiv3", "mnuDiv4", "mnuDiv9", "mnuDiv10"},
     {"Division 1", "Division 2", "Division 3", "Division 4", "Division 5", "Division 6"},
     {"Verband 1", "Verband 2", "Verband 3", "Verband 4", "-", "-"}},
    {{"mnuDiv5", "mnuDiv6", "mnuDiv7", "mnuDiv8", "mnuDiv11", "mnuDiv12"},
     {"Division 1", "Division 2", "Division 3", "Division 4", "Division 5", "Division 6"},
     {"Verband 5", "Verband 6", "Verband 7", "Verband 8", "-", "-"}},
};

TEST(DivisionEntries, HaveTheirCaptionsInBothLanguages)
{
    for (const Divisions& run : divisionEntries) {
        for (std::size_t i = 0; i < 6; ++i) {
            const MenuRow& row = rowOf(QLatin1StringView(run.names.at(i)));
            EXPECT_EQ(row.designCaption, QLatin1StringView(run.english.at(i))) << run.names.at(i);
            EXPECT_EQ(row.englishCaption, QLatin1StringView(run.english.at(i))) << run.names.at(i);
            const QString german = row.germanCaption.isNull() ? QStringLiteral("-") : row.germanCaption;
            EXPECT_EQ(german, QLatin1StringView(run.german.at(i))) << run.names.at(i);
        }
    }
}

TEST(DivisionEntries, OfEditAndRepositionShowTheFirstAlone)
{
    for (const char* name : {"mnuForceA1", "mnuForceB1", "mnuDiv1", "mnuDiv5"}) {
        EXPECT_TRUE(rowOf(QLatin1StringView(name)).visible) << name;
    }
    for (const char* name : {"mnuForceA2", "mnuForceA6", "mnuForceB2", "mnuForceB6", "mnuDiv2", "mnuDiv9",
                             "mnuDiv10", "mnuDiv6", "mnuDiv11", "mnuDiv12"}) {
        EXPECT_FALSE(rowOf(QLatin1StringView(name)).visible) << name;
    }
}

TEST(ShipEntries, DivisionsHoldTenButTheSixthHoldsNine)
{
    for (const char side : {'A', 'B'}) {
        for (int division = 1; division <= 6; ++division) {
            const QString parent = QStringLiteral("mnuEditShip%1Div%2").arg(QLatin1Char(side)).arg(division);
            const QString pattern =
                side == 'A' ? QStringLiteral("mnuDiv%1Ship%2") : QStringLiteral("mnuDiv%1BShip%2");
            QStringList expected;
            for (int ship = 1; ship <= (division == 6 ? 9 : 10); ++ship) {
                expected.append(pattern.arg(division).arg(ship));
            }
            EXPECT_EQ(childrenOf(parent), expected);
        }
    }
}

TEST(ShipEntries, OneOfForceBIsMisspelt)
{
    for (int division = 1; division <= 6; ++division) {
        for (int ship = 1; ship <= (division == 6 ? 9 : 10); ++ship) {
            const QString plain = QStringLiteral("Ship %1").arg(ship);
            EXPECT_EQ(rowOf(shipEntryName(true, division, ship)).designCaption, plain);
            const bool misspelt = division == 1 && ship == 10;
            EXPECT_EQ(rowOf(shipEntryName(false, division, ship)).designCaption,
                      misspelt ? QStringLiteral("shi10") : plain);
        }
    }
}

TEST(ShipEntries, GermanNamesDivisionsOneToFourAndOfForceBNineShips)
{
    for (int division = 1; division <= 6; ++division) {
        for (int ship = 1; ship <= (division == 6 ? 9 : 10); ++ship) {
            const QString german = QStringLiteral("Schiff %1").arg(ship);
            EXPECT_EQ(rowOf(shipEntryName(true, division, ship)).germanCaption,
                      division <= 4 ? german : QString());
            EXPECT_EQ(rowOf(shipEntryName(false, division, ship)).germanCaption,
                      division <= 4 && ship <= 9 ? german : QString());
        }
    }
}

TEST(ShipEntries, TheFirstShipsOfDivisionsOneToFourAreNeverHidden)
{
    for (const bool forceA : {true, false}) {
        for (int division = 1; division <= 6; ++division) {
            EXPECT_FALSE(rowOf(shipDivisionName(forceA, division)).visible);
            for (int ship = 1; ship <= shipEntries(division); ++ship) {
                EXPECT_EQ(rowOf(shipEntryName(forceA, division, ship)).visible, division <= 4 && ship == 1);
            }
        }
    }
}

TEST(EditDivisionTable, NamesMarkerDialogCaptionAndSide)
{
    const std::array<std::array<const char*, 4>, 12> expected{{
        {"mnuForceA1", "chkDiv1", "Torvane - Edit Force A Division 1", "A"},
        {"mnuForceA2", "chkDiv2", "Torvane - Edit Force A Division 2", "A"},
        {"mnuForceA3", "chkDiv3", "Torvane - Edit Force A Division 3", "A"},
        {"mnuForceA4", "chkDiv4", "Torvane - Edit Force A Division 4", "A"},
        {"mnuForceA5", "chkDiv9", "Torvane - Edit Force A Division 5", "A"},
        {"mnuForceA6", "chkDiv10", "Torvane - Edit Force A Division 6", "A"},
        {"mnuForceB1", "chkDiv5", "Torvane - Edit Force B Division 1", "B"},
        {"mnuForceB2", "chkDiv6", "Torvane - Edit Force B Division 2", "B"},
        {"mnuForceB3", "chkDiv7", "Torvane - Edit Force B Division 3", "B"},
        {"mnuForceB4", "chkDiv8", "Torvane - Edit Force B Division 4", "B"},
        {"mnuForceB5", "chkDiv11", "Torvane - Edit Force B Division 5", "B"},
        {"mnuForceB6", "chkDiv12", "Torvane - Edit Force B Division 6", "B"},
    }};
    ASSERT_EQ(editDivisionRows().size(), expected.size());
    for (std::size_t i = 0; i < expected.size(); ++i) {
        const DivisionCommandRow& row = editDivisionRows()[i];
        EXPECT_STREQ(row.entry, expected.at(i)[0]);
        EXPECT_STREQ(row.marker, expected.at(i)[1]);
        EXPECT_STREQ(row.dialogCaption, expected.at(i)[2]);
        EXPECT_EQ(row.forceA, *expected.at(i)[3] == 'A');
    }
}

TEST(DivisionCommands, CreateForEachForceBeforeTheyEdit)
{
    ASSERT_EQ(divisionCommandRows().size(), 14U);
    EXPECT_STREQ(divisionCommandRows()[0].entry, "mnuCreateForceA");
    EXPECT_STREQ(divisionCommandRows()[0].dialogCaption, "Torvane - Create Division for Force A");
    EXPECT_TRUE(divisionCommandRows()[0].forceA);
    EXPECT_STREQ(divisionCommandRows()[1].entry, "mnuCreateForceB");
    EXPECT_STREQ(divisionCommandRows()[1].dialogCaption, "Torvane - Create Division for Force B");
    EXPECT_FALSE(divisionCommandRows()[1].forceA);
    for (const DivisionCommandRow& row : divisionCommandRows().first(2)) {
        EXPECT_EQ(row.marker, nullptr);
    }
    EXPECT_EQ(editDivisionRows().data(), &divisionCommandRows()[2]);
}

TEST(RepositionTable, GivesEachEntryItsKey)
{
    const std::array<std::array<const char*, 2>, 6> forceA{{{"mnuDiv1", "Blue 1"},
                                                            {"mnuDiv2", "Blue 2"},
                                                            {"mnuDiv3", "Blue 3"},
                                                            {"mnuDiv4", "Blue 4"},
                                                            {"mnuDiv9", "Blue  5"},
                                                            {"mnuDiv10", "Blue  6"}}};
    const std::array<std::array<const char*, 2>, 6> forceB{{{"mnuDiv5", "Red  1"},
                                                            {"mnuDiv6", "Red  2"},
                                                            {"mnuDiv7", "Red  3"},
                                                            {"mnuDiv8", "Red  4"},
                                                            {"mnuDiv11", "Red  5"},
                                                            {"mnuDiv12", "Red  6"}}};
    for (int number = 1; number <= 6; ++number) {
        const auto index = static_cast<std::size_t>(number - 1);
        EXPECT_STREQ(repositionRow(true, number).entry, forceA.at(index)[0]);
        EXPECT_STREQ(repositionRow(true, number).repositionKey, forceA.at(index)[1]);
        EXPECT_STREQ(repositionRow(false, number).entry, forceB.at(index)[0]);
        EXPECT_STREQ(repositionRow(false, number).repositionKey, forceB.at(index)[1]);
    }
}

} // namespace
} // namespace torvane
