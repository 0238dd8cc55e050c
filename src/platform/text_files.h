#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QString>

namespace torvane {

/// Whether the `errno` of a failed look says that there is nothing of that name.
bool isMissing(int systemError);

/// Whether there is something of that name. Throws RuntimeError where the system can't tell, so that nobody
/// takes what can't be seen for missing.
bool isThere(const QString& path);

/// All bytes of a file. Throws RuntimeError (file not found, permission denied, path access error for a
/// folder, device error) with the path in the text.
QByteArray readWholeFile(const QString& path);

/// Puts a file in place whole: written beside it under a hidden name, synced, renamed over it, and the folder
/// synced, so that a crash at any moment leaves the old bytes or the new ones. An old file keeps its rights
/// and the links to it. Throws RuntimeError, also where the old file may not be written, and leaves that as
/// it was; only where it is the folder that can't be synced does the new one already lie there.
void writeWholeFile(const QString& path, QByteArrayView bytes);

/// The same without waiting for the disk, for files that no one needs after a crash: readers find the old
/// bytes or the new ones, but a power cut may leave neither.
void writeScratchFile(const QString& path, QByteArrayView bytes);

/// Deletes a file if it exists. Throws RuntimeError if it exists and can't be deleted. A folder of that name
/// can't be deleted.
void deleteFile(const QString& path);

/// Gives a file another name in the same file system, which must be that of no other file. Throws
/// RuntimeError.
void renameFile(const QString& path, const QString& newPath);

/// Throws RuntimeError, naming the folder, unless it exists and a file can be made and filled in it. Leaves
/// nothing behind.
void requireWritableFolder(const QString& folder);

/// Deletes what a program that was killed in the middle of `writeWholeFile` or `requireWritableFolder` has
/// left in a folder. A file that can't be deleted stays.
void removeUnfinishedFiles(const QString& folder);

} // namespace torvane
