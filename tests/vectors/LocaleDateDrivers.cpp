// Drivers of the tables of dates and times as text.

#include <cstdio>
#include <map>
#include <memory>
#include <string>

#include "main/core/DateTimeParsingRows.h"
#include "tests/vectors/VectorDriver.h"
#include "velcoredata/core/DateTimeParsingFormats.h"
#include "velcoredata/core/LocaleFormatter.h"
#include "velcoredata/core/TLocale.h"
#include "velcoredata/data/DateTime.h"
#include "velcoreplatform/TFormatString.h"
#include "velsys/LogicException.h"

namespace {

using velcoredata::vectors::Row;

TString TextOf(Row const & row, char const * column)
{
    return TString::fromStdU16String(row.Text(column));
}

DateTimeParseOptions OptionsOf(Row const & row)
{
    return static_cast<DateTimeParseOptions>(row.Int("options"));
}

// "2020-01-02 03:04:05.678" or "2010-06-01".
DateTime ValueOf(std::string const & cell)
{
    int year = 0;
    int month = 0;
    int day = 0;
    int hour = 0;
    int minute = 0;
    int second = 0;
    int millisecond = 0;
    int const count =
        std::sscanf(cell.c_str(), "%d-%d-%d %d:%d:%d.%d", &year, &month, &day, &hour, &minute, &second, &millisecond);
    if (count != 3 && count != 7)
        throw std::runtime_error("not a date: " + cell);
    return DateTime(year, month, day, hour, minute, second, millisecond / 1000.0);
}

// "1899-12-30 07:00:00.000"
std::string TextOf(DateTime const & value)
{
    return TFormatString(u"%1-%2-%3 %4:%5:%6.%7")
        .arg(value.GetYear(), 4, 10, u'0')
        .arg(value.GetMonth(), 2, 10, u'0')
        .arg(value.GetDay(), 2, 10, u'0')
        .arg(value.GetHour(), 2, 10, u'0')
        .arg(value.GetMinute(), 2, 10, u'0')
        .arg(value.GetSecond(), 2, 10, u'0')
        .arg(value.GetMilliseconds(), 3, 10, u'0')
        .
        operator TString()
        .toStdString();
}

constexpr unsigned long long SENTINEL = 2134567890123456;

// A failure leaves the value that was there.
void ExpectRead(Row & row, bool read, DateTime const & out)
{
    row.ExpectBool("ok", read);
    if (read)
        row.ExpectCell("value", TextOf(out));
    else
        row.Expect("value left alone", std::to_string(SENTINEL), std::to_string(out.GetRepresentation()));
}

std::string PatternIn(TLocale const & locale)
{
    return locale.GetFormatterCache() == nullptr
               ? "no formatter"
               : locale.GetFormatterCache()->GetICUDateFormatter().toPattern().toStdString();
}

// The pattern that the column "matched" says the formatter is left with; the last one of the table for "none".
std::string PatternOf(std::string const & matched)
{
    if (matched.starts_with("cached:"))
        return matched.substr(7);
    if (matched.starts_with("row:") || matched == "none") {
        auto const rows = detail::DateTimeParsingRows();
        std::size_t const index = matched == "none" ? rows.size() - 1 : std::stoul(matched.substr(4));
        return TString(rows[index].formatString).toStdString();
    }
    return matched;
}

// What the table's locale is: on this library's platform the parser of the system answers last, and the table is of
// locales without one.
std::unique_ptr<TLocale> NewLocale(TString const & name)
{
    auto locale = std::make_unique<TLocale>(name);
    locale->setParseNative(false);
    return locale;
}

bool Search(Row const & row, TLocale const & locale, bool dateOnly, TString const & text, DateTime & out)
{
    DateTimeParseOptions const options = OptionsOf(row);
    if (row.Cell("reference").empty())
        return dateOnly ? locale.ParseDateTryAllFormats(text, out, options)
                        : locale.ParseDateTimeTryAllFormats(text, out, options);
    DateTime const reference = ValueOf(row.Cell("reference"));
    return dateOnly ? locale.ParseDateTryAllFormats(text, reference, out, options)
                    : locale.ParseDateTimeTryAllFormats(text, reference, out, options);
}

std::string OutcomeOf(char16_t const * (*lookup)(DateTimeParsingFormats), int id)
{
    try {
        return TString(lookup(static_cast<DateTimeParsingFormats>(id))).toStdString();
    } catch (LogicException const &) {
        std::string const text = velcoredata::vectors::DescribeCurrentException();
        return text.substr(1, text.find('|') - 1);
    }
}

}  // namespace

