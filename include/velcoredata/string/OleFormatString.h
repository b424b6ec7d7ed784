// OLE format strings, "#,##0.00;(#,##0.00)", and the options that they open into. Any thread may call.
//
// A law, for options o whose prefix and suffix hold no quote, units of 0 to 4, decimals >= 0, and the separators "."
// and
// ",":
//   ParseOleFormatString(BuildOleFormatString(o, true), p) keeps decimals, useGrouping, prefix, suffix and units, and
//   p.negative is the lowest value above 0 with the sample of o.negative, or 0 where o.negative is 0
#pragma once

#include "velcoredata/core/Export.h"
#include "velcoredata/string/NumberFormatOptions.h"
#include "velcoreplatform/TString.h"

/// The format of the options; a null separator means "." and ",". With `negative` set, a second section behind ";" has
/// the negative form. Prefix and suffix stand in quotes if they are not empty; a quote inside them is not escaped.
/// Units are written as scaling separators, one for K, two for M, three for B and for G, and by their letter if it is
/// asked for. The separators of the options are not used. Decimals of 0 and below write none.
///
///   2 decimals, prefix "$", units K, negative Parentheses  // "$"#,##0,.00K;("$"#,##0,.00K)
///
/// Units or a negative form outside their enumeration raise XMLEnumEncodingException
/// "XMLEnumEncodingException_AutoGen_0x5D1E6A01".
VELCOREDATA_API TString BuildOleFormatString(NumberFormatOptions const * options, bool withUnitsLetter,
                                             char16_t const * decimalSeparator, char16_t const * thousandSeparator);

/// Sets decimals, useGrouping, prefix, suffix, units and negative from a format, and answers true; or leaves the
/// options alone and answers false. Time and memory grow with the length of the text, a million code units take
/// milliseconds.
///
/// The format is what stands at the end of the text, in front of one line end that may follow; what comes before it is
/// skipped. Of several sections only the last counts. Its parts, all but the number optional:
///
///   - or (   "prefix"   -   #,##0 or 0   commas   .000   K M B or G   -   "suffix"   - or )
///
/// Commas behind the number are not read: the units are those of the letter. `negative` is the lowest value whose
/// sample is the text's, and 0 if there is none: "#,##0-" is MinusLast, not MinusAfterNumber.
VELCOREDATA_API bool ParseOleFormatString(char16_t const * format, NumberFormatOptions * options);

/// The text that shows a negative form: "($1234)" for Parentheses with the prefix "$". Automatic has the text
/// "Automatic" in the session's language. Raises XMLEnumEncodingException for a number outside the enumeration.
VELCOREDATA_API TString GetNegativeFormatSample(NegativeFormatEnum negative, char16_t const * prefix,
                                                char16_t const * suffix);

/// The unit's letter, 'K', and U+0000 for None. Raises XMLEnumEncodingException for a number outside the enumeration.
VELCOREDATA_API char16_t GetUnitsFormatChar(UnitsFormatEnum units);
