#include "flood/memory.h"

#include <cstddef>
#include <cstdio>
#include <malloc.h>
#include <unistd.h>

#ifdef __SANITIZE_ADDRESS__
// Of the sanitizers' run time; their header comes with some compilers only.
extern "C" std::size_t __sanitizer_get_current_allocated_bytes();
#endif

namespace torvane::testing {

namespace {

constexpr std::int64_t megabyte = 1024 * 1024;

} // namespace

#ifdef __SANITIZE_ADDRESS__
const std::int64_t residentBound = 192 * megabyte;
#else
const std::int64_t residentBound = 32 * megabyte;
#endif
const std::int64_t allocatedBound = 4 * megabyte;

std::int64_t residentBytes()
{
    std::FILE* file = std::fopen("/proc/self/statm", "r");
    if (file == nullptr) {
        return 0;
    }
    long total = 0;
    long resident = 0;
    const int read = std::fscanf(file, "%ld %ld", &total, &resident);
    std::fclose(file);
    return read == 2 ? std::int64_t{resident} * ::sysconf(_SC_PAGESIZE) : 0;
}

std::int64_t allocatedBytes()
{
#ifdef __SANITIZE_ADDRESS__
    return static_cast<std::int64_t>(__sanitizer_get_current_allocated_bytes());
#else
    const auto heap = ::mallinfo2();
    return static_cast<std::int64_t>(heap.uordblks + heap.hblkhd);
#endif
}

} // namespace torvane::testing
