// TLocale: the locale object, the catalogue of locales and what the system knows of each.
#pragma once

#include <atomic>
#include <cstdint>
#include <memory>
#include <tuple>
#include <unordered_map>
#include <vector>

#include "velcoredata/core/DateTimeParseOptions.h"
#include "velcoredata/core/Export.h"
#include "velcoredata/core/LanguageCode.h"
#include "velcoredata/core/MeasureSystem.h"
#include "velcoredata/data/DateEnums.h"
#include "velcoredata/string/DefaultDateTimeFormatSpec.h"
#include "velcoreplatform/Locks.h"
#include "velcoreplatform/TString.h"
#include "velsys/Lcid.h"

class DateTime;
class Interval;
class LocaleFormatter;
class QLocale;
class Time;
enum class DateTimeFormatCodes : std::int32_t;
struct NumberFormatOptions;

namespace VelICU_V2 {
class ICUCalendar;
class ICUDateFormat;
class ICULocale;
}  // namespace VelICU_V2

namespace detail {
class DateText;
class DateTextPlan;
struct DateReading;
}  // namespace detail

/// One locale under three identities: an LCID, a language code and a locale of ICU; with it the formats for dates that
/// were built for it, and the state of reading them. No name and no LCID is refused: one that nobody knows is a working
/// root locale.
///
///   TLocale german(u"de_DE");            // GetLCID() is 0x407
///   TLocale thai(0x41E, u"buddhist");    // ICU's locale is "th_TH@calendar=buddhist"
///   TLocale copy(thai);                  // "th_TH": a copy loses the calendar
///
/// LCIDs: 1024 is the user's default, 2048 the system's, 4096 the pseudo-locale of bi-directional text, 0 none.
///
/// Const operations may be called from any thread, and the process-wide locales are shared by all. The setters, and the
/// two operations on the cached formatter, take no lock: they are for the owner of a private object, as assignment is.
class VELCOREDATA_API TLocale
{
public:
    /// ICU's locale is of the text as it stands, the LCID that of LanguageCode(name): "de" has ICU's locale "de", the
    /// ISO string "de_DE" and the LCID 0x407.
    explicit TLocale(TString const & name);
    /// Keeps the LCID as it is given, a default too; ICU's locale is that of LanguageUtils::GetLocaleStr.
    explicit TLocale(LCID lcid);
    /// With a calendar for ICU's locale only, "buddhist"; the empty text is none.
    TLocale(LCID lcid, TString const & calendar);

    /// Made anew from the ISO string of the language code: a calendar, a market and a default LCID do not survive
    /// (TLocale(1024) becomes the user's real locale). The formats built so far are copied, the state of reading is
    /// not: nothing is remembered of what the source read last. setParseNative and setCacheFormatter are the source's.
    TLocale(TLocale const & other);
    /// The same. Assignment to itself does all of that too.
    TLocale const & operator=(TLocale const & other);
    ~TLocale();

    LCID GetLCID() const;
    LanguageCode const & getLanguageCode() const { return *m_languageCode; }
    VelICU_V2::ICULocale const & getICULocale() const { return *m_icuLocale; }

    /// Whether the platform's own parser may have a try at a text; it may, unless it is told otherwise.
    void setParseNative(bool parseNative) { m_parseNative = parseNative; }
    /// Whether the pattern that fitted last has the first try; it has, unless it is told otherwise.
    void setCacheFormatter(bool cacheFormatter) { m_cacheFormatter = cacheFormatter; }
    /// The formatter that read last; null before the first reading.
    std::unique_ptr<LocaleFormatter const> const & GetFormatterCache() const { return m_formatterCache; }
    /// Takes the formatter over and leaves null in the argument. Given the object's own, it does nothing.
    void SetFormatterCache(std::unique_ptr<LocaleFormatter const> & formatter);

    // Dates and times to text, in the locale's names and digits. The calendar is the Gregorian one, a calendar that the
    // locale was made with notwithstanding; it is that of reading only.

