#include "velcoredata/string/OleFormatString.h"

#include <array>
#include <string_view>

#include "velcoredata/core/LocalStrings.h"
#include "velcoredata/data/XMLEnumException.h"
#include "velcoreplatform/TFormatString.h"

namespace {

constexpr std::u16string_view kSampleNumber = u"1234";

// By UnitsFormatEnum.
constexpr std::array<char16_t, 5> kUnitsLetters{u'\0', u'K', u'M', u'B', u'G'};

// By NegativeFormatEnum: what stands before the prefix, between prefix and number, between number and suffix, at the
// end.
struct Signs
{
    std::u16string_view first, beforeNumber, afterNumber, last;
};
constexpr std::array<Signs, 6> kNegativeSigns{{
    {},
    {u"(", u"", u"", u")"},
    {u"-", u"", u"", u""},
    {u"", u"", u"", u"-"},
    {u"", u"-", u"", u""},
    {u"", u"", u"-", u""},
}};

Signs const & SignsOf(NegativeFormatEnum negative)
{
    auto const index = static_cast<std::size_t>(negative);
    if (index >= kNegativeSigns.size())
        Implementation::ThrowXMLEnumEncodingException();
    return kNegativeSigns[index];
}

TString Signed(NegativeFormatEnum negative, TString const & prefix, TString const & number, TString const & suffix)
{
    Signs const & signs = SignsOf(negative);
    std::u16string text;
    for (std::u16string_view const piece :
         {signs.first, prefix.View(), signs.beforeNumber, number.View(), signs.afterNumber, suffix.View(), signs.last})
        text += piece;
    return TString::fromStdU16String(text);
}

TString Quoted(TString const & text)
{
    return text.isEmpty() ? text : u'"' + text + u'"';
}

// The pieces of a format, as they stand in it.
struct Format
{
    std::u16string_view openingSign, prefix, minusAfterPrefix, body, decimals, units, minusAfterNumber, suffix,
        closingSign;
};

class Cursor
{
public:
    explicit Cursor(std::u16string_view text) : m_text(text) {}

    bool At(char16_t c) const { return m_position < m_text.size() && m_text[m_position] == c; }

    // One of the characters, or nothing.
    std::u16string_view OneOf(std::u16string_view characters)
    {
        bool const found = m_position < m_text.size() && characters.find(m_text[m_position]) != characters.npos;
        return Take(found ? 1 : 0);
    }
    std::u16string_view Text(std::u16string_view text)
    {
        return Take(m_text.substr(m_position, text.size()) == text ? text.size() : 0);
    }
    std::u16string_view All(char16_t c)
    {
        std::size_t end = m_position;
        while (end < m_text.size() && m_text[end] == c)
            ++end;
        return Take(end - m_position);
    }
    // The text between two quotes, or nothing where there is no pair.
    std::u16string_view InQuotes()
    {
        if (!At(u'"'))
            return {};
        std::size_t const end = m_text.find(u'"', m_position + 1);
        if (end == m_text.npos)
            return {};
        std::u16string_view const inner = m_text.substr(m_position + 1, end - m_position - 1);
        m_position = end + 1;
        return inner;
    }
    // A point and its zeros, or nothing.
    std::u16string_view Decimals()
    {
        std::size_t const start = m_position;
        if (!At(u'.'))
            return {};
        ++m_position;
        if (All(u'0').empty())
            m_position = start;
        return m_text.substr(start, m_position - start);
    }

private:
    std::u16string_view Take(std::size_t count)
    {
        std::u16string_view const taken = m_text.substr(m_position, count);
        m_position += count;
        return taken;
    }

