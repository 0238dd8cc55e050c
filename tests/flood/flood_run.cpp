#include "divisions/create_division_frm.h"
#include "flood/memory.h"
#include "flood/monkey.h"
#include "platform/form.h"
#include "scenario_file/save_texts.h"
#include "shell/captions.h"
#include "shell/commands.h"
#include "shell/main_frm.h"
#include "shell/main_menu.h"

#include <QAction>
#include <QApplication>
#include <QDir>
#include <QFile>
#include <QPixmapCache>

#include <algorithm>
#include <stdexcept>
#include <sys/stat.h>

// The runs of the editor in a flood: how one begins and ends, and what is kept of it between two events.

namespace torvane::testing {

namespace {

const QString workFolder = QStringLiteral("./ScenarioEditor/");
const QString scenarioFolder = QStringLiteral("./Scenarios/");
const QString profilePath = QStringLiteral("./ScenarioEditor/iniTemp.bmm");
constexpr int warmUpRuns = 4; // until every window has been there
constexpr std::int64_t warmUpShare = 4;

QStringList namesIn(const QString& folder)
{
    return QDir(folder).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot, QDir::Name);
}

void copyAll(const QString& from, const QString& to, const QString& suffix)
{
    for (const QString& name : QDir(from).entryList(QDir::Files, QDir::Name)) {
        if (!QFile::copy(from + QLatin1Char('/') + name, to + name + suffix)) {
            throw std::runtime_error("can't copy " + name.toStdString());
        }
    }
}

/// A load leaves the marks of a new scenario's first divisions as they are: the count of a side whose mark is
/// still set starts from 0 though divisions were loaded.
bool hasStaleMarks()
{
    for (const QWidget* window : QApplication::topLevelWidgets()) {
        if (const auto* dialog = qobject_cast<const CreateDivisionFrm*>(window)) {
            return valueOf(dialog->ChknewBlueFlag) == 1 || valueOf(dialog->ChknewRedFlag) == 1;
        }
    }
    return false;
}

} // namespace

Monkey::Monkey(const FloodOptions& options)
    : m_options(options), m_formerFolder(QDir::currentPath()), m_random(options.seed)
{
    fillGameFolder();
}

Monkey::~Monkey()
{
    m_run.reset();
    QDir::setCurrent(m_formerFolder);
}

// The editor works in the current folder, by names that are the same in every flood.
void Monkey::fillGameFolder()
{
    const QString files = QDir(m_options.gameFiles).absolutePath();
    const QString damaged = QDir(m_options.damagedFiles).absolutePath();
    if (!QFile::exists(files + QStringLiteral("/ShipDatabase.mdb"))) {
        throw std::runtime_error("no game files in " + files.toStdString());
    }
    QDir::setCurrent(m_folder.path());
    QDir().mkpath(workFolder);
    QDir().mkpath(scenarioFolder);
    for (const char* name : {"ShipDatabase.mdb", "ScenarioData.mdb", "SE_README.HLP"}) {
        QFile::copy(files + QLatin1Char('/') + QLatin1StringView(name), workFolder + QLatin1StringView(name));
    }
    copyAll(damaged, scenarioFolder, QStringLiteral(".scn"));
}

void Monkey::startRun()
{
    tidyScenarios();
    ++m_runs;
    const Language language = m_random.chance(50) ? Language::German : Language::English;
    m_run = std::make_unique<Run>(QStringLiteral("."), language, m_random);
    m_run->messageBoxes().onShow = [this](const MessageBox& box) { hearBox(box); };
    m_run->fileBoxes().onOpen = [this](const QString& name) {
        m_origin = m_soundFiles.contains(name) && !hasStaleMarks() ? Origin::Made : Origin::Foreign;
        m_allDrawn = true;
        m_census.count(QStringLiteral("files"), m_origin == Origin::Made
                                                    ? QStringLiteral("loaded, of its own")
                                                    : QStringLiteral("loaded, foreign"));
    };
    m_run->fileBoxes().onSave = [this](const QString& name) { m_savedName = name; };
    m_run->editor().start();
    countCommands();
}