    /// By a pattern in ICU's letters, whose format is kept for the object's lifetime where ICU is needed: "d. MMMM
    /// yyyy" is "2. Januar 2020" in de_DE. Milliseconds are those of DateTime::GetMilliseconds, truncated from ticks.
    /// Logic assertions with "VelICU::ICU_SUCCESS(success)" if ICU has no format
    /// (LogicException_LogicAssert_0x75D2209A) or no calendar (LogicException_LogicAssert_0x0F8E9B42) to give.
    TString Format(DateTime const & value, char16_t const * pattern) const;
    /// In the platform's own style of the locale, "1/2/2020 3:04:05 AM": the date, the time, or both. "Invalid
    /// DateTime" for a value that the platform does not print.
    TString Format(DateTime const & value, DateTimeParseOptions options) const;
    /// "7:5:9.0": hour, minute, second and microsecond without padding, the same in every locale.
    TString Format(Time const & time) const;
    /// "1 day 2 hour 3 minute 4 second 5 microsecond", the same in every locale. Each part has the interval's sign.
    TString Format(Interval const & interval) const;

    // Text to dates and times. The result is success; `out` is written on success only. Bad text is never an exception.
    //
    // A text must fit to its end. Reading is strict in the fields (2024-02-30 is no date) and as loose as ICU is in the
    // literals. What a pattern leaves out is taken from 30 December 1899: "yyyy" gives 30 December, and "MMM yyyy"
    // fails for February, which has no day 30. A year below 30 counts from 2000 and one below 100 from 1900, so "yyyy"
    // reads "12" as 2012; years 100 to 399 fail. Seconds are read to the millisecond.
    //
    // An object remembers the pattern that was tried last and tries it first in the next search. So the reading of an
    // ambiguous text depends on what was read before, by any thread:
    //
    //   TLocale locale(u"en_US");
    //   locale.ParseDateTimeTryAllFormats(u"01/02/2020", date, ParseDateAndTime);  // 2 January
    //   locale.ParseDateTimeTryAllFormats(u"13/02/2020", date, ParseDateAndTime);  // 13 February, day first
    //   locale.ParseDateTimeTryAllFormats(u"01/02/2020", date, ParseDateAndTime);  // 1 February
    //
    // and a search that succeeded, repeated at once with ParseDateAndTime and without a reference, gives the same
    // value.
    // Laws, where x has no more than the pattern p prints, and p has a year of four digits, a month and a day:
    //   ParseDateTime(Format(x, p), p, out, ParseDateAndTime) && out == x, on the Gregorian calendar in every locale,
    //     but for numbers side by side in digits that take two code units
    //   !Parse...(text, ..., out, ...) leaves out as it was; a blank text leaves all that is remembered as it was
    //   TLocale(a).Format(x, p) == a.Format(x, p) for a locale without keywords, and TLocale(a) remembers no reading
    // With setCacheFormatter(false) a search in a locale of "en_US" does not depend on what was read before. In other
    // locales it still may: a search that had to try the locale's styles leaves a formatter of ICU's that is lenient,
    // and the next search applies its patterns to that.
    //
    // One thread reads at a time, others wait. All raise logic assertions where ICU fails to build what reading needs:
    // "VelICU::ICU_SUCCESS(success)" as LogicException_LogicAssert_0xBD3A59A6 (the calendar), 0xC71ECD6B, 0x71D7BADA,
    // 0xC8790510 (minute, second, millisecond of a text that was read).

    /// By one pattern. The text is trimmed; a blank one is false. With ParseTimeOnly the result is always false, for
    /// the date fields stay zero. A null pattern on an object that has not read yet raises the logic assertion
    /// "fmt != nullptr", LogicException_LogicAssert_0x81E70A33; later it is the empty pattern.
    bool ParseDateTime(char16_t const * text, char16_t const * pattern, DateTime & out,
                       DateTimeParseOptions options) const;

    /// By whatever pattern fits first: the one tried last; then, in a locale of "en_US", the table of fixed patterns
    /// in its order, else the locale's own patterns and styles and some of ISO 8601; at last the platform's parser.
    /// The text is trimmed; a blank one is false.
    ///
    /// The year, month and day that a pattern lacks are the reference's if it is valid; that holds for the table only.
    /// The pattern tried last knows no reference, and with one the platform's parser is not asked. In the table and in
    /// the locale's patterns the date and the time are read, whatever the options.
    bool ParseDateTimeTryAllFormats(char16_t const * text, DateTime & out, DateTimeParseOptions options) const;
    bool ParseDateTimeTryAllFormats(char16_t const * text, DateTime const & reference, DateTime & out,
                                    DateTimeParseOptions options) const;
    /// The same with the locale's patterns for dates alone. In a locale of "en_US" the table is the same, so that the
    /// result has a time of day if the text has one.
    bool ParseDateTryAllFormats(char16_t const * text, DateTime & out, DateTimeParseOptions options) const;
    bool ParseDateTryAllFormats(char16_t const * text, DateTime const & reference, DateTime & out,
                                DateTimeParseOptions options) const;
    /// A time of day by fourteen patterns, "ha" to "HH.mm.ss.S": "7pm" is 19:00:00 on 30 December 1899. The text is
    /// not trimmed and the pattern tried last is not asked first, but the one that fits, or the last one, is
    /// remembered. Failure gives false and the default date-time.
    std::tuple<bool, DateTime> ParseTimeTryAllFormats(TString const & text) const;

