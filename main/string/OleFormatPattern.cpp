#include "main/string/OleFormatPattern.h"

#include <vector>

#include "velcoredata/core/ReStringParser.h"
#include "velcoredata/string/OleFormatString.h"

namespace {

constexpr char16_t const * kPattern =
    u"^.*?([-(]?)(\"([^\"]*)\")?(-?)((#,##0)|(0))([,]*)((\\.[0]+)?)([KMBG]?)(-?)(\"([^\"]*)\")?([-)]?)$";

// Groups by number, less one.
enum Group
{
    OpeningSign = 0,
    Prefix = 2,
    MinusAfterPrefix = 3,
    Body = 4,
    Decimals = 8,
    Units = 10,
    MinusAfterNumber = 11,
    Suffix = 13,
    ClosingSign = 14,
    GroupCount = 15
};

UnitsFormatEnum UnitsOf(TString const & letter)
{
    for (auto const units : {UnitsFormatEnum::K, UnitsFormatEnum::M, UnitsFormatEnum::B, UnitsFormatEnum::G})
        if (!letter.isEmpty() && letter[0] == GetUnitsFormatChar(units))
            return units;
    return UnitsFormatEnum::None;
}

NegativeFormatEnum NegativeOf(std::vector<TString> const & groups)
{
    TString const sample = groups[OpeningSign] + groups[Prefix] + groups[MinusAfterPrefix] + u"1234" +
                           groups[MinusAfterNumber] + groups[Suffix] + groups[ClosingSign];
    for (int key = 0; key <= static_cast<int>(NegativeFormatEnum::MinusAfterNumber); ++key) {
        auto const negative = static_cast<NegativeFormatEnum>(key);
        if (GetNegativeFormatSample(negative, groups[Prefix], groups[Suffix]) == sample)
            return negative;
    }
    return NegativeFormatEnum::Automatic;
}

}  // namespace

bool detail::ParseOleFormatStringByPattern(char16_t const * format, NumberFormatOptions * options)
{
    RefCntPtr<ReStringParser> const parser(new ReStringParser(kPattern, true, RegExParserICU));
    std::vector<TString> groups;
    if (!parser->search(format, groups) || groups.size() != GroupCount)
        return false;
    NegativeFormatEnum const negative = NegativeOf(groups);
    options->decimals = groups[Decimals].isEmpty() ? 0 : groups[Decimals].length() - 1;
    options->useGrouping = groups[Body] != u"0";
    options->prefix = groups[Prefix];
    options->suffix = groups[Suffix];
    options->units = UnitsOf(groups[Units]);
    options->negative = negative;
    return true;
}
