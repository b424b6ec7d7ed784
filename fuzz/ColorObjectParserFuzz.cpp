#include "fuzz/support/FuzzText.h"
#include "velcoredata/core/ColorObjectParser.h"

// Nothing raises. What is read is read again from each of its texts; what is not is opaque black.
extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const * data, std::size_t size)
{
    TString const text = fuzz_support::Text(data, size);
    ColorObjectParser const parser(text);
    ColorObject color;
    color.SetRGBA(parser.GetR(), parser.GetG(), parser.GetB(), parser.GetA());
    if (parser.Failed()) {
        fuzz_support::Require(color == ColorObject(), "a failure is opaque black");
        return 0;
    }
    fuzz_support::Require(ColorObjectParser::Parse(text) == color, "both readers agree");
    fuzz_support::Require(ColorObjectParser::Parse(color.String()) == color, "String reads back");
    fuzz_support::Require(ColorObjectParser::Parse(color.RGBAString()) == color, "RGBAString reads back");
    color.GetTooltip();
    color.Darken().Lighten().Fog(color, 0.5F).Monochrome();
    return 0;
}
