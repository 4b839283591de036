// Loses a block of memory, so that the suite can see that losses are found.

#include <cstdlib>

namespace {

void *volatile s_block = nullptr;

} // namespace

int main()
{
    s_block = std::malloc(64);
    s_block = nullptr;
    return 0;
}
