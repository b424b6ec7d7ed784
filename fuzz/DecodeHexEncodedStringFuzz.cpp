#include "fuzz/support/FuzzText.h"
#include "velcoredata/core/StringUtils.h"

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const * data, std::size_t size)
{
    TString const text = fuzz_support::Text(data, size);
    TString result(u"untouched");
    if (!text.startsWith(u"x'") && !text.startsWith(u"x_")) {
        fuzz_support::Require(!DecodeHexEncodedString(text, result), "a text without its start is refused");
        fuzz_support::Require(result == u"untouched", "and leaves the result");
        return 0;
    }
    if (DecodeHexEncodedString(text, result))
        fuzz_support::Require(result.endsWith(text.mid(text.lastIndexOf(u'z') + 1)) || !text.contains(u'z'),
                              "the tail stands at the end");
    return 0;
}
