// OLE Automation dates as text in a locale's own style, and back.
//
// Any thread may call. What ICU needs for an LCID is made at its first use and kept for the 16 LCIDs made last.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "velnls/Export.h"
#include "velsys/Lcid.h"

// 0 or more is success.
using HRESULT = std::int32_t;

inline constexpr HRESULT S_OK = 0;
// Text that is no date of the locale.
inline constexpr HRESULT DISP_E_TYPEMISMATCH = static_cast<HRESULT>(0x80020005);
// A date before the year 100.
inline constexpr HRESULT DISP_E_OVERFLOW = static_cast<HRESULT>(0x8002000A);
// Unknown flags, an LCID without a published name, or an OLE date out of its range.
inline constexpr HRESULT E_INVALIDARG = static_cast<HRESULT>(0x80070057);

// Which half counts. Both together are unknown flags; LOCALE_NOUSEROVERRIDE may stand with either and has no effect.
inline constexpr std::uint32_t VAR_TIMEVALUEONLY = 1;
inline constexpr std::uint32_t VAR_DATEVALUEONLY = 2;

// The date in the locale's short form with a year of four digits, a blank, and the time with seconds, both as the
// pictures LOCALE_SSHORTDATE and LOCALE_STIMEFORMAT have them, in ASCII digits: u"1/2/2020 3:04:05 AM". Without flags
// the time is left out at midnight, and the date on 1899-12-30: 0.0 is u"12:00:00 AM", 2.0 is u"1/1/1900". The fraction
// of `date` is decoded without a sign and rounded to seconds, as VariantTimeToSystemTime does. The caller owns the
// text; it is left alone on E_INVALIDARG, the only failure.
VELNLS_API HRESULT VarBstrFromDate(double date, LCID lcid, std::uint32_t flags, std::u16string & out);

// Reads a date, a time, or a date before a time, in any of the locale's own styles (full, long, medium and short dates,
// medium and short times, 24-hour clock) or as yyyy-MM-dd: u"Jan 2, 2020 3:04 PM", for de-DE u"2. Januar 2020". Letter
// case, blanks, commas, the digits of any script, and '-' for '/' do not matter. The whole text has to be read. A year
// of two digits is one of 1930 to 2029. Whatever leaves a doubt is DISP_E_TYPEMISMATCH: a date without a year, a month
// of 13, 30 February, a wrong day of the week, another locale's order. Text longer than 128 code units without the
// blanks at its ends is refused unread.
// Flags take one half of what was read, VAR_TIMEVALUEONLY on the day 0; a text without that half is a mismatch. Before
// 1899-12-30 the result's fraction has no sign: 1899-12-29 06:00 is -1.25. `out` is left alone on failure. LCID 0 and
// the defaults (see ConvertDefaultLocale) are the user's locale.
// Law: without flags, VarDateFromStr(VarBstrFromDate(x)) = x for every x of whole seconds in every locale that has a
// published name.
VELNLS_API HRESULT VarDateFromStr(std::u16string_view text, LCID lcid, std::uint32_t flags, double & out);
