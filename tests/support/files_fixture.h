#pragma once

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gmock/gmock.h>

namespace torvane::testing {

/// Files in a folder of its own.
class FilesFixture : public ::testing::Test
{
protected:
    QString path(const QString& name) const { return m_folder.filePath(name); }
    QString folder() const { return m_folder.path(); }

    void put(const QString& name, const QByteArray& bytes = "x") const
    {
        QFile file(path(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        ASSERT_EQ(file.write(bytes), bytes.size());
    }

    /// "(not there)" if there is no such file or it can't be read.
    QByteArray bytesOf(const QString& name) const
    {
        QFile file(path(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(not there)");
    }

    /// All names in the folder, hidden ones too, in plain alphabetical order.
    QStringList names() const
    {
        QStringList list =
            QDir(folder()).entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
        list.sort();
        return list;
    }

private:
    QTemporaryDir m_folder;
};

} // namespace torvane::testing
