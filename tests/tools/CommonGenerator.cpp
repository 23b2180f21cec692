// Replaces the C library's `rand()` by the same generator on every system: the same recording and seed then give the
// same angles everywhere.
#include <cstdlib>

namespace {

unsigned theState = 1;

}  // namespace

extern "C" void srand(unsigned seed) noexcept {
    theState = seed;
}

extern "C" int rand() noexcept {
    theState = theState * 1103515245U + 12345U;
    return static_cast<int>(theState >> 16 & 0x7FFFU);
}