    /// By the platform's parser. Takes no lock. What it read last is remembered: see ParseDateTimeTryAllFormats.
    bool ParseDateTimeUsingNativeAPIs(char16_t const * text, DateTime & out, DateTimeParseOptions options) const;

    // Locales of the process, made at the first call and never replaced.

    static TLocale const & GetISODefaultLocale();       ///< "en_US"
    static TLocale const & GetSystemInvariantLocale();  ///< TLocale(2048)
    static TLocale const & GetUserDefaultLocale();      ///< TLocale(1024)
    static TString const & GetUserDefaultICULocale();   ///< name of ICU's default locale, "en_US"
    static LCID GetUserDefaultLCID();                   ///< 0x409; asked of the system at each call

    // What the system knows of the locale of an LCID. The defaults, and 0, ask for the user's; an LCID that nobody
    // knows has the answers that ILocaleInfoProvider tells.

    static TString GetCurrencyString(LCID lcid);     ///< "$"
    static int GetCurrencyDecimalPlaces(LCID lcid);  ///< 2; of 1041 (Japan) 0
    static int GetNumberDecimalPlaces(LCID lcid);    ///< 2
    static TString GetDecimalPoint(LCID lcid);       ///< "."
    static TString GetThousandSeparator(LCID lcid);  ///< ","
    static TString GetListSeparator(LCID lcid);      ///< ","
    static void GetSystemCurrencySettings(LCID lcid, NumberFormatOptions * options);
    static void GetSystemNumberSettings(LCID lcid, NumberFormatOptions * options);
    static Localization::MeasureSystem GetMeasureSystem(LCID lcid);
    static FirstWeekBehaviour GetFirstWeekBehaviour(LCID lcid);
    static bool FirstWeekIsBroken(LCID lcid);         ///< the behaviour is FirstWeekContainsJanFirst
    static int GetMinimalDaysInFirstWeek(LCID lcid);  ///< 4 for FirstWeekFourDays, 7 for FirstWeekFullWeek, else 1

    // Patterns for dates and times in four notations: ICU's, the platform's own, that of number format strings, Qt's.

    static TString GetLocaleFormatAsICU(ICUUtils::DefaultDateTimeFormatSpec spec, LCID lcid);      ///< "h:mm a"
    static TString GetLocaleFormatAsWindows(ICUUtils::DefaultDateTimeFormatSpec spec, LCID lcid);  ///< "h:mm tt"
    static TString GetLocaleFormatAsCustom(ICUUtils::DefaultDateTimeFormatSpec spec, LCID lcid);   ///< "h:nn AM/PM"
    static TString GetLocaleFormatQLocale(ICUUtils::DefaultDateTimeFormatSpec spec, LCID lcid);    ///< "h:mm AP"

    /// Order of the short date's fields.
    enum DateOrder : std::int32_t
    {
        DateOrderUnknown = 0,  ///< a field is missing, or another order
        DateOrderDMY = 1,      ///< day, month, year
        DateOrderMDY = 2,
        DateOrderYMD = 3,
        DateOrderYDM = 4,
    };
    static DateOrder GetDateOrder(LCID lcid);

    /// The language of an LCID, its lower ten bits: 7 for 1031. A default counts as the user's LCID.
    static unsigned short GetPrimaryLanguage(LCID lcid);
    /// Qt's locale of an LCID: the system's for 1024, English for 0.
    static void GetQLocale(LCID lcid, QLocale & out);

    // The catalogue of locales. The lists are put together anew at each call. The three vectors are appended to, not
    // cleared, one entry each: LCID, name in ICU's form ("de_DE"), name in the language of `displayLcid` ("German
    // (Germany)"). Languages without a country are not listed.

    struct LocaleInfo
    {
        std::int32_t lcid;
        TString name;
        TString displayName;
    };

