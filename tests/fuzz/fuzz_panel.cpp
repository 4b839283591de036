#include "fuzz/FuzzInput.h"
#include "fuzz/FuzzTarget.h"
#include "fuzz/PanelSession.h"

namespace {

constexpr std::size_t kBytesOfEvent = 12;
constexpr int kMostEvents = 64;

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    Fuzz::FuzzInput input(data, size);
    Fuzz::PanelSession session(input);
    for (int i = 0; i < kMostEvents && !input.isEmpty(); ++i)
        session.act(input.take(kBytesOfEvent));
    return 0;
}
