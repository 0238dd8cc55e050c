#include "platform/code_page.h"
#include "platform/runtime_error.h"
#include "platform/text_files.h"
#include "require.h"
#include "scenario_file/load_scenario.h"
#include "scenario_file/save_scenario.h"
#include "scenario_file/scenario_format.h"
#include "shell/commands.h"
#include "shell/loaded_forces.h"
#include "shell/main_menu.h"
#include "store/force_sizes.h"
#include "store/working_profile.h"

#include <QAction>
#include <QApplication>
#include <QDir>
#include <QMenuBar>
#include <QTemporaryDir>

#include <algorithm>
#include <memory>
#include <optional>

// The input is a scenario file. It goes the whole road of a load: profile, target area, scratch files, menus.

namespace {

using namespace torvane;

/// The real main menu. Checks that what reaches it is in order, and that it shows what came.
class CheckedMenus : public ForceMenus
{
public:
    void begin()
    {
        m_menu->resetForceMenus();
        blue = red = 0;
        m_pending = Next::Show;
    }
    void showDivision(Side side, int number) override
    {
        m_forces.showDivision(side, number);
        require(m_pending == Next::Show);
        require(number == ++(side == Side::Blue ? blue : red));
        require(blue + red <= divisionSections);
        m_pending = Next::Enable;
    }
    void enableForces() override
    {
        m_forces.enableForces();
        require(m_pending == Next::Enable);
        m_pending = Next::Add;
    }
    void addRepositionMenuEntry(const QString& name, const QString& side) override
    {
        m_forces.addRepositionMenuEntry(name, side);
        require(m_pending == Next::Add);
        m_pending = Next::Show;
    }

    /// What the author sees of the divisions that came.
    void requireShown() const
    {
        require(m_menu->blueDivisionCount() + m_menu->redDivisionCount() == blue + red);
        for (const bool forceA : {true, false}) {
            const int shown = std::max(1, forceA ? blue : red);
            for (int number = 1; number <= divisionsPerSide; ++number) {
                require(m_menu->action(editEntryName(forceA, number))->isVisible() == (number <= shown));
            }
            const QLatin1StringView edit(forceA ? "editForceA" : "editForceB");
            require(m_menu->action(edit)->isEnabled() == (blue + red > 0));
        }
    }

    int blue = 0;
    int red = 0;

private:
    QMenuBar m_bar;
    MainMenu* const m_menu = new MainMenu(&m_bar); // the bar's
    LoadedForces m_forces{*m_menu};
    enum class Next { Show, Enable, Add };
    Next m_pending = Next::Show;
};

/// A work folder in memory, where the system has one.
QString folderTemplate()
{
    const QString memory = QStringLiteral("/dev/shm");
    return (QFileInfo(memory).isWritable() ? memory : QDir::tempPath()) + QStringLiteral("/fuzz_load-XXXXXX");
}

/// Menus want an application, though no screen.
struct Application
{
    int m_count = 1;
    char m_name[10] = "fuzz_load";
    char* m_arguments[2] = {m_name, nullptr};
    std::unique_ptr<QApplication> m_application = [this] {
        qputenv("QT_QPA_PLATFORM", "offscreen");
        return std::make_unique<QApplication>(m_count, m_arguments);
    }();
};

class Store
{
public:
    /// Loads a file of these bytes. False where a number is too large.
    bool load(const QByteArray& bytes)
    {
        files.killFiles();
        files.killSurplusDivisions();
        menus.begin();
        target = {};
        try {
            rebuildStore(Profile::parse(bytes), profile, files, target, menus);
        } catch (const RuntimeError& error) {
            require(error.number() == RuntimeError::Overflow);
            return false;
        }
        return true;
    }
    /// The scenario as a file, or nothing where a number is too large or the division count is missing.
    std::optional<QByteArray> saved() const
    {
        try {
            return scenarioBytes(profile, target, u"Force A");
        } catch (const RuntimeError& error) {
            require(error.number() == RuntimeError::Overflow ||
                    error.number() == RuntimeError::InvalidProcedureCall);
            return std::nullopt;
        }
    }
    QStringList names() const
    {
        return QDir(m_folder.path())
            .entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
    }

private:
    QTemporaryDir m_folder{folderTemplate()};
    ProfileStore m_profiles;
    // Never ends: the profile stays in memory, as within one event.
    ProfileStore::Batch m_batch{m_profiles};

public:
    WorkingProfile profile{m_profiles, m_folder.path()};
    ScratchFiles files{m_profiles, m_folder.path()};
    TargetArea target;
    CheckedMenus menus;
};

/// The loaded profile reads back as it was written, section for section.
void requireWellFormed(const Store& store)
{
    const QByteArray bytes = store.profile.parsed().bytes();
    require(bytes.startsWith("[VERSION]\r\nVERSIONNUMBER=64\r\n[SCENARIODATA]\r\n"));
    require(Profile::parse(bytes).bytes() == bytes);
    require(!bytes.contains("\r\nYARDS"));
    for (int n = 0; n < divisionSections; ++n) {
        for (int m = 0; m < shipSections; ++m) {
            const QString ship = shipSection(n, m);
            const bool isThere = store.profile.GetIniKey(ship, u"NAME") != invalidValue;
            require(!isThere || bytes.contains('[' + toCodePage(ship) + "]\r\n"));
        }
    }
}

/// A Division and a DivData file each division, the ship track, and nothing else.
void requireScratchFiles(const Store& store)
{
    QStringList expected{QStringLiteral("ShipTrack.bmm")};
    for (const Side side : {Side::Blue, Side::Red}) {
        for (int number = 1; number <= (side == Side::Blue ? store.menus.blue : store.menus.red); ++number) {
            for (const QString& path :
                 {store.files.divisionFile(side, number), store.files.divDataFile(side, number)}) {
                const QStringList values = store.files.read(path);
                require(quotedLines(values) == readWholeFile(path));
                require(values.size() <= shipSections);
                expected << QFileInfo(path).fileName();
            }
        }
    }
    require(store.files.read(store.files.shipTrack()).size() <= divisionSections * shipSections);
    QStringList names = store.names();
    names.sort();
    expected.sort();
    require(names == expected);
}

/// Saving and loading come to rest: quotes inside quotes go one pair at a time, and the Red z, which no save
/// replaces here, turns its sign each time.
void requireRoundTrip(Store& store)
{
    std::optional<QByteArray> file = store.saved();
    std::vector<QByteArray> seen;
    while (file && std::ranges::find(seen, *file) == seen.end()) {
        seen.push_back(*file);
        require(seen.size() < 200);
        file = store.load(*file) ? store.saved() : std::nullopt;
    }
    if (file) {
        require(seen.back() == *file || seen.at(seen.size() - 2) == *file);
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size)
{
    static Application application;
    static Store store;
    const QByteArray bytes(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    if (store.load(bytes)) {
        store.menus.requireShown();
        requireWellFormed(store);
        requireScratchFiles(store);
        requireRoundTrip(store);
    }
    return 0;
}
