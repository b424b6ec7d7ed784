// The encoded form of a number format: one short text of a code letter and what that code needs. Callers store it.
//
//   n#,##0.00         custom number            C1033%   the currency format of LCID 1033
//   n!de_DE!#,##0.00  the same for German      p0.0%    percent
//
// docs/formats/number-formats.md describes the form. Any thread may call; no text is refused.
//
// Laws, for a format f without a leading blank:
//   Decode(Encode(c, l, f)) == (c, l, f)   c one of c i n *; l an LCID of a language of the product; or l == 0 and f
//                                          does not start with "!"
//   Decode(Encode(c, l, f)) == (c, l, "")  c one of C L N S; l below 2^31
//   Decode(Encode(c, l, f)) == (c, 0, f)   c one of T p, and e where f is without "E+00"
#pragma once

#include <cstdint>
#include <utility>

#include "velcoredata/core/Export.h"
#include "velcoreplatform/TString.h"
#include "velsys/Lcid.h"

/// The code letter of a number format; the number is that of the character.
enum FormatCode : std::int32_t
{
    FormatCodeAuto = 0,               ///< no code; the format, if any, stands by itself
    FormatCodeNamed = u'*',           ///< by name: "Percent" or "Scientific", or any string
    FormatCodeSystemCurrency = u'C',  ///< the locale's currency format
    FormatCodeLongDate = u'L',        ///< the locale's long date
    FormatCodeSystemNumber = u'N',    ///< the locale's number format
    FormatCodeShortDate = u'S',       ///< the locale's short date
    FormatCodeTime = u'T',            ///< the locale's time, or a pattern that follows
    FormatCodeCurrency = u'c',        ///< custom currency format
    FormatCodeScientific = u'e',
    FormatCodeCodeI = u'i',   ///< encoded as c and n are; nothing more is known of it
    FormatCodeNumber = u'n',  ///< custom number format
    FormatCodePercent = u'p',
};

/// Takes an encoded format apart; the outputs are set whatever the text is.
///
/// White space before and after the letter is skipped. A letter that is no code gives code 0 and drops the text: the
/// text "0.00" is automatic. Behind C, L, N and S stands the LCID in decimal with any number of "%" behind it; what is
/// no number gives 0. Behind c, i, n and * may stand a language as "!de_DE!": it is taken for one if at least seven
/// code units follow the letter and the second "!" is not the first one's neighbour. Behind e, "E+00" becomes "e+00".
///
///   DecodeFormatString(u"n!en_US!#,##0", code, lcid, format);  // FormatCodeNumber, 0x409, "#,##0"
VELCOREDATA_API void DecodeFormatString(TString const & encoded, FormatCode & code, LCID & lcid, TString & format);

/// The reverse. Code 0 gives the empty text whatever the format is; T, e and p do not store the LCID; C, L, N and S not
/// the format. A number that is no code is written as a letter with the format behind it.
VELCOREDATA_API TString EncodeFormatString(FormatCode code, LCID lcid, TString const & format);

/// The first step of DecodeFormatString: the text behind the first character, and that character as a code, be it one
/// or not. Blank text gives the empty text and FormatCodeAuto.
VELCOREDATA_API std::pair<TString, FormatCode> GetFormatStringAndCodeFromEncodedFormatString(TString const & encoded);

/// Whether DecodeFormatString gives FormatCodeAuto: blank texts, and those that begin with no code letter.
VELCOREDATA_API bool IsAutoFormatString(TString const & encoded);
