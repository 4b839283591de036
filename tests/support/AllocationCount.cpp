#include "AllocationCount.h"

#include <atomic>
#include <cstddef>

#if defined(__SANITIZE_ADDRESS__) || !defined(__GLIBC__)

bool canCountAllocations()
{
    return false;
}

qint64 allocationCount()
{
    return 0;
}

#else

extern "C" {
void *__libc_malloc(std::size_t size);
void *__libc_calloc(std::size_t count, std::size_t size);
void *__libc_realloc(void *memory, std::size_t size);
}

namespace {

std::atomic<qint64> s_count{0};

} // namespace

// These stand before the C library's own for the whole process, since the program is searched first.
extern "C" {

Q_DECL_EXPORT void *malloc(std::size_t size)
{
    s_count.fetch_add(1, std::memory_order_relaxed);
    return __libc_malloc(size);
}

Q_DECL_EXPORT void *calloc(std::size_t count, std::size_t size)
{
    s_count.fetch_add(1, std::memory_order_relaxed);
    return __libc_calloc(count, size);
}

Q_DECL_EXPORT void *realloc(void *memory, std::size_t size)
{
    s_count.fetch_add(1, std::memory_order_relaxed);
    return __libc_realloc(memory, size);
}

} // extern "C"

bool canCountAllocations()
{
    return true;
}

qint64 allocationCount()
{
    return s_count.load(std::memory_order_relaxed);
}

#endif
