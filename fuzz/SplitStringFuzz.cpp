// First line: separator; second: quote; rest: text.
#include "fuzz/support/FuzzText.h"
#include "velcoredata/core/StringUtils.h"
#include "velsys/VeltriaException.h"

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const * data, std::size_t size)
{
    auto const lines = fuzz_support::Lines(data, size, 3);
    try {
        auto const tokens = SplitString(lines[2], lines[0], lines[1]);
        fuzz_support::Require(!tokens.empty(), "at least one token");
        fuzz_support::Require(JoinString(tokens, lines[0]) == lines[2], "joining undoes splitting");
    } catch (VeltriaException const &) {
        fuzz_support::Require(lines[0].isEmpty() || !lines[1].isEmpty(),
                              "without quotes only an empty separator raises");
    }
    return 0;
}
