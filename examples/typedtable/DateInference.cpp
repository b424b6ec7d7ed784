#include "typedtable/DateInference.h"

#include <algorithm>
#include <utility>

#include "velcoredata/core/LocaleFormatter.h"
#include "velcoredata/data/DateTime.h"

namespace typedtable {

namespace {

constexpr std::size_t kMostPatterns = 12;

TString TextOf(std::string_view cell)
{
    return TString::fromUtf8(cell.data(), static_cast<int>(cell.size())).trim();
}

// A letter of a field, not of a literal. Runs of it.
struct Run
{
    int start;
    int length;
};

std::optional<Run> FindField(TString const & pattern, std::u16string_view letters)
{
    bool quoted = false;
    for (int i = 0; i < pattern.length(); ++i) {
        char16_t const unit = pattern[i];
        if (unit == u'\'')
            quoted = !quoted;
        else if (!quoted && letters.find(unit) != letters.npos) {
            int end = i;
            while (end < pattern.length() && pattern[end] == unit)
                ++end;
            return Run{i, end - i};
        }
    }
    return std::nullopt;
}

bool IsWholeDate(TString const & pattern)
{
    return FindField(pattern, u"yu") && FindField(pattern, u"ML") && FindField(pattern, u"d");
}

bool HasClock(TString const & pattern)
{
    return FindField(pattern, u"hHkKmsS").has_value();
}

// "dd/MM/yyyy" for "MM/dd/yyyy"; empty where the month is a word, and behind the year, where nobody writes the day
// first.
TString Twin(TString const & pattern)
{
    auto const day = FindField(pattern, u"d");
    auto const month = FindField(pattern, u"ML");
    auto const year = FindField(pattern, u"yu");
    if (!day || !month || !year || year->start < day->start || year->start < month->start)
        return TString();
    Run const & first = day->start < month->start ? *day : *month;
    Run const & second = day->start < month->start ? *month : *day;
    TString twin = pattern.left(first.start);
    twin.append(pattern.mid(second.start, second.length));
    twin.append(pattern.mid(first.start + first.length, second.start - first.start - first.length));
    twin.append(pattern.mid(first.start, first.length));
    twin.append(pattern.mid(second.start + second.length, pattern.length() - second.start - second.length));
    return twin;
}

std::optional<DateTime> ReadBy(DatePattern const & by, TString const & text)
{
    DateTime value;
    bool const read = by.pattern.isEmpty()
                          ? by.locale->ParseDateTimeUsingNativeAPIs(text.GetString(), value, ParseDateAndTime)
                          : by.locale->ParseDateTime(text.GetString(), by.pattern.GetString(), value, ParseDateAndTime);
    // A time alone is one of 1899-12-30.
    return read && value.IsValid() && value.HasDate() ? std::optional(value) : std::nullopt;
}

using SearchMember = bool (TLocale::*)(char16_t const *, DateTime &, DateTimeParseOptions) const;

// The pattern that a search ends with, in an object that has read nothing else: the formatter that it leaves is strict
// or lenient as the search had it.
std::optional<DatePattern> SearchBy(SearchMember search, TLocale const & locale, TString const & text)
{
    DatePattern found{TString(), text, std::make_unique<TLocale>(locale)};
    found.locale->setParseNative(false);
    DateTime value;
    if (!((*found.locale).*search)(text.GetString(), value, ParseDateAndTime))
        return std::nullopt;
    found.pattern = found.locale->GetFormatterCache()->GetICUDateFormatter().toPattern();
    if (!IsWholeDate(found.pattern) || !ReadBy(found, text))
        return std::nullopt;
    return found;
}

std::optional<DatePattern> Search(TLocale const & locale, TString const & text)
{
    for (SearchMember const search : {static_cast<SearchMember>(&TLocale::ParseDateTimeTryAllFormats),
                                      static_cast<SearchMember>(&TLocale::ParseDateTryAllFormats)})
    {
        if (auto found = SearchBy(search, locale, text))
            return found;
    }
    DatePattern native{TString(), text, std::make_unique<TLocale>(locale)};
    if (ReadBy(native, text))
        return native;
    return std::nullopt;
}

}  // namespace

DateColumn::DateColumn(std::vector<DatePattern> patterns, long long cells)
    : m_patterns(std::move(patterns)), m_cells(cells), m_type(DataType::Date)
{
    for (DatePattern const & pattern : m_patterns) {
        if (pattern.cells != 0 && (HasClock(pattern.pattern) || pattern.hasTimes))
            m_type = DataType::DateTime;
    }
}

std::optional<DataValue> DateColumn::Read(std::string_view cell) const
{
    TString const text = TextOf(cell);
    if (text.isEmpty())
        return DataValue(DataValueTypes::Null, m_type);
    for (DatePattern const & pattern : m_patterns) {
        if (auto const value = ReadBy(pattern, text))
            return DataValue(*value, m_type);
    }
    return std::nullopt;
}

DatePattern const * DateColumn::GetTwin() const noexcept
{
    TString const twin = Twin(GetWinner().pattern);
    if (twin.isEmpty())
        return nullptr;
    auto const found = std::find_if(m_patterns.begin(), m_patterns.end(),
                                    [&](DatePattern const & pattern) { return pattern.pattern == twin; });
    return found == m_patterns.end() ? nullptr : &*found;
}

DateInference::DateInference(TLocale const & locale) : m_locale(locale) {}

void DateInference::Look(std::string_view cell)
{
    if (!m_isDates)
        return;
    TString const text = TextOf(cell);
    if (text.isEmpty())
        return;
    for (DatePattern const & pattern : m_patterns) {
        if (ReadBy(pattern, text))
            return;
    }
    auto found = Search(m_locale, text);
    m_isDates = found.has_value() && m_patterns.size() < kMostPatterns;
    if (m_isDates)
        m_patterns.push_back(std::move(*found));
}

void DateInference::AddTwins()
{
    if (std::exchange(m_hasTwins, true))
        return;
    std::size_t const found = m_patterns.size();
    for (std::size_t i = 0; i < found; ++i) {
        TString const twin = Twin(m_patterns[i].pattern);
        bool const isNew =
            !twin.isEmpty() && std::none_of(m_patterns.begin(), m_patterns.end(),
                                            [&](DatePattern const & pattern) { return pattern.pattern == twin; });
        if (!isNew)
            continue;
        // Searched for once more, so that the twin reads with the same leniency.
        if (auto pattern = Search(m_locale, m_patterns[i].example)) {
            pattern->pattern = twin;
            m_patterns.push_back(std::move(*pattern));
        }
    }
}

void DateInference::Count(std::string_view cell)
{
    AddTwins();
    TString const text = TextOf(cell);
    if (text.isEmpty())
        return;
    ++m_cells;
    for (DatePattern & pattern : m_patterns) {
        if (auto const value = ReadBy(pattern, text)) {
            ++pattern.cells;
            pattern.hasTimes = pattern.hasTimes || value->HasTime();
        }
    }
}

std::shared_ptr<DateColumn const> DateInference::Finish()
{
    std::stable_sort(m_patterns.begin(), m_patterns.end(),
                     [](DatePattern const & a, DatePattern const & b) { return a.cells > b.cells; });
    return std::make_shared<DateColumn const>(std::move(m_patterns), m_cells);
}

}  // namespace typedtable
