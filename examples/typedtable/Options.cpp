#include "typedtable/Options.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <memory>
#include <string_view>
#include <utility>

#include "typedtable/UserError.h"
#include "velcoredata/data/GregorianDateOptions.h"
#include "velcoredata/data/ISO8601DateOptions.h"

namespace typedtable {

char const * const kUsage =
    R"(usage: typedtable FILE [--rows N]
       typedtable FILE --group-by COLUMN:PERIOD [--sum|--mean|--min|--max COLUMN]... [--count]

Reads a CSV file (UTF-8, with a header), types its columns, and prints the columns with their types and counts of nulls,
and the first rows. FILE may be - for standard input.

  --rows N             how many of the first rows to print, 0 to 1000000 (5)
  --group-by COL:PER   gather the rows by a period of a date column instead. Periods:
                         year, quarter, month, week, day, iso-year, iso-quarter, iso-week
  --fiscal-start N     the month, 1 to 12, with which years and quarters begin (1)
  --week-start N       the day, 1 = Sunday to 7 = Saturday, with which a week begins (1), or an iso-week (2)
  --sum COLUMN         the sum of a column in each group; likewise --mean, --min and --max. May be given again
  --count              the rows of each group; the default if nothing else is asked for
  --help               print this text

Exit code: 0, or 2 with one line on standard error if the file or the options are bad.
)";

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

constexpr std::array kColumnAggregates = {AggregateKind::Sum, AggregateKind::Mean, AggregateKind::Min,
                                          AggregateKind::Max};

bool IsIso(DatePeriodType period) noexcept
{
    return period == DatePeriodType::ISOYear || period == DatePeriodType::ISOQuarter ||
           period == DatePeriodType::ISOWeek;
}

int ReadNumber(std::string const & option, std::string const & text, int least, int most)
{
    int number = 0;
    char const * const end = text.data() + text.size();
    auto const [stop, error] = std::from_chars(text.data(), end, number);
    if (error != std::errc() || stop != end || number < least || number > most)
        throw UserError(option + ": \"" + text + "\" is not a number from " + std::to_string(least) + " to " +
                        std::to_string(most));
    return number;
}

// Walks the arguments and keeps what stands there; what it means together is for Finish.
class Arguments
{
public:
    explicit Arguments(std::vector<std::string> const & arguments) : m_arguments(arguments) {}

    Options Read()
    {
        bool optionsEnded = false;
        while (m_next < m_arguments.size()) {
            std::string const & argument = m_arguments[m_next++];
            if (optionsEnded || argument == "-" || !argument.starts_with('-'))
                SetFile(argument);
            else if (argument == "--")
                optionsEnded = true;
            else
                ReadOption(argument);
        }
        return Finish();
    }

private:
    void SetFile(std::string const & path)
    {
        if (path.empty())
            throw UserError("a file name is empty");
        if (m_file)
            throw UserError("more than one file: \"" + *m_file + "\" and \"" + path + "\"");
        m_file = path;
    }

    void ReadOption(std::string const & argument)
    {
        std::size_t const equals = argument.find('=');
        std::string const name = argument.substr(0, equals);
        if (equals != std::string::npos)
            m_attached = argument.substr(equals + 1);
        if (name == "--rows") {
            SetOnce(m_rows, name, ReadNumber(name, TakeValue(name), 0, 1000000));
        } else if (name == "--fiscal-start") {
            SetOnce(m_fiscalStart, name, ReadNumber(name, TakeValue(name), 1, 12));
        } else if (name == "--week-start") {
            SetOnce(m_weekStart, name, ReadNumber(name, TakeValue(name), 1, 7));
        } else if (name == "--group-by") {
            SetOnce(m_groupBy, name, TakeValue(name));
        } else if (name == "--count") {
            m_items.push_back({AggregateKind::Count, {}});
        } else {
            auto const kind =
                std::find_if(kColumnAggregates.begin(), kColumnAggregates.end(),
                             [&](AggregateKind candidate) { return name == std::string("--") + NameOf(candidate); });
            if (kind == kColumnAggregates.end())
                throw UserError("unknown option \"" + name + "\"; typedtable --help lists them");
            m_items.push_back({*kind, TakeValue(name)});
        }
        if (m_attached)
            throw UserError(name + " takes no value");
    }

