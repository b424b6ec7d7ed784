#include "fuzz/support/FuzzText.h"
#include "main/string/OleFormatPattern.h"
#include "tests/support/NumberFormatFields.h"
#include "velcoredata/string/NumberFormatEncoding.h"
#include "velcoredata/string/NumberFormatSettings.h"
#include "velcoredata/string/OleFormatString.h"

// A text as an encoded format and as an OLE format. Nothing raises; what was read is written and read again alike.
extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const * data, std::size_t size)
{
    using fuzz_support::Require;
    using test_support::Fields;
    TString const text = fuzz_support::Text(data, size);

    FormatCode code;
    LCID lcid;
    TString format;
    DecodeFormatString(text, code, lcid, format);
    Require(IsAutoFormatString(text) == (code == FormatCodeAuto), "automatic is code 0");
    Require(format.length() <= text.length(), "no format grows");
    TString const encoded = EncodeFormatString(code, lcid, format);
    FormatCode codeAgain;
    LCID lcidAgain;
    TString formatAgain;
    DecodeFormatString(encoded, codeAgain, lcidAgain, formatAgain);
    Require(codeAgain == code, "a code is kept");
    // A language of two letters is not read back where less than three code units follow, nor one's blanks or marks
    // where there is no language.
    bool const marked = lcid != 0 && encoded.length() > 7;
    bool const plain = lcid == 0 && !format.startsWith(u"!") && TString(format).trimLeft() == format;
    if (code != FormatCodeAuto && (marked || plain))
        Require(formatAgain == format, "a format is kept");
    if (lcid != 0) {
        NumberFormatOptions options;
        GetFormatCodeAndOptionsFromString(text, codeAgain, lcidAgain, &options);
        Require(codeAgain == code && lcidAgain == lcid, "both decode alike");
        GetStringFromFormatCodeAndOptions(code, lcid, options, formatAgain);
    }

    NumberFormatOptions read;
    NumberFormatOptions byPattern;
    bool const ok = ParseOleFormatString(text, &read);
    Require(detail::ParseOleFormatStringByPattern(text, &byPattern) == ok, "both paths accept the same");
    Require(Fields(read) == Fields(byPattern), "both paths read the same");
    if (ok) {
        NumberFormatOptions again;
        Require(ParseOleFormatString(BuildOleFormatString(&read, true, nullptr, nullptr), &again),
                "what was built is read");
        Require(Fields(again) == Fields(read), "what was built reads the same");
    }
    return 0;
}
