// Drivers of the tables on DateTime: getters, setters and other clocks.
#include "tests/vectors/DateDrivers.h"
#include "main/data/DateTimeFixedText.h"
#include "velcoredata/data/Interval.h"
#include "velcoredata/data/Time.h"

using namespace velcoredata::vectors;

namespace {

int IntCell(Row const & row, char const * column)
{
    return static_cast<int>(row.Int(column));
}

std::string FixedText(DateTime const & value)
{
    return detail::FormatFixed(value).toStdString();
}

}  // namespace

VECTOR_DRIVER("dates_days")
{
    DateTime const day = Midnight(row.Int("dayNumber"));
    row.ExpectInt("year", day.GetYear());
    row.ExpectInt("month", day.GetMonth());
    row.ExpectInt("day", day.GetDay());
    row.ExpectInt("dayOfWeek", day.GetDayOfWeek());
    row.ExpectInt("isoDayOfWeek", day.GetISO8601DayOfWeek());
    row.ExpectInt("dayOfYear", day.GetDayOfYear());
    row.ExpectInt("quarter", day.GetQuarter());
    row.ExpectInt("isoYear", day.GetISO8601Year());
    row.ExpectInt("isoWeek", day.GetISO8601Week());
    row.ExpectInt("isoQuarter", day.GetISO8601Quarter());
    std::string weeks;
    for (int startDay = 0; startDay <= 8; ++startDay)
        weeks += (startDay == 0 ? "" : ",") + std::to_string(day.GetWeek(startDay));
    row.ExpectCell("weekForStartDay0to8", weeks);
}

VECTOR_DRIVER("dates_offcalendar")
{
    DateTime const day = Midnight(row.Int("dayNumber"));
    row.ExpectInt("year", day.GetYear());
    row.ExpectInt("month", day.GetMonth());
    row.ExpectInt("day", day.GetDay());
    row.ExpectBool("isValid", day.IsValid());
    row.ExpectBool("hasDate", day.HasDate());
    row.ExpectCell("formatFalseOfNoonPlus1Tick", FixedText(day + DateTimeSpan(432000001)));
}

VECTOR_DRIVER("dates_setdatetime")
{
    DateTime const before = DateTime::FromValue(1234567890123456789);
    DateTime value = before;
    std::string const outcome = Outcome([&] {
        bool const result =
            value.SetDateTime(IntCell(row, "year"), IntCell(row, "month"), IntCell(row, "day"), IntCell(row, "hour"),
                              IntCell(row, "minute"), IntCell(row, "second"), row.Real("fraction"));
        return result ? std::to_string(value.GetRepresentation()) : std::string("false");
    });
    row.ExpectCell("representation", outcome);
    if (outcome[0] == '!' && value != before)
        row.Fail("a failed call changed the value");
}

VECTOR_DRIVER("dates_settime")
{
    DateTime const before = DateTime::FromValue(row.UInt("representation"));
    DateTime value = before;
    std::string const outcome = Outcome([&] {
        value.SetTime(IntCell(row, "hour"), IntCell(row, "minute"), IntCell(row, "second"), row.Real("fraction"));
        return value;
    });
    row.ExpectCell("newRepresentation", outcome);
    if (outcome[0] == '!' && value != before)
        row.Fail("a failed call changed the value");
}

VECTOR_DRIVER("dates_clock")
{
    DateTime const value = DateTime::FromValue(row.UInt("representation"));
    row.ExpectInt("hour", value.GetHour());
    row.ExpectInt("minute", value.GetMinute());
    row.ExpectInt("second", value.GetSecond());
    row.ExpectReal("fraction", value.GetFraction());
    row.ExpectInt("milliseconds", value.GetMilliseconds());
    row.ExpectBool("hasDate", value.HasDate());
    row.ExpectBool("hasTime", value.HasTime());
    row.ExpectBool("isValid", value.IsValid());
    row.ExpectInt("daysSinceOLE", value.GetDaysSinceOLEEpoch());
    row.ExpectInt("daysSinceBase", value.GetDaysSinceBaseDateEpoch());
    row.ExpectReal("toOleDate", value.ToOleDate());
    row.ExpectReal("oleFromFixedTruncated", DateTime::OleDateFromFixedPrecision(value.GetRepresentation(), true));
    row.ExpectCell("formatFalse", FixedText(value));
    row.ExpectCell("getDate", Outcome([&] { return value.GetDate(); }));
}

