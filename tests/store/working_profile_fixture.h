#pragma once

#include "platform/runtime_error.h"
#include "store/working_profile.h"
#include "support/printers.h"

#include <QFile>
#include <QTemporaryDir>

#include <gmock/gmock.h>

namespace torvane::testing {

/// A working profile in a work folder of its own.
class WorkingProfileTest : public ::testing::Test
{
protected:
    QByteArray onDisk() const
    {
        QFile file(profile.path());
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(no file)");
    }
    void put(const QByteArray& bytes) const
    {
        QFile file(profile.path());
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        ASSERT_EQ(file.write(bytes), bytes.size());
    }
    QString valueOf(const QByteArray& text)
    {
        put("[S]\r\nK=" + text + "\r\n");
        return profile.GetIniKey(u"S", u"K");
    }
    int countOf(const QByteArray& text)
    {
        put("[SCENARIOINFO]\r\nDIVISIONCNT=" + text + "\r\n");
        return profile.divisionCount();
    }
    bool isOverflow(const QByteArray& text)
    {
        try {
            countOf(text);
        } catch (const RuntimeError& error) {
            return error.number() == RuntimeError::Overflow;
        }
        return false;
    }

    QTemporaryDir folder;
    ProfileStore store;
    WorkingProfile profile{store, folder.path()};
};

} // namespace torvane::testing
