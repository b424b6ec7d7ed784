#include "velcoredata/string/NumberFormatEncoding.h"

#include "velcoredata/core/LanguageCode.h"

namespace {

// Shortest rest that may hold a language: "!en_US!".
constexpr int kShortestLanguagePrefix = 7;

// Cuts "!language!" off the start and gives its LCID; 0 where there is none.
LCID TakeLanguage(TString & rest)
{
    if (rest.length() < kShortestLanguagePrefix || rest[0] != u'!')
        return 0;
    int const end = rest.indexOf(u'!', 1);
    if (end <= 1)
        return 0;
    LCID const lcid = LanguageCode(rest.mid(1, end - 1)).GetLCID();
    rest = rest.mid(end + 1);
    return lcid;
}

LCID NumberBeforePercent(TString rest)
{
    return static_cast<LCID>(rest.trimRight(u'%').toInt());
}

}  // namespace

std::pair<TString, FormatCode> GetFormatStringAndCodeFromEncodedFormatString(TString const & encoded)
{
    TString rest(encoded);
    rest.trimLeft();
    if (rest.isEmpty())
        return {TString(), FormatCodeAuto};
    auto const code = static_cast<FormatCode>(rest[0]);
    rest = rest.mid(1);
    rest.trimLeft();
    return {rest, code};
}

void DecodeFormatString(TString const & encoded, FormatCode & code, LCID & lcid, TString & format)
{
    // `encoded` may be `format`.
    auto [rest, letter] = GetFormatStringAndCodeFromEncodedFormatString(encoded);
    code = letter;
    lcid = 0;
    format.clear();
    switch (letter) {
    case FormatCodeAuto:
    case FormatCodeTime:
    case FormatCodePercent: format = rest; break;
    case FormatCodeScientific: format = rest.replace(TString(u"E+00"), TString(u"e+00")); break;
    case FormatCodeSystemCurrency:
    case FormatCodeLongDate:
    case FormatCodeSystemNumber:
    case FormatCodeShortDate: lcid = NumberBeforePercent(rest); break;
    case FormatCodeNamed:
    case FormatCodeCurrency:
    case FormatCodeCodeI:
    case FormatCodeNumber:
        lcid = TakeLanguage(rest);
        format = rest;
        break;
    default: code = FormatCodeAuto; break;
    }
}

TString EncodeFormatString(FormatCode code, LCID lcid, TString const & format)
{
    TString const letter(static_cast<char16_t>(code), 1);
    switch (code) {
    case FormatCodeAuto: return TString();
    case FormatCodeSystemCurrency:
    case FormatCodeLongDate:
    case FormatCodeSystemNumber:
    case FormatCodeShortDate: return lcid == 0 ? letter : letter + TString::number(lcid) + u'%';
    case FormatCodeNamed:
    case FormatCodeCurrency:
    case FormatCodeCodeI:
    case FormatCodeNumber:
        return lcid == 0 ? letter + format : letter + u'!' + LanguageCode(lcid).GetISOString() + u'!' + format;
    default: return letter + format;
    }
}

bool IsAutoFormatString(TString const & encoded)
{
    FormatCode code;
    LCID lcid;
    TString format;
    DecodeFormatString(encoded, code, lcid, format);
    return code == FormatCodeAuto;
}
