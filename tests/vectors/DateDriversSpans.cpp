// Drivers of the tables on spans, times, intervals and ranges.
#include "tests/vectors/DateDrivers.h"
#include "velcoredata/data/DateTimeRange.h"
#include "velcoredata/data/Interval.h"
#include "velcoredata/data/Time.h"

using namespace velcoredata::vectors;

namespace {

// The comma-separated arguments of a row.
class Arguments
{
public:
    explicit Arguments(Row const & row) : m_parts(SplitCommas(row.Cell("args"))) {}

    long long Int(std::size_t index) const { return DecodeInt(m_parts.at(index)); }
    unsigned long long UInt(std::size_t index) const { return DecodeUInt(m_parts.at(index)); }
    unsigned Unsigned(std::size_t index) const { return static_cast<unsigned>(UInt(index)); }
    int Int32(std::size_t index) const { return static_cast<int>(Int(index)); }
    double Real(std::size_t index) const { return DecodeReal(m_parts.at(index)); }

private:
    std::vector<std::string> m_parts;
};

std::string Parts(DateTimeSpan const & span)
{
    auto const text = [](long long part) { return std::to_string(part) + ","; };
    return text(span.GetDays()) + text(span.GetHours()) + text(span.GetMinutes()) + text(span.GetSeconds()) +
           EncodeReal(span.GetFraction()) + "," + text(span.GetTotalDays()) + text(span.GetTotalHours()) +
           text(span.GetTotalMinutes()) + text(span.GetTotalSeconds()) + text(span.GetTotalMilliseconds()) +
           EncodeReal(span.ToOleSpan());
}

std::string Parts(Interval const & interval)
{
    auto const text = [](long long part) { return std::to_string(part) + ","; };
    return text(interval.GetDays()) + text(interval.GetHours()) + text(interval.GetMinutes()) +
           text(interval.GetSeconds()) + text(interval.GetMicroseconds()) + EncodeReal(interval.GetFraction()) + "," +
           text(interval.GetTotalHours()) + text(interval.GetTotalMinutes()) + text(interval.GetTotalSeconds()) +
           std::to_string(interval.GetTimePart());
}

std::string Parts(Time const & time)
{
    return std::to_string(time.GetHour()) + "," + std::to_string(time.GetMinute()) + "," +
           std::to_string(time.GetSecond()) + "," + std::to_string(time.GetMicrosecond());
}

// A time of the tables; one count past the day can only be made from parts.
Time TimeOf(unsigned long long micros)
{
    return micros == Time::MicrosecondsPerDay ? Time(23, 59, 59, 1000000u) : Time(micros);
}

// Hexadecimal floats inside a list are compared after decoding, since one number has several spellings.
void ExpectParts(Row & row, std::string const & actual)
{
    std::vector<std::string> expected = SplitCommas(row.Cell("result"));
    std::string normalized;
    for (std::string const & part : expected) {
        bool const isReal = part.find('x') != std::string::npos;
        normalized += (normalized.empty() ? "" : ",") + (isReal ? EncodeReal(DecodeReal(part)) : part);
    }
    row.Expect("result", normalized, actual);
}

}  // namespace

VECTOR_DRIVER("dates_span")
{
    std::string const & op = row.Cell("op");
    Arguments const args(row);
    if (op == "compose") {
        DateTimeSpan const span(args.Int(0), args.Int(1), args.Int(2), args.Int(3), args.Real(4));
        DateTimeSpan set;
        set.SetDateTimeSpan(args.Int(0), args.Int(1), args.Int(2), args.Int(3), args.Real(4));
        row.ExpectInt("result", span.GetRepresentation());
        row.ExpectInt("result", set.GetRepresentation());
    } else if (op == "fromOle") {
        row.ExpectInt("result", DateTimeSpan(args.Real(0)).GetRepresentation());
    } else if (op == "fromMilliseconds") {
        row.ExpectInt("result", DateTimeSpan::FromMilliseconds(args.Int(0)).GetRepresentation());
    } else if (op == "days") {
        row.ExpectInt("result", DateTimeSpan::Days(args.Int(0)).GetRepresentation());
    } else if (op == "split") {
        ExpectParts(row, Parts(DateTimeSpan(args.Int(0))));
    } else if (op == "mulInt") {
        row.ExpectInt("result", (DateTimeSpan(args.Int(0)) * args.Int32(1)).GetRepresentation());
    } else if (op == "divInt" && row.Cell("result") == "FAULT") {
        row.ExpectDeath("result", [&] { static_cast<void>(DateTimeSpan(args.Int(0)) / args.Int32(1)); });
    } else if (op == "divInt") {
        row.ExpectInt("result", (DateTimeSpan(args.Int(0)) / args.Int32(1)).GetRepresentation());
    } else if (op == "divSpan" && row.Cell("result") == "FAULT") {
        row.ExpectDeath("result", [&] { static_cast<void>(DateTimeSpan(args.Int(0)) / DateTimeSpan(args.Int(1))); });
    } else if (op == "divSpan") {
        row.ExpectInt("result", DateTimeSpan(args.Int(0)) / DateTimeSpan(args.Int(1)));
    } else if (op == "compare") {
        row.ExpectInt("result", DateTimeSpan(args.Int(0)).Compare(DateTimeSpan(args.Int(1))));
    } else {
        row.Fail("unknown operation");
    }
}

