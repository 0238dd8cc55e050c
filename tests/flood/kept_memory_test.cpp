#include "flood/memory.h"
#include "windows/division_fixture.h"

#include <QPixmapCache>

namespace torvane::testing {
namespace {

constexpr int warmUp = 20;
constexpr int rounds = 400;
constexpr std::int64_t noise = 64 * 1024; // bytes

/// What is allocated in the end and was not before, when something has been done many times.
template <typename Action>
std::int64_t keptBy(const Action& action)
{
    const auto repeat = [&action](int times) {
        for (int i = 0; i < times; ++i) {
            action();
        }
        // What the toolkit keeps for later drawing, within bounds.
        QPixmapCache::clear();
        return allocatedBytes();
    };
    const std::int64_t before = repeat(warmUp);
    return repeat(rounds) - before;
}

using Kept = DivisionDialogs;

TEST_F(Kept, OpeningAndLockingTheSettingsLeavesNothing)
{
    openScenario();
    create(Side::Blue);
    const std::int64_t kept = keptBy([this] {
        click(push("cmdDivDataChng"));
        click(push("cmdKeepDivData"));
    });
    EXPECT_LT(kept, noise);
}

TEST_F(Kept, ChangingTheNamesOnTheMapLeavesNothing)
{
    openScenario();
    auto* tool = control<QAbstractButton>(main(), QStringLiteral("cmdNameTog"));
    EXPECT_LT(keptBy([tool] { click(tool); }), noise);
}

} // namespace
} // namespace torvane::testing
