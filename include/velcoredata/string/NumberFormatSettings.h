// Between encoded number formats, the options that they open into, and the formats of a locale.
//
// Any thread may call. LCID 0 asks for the session's locale: outside a session it raises the logic assertion
// "CoreThreadContext::HasSessionId()", "LogicException_LogicAssert_0x74B5639B". A format that cannot be read raises
// nothing: the options stay as they were.
#pragma once

#include "velcoredata/core/Export.h"
#include "velcoredata/string/NumberFormatEncoding.h"
#include "velcoredata/string/NumberFormatOptions.h"
#include "velcoreplatform/TString.h"
#include "velsys/Lcid.h"

/// Fills in the options of a format; fields that are not named keep their content.
///
/// First, for every code, decimalSeparator and thousandSeparator of the locale; and useGrouping, if `groupingOverride`
/// is not -1, with "on" for numbers above 0. Then by code:
///
///   FormatCodeAuto             ParseOleFormatString, and then decimals = defaultDecimals, whatever the format said
///   FormatCodeSystemCurrency   TLocale::GetSystemCurrencySettings
///   FormatCodeSystemNumber     TLocale::GetSystemNumberSettings
///   FormatCodeScientific       decimals of a standard scientific format, else defaultDecimals
///   FormatCodePercent          decimals of a standard percent format, useGrouping off; for any other format
///                              defaultDecimals and useGrouping on; always negative = MinusFirst
///   FormatCodeNamed            "Percent" and "Scientific" as those two, of two decimals; other names as below
///   every other                ParseOleFormatString
VELCOREDATA_API void PopulateNumberFormatOptions(FormatCode code, LCID lcid, TString format,
                                                 NumberFormatOptions * options, int defaultDecimals,
                                                 int groupingOverride);

/// DecodeFormatString, then PopulateNumberFormatOptions with no decimals and no override. `code` and `lcid` are those
/// of the text: a name stays FormatCodeNamed, and no LCID stays 0.
VELCOREDATA_API void GetFormatCodeAndOptionsFromString(TString const & encoded, FormatCode & code, LCID & lcid,
                                                       NumberFormatOptions * options);

/// The encoded format of options: c and n with their OLE format ("." and ","), e and p with the standard format of so
/// many decimals, every other code without a format. Raises as BuildOleFormatString does.
///
///   GetStringFromFormatCodeAndOptions(FormatCodePercent, 0, twoDecimals, out);  // "p0.00%"
VELCOREDATA_API void GetStringFromFormatCodeAndOptions(FormatCode code, LCID lcid, NumberFormatOptions const & options,
                                                       TString & out);

/// The format of the locale for L, S and T, its dates and times in its own notation with quotes for apostrophes:
/// M/d/yyyy; and for N, its numbers: #,##0.00;-#,##0.00. `decimals` may be null; other codes do not look at it. Any
/// other code gives the empty text.
VELCOREDATA_API TString GetOleFormatString(FormatCode code, LCID lcid, int const * decimals);
