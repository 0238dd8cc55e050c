#pragma once

#include "platform/text_files.h"
#include "support/expect_error.h"
#include "support/failing_system.h"
#include "support/printers.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include <gmock/gmock.h>

namespace torvane::testing {

/// Files in a folder of its own.
class TextFiles : public ::testing::Test
{
protected:
    QString path(const QString& name) const { return m_folder.filePath(name); }
    QString folder() const { return m_folder.path(); }

    QStringList names() const
    {
        return QDir(folder()).entryList(QDir::AllEntries | QDir::Hidden | QDir::System |
                                        QDir::NoDotAndDotDot);
    }

    void put(const QString& name, const QByteArray& bytes) const
    {
        QFile file(path(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        ASSERT_EQ(file.write(bytes), bytes.size());
    }

    QByteArray bytesOf(const QString& name) const
    {
        QFile file(path(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(not there)");
    }

    template <typename Call>
    static void expectError(RuntimeError::Number number, Call call, const QString& named)
    {
        testing::expectError(number, call, ::testing::HasSubstr(named.toStdString()));
    }

private:
    QTemporaryDir m_folder;
};

} // namespace torvane::testing
