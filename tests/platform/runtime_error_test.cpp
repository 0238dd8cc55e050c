#include "platform/runtime_error.h"

#include "support/printers.h"

#include <gmock/gmock.h>

#include <cerrno>
#include <utility>
#include <vector>

namespace torvane {
namespace {

using ::testing::HasSubstr;
using ::testing::StartsWith;

TEST(PlatformError, KeepsNumberAndText)
{
    const RuntimeError error(RuntimeError::Overflow, QStringLiteral("Größe 40000"));
    EXPECT_EQ(error.number(), 6);
    EXPECT_EQ(error.text(), QStringLiteral("Größe 40000"));
}

TEST(PlatformError, WhatIsTheTextInUtf8)
{
    const RuntimeError error(RuntimeError::Overflow, QStringLiteral("Größe"));
    EXPECT_STREQ(error.what(), "Gr\xC3\xB6\xC3\x9F"
                               "e");
}

TEST(PlatformError, CarriesThePlatformsNumbers)
{
    EXPECT_EQ(RuntimeError::InvalidProcedureCall, 5);
    EXPECT_EQ(RuntimeError::Overflow, 6);
    EXPECT_EQ(RuntimeError::SubscriptOutOfRange, 9);
    EXPECT_EQ(RuntimeError::TypeMismatch, 13);
    EXPECT_EQ(RuntimeError::FileNotFound, 53);
    EXPECT_EQ(RuntimeError::DeviceIoError, 57);
    EXPECT_EQ(RuntimeError::DiskFull, 61);
    EXPECT_EQ(RuntimeError::PermissionDenied, 70);
    EXPECT_EQ(RuntimeError::PathAccessError, 75);
    EXPECT_EQ(RuntimeError::PathNotFound, 76);
    EXPECT_EQ(RuntimeError::NoCurrentRecord, 3021);
    EXPECT_EQ(RuntimeError::DatabaseFailure, 3049);
}

TEST(FileError, HasTheNumberThatFitsTheSystemsError)
{
    const std::vector<std::pair<int, RuntimeError::Number>> cases{
        {ENOENT, RuntimeError::FileNotFound},
        {ENOTDIR, RuntimeError::PathNotFound},
        {EACCES, RuntimeError::PermissionDenied},
        {EPERM, RuntimeError::PermissionDenied},
        {EROFS, RuntimeError::PermissionDenied},
        {EISDIR, RuntimeError::PathAccessError},
        {ENOSPC, RuntimeError::DiskFull},
        {EDQUOT, RuntimeError::DiskFull},
        {EFBIG, RuntimeError::DiskFull},
        {EIO, RuntimeError::DeviceIoError},
        {ENAMETOOLONG, RuntimeError::DeviceIoError}};
    for (const auto& [systemError, number] : cases) {
        EXPECT_EQ(fileError(QStringLiteral("x"), systemError).number(), number) << systemError;
    }
}

TEST(FileError, NamesThePathAndTheSystemsReason)
{
    const RuntimeError error = fileError(QStringLiteral("/spiel/Überblick.bmm"), ENOSPC);
    EXPECT_THAT(error.what(), StartsWith("/spiel/\xC3\x9C"
                                         "berblick.bmm: "));
    EXPECT_THAT(error.what(), HasSubstr("No space left on device"));
}

} // namespace
} // namespace torvane
