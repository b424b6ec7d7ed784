#include "main/core/DateSpeech.h"

#include <string>

#include "main/core/DateDigits.h"
#include "velicu/ICUCalendar.h"
#include "velicu/ICUDateFormat.h"
#include "velicu/ICULocale.h"

namespace {

using namespace detail;

// Whether the names are ICU's too.
bool SpeaksEnglish(VelICU::ICULocale const & locale)
{
    VelICU::ICUErrorCode status = VelICU::U_ZERO_ERROR;
    auto const format = VelICU::ICUSimpleDateFormat::createInstance(u"MMMM MMM a aaaaa", locale, status);
    auto const calendar = VelICU::ICUCalendar::createInstance(locale, status);
    if (VelICU::ICU_FAILURE(status))
        return false;
    for (int month = 0; month < 12; ++month) {
        TString name = TString::fromView(ENGLISH_MONTHS[month]);
        name[0] = static_cast<char16_t>(name[0] - 0x20);
        for (int half = 0; half < 2; ++half) {
            calendar->clear();
            calendar->set(2020, month, 1, 12 * half, 0, 0);
            TString const expected =
                name + u' ' + name.left(SHORT_MONTH) + (half == 0 ? TString(u" AM a") : TString(u" PM p"));
            if (format->format(*calendar, status) != expected)
                return false;
        }
    }
    return true;
}

}  // namespace

detail::DateSpeech detail::SpeechOf(VelICU::ICULocale const & locale)
{
    std::string const calendar = locale.getKeywordValue("calendar");
    if ((!calendar.empty() && calendar != "gregorian") || !HasASCIIDigits(locale))
        return DateSpeech::Unknown;
    static bool const s_english = SpeaksEnglish(*VelICU::ICULocale::createInstance("en_US"));
    return s_english && locale.getName() == std::string_view("en_US") ? DateSpeech::English : DateSpeech::Digits;
}
