#include "velicu/ICUDateFormat.h"

#include <unicode/dtfmtsym.h>
#include <unicode/parsepos.h>
#include <unicode/smpdtfmt.h>
#include <unicode/uchar.h>

#include <utility>
#include <vector>

#include "NativeCalendar.h"
#include "NativeLocale.h"
#include "NativeString.h"
#include "StatusScope.h"
#include "velicu/LocaleNames.h"

namespace VelICU_V2 {

struct ICUParsePosition::Native
{
    icu::ParsePosition position;
};

// Null where ICU could not build the format; every operation looks.
struct ICUDateFormat::Native
{
    std::unique_ptr<icu::SimpleDateFormat> format;
};

namespace {

using NativeFormat = std::unique_ptr<icu::SimpleDateFormat>;

std::unique_ptr<ICUDateFormat::Native> Wrap(NativeFormat format)
{
    return std::unique_ptr<ICUDateFormat::Native>(new ICUDateFormat::Native{std::move(format)});
}

NativeFormat CloneNative(NativeFormat const & format)
{
    return NativeFormat(format == nullptr ? nullptr : format->clone());
}

// Puts the format on this layer's calendar of the locale. Null on failure.
NativeFormat OnOwnCalendar(NativeFormat format, icu::Locale const & locale, UErrorCode & status)
{
    auto calendar = MakeNativeCalendar(locale, status);
    if (U_FAILURE(status) || format == nullptr)
        return nullptr;
    format->adoptCalendar(calendar.release());
    return format;
}

std::unique_ptr<ICUSimpleDateFormat> MakeSimple(TString const & pattern, icu::Locale const & locale,
                                                ICUErrorCode & status)
{
    StatusScope scope(status);
    NativeFormat format;
    if (!scope.Failed()) {
        format = std::make_unique<icu::SimpleDateFormat>(CopyOf(pattern), WithCalendar(locale), scope);
        format = OnOwnCalendar(std::move(format), locale, scope);
    }
    return std::make_unique<ICUSimpleDateFormat>(Wrap(std::move(format)));
}

std::unique_ptr<ICUDateFormat> MakeStyled(icu::DateFormat * made, icu::Locale const & locale)
{
    std::unique_ptr<icu::DateFormat> owner(made);
    NativeFormat format(dynamic_cast<icu::SimpleDateFormat *>(made));
    if (format == nullptr)
        return nullptr;
    owner.release();
    UErrorCode status = ::U_ZERO_ERROR;
    format = OnOwnCalendar(std::move(format), locale, status);
    return format == nullptr ? nullptr : std::make_unique<ICUDateFormat>(Wrap(std::move(format)));
}

// Texts that ICU must not see. It divides by 10 to the power of the digits of a fraction of a second less three, in 32
// bits: from 35 digits on, the divisor is zero and the process dies; a number may have an exponent, so two runs of
// digits may belong to one. And its time is quadratic in the digits of a number, which from 309 on it reads as zero.
constexpr int DEADLY_FRACTION = 35;
constexpr int ENDLESS_NUMBER = 300;  // digits without leading zeros

bool IsUnreadable(icu::SimpleDateFormat const & format, icu::UnicodeString const & text)
{
    if (text.length() < DEADLY_FRACTION)
        return false;
    int before = 0;
    int run = 0;
    int significant = 0;
    bool fraction = false;
    for (std::int32_t i = 0; i < text.length(); i = text.moveIndex32(i, 1)) {
        UChar32 const character = text.char32At(i);
        if (u_isdigit(character)) {
            fraction = fraction || before + ++run >= DEADLY_FRACTION;
            if ((significant > 0 || u_charDigitValue(character) > 0) && ++significant > ENDLESS_NUMBER)
                return true;
        } else if (run > 0) {
            before = std::exchange(run, 0);
            significant = 0;
        }
    }
    icu::UnicodeString pattern;
    return fraction && format.toPattern(pattern).indexOf(u'S') >= 0;
}

icu::DateFormat::EStyle NativeStyle(ICUDateFormat::ICUEStyle style)
{
    return static_cast<icu::DateFormat::EStyle>(style);
}

}  // namespace

ICUParsePosition::ICUParsePosition(std::unique_ptr<Native> native) : m_native(std::move(native)) {}

ICUParsePosition::~ICUParsePosition() = default;

std::unique_ptr<ICUParsePosition> ICUParsePosition::createInstance()
{
    return std::make_unique<ICUParsePosition>(std::make_unique<Native>());
}

int ICUParsePosition::getIndex() const noexcept
{
    return m_native->position.getIndex();
}

int ICUParsePosition::getErrorIndex() const noexcept
{
    return m_native->position.getErrorIndex();
}

std::unique_ptr<ICUFieldPosition> ICUFieldPosition::createInstance()
{
    return std::make_unique<ICUFieldPosition>();
}

ICUDateFormat::ICUDateFormat(std::unique_ptr<Native> native) : m_native(std::move(native)) {}

ICUDateFormat::~ICUDateFormat() = default;

std::unique_ptr<ICUDateFormat> ICUDateFormat::createDateInstance(ICUEStyle dateStyle, ICULocale const & locale)
{
    return createDateTimeInstance(dateStyle, kNone, locale);
}

std::unique_ptr<ICUDateFormat> ICUDateFormat::createDateTimeInstance(ICUEStyle dateStyle, ICUEStyle timeStyle,
                                                                     ICULocale const & locale)
{
    icu::Locale const & native = locale.GetNative().locale;
    return MakeStyled(
        icu::DateFormat::createDateTimeInstance(NativeStyle(dateStyle), NativeStyle(timeStyle), WithCalendar(native)),
        native);
}

std::unique_ptr<ICUDateFormat> ICUDateFormat::clone() const
{
    return std::make_unique<ICUDateFormat>(Wrap(CloneNative(m_native->format)));
}

TString ICUDateFormat::format(ICUCalendar & calendar, ICUErrorCode & status) const
{
    StatusScope scope(status);
    if (m_native->format == nullptr)
        scope.Fail(::U_INVALID_STATE_ERROR);
    if (scope.Failed())
        return TString();
    icu::UnicodeString text;
    m_native->format->format(*calendar.GetNative().calendar, text, nullptr, scope);
    return scope.Failed() ? TString() : ToTString(text);
}

TString ICUDateFormat::format(double milliseconds, ICUErrorCode & status) const
{
    StatusScope scope(status);
    if (m_native->format == nullptr)
        scope.Fail(::U_INVALID_STATE_ERROR);
    if (scope.Failed())
        return TString();
    icu::UnicodeString text;
    m_native->format->format(milliseconds, text, nullptr, scope);
    return scope.Failed() ? TString() : ToTString(text);
}

TString ICUDateFormat::format(ICUCalendar & calendar, ICUFieldPosition &) const
{
    ICUErrorCode status = U_ZERO_ERROR;
    return format(calendar, status);
}

double ICUDateFormat::parse(TString const & text, ICUErrorCode & status) const
{
    StatusScope scope(status);
    if (m_native->format == nullptr)
        scope.Fail(::U_INVALID_STATE_ERROR);
    else if (IsUnreadable(*m_native->format, AliasOf(text)))
        scope.Fail(::U_ILLEGAL_ARGUMENT_ERROR);
    return scope.Failed() ? 0.0 : m_native->format->parse(AliasOf(text), scope);
}

void ICUDateFormat::parse(TString const & text, ICUCalendar & calendar, ICUParsePosition & position) const
{
    icu::ParsePosition & native = position.GetNative().position;
    if (m_native->format == nullptr || IsUnreadable(*m_native->format, AliasOf(text)))
        native.setErrorIndex(native.getIndex());
    else
        m_native->format->parse(AliasOf(text), *calendar.GetNative().calendar, native);
}

void ICUDateFormat::setLenient(bool lenient) noexcept
{
    NoteChange();
    if (m_native->format != nullptr)
        m_native->format->setLenient(lenient);
}

bool ICUDateFormat::isLenient() const noexcept
{
    return m_native->format != nullptr && m_native->format->isLenient();
}

void ICUDateFormat::applyPattern(TString const & pattern)
{
    NoteChange();
    if (m_native->format != nullptr)
        m_native->format->applyPattern(CopyOf(pattern));
}

TString ICUDateFormat::toPattern() const
{
    icu::UnicodeString pattern;
    if (m_native->format != nullptr)
        m_native->format->toPattern(pattern);
    return ToTString(pattern);
}

std::unique_ptr<ICUCalendar> ICUDateFormat::getCalendar() const
{
    if (m_native->format == nullptr)
        return nullptr;
    std::unique_ptr<icu::Calendar> copy(m_native->format->getCalendar()->clone());
    return std::make_unique<ICUCalendar>(
        std::unique_ptr<ICUCalendar::Native>(new ICUCalendar::Native{std::move(copy)}));
}

int ICUDateFormat::getFirstDayOfWeek(ICUErrorCode & status) const noexcept
{
    StatusScope scope(status);
    if (m_native->format == nullptr)
        scope.Fail(::U_INVALID_STATE_ERROR);
    return scope.Failed() ? 0 : m_native->format->getCalendar()->getFirstDayOfWeek(scope);
}

// ICU hands the calendar out as const; it is the format's own and not shared.
void ICUDateFormat::setFirstDayOfWeek(int day) noexcept
{
    NoteChange();
    if (m_native->format != nullptr && day >= UCAL_SUNDAY && day <= UCAL_SATURDAY)
        const_cast<icu::Calendar *>(m_native->format->getCalendar())
            ->setFirstDayOfWeek(static_cast<UCalendarDaysOfWeek>(day));
}

void ICUDateFormat::setMinimalDaysInFirstWeek(unsigned char days) noexcept
{
    NoteChange();
    if (m_native->format != nullptr)
        const_cast<icu::Calendar *>(m_native->format->getCalendar())
            ->setMinimalDaysInFirstWeek(days < 1   ? std::uint8_t(1)
                                        : days > 7 ? std::uint8_t(7)
                                                   : days);
}

ICUSimpleDateFormat::~ICUSimpleDateFormat() = default;

std::unique_ptr<ICUSimpleDateFormat> ICUSimpleDateFormat::createInstance(TString const & pattern, ICUErrorCode & status)
{
    return MakeSimple(pattern, icu::Locale(t_uloc_getDefault()), status);
}

std::unique_ptr<ICUSimpleDateFormat>
ICUSimpleDateFormat::createInstance(TString const & pattern, ICULocale const & locale, ICUErrorCode & status)
{
    return MakeSimple(pattern, locale.GetNative().locale, status);
}

std::unique_ptr<ICUDateFormat> ICUSimpleDateFormat::clone() const
{
    return cloneSimple();
}

std::unique_ptr<ICUSimpleDateFormat> ICUSimpleDateFormat::cloneSimple() const
{
    return std::make_unique<ICUSimpleDateFormat>(Wrap(CloneNative(GetNative().format)));
}

double ICUSimpleDateFormat::get2DigitYearStart(ICUErrorCode & status) const
{
    StatusScope scope(status);
    if (GetNative().format == nullptr)
        scope.Fail(::U_INVALID_STATE_ERROR);
    return scope.Failed() ? 0.0 : GetNative().format->get2DigitYearStart(scope);
}

void ICUSimpleDateFormat::set2DigitYearStart(double milliseconds, ICUErrorCode & status)
{
    NoteChange();
    StatusScope scope(status);
    if (GetNative().format == nullptr)
        scope.Fail(::U_INVALID_STATE_ERROR);
    if (!scope.Failed())
        GetNative().format->set2DigitYearStart(milliseconds, scope);
}

void ICUSimpleDateFormat::editAmPmStrings(bool shortForm, bool lowerCase)
{
    NoteChange();
    if (GetNative().format == nullptr)
        return;
    icu::SimpleDateFormat & format = *GetNative().format;
    icu::DateFormatSymbols symbols(*format.getDateFormatSymbols());
    std::int32_t count = 0;
    icu::UnicodeString const * const marks = symbols.getAmPmStrings(count);
    std::vector<icu::UnicodeString> edited(marks, marks + count);
    for (icu::UnicodeString & mark : edited) {
        if (shortForm)
            mark.truncate(mark.moveIndex32(0, 1));
        if (lowerCase)
            mark.toLower(format.getSmpFmtLocale());
    }
    symbols.setAmPmStrings(edited.data(), count);
    format.setDateFormatSymbols(symbols);
}

}  // namespace VelICU_V2
