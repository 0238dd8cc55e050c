#pragma once

#include "platform/profile_store.h"
#include "support/printers.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include <gmock/gmock.h>

#include <sys/stat.h>

namespace torvane::testing {

/// A profile store that keeps what it reports, and a folder of its own for the files.
class ProfileStoreTest : public ::testing::Test
{
protected:
    void SetUp() override
    {
        ASSERT_TRUE(m_folder.isValid());
        QFile::setPermissions(m_folder.path(), QFile::Permissions(0x7777));
        store.onWriteFailure([this](const QString& path, const QString& reason) {
            failedPaths << path;
            reasons << reason;
        });
    }

    QString path(const QString& name = QStringLiteral("a.bmm")) const { return m_folder.filePath(name); }

    static void put(const QString& file, const QByteArray& bytes)
    {
        QFile device(file);
        ASSERT_TRUE(device.open(QIODevice::WriteOnly)) << file.toStdString();
        ASSERT_EQ(device.write(bytes), bytes.size());
    }
    static QByteArray onDisk(const QString& file)
    {
        QFile device(file);
        return device.open(QIODevice::ReadOnly) ? device.readAll() : QByteArray("(no file)");
    }
    QByteArray onDisk() const { return onDisk(path()); }

    QString read(const char16_t* section, const char16_t* key)
    {
        return store.read(path(), section, key, QStringLiteral("(default)"));
    }
    bool write(const char16_t* section, const char16_t* key, const QString& value)
    {
        return store.write(path(), section, key, value);
    }
    void emptyEvent() { const ProfileStore::Batch batch(store); }

    static ino_t inode(const QString& file)
    {
        struct stat status = {};
        ::stat(QFile::encodeName(file).constData(), &status);
        return status.st_ino;
    }

private:
    QTemporaryDir m_folder;

protected:
    ProfileStore store;
    QStringList failedPaths;
    QStringList reasons;
};

} // namespace torvane::testing
