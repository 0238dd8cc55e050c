#include "store/scratch_files.h"

#include "platform/code_page.h"
#include "platform/runtime_error.h"
#include "platform/text_files.h"

#include <QDir>
#include <QRegularExpression>

#include <algorithm>

namespace torvane {

namespace {

// Beyond the six divisions of a side; the clean-up has always gone this far.
constexpr int killedDivisions = 8;
// What a loaded scenario can have on one side.
constexpr int mostDivisions = 12;

constexpr QLatin1StringView shipTrackName{"ShipTrack.bmm"};
constexpr QLatin1StringView workingProfileName{"iniTemp.bmm"};
constexpr QLatin1StringView iniShipDataName{"iniShipData.bmm"};
constexpr QLatin1StringView shipRemoveName{"ShipRemove.bmm"};
constexpr QLatin1StringView exisitTempName{"ExisitTemp.bmm"};
constexpr QLatin1StringView tempIniTempName{"TempIniTemp.bmm"};

bool isProfile(const QString& name)
{
    return name == workingProfileName || name == iniShipDataName || name == tempIniTempName;
}

QString divisionName(QLatin1StringView kind, Side side, int number)
{
    return kind + (side == Side::Blue ? u'A' : u'B') + QString::number(number) + QStringLiteral(".txt");
}

QString divisionName(Side side, int number)
{
    return divisionName(QLatin1StringView("Division"), side, number);
}

QString divDataName(Side side, int number)
{
    return divisionName(QLatin1StringView("DivData"), side, number);
}

/// The value of one line, which is not empty.
QByteArrayView valueOf(QByteArrayView line)
{
    const qsizetype first = line.indexOf('"');
    if (first < 0) {
        return line;
    }
    const qsizetype last = line.lastIndexOf('"');
    const QByteArrayView rest = line.sliced(first + 1);
    return last == first ? rest : rest.first(last - first - 1);
}

QStringList editCopies()
{
    return {shipRemoveName, exisitTempName, tempIniTempName};
}

/// The files of a folder that a write under one of the names left half done: the name, a dot, six letters or
/// digits.
QStringList halfWritten(const QString& folder, const QStringList& names)
{
    static const QRegularExpression ending(QStringLiteral("\\.[A-Za-z0-9]{6}\\z"));
    QStringList found = QDir(folder).entryList(QDir::Files | QDir::Hidden);
    const auto isForeign = [&names](const QString& file) {
        const qsizetype at = file.indexOf(ending);
        return at < 0 || !names.contains(file.left(at));
    };
    found.removeIf(isForeign);
    return found;
}

} // namespace

QStringList parseQuotedLines(QByteArrayView bytes)
{
    QStringList values;
    const auto isLineEnd = [](char byte) { return byte == '\r' || byte == '\n'; };
    for (const char* at = bytes.begin(); at != bytes.end();) {
        const char* const end = std::find_if(at, bytes.end(), isLineEnd);
        if (end != at) {
            values.append(fromCodePage(valueOf(QByteArrayView(at, end))));
        }
        at = end == bytes.end() ? end : end + 1;
    }
    return values;
}

QByteArray quotedLines(const QStringList& values)
{
    QByteArray bytes;
    for (QString value : values) {
        value.replace(QStringLiteral("\r\n"), QStringLiteral(" ")).replace(u'\r', u' ').replace(u'\n', u' ');
        bytes += '"' + toCodePage(value) + "\"\r\n";
    }
    return bytes;
}

ScratchFiles::ScratchFiles(ProfileStore& store, const QString& workDir)
    : m_store(store), m_workDir(workDir.endsWith(u'/') ? workDir : workDir + u'/')
{
}

QString ScratchFiles::divisionFile(Side side, int number) const
{
    return m_workDir + divisionName(side, number);
}

QString ScratchFiles::divDataFile(Side side, int number) const
{
    return m_workDir + divDataName(side, number);
}

QString ScratchFiles::shipTrack() const
{
    return m_workDir + shipTrackName;
}

QString ScratchFiles::shipRemove() const
{
    return m_workDir + shipRemoveName;
}

QString ScratchFiles::iniShipData() const
{
    return m_workDir + iniShipDataName;
}

QString ScratchFiles::exisitTemp() const
{
    return m_workDir + exisitTempName;
}

QString ScratchFiles::tempIniTemp() const
{
    return m_workDir + tempIniTempName;
}

QStringList ScratchFiles::read(const QString& path) const
{
    return parseQuotedLines(readWholeFile(path));
}

void ScratchFiles::write(const QString& path, const QStringList& values) const
{
    writeScratchFile(path, quotedLines(values));
}

QStringList ScratchFiles::killList()
{
    QStringList names;
    for (int i = 1; i <= killedDivisions; ++i) {
        names << divisionName(Side::Blue, i) << divisionName(Side::Red, i);
    }
    // Nothing writes these three.
    names << QStringLiteral("ShipData.txt") << QStringLiteral("DivDataA.txt")
          << QStringLiteral("DivDataB.txt");
    for (int i = 1; i <= killedDivisions; ++i) {
        names << divDataName(Side::Blue, i) << divDataName(Side::Red, i);
    }
    return names << shipTrackName << workingProfileName << iniShipDataName;
}

void ScratchFiles::killFiles()
{
    for (const QString& name : killList()) {
        remove(name);
    }
}

void ScratchFiles::killSurplusDivisions()
{
    for (const Side side : {Side::Blue, Side::Red}) {
        for (int number = killedDivisions + 1; number <= mostDivisions; ++number) {
            remove(divisionName(side, number));
            remove(divDataName(side, number));
        }
    }
}

void ScratchFiles::removeLeftovers()
{
    removeUnfinishedFiles(m_workDir);
    const QStringList copies = editCopies();
    for (const QString& name : copies + halfWritten(m_workDir, killList() + copies)) {
        try {
            remove(name);
        } catch (const RuntimeError&) {
            // It does no harm where it is, and the next edit that needs the name reports it.
        }
    }
}

void ScratchFiles::remove(const QString& name)
{
    const QString path = m_workDir + name;
    // What waits to be written to a profile must go with it.
    if (isProfile(name)) {
        m_store.remove(path);
    } else {
        deleteFile(path);
    }
}

} // namespace torvane
