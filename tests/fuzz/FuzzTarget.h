#pragma once

#include <QString>

#include <cstddef>
#include <cstdint>

// What libFuzzer asks of a fuzz target. The replaying test programs call the same two functions.

extern "C" int LLVMFuzzerInitialize(int *argc, char ***argv);
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size);

namespace Fuzz {

/// Says which claim is broken and aborts, which is what a fuzzer takes for a finding.
[[noreturn]] void fail(const QString &claim);

/// Fails unless the claim holds.
inline void require(bool holds, const char *claim)
{
    if (!holds)
        fail(QString::fromUtf8(claim));
}

} // namespace Fuzz
