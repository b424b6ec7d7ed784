#pragma once

#include <memory>
#include <string>

#include "velcoredata/core/Export.h"
#include "velcoredata/data/DateEnums.h"
#include "velcoredata/string/DefaultDateTimeFormatSpec.h"
#include "velcoreplatform/TString.h"
#include "velsys/Lcid.h"

class DateTime;
class TDateTimeFormat;
class TLocale;

/// Dates, texts and names by ICU. A TDate is a moment in milliseconds since 1970-01-01 00:00:00 UTC. All functions may
/// be called from any thread.
namespace ICUUtils {

/// Builds the process's caches (calendars, pattern generators) ahead of their first use.
VELCOREDATA_API void Initialize();

/// Ends ICU for the process. Nothing of this library that needs ICU may be called afterwards.
VELCOREDATA_API void Cleanup();

// Dates. A date costs no new calendar: calendars come from a pool. Each serves two uses, the one it was built for and
// one more, so the pool holds at most as many as there were first uses at the same time.

/// The TDate of a value, without its fraction of a second.
VELCOREDATA_API double ConvertToTDate(DateTime const & value);
/// With `roundSeconds` a fraction above 0.5 (0.5 itself does not count) makes it one second later, carried into minute
/// and day where it has to be. Raises "VelICU::ICU_SUCCESS(status)", LogicException_LogicAssert_0xE8AC867C; as every
/// use of the pool it raises LogicException_LogicAssert_0x724C7F0E if no calendar can be built.
VELCOREDATA_API double ConvertToTDate(DateTime const & value, bool roundSeconds);

/// The TDate of parts; the month counts from 0, and parts out of range carry over: (2019, 12, 1, 0, 0, 0) is
/// 2020-01-01. Raises LogicException_LogicAssert_0x682A2430.
VELCOREDATA_API double CreateTDate(int year, int month, int day, int hour, int minute, int second);

/// First day of the week in the default locale. Raises LogicException_LogicAssert_0x7545A35E or
/// LogicException_LogicAssert_0x7E4DB4D2.
VELCOREDATA_API SOWValue GetStartOfWeek();

/// format(tdate).
VELCOREDATA_API TString FormatDateTimePattern(double const & tdate, TDateTimeFormat const & format);

/// First day of the week in a locale: SOW_SUNDAY for "en_US", SOW_MONDAY for "de_DE", and where ICU makes no calendar.
VELCOREDATA_API SOWValue GetFirstDayOfWeek(TLocale const & locale);

// Dates as text in the manner of an LCID: by a pattern in ICU's letters ("dd.MM.yyyy"), by the pattern that shows the
// fields of a skeleton best ("yMMMd"; see GetBestDateTimePattern), or by one of the locale's own. Raises as
// TDateTimeFormat does.

VELCOREDATA_API std::unique_ptr<TDateTimeFormat> GetDateTimeFormatter(TString const & pattern, LCID lcid);
VELCOREDATA_API std::unique_ptr<TDateTimeFormat> GetBestDateTimeFormatter(TString const & skeleton, LCID lcid);
VELCOREDATA_API std::unique_ptr<TDateTimeFormat> GetDateTimeDefaultFormatter(DefaultDateTimeFormatSpec spec, LCID lcid);
VELCOREDATA_API TString FormatDateTimePattern(double const & tdate, TString const & pattern, LCID lcid);
VELCOREDATA_API TString FormatDateTimePattern(DateTime const & value, TString const & pattern, LCID lcid);
VELCOREDATA_API TString FormatBestDateTimePattern(double const & tdate, TString const & skeleton, LCID lcid);
VELCOREDATA_API TString FormatBestDateTimePattern(DateTime const & value, TString const & skeleton, LCID lcid);

VELCOREDATA_API TString GetLocaleFormatAsICU(DefaultDateTimeFormatSpec spec, LCID lcid);    ///< TLocale's
VELCOREDATA_API TString GetLocaleFormatQLocale(DefaultDateTimeFormatSpec spec, LCID lcid);  ///< TLocale's

// Names, from texts such as "de_DE"; what the text does not have is empty.

VELCOREDATA_API TString GetLanguageName(TString const & locale);     ///< "de"
VELCOREDATA_API TString GetCountryName(TString const & locale);      ///< "DE"
VELCOREDATA_API TString GetCountryNameISO3(TString const & locale);  ///< "DEU"
VELCOREDATA_API TString GetCurrencyCode(TString const & locale);     ///< "EUR"
VELCOREDATA_API LCID GetDefaultLCID();                               ///< of the default locale, 0x409 for en_US
VELCOREDATA_API LCID GetLCID(TString const & locale);                ///< 0x407; 0 if there is none

// Names in the language of an LCID, on the Gregorian calendar. All numbers count from 1, a number out of range gives an
// empty text.

VELCOREDATA_API TString GetLongDayName(int day, LCID lcid);           ///< (1, 0x409) is "Sunday"
VELCOREDATA_API TString GetLongMonthName(int month, LCID lcid);       ///< (1, 0x409) is "January"
VELCOREDATA_API TString GetShortQuarterName(int quarter, LCID lcid);  ///< (1, 0x409) is "Q1"
/// The name of quarter 1 without its every "1": "Q" for 0x409.
VELCOREDATA_API TString GetShortQuarterName(LCID lcid);
/// The name of a locale in the language of another: (0x407, 0x409) is "German (Germany)".
VELCOREDATA_API TString GetDisplayName(LCID lcid, LCID displayLcid);

/// The pattern that shows the fields of a skeleton in the manner of a locale: "MMM d, y" for "yMMMd" and 0x409. The
/// skeleton itself if ICU has none. The generators of at most five locales are kept; a sixth empties the store first.
VELCOREDATA_API TString GetBestDateTimePattern(TString const & skeleton, LCID lcid);

// Text. No failure of ICU leaves these functions: they answer with the input, an empty text or 0.

/// Words by the rules of a locale ("th" finds them by dictionary): blanks and punctuation do not count.
/// CountWords(u" one, two ", "en") is 2.
VELCOREDATA_API int CountWords(TString const & text, std::string const & locale);

/// Case folding for comparison, "Straße" to "strasse". With `excludeSpecialI` dotted and dotless I stay apart, for
/// Turkic text. Below 256 code units the heap is used for the result only.
VELCOREDATA_API TString StrFoldCase(TString const & text, bool excludeSpecialI);
/// Upper case in the manner of a locale; null is the default locale.
VELCOREDATA_API TString StrToUpper(TString const & text, char const * locale);

// Character sets.

enum CodePage : int
{
    OEMCodePage = 0,
    ANSICodePage = 1,
};

/// The name that IANA registered: "ISO-8859-1" for "iso8859-1". A name that is not known comes back as it is, null
/// gives the empty text.
VELCOREDATA_API TString TryGetIanaCharactersetName(char const * name);
/// Of one of the system's code pages, "windows-1252"; empty if ICU has no name for it. Any number but the two raises
/// the logic assertion "false", LogicException_LogicAssert_0xCFFFF092.
VELCOREDATA_API TString TryGetIanaCharactersetName(CodePage codePage);

/// The character sets that can be converted, by index from 0; null for an index out of range.
VELCOREDATA_API int CountAvailableConverters();
VELCOREDATA_API char const * GetAvailableConverterName(int index);

}  // namespace ICUUtils
