#include <iterator>

#include "fuzz/support/DeadlyNumbers.h"
#include "fuzz/support/FuzzText.h"
#include "tests/support/DateSearchPair.h"
#include "tests/support/QuietLogger.h"

// The first byte picks a locale; then a pattern, a text and another text in lines. The library reads both by the
// pattern as plain ICU does, prints by it without an error, and reads what it printed as plain ICU does.
extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const * data, std::size_t size)
{
    using test_support::DateSearchPair;
    static constexpr char16_t const * locales[] = {u"en_US", u"de_DE", u"ja_JP", u"ar_EG"};
    static constexpr std::size_t longest = 2000;
    if (size < 1 || size > longest)
        return 0;
    static test_support::QuietLogger const quiet;
    char16_t const * const name = locales[data[0] % std::size(locales)];
    auto const lines = fuzz_support::Lines(data + 1, size - 1, 3);
    DateSearchPair pair(name);
    DateTime const reference;
    for (std::size_t const i : {std::size_t{1}, std::size_t{2}}) {
        std::string const difference = pair.Take(DateSearchPair::Step::Pattern, lines[i].toStdU16String(),
                                                 lines[0].toStdU16String(), reference, ParseDateAndTime);
        fuzz_support::Require(difference.empty(), difference.c_str());
    }
    TLocale const locale{TString(name)};
    DateTime const value(2015, 10, 21, 16, 29, 5, 0.25);
    TString const text = locale.Format(value, lines[0].GetString());
    std::string const difference = pair.Take(DateSearchPair::Step::Pattern, text.toStdU16String(),
                                             lines[0].toStdU16String(), reference, ParseDateAndTime);
    fuzz_support::Require(difference.empty(), difference.c_str());
    return 0;
}
