#include "platform/code_page.h"
#include "platform/runtime_error.h"
#include "platform/text_files.h"
#include "scenario_file/load_scenario.h"
#include "scenario_file/save_scenario.h"
#include "scenario_file/scenario_format.h"
#include "store/working_profile.h"

#include <QDir>
#include <QTemporaryDir>

#include <algorithm>
#include <cstdlib>
#include <optional>

// The input is a scenario file. It goes the whole road of a load: profile, target area, scratch files, menus.

namespace {

using namespace torvane;

void require(bool holds)
{
    if (!holds) {
        std::abort();
    }
}

/// Checks that what reaches the menus is in order, and counts it.
class CheckedMenus : public ForceMenus
{
public:
    void showDivision(Side side, int number) override
    {
        require(m_pending == Next::Show);
        require(number == ++(side == Side::Blue ? blue : red));
        require(blue + red <= divisionSections);
        m_pending = Next::Enable;
    }
    void enableForces() override
    {
        require(m_pending == Next::Enable);
        m_pending = Next::Add;
    }
    void addRepositionMenuEntry(const QString& /*name*/, const QString& /*side*/) override
    {
        require(m_pending == Next::Add);
        m_pending = Next::Show;
    }

    int blue = 0;
    int red = 0;

private:
    enum class Next { Show, Enable, Add };
    Next m_pending = Next::Show;
};

/// A work folder in memory, where the system has one.
QString folderTemplate()
{
    const QString memory = QStringLiteral("/dev/shm");
    return (QFileInfo(memory).isWritable() ? memory : QDir::tempPath()) + QStringLiteral("/fuzz_load-XXXXXX");
}

class Store
{
public:
    /// Loads a file of these bytes. False where a number is too large.
    bool load(const QByteArray& bytes)
    {
        files.killFiles();
        files.killSurplusDivisions();
        menus = {};
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
    static Store store;
    const QByteArray bytes(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    if (store.load(bytes)) {
        requireWellFormed(store);
        requireScratchFiles(store);
        requireRoundTrip(store);
    }
    return 0;
}
