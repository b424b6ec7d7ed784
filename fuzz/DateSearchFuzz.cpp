#include <iterator>

#include "fuzz/support/DeadlyNumbers.h"
#include "fuzz/support/FuzzText.h"
#include "tests/support/DateSearchPair.h"
#include "tests/support/QuietLogger.h"

// The first byte picks a locale, the second how the object is set; then up to four texts in lines, read in turn by one
// object, each by a search that the line's first byte picks. The library answers as the plain steps over ICU do.
extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const * data, std::size_t size)
{
    using test_support::DateSearchPair;
    static constexpr char16_t const * locales[] = {u"en_US", u"de_DE", u"ja_JP", u"ar_EG", u"fr_FR"};
    static constexpr std::size_t longest = 400;  // the plain steps take their time
    if (size < 2 || size > longest)
        return 0;
    static test_support::QuietLogger const quiet;
    DateSearchPair pair(locales[data[0] % std::size(locales)]);
    pair.StartAnew((data[1] & 1) == 0, (data[1] & 2) == 0);
    for (TString const & line : fuzz_support::Lines(data + 2, size - 2, 4)) {
        if (line.isEmpty() || fuzz_support::HasDeadlyNumbers(line.View()))
            continue;
        unsigned const step = line[0];
        DateTime const reference(2001, 2, 3, 4, 5, 6, 0);
        std::string const difference =
            pair.Take(static_cast<DateSearchPair::Step>(step % 7), line.mid(1).toStdU16String(), u"d. MMM yyyy HH:mm",
                      reference, static_cast<DateTimeParseOptions>(1 + step / 7 % 3));
        fuzz_support::Require(difference.empty(), difference.c_str());
    }
    return 0;
}
