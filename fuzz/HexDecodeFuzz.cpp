#include "fuzz/support/FuzzText.h"
#include "velcoredata/core/StringUtils.h"

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const * data, std::size_t size)
{
    TString const text = fuzz_support::Text(data, size);
    TString decoded;
    HexDecode(text, decoded);
    // What was decoded once is well-formed and without U+0000: encoding it loses nothing.
    TString const encoded = HexEncode(decoded);
    TString again;
    bool const good = HexDecode(encoded.mid(2, encoded.length() - 3), again);
    fuzz_support::Require(good && again == decoded, "decoding undoes encoding");
    return 0;
}
