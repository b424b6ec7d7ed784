// The input, byte for byte, as GeoJSON.
#include <string>

#include "fuzz/support/FuzzText.h"
#include "velgeo/GeoJSONSerialization.h"
#include "velgeo/SpatialTextError.h"
#include "velgeo/WktSerialization.h"

using velgeo::GeoJSONSerialization;

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const * data, std::size_t size)
{
    std::string const text(reinterpret_cast<char const *>(data), size);
    auto const spatial = GeoJSONSerialization::TryRead(text);
    if (spatial == nullptr) {
        try {
            GeoJSONSerialization::Read(text);
            fuzz_support::Require(false, "Read throws where TryRead gives null");
        } catch (velgeo::SpatialTextError const &) {
        }
        return 0;
    }
    if (spatial->IsUnknown())
        return 0;
    fuzz_support::Require(spatial->IsGeography(), "GeoJSON gives geographies");
    auto const again = velgeo::WktSerialization::TryRead(velgeo::WktSerialization::Write(*spatial), 3);
    fuzz_support::Require(again != nullptr && *again == *spatial, "well-known text carries it on");
    return 0;
}
