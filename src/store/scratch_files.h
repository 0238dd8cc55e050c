#pragma once

#include "platform/profile_store.h"
#include "store/side.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

namespace torvane {

/// The values of a text in quoted-line format, one a line: the text between the first and the last double
/// quote of the line, the text behind its only quote, or the whole line if it has none. Lines end in LF, CRLF
/// or CR; a line without anything is no value. Takes any bytes in Windows-1252.
QStringList parseQuotedLines(QByteArrayView bytes);

/// The values in quoted-line format: each between double quotes on a line of its own, CRLF at its end. Line
/// breaks inside a value become blanks; a double quote inside is written as it is.
QByteArray quotedLines(const QStringList& values);

/// The small text files of a run, private to it, in the work folder.
class ScratchFiles
{
public:
    ScratchFiles(ProfileStore& store, const QString& workDir);

    const QString& workDir() const { return m_workDir; }
    /// `number` is the division's number within its side, from 1.
    QString divisionFile(Side side, int number) const;
    QString divDataFile(Side side, int number) const;
    QString shipTrack() const;
    QString shipRemove() const;
    QString iniShipData() const;
    QString exisitTemp() const;
    QString tempIniTemp() const;

    /// Reads a quoted-line file. Throws RuntimeError if it can't be read.
    QStringList read(const QString& path) const;
    /// Writes a quoted-line file whole. Throws RuntimeError if it can't be written.
    void write(const QString& path, const QStringList& values) const;

    /// The names that `killFiles` deletes, in its order.
    static QStringList killList();

    /// Deletes the scenario's scratch files and the working profile, each if it exists. Throws RuntimeError
    /// at the first that can't be deleted.
    void killFiles();

    /// Deletes the files of a ninth and further division of a side, which only a loaded scenario has. Throws
    /// as `killFiles`.
    void killSurplusDivisions();

    /// Deletes what only a run that was killed can have left: the copies of an edit in progress and
    /// half-written files. A file that can't be deleted stays.
    void removeLeftovers();

private:
    void remove(const QString& name);

    ProfileStore& m_store;
    QString m_workDir;
};

} // namespace torvane
