#include "platform/error_names.h"

#include "support/printers.h"

#include <gmock/gmock.h>

namespace torvane {
namespace {

TEST(ErrorNames, AreThereForEveryNumberOnceInTheirOrder)
{
    const RuntimeError::Number numbers[] = {
        RuntimeError::InvalidProcedureCall, RuntimeError::Overflow,     RuntimeError::OutOfMemory,
        RuntimeError::SubscriptOutOfRange,  RuntimeError::TypeMismatch, RuntimeError::FileNotFound,
        RuntimeError::DeviceIoError,        RuntimeError::DiskFull,     RuntimeError::PermissionDenied,
        RuntimeError::PathAccessError,      RuntimeError::PathNotFound, RuntimeError::NoCurrentRecord,
        RuntimeError::DatabaseFailure};
    ASSERT_EQ(errorNames.size(), std::size(numbers));
    for (std::size_t i = 0; i < errorNames.size(); ++i) {
        EXPECT_EQ(errorNames.at(i).number, numbers[i]);
        EXPECT_STRNE(errorNames.at(i).name.english, errorNames.at(i).name.german);
    }
}

TEST(ErrorBoxText, SaysWhatHappenedAndToWhat)
{
    const RuntimeError error(RuntimeError::DiskFull, QStringLiteral("/game/x.scn: no space"));
    EXPECT_EQ(errorBoxText(error, Language::English),
              QStringLiteral("The disk is full.\n\n/game/x.scn: no space"));
    EXPECT_EQ(errorBoxText(error, Language::German),
              QStringLiteral("Der Datenträger ist voll.\n\n/game/x.scn: no space"));
}

} // namespace
} // namespace torvane
