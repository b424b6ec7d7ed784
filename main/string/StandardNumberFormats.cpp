#include "velcoredata/string/StandardNumberFormats.h"

#include <optional>

namespace {

constexpr int kMostDecimals = 16;

TString Standard(int decimals, char16_t const * end)
{
    TString text(u"0");
    if (decimals > 0)
        text += u'.' + TString(u'0', decimals);
    return text + end;
}

std::optional<int> DecimalsOf(TString const & format, TString (*standard)(int))
{
    for (int decimals = 0; decimals <= kMostDecimals; ++decimals)
        if (format == standard(decimals))
            return decimals;
    return std::nullopt;
}

}  // namespace

TString GetPercentFormatStringOfSize(int decimals)
{
    return Standard(decimals, u"%");
}

TString GetScientificFormatStringOfSize(int decimals)
{
    return Standard(decimals, u"e+00");
}

std::pair<int, bool> GetDecimalsFromPercentString(TString const & format, int defaultDecimals)
{
    auto const decimals = DecimalsOf(format, GetPercentFormatStringOfSize);
    return {decimals.value_or(defaultDecimals), !decimals.has_value()};
}

int GetDecimalsFromScientificString(TString const & format, int defaultDecimals)
{
    return DecimalsOf(format, GetScientificFormatStringOfSize).value_or(defaultDecimals);
}