    // The text behind "=", else the next argument.
    std::string TakeValue(std::string const & option)
    {
        if (m_attached)
            return *std::exchange(m_attached, std::nullopt);
        if (m_next == m_arguments.size() || m_arguments[m_next].starts_with("--"))
            throw UserError(option + " needs a value");
        return m_arguments[m_next++];
    }

    template <class Value>
    static void SetOnce(std::optional<Value> & place, std::string const & option, Value value)
    {
        if (place)
            throw UserError(option + " is given twice");
        place = std::move(value);
    }

    Options Finish()
    {
        if (!m_file)
            throw UserError("no file is given; typedtable --help shows the usage");
        Options options;
        options.file = *m_file;
        if (m_groupBy) {
            if (m_rows)
                throw UserError("--rows shows rows and --group-by shows groups: give one of them");
            options.groupBy = FinishGroupBy();
            options.rows = 0;
            return options;
        }
        if (m_rows)
            options.rows = static_cast<std::size_t>(*m_rows);
        if (!m_items.empty())
            throw UserError(std::string("--") + NameOf(m_items.front().kind) + " needs --group-by");
        if (m_fiscalStart)
            throw UserError("--fiscal-start needs --group-by");
        if (m_weekStart)
            throw UserError("--week-start needs --group-by");
        return options;
    }

    GroupByRequest FinishGroupBy()
    {
        GroupByRequest request;
        // A column's name may hold a colon, a period's does not.
        std::size_t const colon = m_groupBy->rfind(':');
        if (colon == std::string::npos || colon == 0)
            throw UserError("--group-by: \"" + *m_groupBy + "\" is not COLUMN:PERIOD");
        request.column = m_groupBy->substr(0, colon);
        request.periodName = m_groupBy->substr(colon + 1);
        auto const period = std::find_if(kPeriods.begin(), kPeriods.end(), [&](PeriodName const & candidate) {
            return candidate.name == request.periodName;
        });
        if (period == kPeriods.end())
            throw UserError("--group-by: \"" + request.periodName + "\" is not a period: " + ListPeriods());
        request.period = period->period;
        request.options = MakeDateOptions(request);
        request.items = std::move(m_items);
        if (request.items.empty())
            request.items.push_back({AggregateKind::Count, {}});
        return request;
    }

    std::shared_ptr<IDateOptions const> MakeDateOptions(GroupByRequest const & request) const
    {
        DatePeriodType const period = request.period;
        if (m_fiscalStart && period != DatePeriodType::Year && period != DatePeriodType::Quarter)
            throw UserError("--fiscal-start moves years and quarters, not " + request.periodName + "s");
        if (m_weekStart && period != DatePeriodType::Week && period != DatePeriodType::ISOWeek)
            throw UserError("--week-start moves weeks, not " + request.periodName + "s");
        if (IsIso(period) && !m_weekStart)
            return std::make_shared<ISO8601DateOptions>();
        return std::make_shared<GregorianDateOptions>(static_cast<SOWValue>(m_weekStart.value_or(SOW_SUNDAY)),
                                                      static_cast<FYSValues>(m_fiscalStart.value_or(FYS_JANUARY)));
    }

    static std::string ListPeriods()
    {
        std::string list;
        for (PeriodName const & period : kPeriods)
            list.append(list.empty() ? "" : ", ").append(period.name);
        return list;
    }

    std::vector<std::string> const & m_arguments;
    std::size_t m_next = 0;
    std::optional<std::string> m_attached;  // value of the option at hand, written with "="
    std::optional<std::string> m_file;
    std::optional<int> m_rows;
    std::optional<int> m_fiscalStart;
    std::optional<int> m_weekStart;
    std::optional<std::string> m_groupBy;
    std::vector<GroupByRequest::Item> m_items;
};

}  // namespace

Options ReadOptions(std::vector<std::string> const & arguments)
{
    auto const end = std::find(arguments.begin(), arguments.end(), "--");
    if (std::find(arguments.begin(), end, "--help") != end) {
        Options options;
        options.help = true;
        return options;
    }
    return Arguments(arguments).Read();
}

}  // namespace typedtable
