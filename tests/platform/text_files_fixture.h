#pragma once

#include "platform/text_files.h"
#include "support/expect_error.h"
#include "support/failing_system.h"
#include "support/files_fixture.h"
#include "support/printers.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <gmock/gmock.h>

namespace torvane::testing {

class TextFiles : public FilesFixture
{
protected:
    template <typename Call>
    static void expectError(RuntimeError::Number number, Call call, const QString& named)
    {
        testing::expectError(number, call, ::testing::HasSubstr(named.toStdString()));
    }
};

} // namespace torvane::testing
