#include "faults/failing_calls.h"

#include "faults/watched_calls.h"

#include <csignal>
#include <cstddef>
#include <cstdio>
#include <cstring>
#include <unistd.h>

// Runs within the system's calls: nothing in this file takes memory.

namespace torvane::testing {

namespace {

constexpr std::size_t longestPath = 512;
using Path = std::array<char, longestPath>;

struct Watch
{
    bool isOn = false;
    Path folder{};
    std::size_t folderLength = 0;
    FailurePlan plan;
    long count = 0;
    bool hasFailed = false;
    Operation failedOperation = Operation::Open;
    void (*report)(const CountedCall&) = nullptr;
};
Watch watch; // NOLINT: the calls have no other place to look

/// The path of each open file below the folder; empty for all others.
std::array<Path, 1024> openPaths; // NOLINT

const OperationRow& rowOf(Operation operation)
{
    return operationTable.at(static_cast<std::size_t>(operation));
}

void copyPath(Path& to, const char* from)
{
    std::snprintf(to.data(), to.size(), "%s", from);
}

bool isWatched(const char* path)
{
    return watch.isOn && path != nullptr && watch.folderLength > 0 &&
           std::strncmp(path, watch.folder.data(), watch.folderLength) == 0 &&
           (path[watch.folderLength] == '/' || path[watch.folderLength] == '\0');
}

Path* pathOf(int file)
{
    return file >= 0 && static_cast<std::size_t>(file) < openPaths.size()
               ? &openPaths[static_cast<std::size_t>(file)]
               : nullptr;
}

bool isPlanned(Operation operation)
{
    switch (watch.plan.what) {
    case FailurePlan::What::Fail:
    case FailurePlan::What::Kill:
        return watch.count == watch.plan.number;
    case FailurePlan::What::FailFrom:
        return watch.count == watch.plan.number || (watch.hasFailed && operation == watch.failedOperation);
    case FailurePlan::What::Nothing:
        break;
    }
    return false;
}

} // namespace

const char* openPath(int file)
{
    const Path* const path = pathOf(file);
    return path != nullptr && (*path)[0] != '\0' ? path->data() : nullptr;
}

void rememberPath(int file, const char* path)
{
    Path* const place = pathOf(file);
    if (place != nullptr && isWatched(path)) {
        copyPath(*place, path);
    }
}

void forgetPath(int file)
{
    if (Path* const path = pathOf(file)) {
        (*path)[0] = '\0';
    }
}

bool dies()
{
    return watch.plan.what == FailurePlan::What::Kill;
}

bool mustFail(Operation operation, const char* path)
{
    if (!isWatched(path)) {
        return false;
    }
    ++watch.count;
    const OperationRow& row = rowOf(operation);
    const bool fails = isPlanned(operation);
    if (watch.report != nullptr) {
        watch.report({watch.count, row.name, path, fails});
    }
    if (!fails) {
        return false;
    }
    if (!watch.hasFailed) {
        watch.hasFailed = true;
        watch.failedOperation = operation;
    }
    if (dies() && operation != Operation::Write) {
        ::kill(::getpid(), SIGKILL);
    }
    errno = row.errors.at(static_cast<std::size_t>(watch.plan.error) % row.errors.size());
    return true;
}

void watchCalls(const char* folder, const FailurePlan& plan)
{
    copyPath(watch.folder, folder);
    watch.folderLength = std::strlen(watch.folder.data());
    watch.plan = plan;
    watch.isOn = true;
}

long countedCalls()
{
    return watch.count;
}

void onCall(void (*report)(const CountedCall& call))
{
    watch.report = report;
}

UnwatchedCalls::UnwatchedCalls() : m_wasWatched(watch.isOn)
{
    watch.isOn = false;
}

UnwatchedCalls::~UnwatchedCalls()
{
    watch.isOn = m_wasWatched;
}

} // namespace torvane::testing
