#include "tests/support/DateSearchModel.h"

#include <cstdlib>

#include "velcoredata/core/TLocale.h"
#include "velnls/VariantDate.h"
#include "velnls/VariantTime.h"
#include "velsys/VeltriaException.h"

namespace test_support {

namespace {

constexpr DateSearchModel::Row rows[DateSearchModel::kRows] = {
    {u"MM/dd/yyyy hh:mm:ss.SSS a", false},
    {u"MM/dd/yyyy HH:mm:ss.SSS", false},
    {u"MM/dd/yyyy hh:mm:ss.SSS a", false},
    {u"MM/dd/yy HH:mm:ss.SSS", false},
    {u"yyyy-MM-dd HH:mm:ss.SSS", true},
    {u"HH:mm:ss.SSS", false},
    {u"MM/dd/yyyy hh:mm:ss a", true},
    {u"MMMM dd, yyyy HH:mm:ss", true},
    {u"M/d/yyyy HH:mm:ss", true},
    {u"MM/dd/yy HH:mm:ss", true},
    {u"yyyy-MM-dd HH:mm:ss", true},
    {u"yyyy-MM-dd'T'HH:mm:ss", false},
    {u"HH:mm:ss", true},
    {u"MMMM dd yyyy hh:mma", true},
    {u"MM-dd-yyyy HH:mm", true},
    {u"yyyy-MM-dd HH:mm", true},
    {u"MMMM dd, yyyy", true},
    {u"MM-dd-yyyy", true},
    {u"yyyy-MM-dd", true},
    {u"MM/dd/yyyy", true},
    {u"MM/dd/yy", true},
    {u"yyyy/MM/dd", true},
    {u"hh:mma", true},
    {u"MMMM dd yyyy", true},
    {u"dd-MMM-yyyy", true},
    {u"yyyy-MM-dd'T'HH:mm:ss.SSS'Z'", true},
    {u"yyyy-MM-dd'T'HH:mm:ss'Z'", false},
    {u"dd-MMM-yy", true},
    {u"dd-MMM", true},
    {u"MMM-yy", true},
    {u"hh:mm a", true},
    {u"a", false},
    {u"MMMM dd,yyyy", true},
    {u"MMMM dd,yyyy HH:mm:ss", true},
    {u"yyyy-MM-dd'T'HH:mm:ss.SSSSSS'Z'", true},
    {u"yyyyMMdd'T'HHmmss", false},
    {u"dd MMM yyyy", true},
    {u"yyyy.M.d", true},
    {u"yyyy-MM-dd'T'HH:mm", false},
    {u"yyyy-MM-dd HH:mm:ss.SSS", true},
    {u"yyyy-MM-dd HH:mm:ss.SSS", true},
    {u"MM/dd/yyyy HH:mm:ss", true},
    {u"MM/dd/yyyy", true},
    {u"h:mm a", true},
    {u"EEEE, h:mm a", false},
    {u"MMM d, h:mm a", false},
    {u"yyyy MMM d, h:mm a", false},
    {u"yyyy-MM-dd HH:mm:ss.SSS", true},
    {u"yyyy-MM-dd-HH:mm:ss", false},
    {u"M/d/yyyy", true},
    {u"MM/dd/yyyy hh:mm:ss.SSSSSS a", false},
    {u"dd-MM-yyyy", true},
    {u"dd/MM/yyyy", true},
    {u"dd-MMM-yyyy HH:mm:ss", true},
    {u"yyyy/MM/dd HH:mm:ss", true},
    {u"MMM yyyy", true},
    {u"HH.mm.ss", true},
    {u"HH.mm", true},
    {u"hh.mm.ss a", true},
    {u"hh.mm a", true},
    {u"MMM/dd/yyyy", true},
    {u"yyyy-MM-dd'T'HH:mm:ss.SSS", false},
    {u"yyyy-MM-dd'T'HH:mm:ssZZZ:00", false},
    {u"yyyy-MM-dd'T'HH:mm:ss.SSSZZZ:00", false},
    {u"MMM d, yyyy", true},
    {u"HH:mm:ss.SSSSSS", false},
    {u"y year m month d day h hour m minute s second us microsecond", false},
    {u"M/d/yyyy h:mm:ss a", false},
    {u"yyyy-MM-dd hh:mma", true},
    {u"yyyy-MM-dd'T'HH:mm:ss.SSSSSS", true},
    {u"yyyy", true},
    {u"M.d.yyyy", true},
    {u"yyyy-MM", true},
    {u"MM/dd/yy hh:mm a", true},
};

constexpr std::u16string_view isoShapes[] = {
    u"yyyy",
    u"yyyy-MM",
    u"yyyy-MM-dd",
    u"yyyy-MM-dd HH:mm:ss",
    u"yyyy-MM-dd'T'HH:mm:ss",
    u"yyyy-MM-dd HH:mm:ssZZZZZ",
    u"yyyy-MM-dd'T'HH:mm:ssZZZZ",
    u"yyyy-MM-dd HH:mm:ssSS.ZZZZZ",
    u"yyyy-MM-dd'T'HH:mm:ssSS.ZZZZZ",
    u"yyyy-MM-dd'T'HH:mm:ss.SSSSSS",
};

constexpr std::u16string_view timeShapes[] = {
    u"ha",      u"H",        u"h:mma",   u"H:mm",       u"h.mma",      u"H.mm",       u"h:mm:ssa",
    u"H:mm:ss", u"h.mm.ssa", u"H.mm.ss", u"h:mm:ss.Sa", u"HH:mm:ss.S", u"h.mm.ss.Sa", u"HH.mm.ss.S",
};

constexpr icu::DateFormat::EStyle styles[] = {icu::DateFormat::kFull, icu::DateFormat::kLong, icu::DateFormat::kMedium,
                                              icu::DateFormat::kShort};

// The first moment of ICU's calendars: Gregorian rules before 1582 too.
constexpr double firstMoment = -184303902528000000.0;

icu::UnicodeString Copy(std::u16string_view text)
{
    return icu::UnicodeString(text.data(), static_cast<std::int32_t>(text.size()));
}

std::u16string_view UpToNull(std::u16string_view text)
{
    return text.substr(0, text.find(u'\0'));
}

std::u16string Trimmed(std::u16string_view text)
{
    TString copy = TString::fromView(UpToNull(text));
    return std::u16string(copy.trim().View());
}

void Require(UErrorCode status)
{
    if (U_FAILURE(status))
        std::abort();
}

}  // namespace

DateSearchModel::DateSearchModel(std::string const & icuName, TString const & isoName, LCID lcid)
    : m_locale((icuName + (icuName.find('@') == icuName.npos ? "@calendar=gregorian" : "")).c_str()),
      m_isoName(isoName),
      m_lcid(lcid)
{
    auto const ask = [lcid](ICUUtils::DefaultDateTimeFormatSpec spec) {
        return std::u16string(TLocale::GetLocaleFormatAsICU(spec, lcid).View());
    };
    m_dateTime = ask(ICUUtils::SpecDateTime);
    m_shortDate = ask(ICUUtils::SpecShortDate);
    m_longDate = ask(ICUUtils::SpecLongDate);
    m_time = ask(ICUUtils::SpecTime);
    m_shortTime = ask(ICUUtils::SpecShortTime);
}

DateSearchModel::Row const & DateSearchModel::RowAt(int row)
{
    return rows[row];
}

std::u16string_view DateSearchModel::IsoShape(int index)
{
    return isoShapes[index];
}

std::u16string_view DateSearchModel::TimeShape(int index)
{
    return timeShapes[index];
}

std::u16string const & DateSearchModel::FormatString(int code) const
{
    switch (code) {
    case 4:
    case 14:
    case 19: return m_shortDate;
    case 9: return m_longDate;
    case 20:
    case 21:
    case 22: return m_time;
    case 23: return m_shortTime;
    default: return m_dateTime;
    }
}

void DateSearchModel::Reset()
{
    m_formatter.reset();
    m_calendar.reset();
    m_parseCount = 0;
    m_lastParseNative = false;
}

std::optional<std::u16string> DateSearchModel::Pattern() const
{
    if (m_formatter == nullptr)
        return std::nullopt;
    icu::UnicodeString pattern;
    m_formatter->toPattern(pattern);
    return std::u16string(pattern.getBuffer(), static_cast<std::size_t>(pattern.length()));
}

bool DateSearchModel::IsLenient() const
{
    return m_formatter != nullptr && m_formatter->isLenient();
}

std::unique_ptr<icu::Calendar> DateSearchModel::MakeCalendar() const
{
    UErrorCode status = U_ZERO_ERROR;
    std::unique_ptr<icu::Calendar> calendar(icu::Calendar::createInstance(*icu::TimeZone::getGMT(), m_locale, status));
    Require(status);
    if (auto * const gregorian = dynamic_cast<icu::GregorianCalendar *>(calendar.get()))
        gregorian->setGregorianChange(firstMoment, status);
    Require(status);
    return calendar;
}

void DateSearchModel::Apply(std::u16string_view pattern)
{
    m_formatter->applyPattern(Copy(pattern));
}

void DateSearchModel::Populate(std::u16string_view pattern)
{
    if (m_formatter == nullptr) {
        UErrorCode status = U_ZERO_ERROR;
        m_formatter = std::make_unique<icu::SimpleDateFormat>(Copy(pattern), m_locale, status);
        Require(status);
        m_formatter->adoptCalendar(MakeCalendar().release());
        m_formatter->setLenient(false);
    } else {
        Apply(pattern);
    }
    if (m_calendar != nullptr && m_parseCount < 100000)
        return;
    m_calendar = MakeCalendar();
    m_calendar->setLenient(false);
    m_parseCount = 0;
}

void DateSearchModel::MakeStyled(int dateStyle, int timeStyle)
{
    icu::DateFormat * const format =
        timeStyle < 0 ? icu::DateFormat::createDateInstance(styles[dateStyle], m_locale)
                      : icu::DateFormat::createDateTimeInstance(styles[dateStyle], styles[timeStyle], m_locale);
    m_formatter.reset(dynamic_cast<icu::SimpleDateFormat *>(format));
    if (m_formatter == nullptr)
        std::abort();
    m_formatter->adoptCalendar(MakeCalendar().release());
}

DateSearchModel::Result DateSearchModel::TryOnce(std::u16string_view text, DateTime const & reference, int options)
{
    m_calendar->clear();
    m_calendar->setTimeZone(*icu::TimeZone::getGMT());  // a text with a zone leaves the calendar in it
    if (reference.IsValid())
        m_calendar->set(reference.GetYear(), reference.GetMonth() - 1, reference.GetDay());
    else
        m_calendar->set(1899, 11, 30);
    icu::UnicodeString const copy = Copy(text);
    icu::ParsePosition position;
    m_formatter->parse(copy, *m_calendar, position);
    if (position.getErrorIndex() != -1 || position.getIndex() != copy.length())
        return std::nullopt;
    return ReadFields(options);
}

DateSearchModel::Result DateSearchModel::ReadFields(int options) const
{
    int year = 0;
    int month = 0;
    int day = 0;
    int hour = 0;
    int minute = 0;
    int second = 0;
    int millisecond = 0;
    UErrorCode status = U_ZERO_ERROR;
    if ((options & 1) != 0) {
        year = m_calendar->get(UCAL_YEAR, status);
        month = m_calendar->get(UCAL_MONTH, status);
        day = m_calendar->get(UCAL_DATE, status);
        if (U_FAILURE(status))
            return std::nullopt;
        if (year < 30)
            year += 2000;
        else if (year <= 99)
            year += 1900;
    }
    if ((options & 2) != 0) {
        hour = m_calendar->get(UCAL_HOUR_OF_DAY, status);
        if (U_FAILURE(status))
            return std::nullopt;
        minute = m_calendar->get(UCAL_MINUTE, status);
        second = m_calendar->get(UCAL_SECOND, status);
        millisecond = m_calendar->get(UCAL_MILLISECOND, status);
        Require(status);
    }
    try {
        DateTime result;
        result.SetDateTime(year, month + 1, day, hour, minute, second, millisecond / 1000.0);
        return result;
    } catch (VeltriaException const &) {
        return std::nullopt;
    }
}

DateSearchModel::Result DateSearchModel::ParseWithPattern(std::u16string_view text, std::u16string_view pattern,
                                                          int options)
{
    std::u16string const trimmed = Trimmed(text);
    if (trimmed.empty())
        return std::nullopt;
    ++m_parseCount;
    Populate(UpToNull(pattern));
    return TryOnce(trimmed, DateTime(), options);
}

DateSearchModel::Result DateSearchModel::ParseNative(std::u16string_view text, DateTime const & reference, int options)
{
    if (reference != DateTime())
        return std::nullopt;
    double date = 0;
    std::uint32_t const flags = options == 3 ? 0 : options == 1 ? VAR_DATEVALUEONLY : VAR_TIMEVALUEONLY;
    if (VarDateFromStr(UpToNull(text), m_lcid, flags, date) < 0)
        return std::nullopt;
    SYSTEMTIME parts{};
    if (!VariantTimeToSystemTime(date, parts) || parts.wYear < 400)
        return std::nullopt;
    m_lastParseNative = true;
    return DateTime::FromOleDate(date);
}

DateSearchModel::Result DateSearchModel::TryCached(std::u16string_view trimmed, int options)
{
    if (!cacheFormatter)
        return std::nullopt;
    if (m_formatter != nullptr && m_calendar != nullptr) {
        if (Result const result = TryOnce(trimmed, DateTime(), options)) {
            m_lastParseNative = false;
            return result;
        }
    }
    if (!parseNative || !m_lastParseNative) {
        m_lastParseNative = false;
        return std::nullopt;
    }
    Result const result = ParseNative(trimmed, DateTime(), options);
    m_lastParseNative = result.has_value();
    return result;
}

DateSearchModel::Result DateSearchModel::SearchTable(std::u16string_view trimmed, DateTime const & reference)
{
    Populate(rows[0].formatString);
    for (int row = 0; row < kRows; ++row) {
        if (!rows[row].tryAll)
            continue;
        Apply(rows[row].formatString);
        if (Result const result = TryOnce(trimmed, reference, 3)) {
            m_matchedRow = row;
            return result;
        }
    }
    return std::nullopt;
}

DateSearchModel::Result DateSearchModel::SearchIsoShapes(std::u16string_view trimmed, int options)
{
    for (std::u16string_view const pattern : isoShapes) {
        Apply(pattern);
        if (Result const result = TryOnce(trimmed, DateTime(), options))
            return result;
    }
    return std::nullopt;
}

DateSearchModel::Result DateSearchModel::SearchInternationalDateTime(std::u16string_view trimmed)
{
    std::u16string const & first = FormatString(0);
    if (first.empty())
        return std::nullopt;
    Populate(first);
    if (Result const result = TryOnce(trimmed, DateTime(), 3))
        return result;
    for (int code = 1; code <= 23; ++code) {
        std::u16string const & pattern = FormatString(code);
        if (pattern.empty())
            continue;
        Apply(pattern);
        if (Result const result = TryOnce(trimmed, DateTime(), 3))
            return result;
    }
    for (int date = 0; date < 4; ++date) {
        for (int time = 0; time < 4; ++time) {
            MakeStyled(date, time);
            if (Result const result = TryOnce(trimmed, DateTime(), 3))
                return result;
        }
    }
    return SearchIsoShapes(trimmed, 3);
}

DateSearchModel::Result DateSearchModel::SearchInternationalDate(std::u16string_view trimmed)
{
    std::u16string const & first = FormatString(4);
    if (first.empty())
        return std::nullopt;
    Populate(first);
    if (Result const result = TryOnce(trimmed, DateTime(), 1))
        return result;
    for (int const code : {9, 14, 19}) {
        std::u16string const & pattern = FormatString(code);
        if (pattern.empty())
            continue;
        Apply(pattern);
        if (Result const result = TryOnce(trimmed, DateTime(), 1))
            return result;
    }
    for (int date = 0; date < 4; ++date) {
        MakeStyled(date, -1);
        if (Result const result = TryOnce(trimmed, DateTime(), 1))
            return result;
    }
    return SearchIsoShapes(trimmed, 1);
}

DateSearchModel::Result DateSearchModel::Search(std::u16string_view text, DateTime const & reference, int options,
                                                bool dateOnly)
{
    m_matchedRow = -1;
    std::u16string const trimmed = Trimmed(text);
    if (trimmed.empty())
        return std::nullopt;
    ++m_parseCount;
    if (Result const result = TryCached(trimmed, options))
        return result;
    Result const result = m_isoName.startsWith(u"en_US") ? SearchTable(trimmed, reference)
                          : dateOnly                     ? SearchInternationalDate(trimmed)
                                                         : SearchInternationalDateTime(trimmed);
    if (result || !parseNative)
        return result;
    return ParseNative(text, reference, options);
}

DateSearchModel::Result DateSearchModel::SearchDateTime(std::u16string_view text, DateTime const & reference,
                                                        int options)
{
    return Search(text, reference, options, false);
}

DateSearchModel::Result DateSearchModel::SearchDate(std::u16string_view text, DateTime const & reference, int options)
{
    return Search(text, reference, options, true);
}

DateSearchModel::Result DateSearchModel::SearchTime(std::u16string_view text)
{
    ++m_parseCount;
    Populate(timeShapes[0]);
    for (std::u16string_view const pattern : timeShapes) {
        Apply(pattern);
        if (Result const result = TryOnce(text, DateTime(), 3))
            return result;
    }
    return std::nullopt;
}

}  // namespace test_support