    std::u16string_view m_text;
    std::size_t m_position = 0;
};

// The pieces of the format that stands at the start of the text. Each is taken whole or not at all: none of them, cut
// shorter, could be followed by what comes after it.
Format ReadFormat(std::u16string_view text)
{
    Cursor cursor(text);
    Format out;
    out.openingSign = cursor.OneOf(u"-(");
    out.prefix = cursor.InQuotes();
    out.minusAfterPrefix = cursor.OneOf(u"-");
    out.body = cursor.At(u'#') ? cursor.Text(u"#,##0") : cursor.Text(u"0");
    cursor.All(u',');
    out.decimals = cursor.Decimals();
    out.units = cursor.OneOf(u"KMBG");
    out.minusAfterNumber = cursor.OneOf(u"-");
    out.suffix = cursor.InQuotes();
    out.closingSign = cursor.OneOf(u"-)");
    return out;
}

// The text without the line end that may be its last character; CR LF counts as one.
std::u16string_view WithoutLineEnd(std::u16string_view text)
{
    if (text.ends_with(u"\r\n")) {
        text.remove_suffix(2);
    } else if (!text.empty()) {
        char16_t const c = text.back();
        if ((c >= 0x0A && c <= 0x0D) || c == 0x85 || c == 0x2028 || c == 0x2029)
            text.remove_suffix(1);
    }
    return text;
}

// Takes one of the characters off the end, or nothing.
bool TakeLast(std::u16string_view & text, std::u16string_view characters)
{
    if (text.empty() || characters.find(text.back()) == characters.npos)
        return false;
    text.remove_suffix(1);
    return true;
}

// Takes a text in quotes off the end; false if there is a quote without another.
bool TakeQuoted(std::u16string_view & text)
{
    if (!text.ends_with(u'"'))
        return true;
    std::size_t const open = text.rfind(u'"', text.size() - 2);
    if (text.size() < 2 || open == text.npos)
        return false;
    text = text.substr(0, open);
    return true;
}

void TakeAll(std::u16string_view & text, char16_t c)
{
    while (text.ends_with(c))
        text.remove_suffix(1);
}

// Takes the number body off the end with the commas behind it.
bool TakeBody(std::u16string_view & text)
{
    TakeAll(text, u',');
    if (!text.ends_with(u'0'))
        return false;
    text.remove_suffix(text.ends_with(u"#,##0") ? 5 : 1);
    return true;
}

// The format at the end of the text, which begins as early as it can. Going backwards every optional piece is taken:
// what stands to its left then belongs to the format too, or begins it one piece earlier.
bool FindFormat(std::u16string_view text, Format & out)
{
    text = WithoutLineEnd(text);
    std::u16string_view rest = text;
    TakeLast(rest, u"-)");
    if (!TakeQuoted(rest))
        return false;
    TakeLast(rest, u"-");
    TakeLast(rest, u"KMBG");
    std::u16string_view withDecimals = rest;
    TakeAll(withDecimals, u'0');
    // The zeros are decimals if a body stands before their point, else the last one may be the body.
    if (withDecimals.size() < rest.size() && TakeLast(withDecimals, u".") && TakeBody(withDecimals))
        rest = withDecimals;
    else if (!TakeBody(rest))
        return false;
    TakeLast(rest, u"-");
    TakeQuoted(rest);
    TakeLast(rest, u"-(");
    out = ReadFormat(text.substr(rest.size()));
    return true;
}

using Pieces = std::array<std::u16string_view, 7>;

bool SameText(Pieces const & a, Pieces const & b)
{
    std::size_t bPiece = 0, bAt = 0;
    for (std::u16string_view const piece : a) {
        for (char16_t const c : piece) {
            while (bPiece < b.size() && bAt == b[bPiece].size()) {
                ++bPiece;
                bAt = 0;
            }
            if (bPiece == b.size() || b[bPiece][bAt++] != c)
                return false;
        }
    }
    return true;  // of equal lengths: the caller has compared the counts of signs
}

NegativeFormatEnum NegativeOf(Format const & format)
{
    std::size_t const signs = format.openingSign.size() + format.minusAfterPrefix.size() +
                              format.minusAfterNumber.size() + format.closingSign.size();
    if (signs == 0)
        return NegativeFormatEnum::Automatic;
    Pieces const sample{format.openingSign,      format.prefix, format.minusAfterPrefix, kSampleNumber,
                        format.minusAfterNumber, format.suffix, format.closingSign};
    for (std::size_t i = 1; i < kNegativeSigns.size(); ++i) {
        auto const & [first, beforeNumber, afterNumber, last] = kNegativeSigns[i];
        if (first.size() + beforeNumber.size() + afterNumber.size() + last.size() == signs &&
            SameText(sample, {first, format.prefix, beforeNumber, kSampleNumber, afterNumber, format.suffix, last}))
            return static_cast<NegativeFormatEnum>(i);
    }
    return NegativeFormatEnum::Automatic;
}

UnitsFormatEnum UnitsOf(std::u16string_view letter)
{
    for (std::size_t i = 1; i < kUnitsLetters.size(); ++i)
        if (letter == std::u16string_view(&kUnitsLetters[i], 1))
            return static_cast<UnitsFormatEnum>(i);
    return UnitsFormatEnum::None;
}

}  // namespace

char16_t GetUnitsFormatChar(UnitsFormatEnum units)
{
    auto const index = static_cast<std::size_t>(units);
    if (index >= kUnitsLetters.size())
        Implementation::ThrowXMLEnumEncodingException();
    return kUnitsLetters[index];
}

TString GetNegativeFormatSample(NegativeFormatEnum negative, char16_t const * prefix, char16_t const * suffix)
{
    if (negative == NegativeFormatEnum::Automatic)
        return CoreData::LookupTStrExported(CoreData::StringId::IDS_DEFAULT_NEG_FMT);
    return Signed(negative, TString(prefix), TString::fromView(kSampleNumber), TString(suffix));
}

TString BuildOleFormatString(NumberFormatOptions const * options, bool withUnitsLetter,
                             char16_t const * decimalSeparator, char16_t const * thousandSeparator)
{
    char16_t const letter = GetUnitsFormatChar(options->units);
    SignsOf(options->negative);
    TString const point(decimalSeparator != nullptr ? decimalSeparator : u".");
    TString const comma(thousandSeparator != nullptr ? thousandSeparator : u",");

    TString body;
    if (options->useGrouping)
        body += u'#' + comma + u"##";
    body += u'0';
    for (int unit = 1; unit <= static_cast<int>(options->units); ++unit)
        if (unit != static_cast<int>(UnitsFormatEnum::G))
            body += comma;
    if (options->decimals > 0)
        body += point + TString(u'0', options->decimals);
    if (letter != u'\0' && withUnitsLetter)
        body += letter;

    TString const prefix = Quoted(options->prefix);
    TString const suffix = Quoted(options->suffix);
    TString const format = prefix + body + suffix;
    if (options->negative == NegativeFormatEnum::Automatic)
        return format;
    return format + u';' + Signed(options->negative, prefix, body, suffix);
}

bool ParseOleFormatString(char16_t const * format, NumberFormatOptions * options)
{
    Format found;
    if (!FindFormat(std::u16string_view(format), found))
        return false;
    options->decimals = found.decimals.empty() ? 0 : static_cast<int>(found.decimals.size()) - 1;
    options->useGrouping = found.body.size() > 1;
    options->prefix = TString::fromView(found.prefix);
    options->suffix = TString::fromView(found.suffix);
    options->units = UnitsOf(found.units);
    options->negative = NegativeOf(found);
    return true;
}