VECTOR_DRIVER("dates_validity")
{
    DateTime const value = DateTime::FromValue(row.UInt("representation"));
    row.ExpectBool("isValid", value.IsValid());
    row.ExpectCell("validate", Outcome([&] {
                       value.Validate();
                       return std::string("ok");
                   }));
}

VECTOR_DRIVER("dates_ole")
{
    row.ExpectUInt("representation", DateTime::FromOleDate(row.Real("oleDate")).GetRepresentation());
}

VECTOR_DRIVER("dates_unix")
{
    std::string const & op = row.Cell("op");
    if (op == "FromMillisecondsAfterUnixEpoch") {
        row.ExpectUInt("result", DateTime::FromMillisecondsAfterUnixEpoch(row.Int("a")).GetRepresentation());
    } else if (op == "SetUnixTimeUtc") {
        DateTime const before = DateTime::FromValue(1234567890123456789);
        DateTime value = before;
        bool const isSet = value.SetUnixTime(row.Int("a"), row.UInt("microseconds"), true);
        row.ExpectCell("result", isSet ? std::to_string(value.GetRepresentation()) : "false");
        if (!isSet && value != before)
            row.Fail("a failed call changed the value");
    } else if (op == "GetAsUnixTimeUtc") {
        long long seconds = 0;
        bool const isRead = DateTime::FromValue(row.UInt("a")).GetAsUnixTime(seconds, true);
        row.ExpectCell("result", isRead ? std::to_string(seconds) : "false");
    } else {
        row.Fail("unknown operation");
    }
}

VECTOR_DRIVER("dates_fraction")
{
    double const fraction = row.Real("fraction");
    row.ExpectCell("DateTime::IsFractionTruncated", Outcome([&] { return DateTime::IsFractionTruncated(fraction); }));
    row.ExpectCell("Time::IsFractionRounded", Outcome([&] { return Time::IsFractionRounded(fraction); }));
    row.ExpectCell("Interval::IsFractionRounded", Outcome([&] { return Interval::IsFractionRounded(fraction); }));
}

VECTOR_DRIVER("dates_lastday")
{
    row.ExpectCell("lastDay", Outcome([&] { return DateTime::LastDay(IntCell(row, "year"), IntCell(row, "month")); }));
}

VECTOR_DRIVER("dates_isobounds")
{
    int const year = IntCell(row, "isoYear");
    row.ExpectInt("yearStart", DayNumberOf(DateTime::ISO8601YearStart(year)));
    row.ExpectInt("yearEnd", DayNumberOf(DateTime::ISO8601YearEnd(year)));
    auto const quarters = [](auto const & ofQuarter, std::vector<int> const & numbers) {
        std::string text;
        for (int quarter : numbers)
            text += (text.empty() ? "" : ",") + std::to_string(ofQuarter(quarter));
        return text;
    };
    row.ExpectCell("quarterStart1to4",
                   quarters([&](int q) { return DayNumberOf(DateTime::ISO8601QuarterStart(year, q)); }, {1, 2, 3, 4}));
    row.ExpectCell("quarterEnd1to4",
                   quarters([&](int q) { return DayNumberOf(DateTime::ISO8601QuarterEnd(year, q)); }, {1, 2, 3, 4}));
    row.ExpectCell("firstISO8601WeekQm1_1to4",
                   quarters([&](int q) { return DateTime::FirstISO8601Week(year, q); }, {-1, 1, 2, 3, 4}));
    row.ExpectCell("lastISO8601WeekQm1_1to4",
                   quarters([&](int q) { return DateTime::LastISO8601Week(year, q); }, {-1, 1, 2, 3, 4}));
}

VECTOR_DRIVER("dates_isoweekassert")
{
    auto const week = row.Cell("which") == "First" ? &DateTime::FirstISO8601Week : &DateTime::LastISO8601Week;
    row.ExpectCell("result", Outcome([&] { return week(IntCell(row, "isoYear"), IntCell(row, "isoQuarter")); }));
}

VECTOR_DRIVER("dates_fromiso")
{
    row.ExpectUInt("representation",
                   DateTime::FromISO8601Date(IntCell(row, "isoYear"), IntCell(row, "isoWeek"), IntCell(row, "isoDay"))
                       .GetRepresentation());
}
