#include "fuzz/support/RegExFuzz.h"

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const * data, std::size_t size)
{
    fuzz_support::RunRegEx(data, size, RegExParserXpressive);
    return 0;
}