VECTOR_DRIVER("dates_time")
{
    std::string const & op = row.Cell("op");
    Arguments const args(row);
    if (op == "fromMicros") {
        row.ExpectUInt("result", Time(args.UInt(0)).GetRepresentation());
    } else if (op == "fromPartsU") {
        row.ExpectCell(
            "result", Outcome([&] {
                return Time(args.Unsigned(0), args.Unsigned(1), args.Unsigned(2), args.Unsigned(3)).GetRepresentation();
            }));
    } else if (op == "fromPartsD") {
        row.ExpectCell(
            "result", Outcome([&] {
                return Time(args.Unsigned(0), args.Unsigned(1), args.Unsigned(2), args.Real(3)).GetRepresentation();
            }));
    } else if (op == "split") {
        ExpectParts(row, Parts(TimeOf(args.UInt(0))));
    } else if (op == "format") {
        row.ExpectCell("result", TimeOf(args.UInt(0)).Format().toStdString());
    } else if (op == "plus") {
        row.ExpectUInt("result", (TimeOf(args.UInt(0)) + Interval(args.Int(1))).GetRepresentation());
    } else if (op == "minus") {
        row.ExpectUInt("result", (TimeOf(args.UInt(0)) - Interval(args.Int(1))).GetRepresentation());
    } else if (op == "timeMinusTime") {
        row.ExpectInt("result", (TimeOf(args.UInt(0)) - TimeOf(args.UInt(1))).GetRepresentation());
    } else {
        row.Fail("unknown operation");
    }
}

VECTOR_DRIVER("dates_interval")
{
    std::string const & op = row.Cell("op");
    Arguments const args(row);
    if (op == "compose") {
        Interval const interval(args.Int32(0), args.Int(1), args.Int(2), args.Int(3), args.Real(4));
        Interval set;
        set.SetDateTimeSpan(args.Int32(0), args.Int(1), args.Int(2), args.Int(3), args.Real(4));
        row.ExpectInt("result", interval.GetRepresentation());
        row.ExpectInt("result", set.GetRepresentation());
    } else if (op == "split") {
        ExpectParts(row, Parts(Interval(args.Int(0))));
    } else if (op == "format") {
        row.ExpectCell("result", Interval(args.Int(0)).Format().toStdString());
    } else if (op == "toTime") {
        row.ExpectUInt("result", static_cast<Time>(Interval(args.Int(0))).GetRepresentation());
    } else if (op == "mulDouble") {
        row.ExpectInt("result", (Interval(args.Int(0)) * args.Real(1)).GetRepresentation());
    } else if (op == "divDouble") {
        row.ExpectInt("result", (Interval(args.Int(0)) / args.Real(1)).GetRepresentation());
    } else if (op == "ratio" && row.Cell("result") == "FAULT") {
        row.ExpectDeath("result", [&] { static_cast<void>(Interval(args.Int(0)) / Interval(args.Int(1))); });
    } else if (op == "ratio") {
        row.ExpectInt("result", Interval(args.Int(0)) / Interval(args.Int(1)));
    } else if (op == "compare") {
        row.ExpectInt("result", Interval(args.Int(0)).Compare(Interval(args.Int(1))));
    } else if (op == "minusTime") {
        row.ExpectCell("result",
                       Outcome([&] { return (Interval(args.Int(0)) - TimeOf(args.UInt(1))).GetRepresentation(); }));
    } else {
        row.Fail("unknown operation");
    }
}

VECTOR_DRIVER("dates_range")
{
    auto const range = [&](char const * isEmpty, char const * start, char const * end) {
        return row.Bool(isEmpty)
                   ? DateTimeRange()
                   : DateTimeRange(DateTime::FromValue(row.UInt(start)), DateTime::FromValue(row.UInt(end)));
    };
    DateTimeRange const result = range("empty1", "start1", "end1").Intersect(range("empty2", "start2", "end2"));
    row.ExpectBool("emptyR", result.isEmpty);
    row.ExpectUInt("startR", result.start.GetRepresentation());
    row.ExpectUInt("endR", result.end.GetRepresentation());
}
