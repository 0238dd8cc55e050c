#include "shell/commands.h"

#include "store/force_sizes.h"

#include <algorithm>
#include <array>
#include <iterator>

namespace torvane {

namespace {

using Kind = MenuRow::Kind;

enum State : unsigned {
    Plain = 0,
    Disabled = 1U << 0U,
    Hidden = 1U << 1U,
    Checked = 1U << 2U,
    KeyF1 = 1U << 3U,
};

/// A row as written down: null captions are left alone by the caption procedure of that language.
struct Row
{
    const char* name;
    const char* parent;
    Kind kind;
    const char* design;
    const char* english;
    const char* german;
    unsigned state;
};

constexpr std::array fileToCreate{
    Row{"File", "", Kind::Menu, "&File", "&File", "Datei", Plain},
    Row{"mnuNew", "File", Kind::Entry, "&New", "&New", "Neu", Plain},
    Row{"mnuLoad", "File", Kind::Entry, "&Load", "&Load", "Laden", Plain},
    Row{"mnuSave", "File", Kind::Entry, "&Save", "&Save", "Speichern", Disabled},
    Row{"mnuSaveAs", "File", Kind::Entry, "Save &As", "Save &As", nullptr, Disabled},
    Row{"mnuSeperator1", "File", Kind::Separator, "-", nullptr, nullptr, Plain},
    Row{"mnuExit", "File", Kind::Entry, "E&xit", "&Exit", "Beenden", Plain},
    Row{"OverView", "", Kind::Menu, "&Overview", "&Overview", "Übersicht", Plain},
    Row{"mnuOverView", "OverView", Kind::Entry, "&Overview", "&Overview", "Übersicht", Disabled},
    Row{"mnuTargetBox", "OverView", Kind::Entry, "Target Area", "Target Area", "Zielfeld", Plain},
    Row{"mnuEditDivison", "", Kind::Menu, "&Create Division", "&Create Division", "Verband erstellen", Plain},
    Row{"mnuCreateForceA", "mnuEditDivison", Kind::Entry, "Force &A", "Force &A", "Streitkraft A", Disabled},
    Row{"mnuCreateForceB", "mnuEditDivison", Kind::Entry, "Force &B", "Force &B", "Streitkraft B", Disabled},
    Row{"CreateDivision", "", Kind::Menu, "&Edit Division", "&Edit Division", "Verband bearbeiten", Plain},
    Row{"editForceA", "CreateDivision", Kind::Menu, "Edit Force A", "Edit Force A",
        "Streitkraft A bearbeiten", Disabled},
    Row{"editForceB", "CreateDivision", Kind::Menu, "Edit Force B", "Edit Force B",
        "Streitkraft B bearbeiten", Disabled},
    Row{"mnuEditShip", "", Kind::Menu, "Edit &Ship", "Edit &Ship", "Schiff bearbeiten", Plain},
    Row{"mnuEditShipForceA", "mnuEditShip", Kind::Menu, "Force A", "Force A", "Streitkraft A", Disabled},
    Row{"mnusep5", "mnuEditShip", Kind::Separator, "-", nullptr, nullptr, Plain},
    Row{"mnuEditShipForceB", "mnuEditShip", Kind::Menu, "Force B", "Force B", "Streitkraft B", Disabled},
    Row{"RepoDiv", "", Kind::Menu, "&Reposition Division", "&Reposition Division",
        "Verband neu positionieren", Plain},
    Row{"mnuRepoForceA", "RepoDiv", Kind::Menu, "Force A", "Force A", "Streitkraft A", Disabled},
    // Shown with the first division of Force B.
    Row{"mnuSeperator3", "RepoDiv", Kind::Separator, "-", nullptr, nullptr, Hidden},
    Row{"mnuRepoForceB", "RepoDiv", Kind::Menu, "Force B", "Force B", "Streitkraft B", Disabled},
    Row{"mnuHelp", "", Kind::Menu, "&Help", "&Help", "Hilfe", Plain},
    Row{"mnuHelpTopics", "mnuHelp", Kind::Entry, "&Help Topics", "&Help Topics", "Hilfethemen", KeyF1},
    Row{"mnuSeperator4", "mnuHelp", Kind::Separator, "-", nullptr, nullptr, Plain},
    Row{"mnuHotText", "mnuHelp", Kind::Entry, "Help Tags  ON", "Help Tags ON", "Hilfetexte ein", Checked},
    Row{"mnuAbout", "mnuHelp", Kind::Entry, "About", "&About", "Über", Plain},
};

/// The division entries of a menu: a name and captions by division number. The German captions are numbered
/// from `germanFirst` and end with the fourth: divisions 5 and 6 keep their English ones.
struct DivisionRun
{
    const char* parent;
    const char* english; ///< %1 is the division's number
    const char* german;
    int germanFirst;
    Kind kind;
    QString (*name)(int division);
    bool firstIsVisible;
};

constexpr int germanDivisions = 4;

QString editA(int division)
{
    return editEntryName(true, division);
}
QString editB(int division)
{
    return editEntryName(false, division);
}
QString repoA(int division)
{
    return QLatin1StringView(repositionRow(true, division).entry);
}
QString repoB(int division)
{
    return QLatin1StringView(repositionRow(false, division).entry);
}
QString shipsA(int division)
{
    return shipDivisionName(true, division);
}
QString shipsB(int division)
{
    return shipDivisionName(false, division);
}

constexpr std::array divisionRuns{
    DivisionRun{"editForceA", "Division %1", "Verband %1", 1, Kind::Entry, editA, true},
    DivisionRun{"editForceB", "Division %1", "Verband %1", 1, Kind::Entry, editB, true},
    DivisionRun{"mnuEditShipForceA", "Div %1", "Verband %1", 1, Kind::Menu, shipsA, false},
    DivisionRun{"mnuEditShipForceB", "Div %1", "Verb. %1", 1, Kind::Menu, shipsB, false},
    DivisionRun{"mnuRepoForceA", "Division %1", "Verband %1", 1, Kind::Entry, repoA, true},
    // Force B starts with 5 in German; the number is put right when the division is made.
    DivisionRun{"mnuRepoForceB", "Division %1", "Verband %1", 5, Kind::Entry, repoB, true},
};

QString text(const char* utf8)
{
    return utf8 ? QString::fromUtf8(utf8) : QString();
}

MenuRow fromRow(const Row& row)
{
    return {.name = text(row.name),
            .parent = text(row.parent),
            .kind = row.kind,
            .designCaption = text(row.design),
            .englishCaption = text(row.english),
            .germanCaption = text(row.german),
            .enabled = (row.state & Disabled) == 0,
            .visible = (row.state & Hidden) == 0,
            .checkable = (row.state & Checked) != 0,
            .shortcut = (row.state & KeyF1) != 0 ? QStringLiteral("F1") : QString()};
}

void addDivisions(std::vector<MenuRow>& rows, const DivisionRun& run)
{
    for (int division = 1; division <= divisionsPerSide; ++division) {
        const QString caption = text(run.english).arg(division);
        MenuRow row{.name = run.name(division),
                    .parent = text(run.parent),
                    .kind = run.kind,
                    .designCaption = caption,
                    .englishCaption = caption,
                    .germanCaption = {},
                    .visible = run.firstIsVisible && division == 1,
                    .shortcut = {}};
        if (division <= germanDivisions) {
            row.germanCaption = text(run.german).arg(run.germanFirst + division - 1);
        }
        rows.push_back(row);
    }
}

MenuRow shipRow(bool forceA, int division, int ship)
{
    // One entry of Force B is called "shi10" at design time, and the German captions leave it alone.
    const bool misspelt = !forceA && division == 1 && ship == 10;
    const QString caption = misspelt ? QStringLiteral("shi10") : QStringLiteral("Ship %1").arg(ship);
    MenuRow row{.name = shipEntryName(forceA, division, ship),
                .parent = shipDivisionName(forceA, division),
                .designCaption = caption,
                .englishCaption = {},
                .germanCaption = {},
                // The first ship of divisions 1 to 4 is never hidden.
                .visible = ship == 1 && division <= germanDivisions,
                .shortcut = {}};
    if (division <= germanDivisions && (forceA || ship < 10)) {
        row.germanCaption = QStringLiteral("Schiff %1").arg(ship);
    }
    return row;
}

std::vector<MenuRow> makeRows()
{
    std::vector<MenuRow> rows;
    std::ranges::transform(fileToCreate, std::back_inserter(rows), fromRow);
    for (const DivisionRun& run : divisionRuns) {
        addDivisions(rows, run);
    }
    for (const bool forceA : {true, false}) {
        for (int division = 1; division <= divisionsPerSide; ++division) {
            for (int ship = 1; ship <= shipEntries(division); ++ship) {
                rows.push_back(shipRow(forceA, division, ship));
            }
        }
    }
    return rows;
}

constexpr std::size_t createEntries = 2;
constexpr std::array<DivisionCommandRow, 14> divisionCommands{{
    {"mnuCreateForceA", nullptr, "Torvane - Create Division for Force A", true},
    {"mnuCreateForceB", nullptr, "Torvane - Create Division for Force B", false},
    {"mnuForceA1", "chkDiv1", "Torvane - Edit Force A Division 1", true},
    {"mnuForceA2", "chkDiv2", "Torvane - Edit Force A Division 2", true},
    {"mnuForceA3", "chkDiv3", "Torvane - Edit Force A Division 3", true},
    {"mnuForceA4", "chkDiv4", "Torvane - Edit Force A Division 4", true},
    {"mnuForceA5", "chkDiv9", "Torvane - Edit Force A Division 5", true},
    {"mnuForceA6", "chkDiv10", "Torvane - Edit Force A Division 6", true},
    {"mnuForceB1", "chkDiv5", "Torvane - Edit Force B Division 1", false},
    {"mnuForceB2", "chkDiv6", "Torvane - Edit Force B Division 2", false},
    {"mnuForceB3", "chkDiv7", "Torvane - Edit Force B Division 3", false},
    {"mnuForceB4", "chkDiv8", "Torvane - Edit Force B Division 4", false},
    {"mnuForceB5", "chkDiv11", "Torvane - Edit Force B Division 5", false},
    {"mnuForceB6", "chkDiv12", "Torvane - Edit Force B Division 6", false},
}};

constexpr std::array<RepositionRow, 6> repositionA{{
    {"mnuDiv1", "Blue 1"},
    {"mnuDiv2", "Blue 2"},
    {"mnuDiv3", "Blue 3"},
    {"mnuDiv4", "Blue 4"},
    {"mnuDiv9", "Blue  5"},
    {"mnuDiv10", "Blue  6"},
}};

constexpr std::array<RepositionRow, 6> repositionB{{
    {"mnuDiv5", "Red  1"},
    {"mnuDiv6", "Red  2"},
    {"mnuDiv7", "Red  3"},
    {"mnuDiv8", "Red  4"},
    {"mnuDiv11", "Red  5"},
    {"mnuDiv12", "Red  6"},
}};

QString forceLetter(bool forceA)
{
    return forceA ? QStringLiteral("A") : QStringLiteral("B");
}

} // namespace

const std::vector<MenuRow>& menuRows()
{
    static const std::vector<MenuRow> rows = makeRows();
    return rows;
}

std::span<const DivisionCommandRow> divisionCommandRows()
{
    return divisionCommands;
}

std::span<const DivisionCommandRow> editDivisionRows()
{
    return divisionCommandRows().subspan(createEntries);
}

const RepositionRow& repositionRow(bool forceA, int number)
{
    return (forceA ? repositionA : repositionB).at(static_cast<std::size_t>(number - 1));
}

int shipEntries(int division)
{
    return division == divisionsPerSide ? 9 : 10;
}

QString shipEntryName(bool forceA, int division, int ship)
{
    return (forceA ? QStringLiteral("mnuDiv%1Ship%2") : QStringLiteral("mnuDiv%1BShip%2"))
        .arg(division)
        .arg(ship);
}

QString shipDivisionName(bool forceA, int division)
{
    return QStringLiteral("mnuEditShip%1Div%2").arg(forceLetter(forceA)).arg(division);
}

QString editEntryName(bool forceA, int division)
{
    return QStringLiteral("mnuForce%1%2").arg(forceLetter(forceA)).arg(division);
}

} // namespace torvane
