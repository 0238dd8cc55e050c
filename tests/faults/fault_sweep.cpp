// The long form of the fault harness, by hand: every operation of the road with every error, once and for the
// rest of the run, the program killed at each and at random moments, and its game folder damaged at every
// step.
//
//   fault_sweep [--short] [--kills N] [--seed S] [--only fail|lasting|killed|random|damage]

#include "faults/sweep.h"

#include <QCoreApplication>
#include <QElapsedTimer>

#include <cstdio>
#include <random>

namespace torvane::testing {

namespace {

void print(const char* title, const SweepResult& result, const QElapsedTimer& timer)
{
    std::printf("\n%s: %ld runs, %lld s\n", title, result.runs(),
                static_cast<long long>(timer.elapsed() / 1000));
    for (const auto& [kind, count] : result.counts) {
        std::printf("  %-24s %6ld runs %6ld with a box %6ld killed %4ld bad\n", kind.toUtf8().constData(),
                    count.runs, count.withBoxes, count.killed, count.complaints);
    }
    for (const QString& finding : result.findings) {
        std::printf("  FINDING %s\n", finding.toUtf8().constData());
    }
    std::fflush(stdout);
}

struct Form
{
    bool isShort = false;
    int kills = 500;
    std::uint32_t seed = std::random_device{}();
    QString only;

    bool has(const char* part) const { return only.isEmpty() || only == QLatin1StringView(part); }
};

Form formFrom(const QStringList& arguments)
{
    Form form;
    const auto valueOf = [&](const char* name) {
        const qsizetype at = arguments.indexOf(QLatin1StringView(name));
        return at < 0 ? QString() : arguments.value(at + 1);
    };
    form.isShort = arguments.contains(QStringLiteral("--short"));
    if (const QString kills = valueOf("--kills"); !kills.isEmpty()) {
        form.kills = kills.toInt();
    }
    if (const QString seed = valueOf("--seed"); !seed.isEmpty()) {
        form.seed = seed.toUInt();
    }
    form.only = valueOf("--only");
    return form;
}

bool sweep(const Form& form, bool withOldScenarios)
{
    const Sweep road(withOldScenarios);
    const std::vector<RoadCall> calls = form.isShort ? road.distinctCalls() : road.calls();
    std::printf("\n== %s old scenarios: %zu operations, %zu tried, the road takes %ld ms\n",
                withOldScenarios ? "with" : "without", road.calls().size(), calls.size(),
                road.duration() / 1000);
    bool isClean = true;
    const auto take = [&](const char* part, const char* title, const std::function<SweepResult()>& runs) {
        if (form.has(part)) {
            QElapsedTimer timer;
            timer.start();
            const SweepResult result = runs();
            print(title, result, timer);
            isClean = isClean && result.findings.isEmpty();
        }
    };
    const int errors = form.isShort ? 1 : static_cast<int>(operationTable.front().errors.size());
    for (int error = 0; error < errors; ++error) {
        const auto which = [&](const RoadCall& call) {
            return form.isShort ? static_cast<int>(call.number) : error;
        };
        take("fail", "one operation fails", [&] { return road.fail(calls, FailurePlan::What::Fail, which); });
        take("lasting", "it and all of its kind fail from then on",
             [&] { return road.fail(calls, FailurePlan::What::FailFrom, which); });
    }
    take("killed", "killed at an operation", [&] { return road.killAt(calls); });
    std::printf("seed %u\n", form.seed);
    take("random", "killed at random", [&] { return road.killAtRandom(form.kills, form.seed); });
    take("damage", "the game folder is damaged", [&] { return road.damageAt(road.steps()); });
    return isClean;
}

} // namespace

} // namespace torvane::testing

int main(int argc, char** argv)
{
    using namespace torvane::testing;
    const QCoreApplication application(argc, argv);
    const auto form = formFrom(QCoreApplication::arguments());
    const bool fresh = sweep(form, false);
    const bool old = sweep(form, true);
    return fresh && old ? 0 : 1;
}
