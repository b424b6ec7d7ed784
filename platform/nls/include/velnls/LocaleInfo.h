// The system's locale services under the names, numbers and notation that Windows publishes, answered from ICU's data.
//
// Every operation is pure but for the default locale of the process, which it asks of ICU at each call. Any thread may
// call.
#pragma once

#include <cstdint>

#include "velnls/Export.h"
#include "velsys/Lcid.h"

// What is asked, and the form of the answer: T text, N one decimal digit or more.
using LCTYPE = std::uint32_t;

inline constexpr LCTYPE LOCALE_SLIST = 0x0000000C;             // T between the items of a list, "," or ";"
inline constexpr LCTYPE LOCALE_IMEASURE = 0x0000000D;          // N 0 metric, 1 of the United States
inline constexpr LCTYPE LOCALE_SDECIMAL = 0x0000000E;          // T decimal point of numbers
inline constexpr LCTYPE LOCALE_STHOUSAND = 0x0000000F;         // T between groups of digits
inline constexpr LCTYPE LOCALE_SGROUPING = 0x00000010;         // T sizes of groups, "3;0", "3;2;0"; "0" without groups
inline constexpr LCTYPE LOCALE_IDIGITS = 0x00000011;           // N digits after the decimal point, always 2
inline constexpr LCTYPE LOCALE_SCURRENCY = 0x00000014;         // T symbol of the local currency
inline constexpr LCTYPE LOCALE_SMONDECIMALSEP = 0x00000016;    // T decimal point of amounts of money
inline constexpr LCTYPE LOCALE_SMONTHOUSANDSEP = 0x00000017;   // T between their groups
inline constexpr LCTYPE LOCALE_SMONGROUPING = 0x00000018;      // T sizes of their groups
inline constexpr LCTYPE LOCALE_ICURRDIGITS = 0x00000019;       // N digits after their decimal point
inline constexpr LCTYPE LOCALE_ICURRENCY = 0x0000001B;         // N 0 $1, 1 1$, 2 $ 1, 3 1 $
inline constexpr LCTYPE LOCALE_INEGCURR = 0x0000001C;          // N 0 to 15: see README.md
inline constexpr LCTYPE LOCALE_SSHORTDATE = 0x0000001F;        // T picture, year of four digits: "M/d/yyyy"
inline constexpr LCTYPE LOCALE_SLONGDATE = 0x00000020;         // T picture: "dddd, MMMM d, yyyy"
inline constexpr LCTYPE LOCALE_SNAME = 0x0000005C;             // T published name: "en-US"
inline constexpr LCTYPE LOCALE_SSHORTTIME = 0x00000079;        // T picture: "h:mm tt"
inline constexpr LCTYPE LOCALE_STIMEFORMAT = 0x00001003;       // T picture: "h:mm:ss tt"
inline constexpr LCTYPE LOCALE_IFIRSTWEEKOFYEAR = 0x0000100D;  // N week 1 has 0: January 1, 1: seven days, 2: four days
inline constexpr LCTYPE LOCALE_INEGNUMBER = 0x00001010;        // N 0 (1), 1 -1, 2 - 1, 3 1-, 4 1 -

// Flags that may stand with a query. There are no users' overrides and no code pages here: the two have no effect.
inline constexpr LCTYPE LOCALE_NOUSEROVERRIDE = 0x80000000;
inline constexpr LCTYPE LOCALE_USE_CP_ACP = 0x40000000;
// An N query writes its number as one 32-bit integer, in the room of two code units, and returns 2.
inline constexpr LCTYPE LOCALE_RETURN_NUMBER = 0x20000000;

// Writes the answer with its terminator and returns its size in code units, terminator included; with a size of 0 it
// writes nothing and returns that size. Returns 0 and leaves the buffer alone if the answer with its terminator is
// longer than `size`, if `size` is negative or `buffer` null with a size, for a query that is not listed above, and for
// an LCID without a published name. LCID 0 and the defaults (see ConvertDefaultLocale) ask for the user's locale.
VELNLS_API int GetLocaleInfoW(LCID lcid, LCTYPE type, char16_t * buffer, int size);
// The same in UTF-8, sizes in bytes. LOCALE_RETURN_NUMBER needs four bytes and returns 4.
VELNLS_API int GetLocaleInfoA(LCID lcid, LCTYPE type, char * buffer, int size);

// The LCID of ICU's default locale, 0x409 for en_US: always one that has a published name and a region, 0x409 if ICU's
// locale has none. The system's locale is the user's.
VELNLS_API LCID GetUserDefaultLCID();

// GetUserDefaultLCID() for the defaults 127 (invariant), 1024 (user), 2048 (system), 3072 (custom), 4096 (unspecified
// custom) and 5120 (user interface); any other LCID as it is.
VELNLS_API LCID ConvertDefaultLocale(LCID lcid);

// Which locales to walk: the first two are the same here, all with a region; the third adds alternate sort orders.
inline constexpr std::uint32_t LCID_INSTALLED = 1;
inline constexpr std::uint32_t LCID_SUPPORTED = 2;
inline constexpr std::uint32_t LCID_ALTERNATE_SORTS = 4;

// Gets an LCID as eight lower-case hexadecimal digits, terminated, "00000409", in a buffer that lives for the call.
// Returning false ends the walk. What it throws leaves EnumSystemLocalesW.
using LOCALE_ENUMPROC = bool (*)(char16_t * lcid);

// Calls back for each locale that a user may choose, in ascending order of the LCID: no languages without a region, no
// pseudo-locales. False without a call for a null callback, unknown flags, or neither of the first two flags.
VELNLS_API bool EnumSystemLocalesW(LOCALE_ENUMPROC callback, std::uint32_t flags);
