#include "typedtable/GroupByOptions.h"

#include <algorithm>
#include <array>
#include <memory>
#include <string_view>
#include <utility>

#include "typedtable/CastChoice.h"
#include "typedtable/Texts.h"
#include "typedtable/UserError.h"
#include "velcoredata/data/GregorianDateOptions.h"
#include "velcoredata/data/ISO8601DateOptions.h"

namespace typedtable {

namespace {

struct PeriodName
{
    std::string_view name;
    DatePeriodType period;
};

constexpr std::array kPeriods = {
    PeriodName{"year", DatePeriodType::Year},
    PeriodName{"quarter", DatePeriodType::Quarter},
    PeriodName{"month", DatePeriodType::Month},
    PeriodName{"week", DatePeriodType::Week},
    PeriodName{"day", DatePeriodType::Day},
    PeriodName{"iso-year", DatePeriodType::ISOYear},
    PeriodName{"iso-quarter", DatePeriodType::ISOQuarter},
    PeriodName{"iso-week", DatePeriodType::ISOWeek},
};

bool IsIso(DatePeriodType period) noexcept
{
    return period == DatePeriodType::ISOYear || period == DatePeriodType::ISOQuarter ||
           period == DatePeriodType::ISOWeek;
}

std::string ListPeriods()
{
    std::string list;
    for (PeriodName const & period : kPeriods)
        list.append(list.empty() ? "" : ", ").append(period.name);
    return list;
}

std::shared_ptr<IDateOptions const> MakeDateOptions(GroupByRequest const & request, std::optional<int> fiscalStart,
                                                    std::optional<int> weekStart)
{
    DatePeriodType const period = request.period;
    if (fiscalStart && period != DatePeriodType::Year && period != DatePeriodType::Quarter)
        throw UserError(Text("--fiscal-start moves years and quarters, not %1s", request.periodName));
    if (weekStart && period != DatePeriodType::Week && period != DatePeriodType::ISOWeek)
        throw UserError(Text("--week-start moves weeks, not %1s", request.periodName));
    if (IsIso(period) && !weekStart)
        return std::make_shared<ISO8601DateOptions>();
    return std::make_shared<GregorianDateOptions>(static_cast<SOWValue>(weekStart.value_or(SOW_SUNDAY)),
                                                  static_cast<FYSValues>(fiscalStart.value_or(FYS_JANUARY)));
}

}  // namespace

GroupByRequest MakeGroupByRequest(std::string const & text, std::optional<int> fiscalStart,
                                  std::optional<int> weekStart, std::vector<AggregateItem> items)
{
    GroupByRequest request;
    std::size_t const colon = FindColonBehindColumn("--group-by", text);
    if (colon == std::string::npos)
        throw UserError(Text("--group-by: \"%1\" is not COLUMN:PERIOD", text));
    request.column = ReadColumnName("--group-by", text.substr(0, colon));
    request.periodName = text.substr(colon + 1);
    auto const period = std::find_if(kPeriods.begin(), kPeriods.end(), [&](PeriodName const & candidate) {
        return candidate.name == request.periodName;
    });
    if (period == kPeriods.end())
        throw UserError(Text("--group-by: \"%1\" is not a period: %2", request.periodName, ListPeriods()));
    request.period = period->period;
    request.options = MakeDateOptions(request, fiscalStart, weekStart);
    request.items = std::move(items);
    if (request.items.empty())
        request.items.push_back({AggregateKind::Count, {}});
    return request;
}

}  // namespace typedtable
