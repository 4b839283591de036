#pragma once

#include <QtGlobal>

/// How often this process has asked the C library for memory so far, or 0 where that cannot be
/// counted: under sanitizers, which take the functions over themselves.
qint64 allocationCount();

/// Whether allocationCount() counts.
bool canCountAllocations();