void Monkey::endRun()
{
    m_census.count(QStringLiteral("runs"), QStringLiteral("ended"));
    m_habits.forget();
    m_inputs.clear();
    m_run.reset();
    m_front = nullptr;
    m_frontName.clear();
    m_profileMark = 0;
    m_origin = Origin::None;
    m_walkingOut = false;
    const QStringList staged{QStringLiteral("SE_README.HLP"), QStringLiteral("ScenarioData.mdb"),
                             QStringLiteral("ShipDatabase.mdb")};
    if (const QStringList left = namesIn(workFolder); left != staged) {
        m_heardFault = QStringLiteral("left behind in the work folder: %1").arg(left.join(u' '));
    }
    if (const QStringList there = namesIn(QStringLiteral(".")); there.size() != 2) {
        m_heardFault = QStringLiteral("written beside the folders: %1").arg(there.join(u' '));
    }
    if (m_runs < warmUpRuns) {
        return;
    }
    // What the toolkit keeps for later drawing, up to ten megabytes, is no growth of the editor's.
    QPixmapCache::clear();
    const std::int64_t allocated = allocatedBytes();
    m_firstAllocated = m_firstAllocated.value_or(allocated);
    m_outcome.allocatedGrowth = allocated - *m_firstAllocated;
}

// Titles make files of many names.
void Monkey::tidyScenarios() const
{
    constexpr qsizetype mostFiles = 60;
    const QStringList names = namesIn(scenarioFolder);
    for (qsizetype i = 0; names.size() > mostFiles && i < names.size(); ++i) {
        const QString& name = names[i];
        const QString source = m_options.damagedFiles + QLatin1Char('/') + name.chopped(4);
        if (!m_soundFiles.contains(name) && !QFile::exists(QDir(m_formerFolder).filePath(source))) {
            QFile::remove(scenarioFolder + name);
        }
    }
}

void Monkey::countCommands()
{
    const MainMenu& menu = m_run->editor().mainFrm().menu();
    for (const MenuRow& row : menuRows()) {
        if (row.kind != MenuRow::Kind::Entry) {
            continue;
        }
        connect(menu.action(row.name), &QAction::triggered, this, [this, name = row.name] {
            m_census.count(QStringLiteral("commands"), name);
            if (name == QStringLiteral("mnuNew")) {
                m_origin = Origin::Made;
                m_allDrawn = true;
            }
        });
    }
}

void Monkey::hearBox(const MessageBox& box)
{
    const Language language = m_run->editor().language();
    log(QStringLiteral("  box: ") + QString(box.text).replace(QLatin1Char('\n'), QLatin1Char(' ')));
    if (box.title == mainText(MainText::RuntimeErrorTitle, language)) {
        const QString excuse = excuseFor(box, m_origin);
        if (excuse.isEmpty()) {
            m_heardFault = QStringLiteral("an error that the rules don't allow: %1").arg(box.text);
        }
        m_allDrawn = m_allDrawn && errorNumberOf(box) != RuntimeError::Overflow;
        m_census.count(QStringLiteral("allowed errors"),
                       QStringLiteral("%1: %2").arg(errorNumberOf(box)).arg(excuse));
        return;
    }
    const bool saved = box.text == saveText(SaveText::Saved, language);
    if (saved || box.text == saveText(SaveText::Failed, language)) {
        rememberSave(saved);
    }
    m_census.count(QStringLiteral("boxes"),
                   QString(box.text).replace(QLatin1Char('\n'), QLatin1Char(' ')).left(60));
}

// What a file holds that was saved from a foreign scenario is foreign too.
void Monkey::rememberSave(bool saved)
{
    if (saved && m_origin == Origin::Made) {
        m_soundFiles.insert(m_savedName);
    } else if (saved) {
        m_soundFiles.remove(m_savedName);
    }
    m_savedName.clear();
}

void Monkey::sampleMemory()
{
    const std::int64_t resident = residentBytes();
    if (m_outcome.events * warmUpShare >= m_options.events) {
        m_firstResident = m_firstResident.value_or(resident);
        m_outcome.residentGrowth = resident - *m_firstResident;
    }
}

QString Monkey::memoryFault()
{
    if (m_outcome.residentGrowth > residentBound || m_outcome.allocatedGrowth > allocatedBound) {
        return QStringLiteral("memory has grown by %1 bytes in place, %2 bytes allocated between runs")
            .arg(m_outcome.residentGrowth)
            .arg(m_outcome.allocatedGrowth);
    }
    return {};
}

// The profile is replaced whole by each write: another file means another content.
bool Monkey::takeProfileChange()
{
    struct stat file
    {
    };
    const bool there = ::stat(QFile::encodeName(profilePath).constData(), &file) == 0;
    const std::uint64_t mark = there ? file.st_ino * 31U + static_cast<std::uint64_t>(file.st_mtim.tv_nsec) +
                                           static_cast<std::uint64_t>(file.st_mtim.tv_sec) * 7U +
                                           static_cast<std::uint64_t>(file.st_size)
                                     : 0;
    return std::exchange(m_profileMark, mark) != mark;
}

QByteArray Monkey::profileBytes() const
{
    QFile file(profilePath);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace torvane::testing
