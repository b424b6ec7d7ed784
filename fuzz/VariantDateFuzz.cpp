#include <cmath>

#include "fuzz/support/FuzzText.h"
#include "velnls/LocaleInfo.h"
#include "velnls/LocaleNames.h"
#include "velnls/VariantDate.h"
#include "velnls/VariantTime.h"

// The first byte picks a locale, the second the flags, the rest is the text. What is read is in range, on the right
// half, and is what its own print reads as.
extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const * data, std::size_t size)
{
    if (size < 2)
        return 0;
    auto const names = VelNLS::GetPublishedLocaleNames();
    LCID const lcid = names[data[0] * 37u % names.size()].lcid;
    std::uint32_t const flags = data[1] % 4;
    std::u16string const text = fuzz_support::Units(data + 2, size - 2);

    double const sentinel = 4711.5;
    double date = sentinel;
    HRESULT const result = VarDateFromStr(text, lcid, flags, date);
    if (result < 0) {
        fuzz_support::Require(date == sentinel, "a refused text leaves the date alone");
        fuzz_support::Require((result == E_INVALIDARG) == (flags == 3), "only unknown flags are invalid");
        return 0;
    }
    SYSTEMTIME parts{};
    fuzz_support::Require(VariantTimeToSystemTime(date, parts), "what is read is in range");
    fuzz_support::Require(flags != VAR_DATEVALUEONLY || date == std::trunc(date), "a date has no time");
    fuzz_support::Require(flags != VAR_TIMEVALUEONLY || (date >= 0 && date < 1), "a time has no date");
    std::u16string printed;
    fuzz_support::Require(VarBstrFromDate(date, lcid, 0, printed) == S_OK, "what is read can be printed");
    double again = sentinel;
    fuzz_support::Require(VarDateFromStr(printed, lcid, 0, again) == S_OK && again == date, "its print reads the same");
    return 0;
}