    /// GetSupportedLocalesWindows.
    static void GetSupportedLocales(LCID displayLcid, std::vector<int> & lcids, std::vector<TString> & names,
                                    std::vector<TString> & displayNames);
    /// The locales that ICU has data for and an LCID of, in ascending order of the LCID.
    static void GetSupportedLocalesICU(LCID displayLcid, std::vector<int> & lcids, std::vector<TString> & names,
                                       std::vector<TString> & displayNames);
    /// The locales of the platform, in its order. One thread at a time walks them. No exception leaves: it ends the
    /// list, and what was appended stays.
    static void GetSupportedLocalesWindows(LCID displayLcid, std::vector<int> & lcids, std::vector<TString> & names,
                                           std::vector<TString> & displayNames);
    /// The entries of the platform's list whose LCID is on ICU's list too.
    static std::vector<LocaleInfo> GetCommonlySupportedLocalesForWindowsAndICU(LCID displayLcid);

private:
    friend struct TLocalePeer;  // of tests

    using DateFormatCache = std::unordered_map<TString, std::unique_ptr<VelICU_V2::ICUDateFormat>>;

    DateFormatCache CloneICUDateFormatCache() const;
    VelICU_V2::ICUDateFormat const & GetICUDateFormat(char16_t const * pattern) const;
    // What Format does where digits alone will not do.
    TString FormatByICU(DateTime const & value, char16_t const * pattern) const;
    bool PrintsASCIIDigits() const;

    // Reading; all but the first are called under m_parseMutex.
    bool ParseDateTimeUsingNativeAPIs(char16_t const * text, DateTime & out, DateTime const & reference,
                                      DateTimeParseOptions options, LCID lcid) const;
    bool ParseDateTimeWithCachedFormatter(detail::DateText const & text, DateTime & out,
                                          DateTimeParseOptions options) const;
    bool ParseDateTimeUsingISODefaultDateTimeFormatStrings(detail::DateText const & text, DateTime const & reference,
                                                           DateTime & out) const;
    bool ParseInternationalDate(detail::DateText const & text, DateTimeParseOptions options, DateTime & out) const;
    bool ParseInternationalDateTime(detail::DateText const & text, DateTimeParseOptions options, DateTime & out) const;
    void PopulateFormatterAndCalendar(char16_t const * fmt) const;
    // Applies a pattern to the formatter. The plan is that of the pattern, or null to have it made.
    void ApplyPattern(TString const & pattern, detail::DateTextPlan const * plan) const;
    // One try with the formatter as it is: by its plan where that is sure, else by ICU.
    bool Try(detail::DateText const & text, DateTimeParseOptions options, DateTime const & reference,
             DateTime & out) const;
    bool TryByICU(detail::DateText const & text, DateTimeParseOptions options, DateTime const & reference,
                  DateTime & out) const;
    bool TryPattern(TString const & pattern, detail::DateText const & text, DateTimeParseOptions options,
                    DateTime & out) const;
    bool ReadExactForm(char16_t const * text, DateTime & out, DateTimeParseOptions options) const;
    bool TryISOShapes(detail::DateText const & text, DateTimeParseOptions options, DateTime & out) const;
    detail::DateReading & Reading() const;
    // Of the pattern in the formatter; null if it is not known.
    detail::DateTextPlan const * GetPlan() const;

    static DateTimeFormatCodes const s_dateFormatCodes[4];  // those of dates without a time

    mutable TReadWriteLock m_dateFormatCacheLock;  // of m_dateFormatCache alone
    std::unique_ptr<VelICU_V2::ICULocale> m_icuLocale;
    std::unique_ptr<LanguageCode> m_languageCode;
    mutable DateFormatCache m_dateFormatCache;  // by pattern; grows only
    enum class Digits : std::int8_t
    {
        Unasked,
        ASCII,
        Other
    };
    mutable std::atomic<Digits> m_digits = Digits::Unasked;  // with which the locale prints dates; asked of ICU once
    // What reading dates fills, under m_parseMutex. The calendar is built anew after 100,000 readings.
    mutable std::unique_ptr<VelICU_V2::ICUCalendar> m_calendar;
    mutable TRecursiveMutex m_parseMutex;
    mutable std::int32_t m_parseCount = 0;                // readings since m_calendar was built
    mutable std::atomic<bool> m_lastParseNative = false;  // the native overload writes it without the lock
    bool m_parseNative = true;
    mutable std::unique_ptr<LocaleFormatter const> m_formatterCache;
    mutable std::unique_ptr<detail::DateReading> m_reading;  // what is known of m_formatterCache; null before a reading
    bool m_cacheFormatter = true;
};
