#include <iterator>
#include <memory>
#include <string>
#include <vector>

#include "fuzz/support/FuzzText.h"
#include "tests/support/QuietLogger.h"
#include "typedtable/DateInference.h"

// The first byte picks a locale; then the cells of a column in lines. Where they are dates, every cell is read, the
// winner reads as many as any other pattern, and a second look gives the same.
extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const * data, std::size_t size)
{
    using namespace typedtable;
    using fuzz_support::Require;
    static constexpr char16_t const * locales[] = {u"en_US", u"de_DE", u"ja_JP", u"en_GB"};
    static constexpr std::size_t longest = 600;
    if (size < 1 || size > longest)
        return 0;
    static test_support::QuietLogger const quiet;
    TLocale const locale{TString(locales[data[0] % std::size(locales)])};
    std::vector<std::string> cells;
    for (TString const & line : fuzz_support::Lines(data + 1, size - 1, 12))
        cells.push_back(line.toStdString());

    auto const infer = [&]() -> std::shared_ptr<DateColumn const> {
        DateInference inference(locale);
        for (std::string const & cell : cells)
            inference.Look(cell);
        if (!inference.IsDates())
            return nullptr;
        for (std::string const & cell : cells)
            inference.Count(cell);
        return inference.Finish();
    };
    auto const dates = infer();
    auto const again = infer();
    Require((dates == nullptr) == (again == nullptr), "the same cells are dates again");
    if (dates == nullptr)
        return 0;
    Require(dates->GetWinner().pattern == again->GetWinner().pattern, "the same pattern wins again");
    Require(dates->GetDisagreeing() >= 0, "the winner reads no more cells than there are");
    Require(dates->GetTwin() == nullptr || dates->GetTwin()->cells <= dates->GetWinner().cells,
            "no pattern reads more cells than the winner");
    for (std::string const & cell : cells) {
        auto const value = dates->Read(cell);
        Require(value.has_value(), "every cell of a column of dates is read");
        Require(value->GetDataType() == dates->GetType(), "values are of the column's type");
        Require(*value == *again->Read(cell), "a cell reads the same again");
    }
    return 0;
}
