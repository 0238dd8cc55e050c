#pragma once

#include <array>
#include <cerrno>

namespace torvane::testing {

/// What a program asks of the file system, as far as it can be made to fail.
enum class Operation { Open, Make, List, Look, Read, Write, Sync, Rename, Delete, Cut, Close, Rights, Lock };

/// How the system refuses an operation: the errors that it is known to give there.
struct OperationRow
{
    Operation operation;
    const char* name;
    std::array<int, 3> errors;
};
inline constexpr std::array<OperationRow, 13> operationTable{{
    {Operation::Open, "open", {EACCES, EIO, EMFILE}},
    {Operation::Make, "make", {ENOSPC, EACCES, EIO}},
    {Operation::List, "list", {EACCES, EIO, EMFILE}},
    {Operation::Look, "look", {EACCES, EIO, ENOMEM}},
    {Operation::Read, "read", {EIO, ENXIO, ESTALE}},
    {Operation::Write, "write", {ENOSPC, EIO, EDQUOT}},
    {Operation::Sync, "sync", {EIO, ENOSPC, EDQUOT}},
    {Operation::Rename, "rename", {EACCES, ENOSPC, EIO}},
    {Operation::Delete, "delete", {EACCES, EIO, EROFS}},
    {Operation::Cut, "cut", {EIO, ENOSPC, EPERM}},
    {Operation::Close, "close", {EIO, ENOSPC, EDQUOT}},
    {Operation::Rights, "rights", {EPERM, EIO, EROFS}},
    {Operation::Lock, "lock", {ENOLCK, EIO, EACCES}},
}};

/// What is to happen to one of the operations below a folder, which are counted from 1.
struct FailurePlan
{
    enum class What {
        Nothing,
        Fail,     ///< this one
        FailFrom, ///< this one and all of its kind that follow
        Kill      ///< the program dies at it; of what was to be written, half is
    };
    What what = What::Nothing;
    long number = 0;
    int error = 0; ///< which of the operation's errors, from 0
};

/// From now on the operations on paths below the folder are counted, and go as planned. All others, and all
/// before, are left alone. The calls of the whole program are watched, those of its libraries too.
void watchCalls(const char* folder, const FailurePlan& plan);

/// Of the folder that is watched.
long countedCalls();

/// An operation that is counted, before it is done.
struct CountedCall
{
    long number;
    const char* operation;
    const char* path;
    bool fails;
};
/// Runs for each of them; must not touch the folder.
void onCall(void (*report)(const CountedCall& call));

/// While one lives, nothing is counted and nothing fails.
class UnwatchedCalls
{
public:
    UnwatchedCalls();
    ~UnwatchedCalls();
    UnwatchedCalls(const UnwatchedCalls&) = delete;
    UnwatchedCalls& operator=(const UnwatchedCalls&) = delete;

private:
    bool m_wasWatched;
};

} // namespace torvane::testing
