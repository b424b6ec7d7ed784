#include "fuzz/support/FuzzText.h"
#include "velcoredata/core/StringUtils.h"

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const * data, std::size_t size)
{
    TString const text = fuzz_support::Text(data, size);
    fuzz_support::Require(CUnescape(text).length() <= text.length(), "unescaping never lengthens");
    fuzz_support::Require(CUnescape(CEscape(text)) == text, "unescaping undoes escaping");
    return 0;
}
