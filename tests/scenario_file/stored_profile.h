#pragma once

#include "platform/text_files.h"
#include "store/working_profile.h"
#include "support/printers.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gmock/gmock.h>

namespace torvane::testing {

/// A working profile on disk that holds what a test puts there, and a folder for scenarios.
class StoredProfile : public ::testing::Test
{
protected:
    StoredProfile()
    {
        QDir(m_folder.path()).mkdir(QStringLiteral("Scenarios"));
        // A test without privileges must still get at the profile.
        QFile::setPermissions(m_folder.path(), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner |
                                                   QFile::ReadGroup | QFile::ExeGroup | QFile::ReadOther |
                                                   QFile::ExeOther);
    }

    void store(const QByteArray& bytes) const { writeWholeFile(profile.path(), bytes); }
    void set(const char* section, const char* key, const char* value)
    {
        profile.write(QString::fromLatin1(section), QString::fromLatin1(key), QString::fromUtf8(value));
    }
    QString scenarioFolder() const { return m_folder.filePath(QStringLiteral("Scenarios/")); }
    QString scenario(const char* name) const { return scenarioFolder() + QLatin1StringView(name); }
    QStringList scenarioNames() const
    {
        return QDir(scenarioFolder()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
    }

private:
    QTemporaryDir m_folder;

protected:
    ProfileStore profiles;
    WorkingProfile profile{profiles, m_folder.path()};
};

} // namespace torvane::testing
