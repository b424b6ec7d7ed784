// The input, byte for byte, as well-known text.
#include <string>

#include "fuzz/support/FuzzText.h"
#include "velgeo/SpatialTextError.h"
#include "velgeo/WktSerialization.h"

using velgeo::WktSerialization;

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const * data, std::size_t size)
{
    std::string const text(reinterpret_cast<char const *>(data), size);
    auto const spatial = WktSerialization::TryRead(text, 3);
    if (spatial == nullptr) {
        try {
            WktSerialization::Read(text, 3);
            fuzz_support::Require(false, "Read throws where TryRead gives null");
        } catch (velgeo::SpatialTextError const & e) {
            fuzz_support::Require(e.GetPosition() <= size, "the fault's place is in the text");
        }
        return 0;
    }
    if (spatial->IsUnknown())
        return 0;
    std::string const written = WktSerialization::Write(*spatial);
    auto const again = WktSerialization::TryRead(written, 3);
    fuzz_support::Require(again != nullptr && *again == *spatial, "what is written reads back");
    fuzz_support::Require(again->GetHash() == spatial->GetHash(), "equal objects hash alike");
    fuzz_support::Require(WktSerialization::Write(*again) == written, "and is written alike");
    return 0;
}
