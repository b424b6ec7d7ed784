#include "fuzz/support/FuzzText.h"
#include "velcoredata/core/VersionNumber.h"

// Two separators, the number's piece, and the text. Nothing raises; the text form has the numbers and every descriptor,
// and reads back where the separators tell them apart.
extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const * data, std::size_t size)
{
    std::u16string const units = fuzz_support::Units(data, size);
    if (units.size() < 3)
        return 0;
    char16_t const numberSeparator = units[0];
    char16_t const descriptorSeparator = units[1];
    unsigned long long const index = units[2] - u'0';
    TString const text = TString::fromStdU16String(units.substr(3));

    VersionNumber version(text, numberSeparator, descriptorSeparator, index);
    fuzz_support::Require(!version.GetNumbers().empty(), "a version of a text has a number");
    TString expected = version.GetNumbersAsString(numberSeparator);
    for (TString const & descriptor : version.GetDescriptors()) {
        fuzz_support::Require(!descriptor.contains(descriptorSeparator), "a descriptor has no separator");
        expected += descriptorSeparator;
        expected += descriptor;
    }
    fuzz_support::Require(version.GetAsString() == expected, "the text form has all");
    auto const isDigit = [](char16_t c) { return c >= u'0' && c <= u'9'; };
    if (numberSeparator != descriptorSeparator && !isDigit(numberSeparator) && !isDigit(descriptorSeparator)) {
        VersionNumber const again(expected, numberSeparator, descriptorSeparator, 0);
        fuzz_support::Require(again.GetNumbers() == version.GetNumbers(), "the numbers read back");
        fuzz_support::Require(again.GetDescriptors() == version.GetDescriptors(), "the descriptors read back");
        fuzz_support::Require(again == version && again.compare(version) == 0, "what reads back is equal");
    }
    version.Truncate(units[0] % 4);
    version.GetMajorAndMinorAsString(numberSeparator);
    fuzz_support::Require(version.GetAsString() == expected, "Truncate leaves the text");
    return 0;
}