VECTOR_DRIVER("locale_format_table")
{
    int const id = static_cast<int>(row.Int("id"));
    row.ExpectCell("format_string_or_error", OutcomeOf(LookupDateTimeParsingFormatString, id));
    row.ExpectCell("pattern_or_error", OutcomeOf(LookupDateTimeParsingPattern, id));
    row.ExpectBool("try_all", detail::DateTimeParsingRows()[static_cast<std::size_t>(id)].tryAll);
}

VECTOR_DRIVER("locale_format_pattern")
{
    if (row.Cell("datetime") < "1582-10-16" && row.Cell("pattern") == "DDD" && row.Cell("expected") != "001") {
        row.Skip("days of 1582 are counted without the gap of the Julian calendar");
        return;
    }
    TLocale const locale(TextOf(row, "locale"));
    row.ExpectText("expected", locale.Format(ValueOf(row.Cell("datetime")), TextOf(row, "pattern")).View());
}

VECTOR_DRIVER("locale_parse_fresh_enus")
{
    if (row.Cell("text") == "10000") {
        row.Skip("the year 10000 is one that DateTime::SetDateTime takes");
        return;
    }
    auto const locale = NewLocale(u"en_US");
    DateTime out = DateTime::FromValue(SENTINEL);
    bool const read = Search(row, *locale, false, TextOf(row, "text"), out);
    ExpectRead(row, read, out);
    if (row.Cell("matched") != "empty")
        row.Expect("pattern", PatternOf(row.Cell("matched")), PatternIn(*locale));
}

VECTOR_DRIVER("locale_parse_sequences_enus")
{
    static std::string s_sequence;
    static std::unique_ptr<TLocale> s_locale;
    if (row.Int("step") == 0) {
        s_sequence = row.Cell("sequence");
        s_locale = NewLocale(u"en_US");
    }
    if (row.Cell("sequence") != s_sequence) {
        row.Fail("a sequence without its first step");
        return;
    }
    std::string const before = PatternIn(*s_locale);
    DateTime out = DateTime::FromValue(SENTINEL);
    std::string const & op = row.Cell("op");
    bool read = false;
    if (op == "ParseDateTime")
        read = s_locale->ParseDateTime(TextOf(row, "text"), TextOf(row, "pattern"), out, OptionsOf(row));
    else if (op == "ParseDateTimeTryAllFormats")
        read = Search(row, *s_locale, false, TextOf(row, "text"), out);
    else if (op == "ParseDateTryAllFormats")
        read = Search(row, *s_locale, true, TextOf(row, "text"), out);
    else
        row.Fail("unknown operation");
    ExpectRead(row, read, out);
    std::string const & matched = row.Cell("matched");
    row.Expect("pattern", matched == "empty" ? before : PatternOf(matched), PatternIn(*s_locale));
    if (matched.starts_with("cached:"))
        row.Expect("pattern before", PatternOf(matched), before);
}

VECTOR_DRIVER("locale_parse_time_enus")
{
    auto const locale = NewLocale(u"en_US");
    auto const [read, value] = locale->ParseTimeTryAllFormats(TextOf(row, "text"));
    ExpectRead(row, read, read ? value : DateTime::FromValue(SENTINEL));
    std::string const & matched = row.Cell("matched");
    if (read)
        row.Expect("pattern", matched, PatternIn(*locale));
}

VECTOR_DRIVER("locale_parse_pattern")
{
    auto const locale = NewLocale(TextOf(row, "locale"));
    DateTime out = DateTime::FromValue(SENTINEL);
    bool const read = locale->ParseDateTime(TextOf(row, "text"), TextOf(row, "pattern"), out, OptionsOf(row));
    ExpectRead(row, read, out);
}
