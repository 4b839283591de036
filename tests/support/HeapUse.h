#pragma once

#include <QtGlobal>

#if defined(__SANITIZE_ADDRESS__)
#include <cstddef>
// GCC has the function and lacks its header.
extern "C" std::size_t __sanitizer_get_current_allocated_bytes();
#else
#include <malloc.h>
#endif

/// How many bytes this process has asked for and not given back.
inline qint64 heapInUse()
{
#if defined(__SANITIZE_ADDRESS__)
    return qint64(__sanitizer_get_current_allocated_bytes());
#else
    const auto info = mallinfo2();
    return qint64(info.uordblks) + qint64(info.hblkhd);
#endif
}
