#pragma once

#include <QString>
#include <QStringList>

#include <array>

namespace torvane::testing {

/// How often a control is used beside the others of its window, which have weight 2.
struct HabitRow
{
    const char* window;
    const char* control;
    int weight;
};

inline constexpr int plainWeight = 2;
inline constexpr HabitRow habitRows[] = {
    {"OverviewFrm", "cmdOK", 12},
    {"OverviewFrm", "CmdCancel", 3},
    {"OverviewFrm", "cmdEnviroCntrl", 5},
    {"OverviewFrm", "cmbMission", 5},
    {"OverviewFrm", "RTxtBBlueBrief", 1},
    {"OverviewFrm", "RTxtBRedBrief", 1},
    {"EnviroFrm", "cmdOK", 9},
    {"EnviroFrm", "CmdCancel", 2},
    {"CreateDivisionFrm", "CmdAdd", 25},
    {"CreateDivisionFrm", "CmdSaveData", 25},
    {"CreateDivisionFrm", "cmdOK", 20},
    {"CreateDivisionFrm", "CmdCancel", 3},
    {"CreateDivisionFrm", "CmdEditCancel", 3},
    {"CreateDivisionFrm", "cmdDivDataChng", 8},
    {"CreateDivisionFrm", "cmdKeepDivData", 14},
    {"CreateDivisionFrm", "CmdFlagShip", 6},
    {"CreateDivisionFrm", "GrdDivision", 8},
    {"ShipDBaseFrm", "Grid1", 22},
    {"ShipDBaseFrm", "CmdKeepShips", 14},
    {"ShipDBaseFrm", "CmdCancel", 2},
    {"ShipDBaseFrm", "CmdClear", 1},
    {"ShipDBaseFrm", "CmdRemove", 4},
    {"ShipDBaseFrm", "LstDivision", 5},
    {"ShipDataFrm", "cmdSave", 9},
    {"ShipDataFrm", "CmdCancel", 4},
    {"ShipDataFrm", "TabStrip1", 10},
    {"ShipDataFrm", "Command1", 12},
    {"AboutFrm", "cmdOK", 2},
    {"HelpFrm", "txtGuide", 6},
    {"HelpFrm", "treContents", 6},
};

/// How often a group of commands is chosen, of a thousand, in a scenario and without one. An entry belongs to
/// the first group whose names begin like its own.
struct CommandRow
{
    const char* names;
    int inScenario;
    int without;
};

inline constexpr CommandRow commandRows[] = {
    {"mnuNew", 14, 500},     {"mnuLoad", 20, 350},    {"mnuSaveAs", 60, 0},       {"mnuSave", 90, 0},
    {"mnuOverView", 80, 0},  {"mnuTargetBox", 40, 0}, {"mnuCreateForce", 230, 0}, {"mnuForce", 170, 0},
    {"mnuDiv*Ship", 170, 0}, {"mnuDiv", 80, 0},       {"mnuHelpTopics", 14, 30},  {"mnuHotText", 15, 60},
    {"mnuAbout", 15, 50},    {"mnuExit", 14, 20},
};

/// What is typed: numbers within and beyond every range, words in all letters, and what could end a line, a
/// section or a value.
inline const QStringList& typedTexts()
{
    static const QStringList texts{QStringLiteral("0"),
                                   QStringLiteral("1"),
                                   QStringLiteral("8"),
                                   QStringLiteral("45"),
                                   QStringLiteral("180"),
                                   QStringLiteral("360"),
                                   QStringLiteral("361"),
                                   QStringLiteral("0.01"),
                                   QStringLiteral("99.99"),
                                   QStringLiteral("2.5"),
                                   QStringLiteral("-1"),
                                   QStringLiteral("32768"),
                                   QStringLiteral("99999999999"),
                                   QStringLiteral("1e9"),
                                   QStringLiteral("1e400"),
                                   QStringLiteral("&H7F"),
                                   QString(),
                                   QStringLiteral(" "),
                                   QStringLiteral("INVALID"),
                                   QStringLiteral("NO SHIP"),
                                   QStringLiteral("Narvik"),
                                   QStringLiteral("Überführung nach Ålesund"),
                                   QStringLiteral("Straße \u20ac"),
                                   QStringLiteral("\u6d77\u6226"),
                                   QStringLiteral("\U0001F6A2\U0001F30A"),
                                   QStringLiteral("\"Hood\""),
                                   QStringLiteral("[DIVISION0]"),
                                   QStringLiteral("a=b;c"),
                                   QStringLiteral("../x"),
                                   QStringLiteral("a/b"),
                                   QStringLiteral("%1 %2"),
                                   QStringLiteral("&File")};
    return texts;
}

} // namespace torvane::testing
