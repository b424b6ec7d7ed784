#include "typedtable/Options.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <string_view>
#include <utility>

#include "typedtable/GroupByOptions.h"
#include "typedtable/Texts.h"
#include "typedtable/UserError.h"

namespace typedtable {

namespace {

constexpr std::array kColumnAggregates = {AggregateKind::Sum, AggregateKind::Mean, AggregateKind::Min,
                                          AggregateKind::Max};

int ReadNumber(std::string const & option, std::string const & text, int least, int most)
{
    int number = 0;
    char const * const end = text.data() + text.size();
    auto const [stop, error] = std::from_chars(text.data(), end, number);
    if (error != std::errc() || stop != end || number < least || number > most)
        throw UserError(Text("%1: \"%2\" is not a number from %3 to %4", option, text, least, most));
    return number;
}

std::string OptionOf(AggregateKind kind)
{
    return std::string("--") + NameOf(kind);
}

bool AsksForHelp(std::vector<std::string> const & arguments)
{
    auto const end = std::find(arguments.begin(), arguments.end(), "--");
    return std::find(arguments.begin(), end, "--help") != end;
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
    using TextPlace = std::optional<std::string> Arguments::*;
    using Flag = bool Arguments::*;

    void SetFile(std::string const & path)
    {
        if (path.empty())
            throw UserError(Text("a file name is empty"));
        if (m_file)
            throw UserError(Text("more than one file: \"%1\" and \"%2\"", *m_file, path));
        m_file = path;
    }

    void ReadOption(std::string const & argument)
    {
        ++m_options;
        std::size_t const equals = argument.find('=');
        std::string const name = argument.substr(0, equals);
        if (equals != std::string::npos)
            m_attached = argument.substr(equals + 1);
        if (!ReadNumberOption(name) && !ReadTextOption(name) && !ReadFlag(name) && !ReadAggregate(name) &&
            !ReadListLocales(name) && !ReadDateOption(name) && !ReadColumnOption(name))
            throw UserError(Text("unknown option \"%1\"; typedtable --help lists them", name));
        if (m_attached)
            throw UserError(Text("%1 takes no value", name));
    }

    bool ReadNumberOption(std::string const & name)
    {
        if (name == "--rows")
            SetOnce(m_rows, name, ReadNumber(name, TakeValue(name), 0, 1000000));
        else if (name == "--fiscal-start")
            SetOnce(m_fiscalStart, name, ReadNumber(name, TakeValue(name), 1, 12));
        else if (name == "--week-start")
            SetOnce(m_weekStart, name, ReadNumber(name, TakeValue(name), 1, 7));
        else
            return false;
        return true;
    }

    bool ReadTextOption(std::string const & name)
    {
        static constexpr std::array<std::pair<std::string_view, TextPlace>, 9> kTexts = {{
            {"--group-by", &Arguments::m_groupBy},
            {"--distinct", &Arguments::m_distinct},
            {"--sort", &Arguments::m_sort},
            {"--where", &Arguments::m_where},
            {"--find", &Arguments::m_find},
            {"--collation", &Arguments::m_collation},
            {"--locale", &Arguments::m_locale},
            {"--explain-collation", &Arguments::m_explain},
            {"--language", &Arguments::m_language},
        }};
        for (auto const & [option, place] : kTexts) {
            if (name != option)
                continue;
            std::string value = TakeValue(name);
            if (value.empty())
                throw UserError(Text("%1: the value is empty", name));
            SetOnce(this->*place, name, std::move(value));
            return true;
        }
        return false;
    }

    bool ReadFlag(std::string const & name)
    {
        static constexpr std::array<std::pair<std::string_view, Flag>, 4> kFlags = {{
            {"--ignore-case", &Arguments::m_ignoreCase},
            {"--ignore-accents", &Arguments::m_ignoreAccents},
            {"--word-sort", &Arguments::m_wordSort},
            {"--sql-nulls", &Arguments::m_sqlNulls},
        }};
        for (auto const & [option, place] : kFlags) {
            if (name != option)
                continue;
            if (std::exchange(this->*place, true))
                throw UserError(Text("%1 is given twice", name));
            return true;
        }
        return false;
    }

    bool ReadAggregate(std::string const & name)
    {
        if (name == OptionOf(AggregateKind::Count)) {
            m_items.push_back({AggregateKind::Count, {}});
            return true;
        }
        auto const kind = std::find_if(kColumnAggregates.begin(), kColumnAggregates.end(),
                                       [&](AggregateKind candidate) { return name == OptionOf(candidate); });
        if (kind == kColumnAggregates.end())
            return false;
        m_items.push_back({*kind, ReadColumnName(name, TakeValue(name))});
        return true;
    }

    // The pattern may be left out.
    bool ReadListLocales(std::string const & name)
    {
        if (name != "--list-locales")
            return false;
        bool const isAlone = !m_attached && (m_next == m_arguments.size() || m_arguments[m_next].starts_with('-'));
        SetOnce(m_locales, name, isAlone ? std::string() : TakeValue(name));
        return true;
    }

    bool ReadDateOption(std::string const & name)
    {
        std::optional<std::string> * const place = name == "--dates-in"     ? &m_dates.datesIn
                                                   : name == "--dates-as"   ? &m_dates.datesAs
                                                   : name == "--date-order" ? &m_dateOrder
                                                                            : nullptr;
        if (place == nullptr)
            return false;
        std::string value = TakeValue(name);
        if (value.empty())
            throw UserError(Text("%1: the value is empty", name));
        SetOnce(*place, name, std::move(value));
        return true;
    }

    bool ReadColumnOption(std::string const & name)
    {
        if (!ColumnOptions::IsOption(name))
            return false;
        m_columns.Add(name, TakeValue(name));
        return true;
    }

    // The text behind "=", else the next argument.
    std::string TakeValue(std::string const & option)
    {
        if (m_attached)
            return *std::exchange(m_attached, std::nullopt);
        if (m_next == m_arguments.size() || m_arguments[m_next].starts_with("--"))
            throw UserError(Text("%1 needs a value", option));
        return m_arguments[m_next++];
    }

    template <class Value>
    static void SetOnce(std::optional<Value> & place, std::string const & option, Value value)
    {
        if (place)
            throw UserError(Text("%1 is given twice", option));
        place = std::move(value);
    }

    Options Finish()
    {
        Options options;
        // --language goes with everything.
        int const others = m_options - (m_language ? 1 : 0);
        if (m_explain) {
            if (m_file || others > 1)
                throw UserError(Text("%1 stands alone", "--explain-collation"));
            options.task = ExplainRequest{*m_explain};
            return options;
        }
        if (m_locales) {
            if (m_file || others > 1)
                throw UserError(Text("%1 stands alone", "--list-locales"));
            options.task = LocalesRequest{*m_locales};
            return options;
        }
        if (m_dateOrder) {
            if (m_file || m_options > 1)
                throw UserError(Text("%1 stands alone", "--date-order"));
            options.task = DateOrderRequest{*m_dateOrder};
            return options;
        }
        if (!m_file)
            throw UserError(Text("no file is given; typedtable --help shows the usage"));
        options.file = *m_file;
        options.sqlNulls = m_sqlNulls;
        if (m_where)
            options.filter.where = ReadCondition(*m_where);
        options.filter.find = m_find;
        options.collation = FinishCollation();
        options.dates = m_dates;
        options.dates.locale = m_locale;
        options.casts = m_columns.GetCasts();
        options.formats = m_columns.MakeFormats(m_locale);
        if (m_sqlNulls && !m_where && !m_sort &&
            !HasItem([](AggregateKind kind) { return kind != AggregateKind::Count; }))
            throw UserError(Text("--sql-nulls needs --where, --sort, --sum, --mean, --min or --max"));
        options.task = FinishTask();
        return options;
    }

    Options::Task FinishTask()
    {
        if (!m_groupBy && m_fiscalStart)
            throw UserError(Text("%1 needs %2", "--fiscal-start", "--group-by"));
        if (!m_groupBy && m_weekStart)
            throw UserError(Text("%1 needs %2", "--week-start", "--group-by"));
        if (m_groupBy && m_distinct)
            throw UserError(Text("--group-by and --distinct both gather rows: give one of them"));
        if ((m_groupBy || m_distinct || !m_items.empty()) && (m_rows || m_sort || m_columns.GetForm())) {
            std::string const shown = m_rows ? "--rows" : m_sort ? "--sort" : "--as";
            if (m_groupBy || m_distinct)
                throw UserError(Text("%1 shows rows and %2 shows groups: give one of them", shown,
                                     m_groupBy ? "--group-by" : "--distinct"));
            throw UserError(
                Text("%1 shows rows and %2 shows one line: give one of them", shown, OptionOf(m_items.front().kind)));
        }
        if (m_columns.GetForm() && (m_columns.HasFormats() || m_dates.datesAs))
            throw UserError(Text("%1 is for tables and %2 writes none: give one of them",
                                 m_columns.HasFormats() ? "--format" : "--dates-as", "--as"));
        if (m_groupBy)
            return MakeGroupByRequest(*m_groupBy, m_fiscalStart, m_weekStart, std::move(m_items));
        if (m_distinct) {
            if (m_items.empty())
                m_items.push_back({AggregateKind::Count, {}});
            return DistinctRequest{ReadColumnName("--distinct", *m_distinct), std::move(m_items)};
        }
        if (!m_items.empty())
            return SummaryRequest{std::move(m_items)};
        if (m_sort || m_where || m_find || m_columns.GetForm()) {
            ListingRequest request;
            request.form = m_columns.GetForm();
            if (m_sort)
                request.sort = ReadColumnName("--sort", *m_sort);
            if (m_rows)
                request.rows = static_cast<std::size_t>(*m_rows);
            return request;
        }
        return SchemaRequest{static_cast<std::size_t>(m_rows.value_or(5))};
    }

    CollationChoice FinishCollation() const
    {
        if (m_collation && m_locale)
            throw UserError(Text("--collation and --locale both name a collation: give one of them"));
        for (auto const & [given, option] :
             {std::pair(m_ignoreCase, "--ignore-case"), std::pair(m_ignoreAccents, "--ignore-accents"),
              std::pair(m_wordSort, "--word-sort")})
        {
            if (given && m_collation)
                throw UserError(Text("%1 goes with --locale; the name behind --collation says it all", option));
            if (given && !m_locale)
                throw UserError(Text("%1 needs %2", option, "--locale"));
        }
        bool const isUsed = m_sort || m_distinct || m_find || m_where || HasItem([](AggregateKind kind) {
                                return kind == AggregateKind::Min || kind == AggregateKind::Max;
                            });
        if (m_collation && !isUsed)
            throw UserError(Text("%1 needs --sort, --distinct, --find, --where, --min or --max", "--collation"));
        if (m_locale && !isUsed && !m_dates.datesAs && !m_columns.HasFormats())
            throw UserError(
                Text("--locale needs --sort, --distinct, --find, --where, --min, --max, --dates-as or --format"));
        return {m_collation, m_locale, m_ignoreCase, m_ignoreAccents, m_wordSort};
    }

    template <class Predicate>
    bool HasItem(Predicate predicate) const
    {
        return std::any_of(m_items.begin(), m_items.end(),
                           [&](AggregateItem const & item) { return predicate(item.kind); });
    }

    std::vector<std::string> const & m_arguments;
    std::size_t m_next = 0;
    int m_options = 0;
    std::optional<std::string> m_attached;  // value of the option at hand, written with "="
    std::optional<std::string> m_file;
    std::optional<int> m_rows;
    std::optional<int> m_fiscalStart;
    std::optional<int> m_weekStart;
    std::optional<std::string> m_groupBy;
    std::optional<std::string> m_distinct;
    std::optional<std::string> m_sort;
    std::optional<std::string> m_where;
    std::optional<std::string> m_find;
    std::optional<std::string> m_collation;
    std::optional<std::string> m_locale;
    std::optional<std::string> m_explain;
    std::optional<std::string> m_locales;
    std::optional<std::string> m_language;  // FindLanguage has it
    std::optional<std::string> m_dateOrder;
    DateChoice m_dates;
    ColumnOptions m_columns;
    bool m_ignoreCase = false;
    bool m_ignoreAccents = false;
    bool m_wordSort = false;
    bool m_sqlNulls = false;
    std::vector<AggregateItem> m_items;
};

}  // namespace

std::optional<std::string> FindLanguage(std::vector<std::string> const & arguments)
{
    static constexpr std::string_view kOption = "--language";
    auto const end = std::find(arguments.begin(), arguments.end(), "--");
    if (AsksForHelp(arguments))
        return std::nullopt;
    for (auto argument = arguments.begin(); argument != end; ++argument) {
        if (!argument->starts_with(kOption))
            continue;
        if (*argument == kOption && argument + 1 != end && !argument[1].starts_with("--"))
            return argument[1];
        if (argument->size() > kOption.size() + 1 && (*argument)[kOption.size()] == '=')
            return argument->substr(kOption.size() + 1);
    }
    return std::nullopt;
}

Options ReadOptions(std::vector<std::string> const & arguments)
{
    if (AsksForHelp(arguments)) {
        Options options;
        options.task = HelpRequest{};
        return options;
    }
    return Arguments(arguments).Read();
}

}  // namespace typedtable
