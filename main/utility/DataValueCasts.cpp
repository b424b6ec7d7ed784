// Explicit casts of DataValueOperators and the numbers that are read from text.
#include <cstdint>
#include <limits>

#include "velcoredata/core/DateTimeParsingFormats.h"
#include "velcoredata/core/LocalStrings.h"
#include "velcoredata/data/DateTimeSpan.h"
#include "velcoredata/parser/DataValueFormatter.h"
#include "velcoredata/utility/DataValueOperatorException.h"
#include "velcoredata/utility/DataValueOperators.h"
#include "velcoredata/utility/SpatialEngine.h"
#include "velcoreplatform/NumberText.h"
#include "velsys/Arithmetic.h"
#include "velsys/ThrowSite.h"

namespace {

using detail::NumberVerdict;

// Numbers count days from 1900-01-01, dates from 1899-12-30.
constexpr int kDaysToBaseDate = 2;

// What StringToReal and StringToInt do, without a throw: a column half of which is no numbers is cast as fast as one of
// numbers.
bool ReadReal(TString const & text, double & value)
{
    NumberVerdict const verdict = detail::ReadReal(text.View(), value);
    if (verdict != NumberVerdict::Undecided)
        return verdict == NumberVerdict::Number;
    bool ok = false;
    value = text.toDouble(&ok);
    return ok;
}

bool ReadInteger(TString const & text, long long & value)
{
    NumberVerdict const verdict = detail::ReadInteger(text.View(), value);
    if (verdict != NumberVerdict::Undecided)
        return verdict == NumberVerdict::Number;
    bool ok = false;
    value = text.toLongLong(&ok);
    return ok;
}

// Saturates, but for 2^63 itself: it passes neither bound, and the processor's conversion gives the lowest integer.
long long Saturated(double value) noexcept
{
    if (value < -9223372036854775808.0)
        return std::numeric_limits<long long>::min();
    if (value > 9223372036854775808.0)
        return std::numeric_limits<long long>::max();
    return detail::RealToInt64(value);
}

bool ReadSaturated(TString const & text, long long & value)
{
    if (ReadInteger(text, value))
        return true;
    double real = 0.0;
    if (!ReadReal(text, real))
        return false;
    value = Saturated(real);
    return true;
}

DataValue NumberAsText(DataValue const & number)
{
    DataValueFormatter formatter;
    number.Accept(formatter);
    return DataValue::FromString(formatter.GetResult());
}

DataValue Error(DataType target)
{
    return DataValue(DataValueTypes::Error, target);
}

}  // namespace

double DataValueOperators::StringToReal(TString const & text) const
{
    double value = 0.0;
    if (!ReadReal(text, value))
        VELTRIA_THROW(DataValueOperatorException, 0x5EA10C38,
                      CoreData::LookupTStrExported(CoreData::StringId::IDS_ERR_PARSING_NUMBER));
    return value;
}

long long DataValueOperators::StringToInt(TString const & text) const
{
    long long value = 0;
    return ReadInteger(text, value) ? value : Saturated(StringToReal(text));
}

std::pair<signed char, signed char>
DataValueOperators::GetImplicitPrecisionAndScaleFromDecimalFormattedAsString(TString const & text)
{
    int digits = 0;
    int fraction = 0;
    bool bad = false;
    bool point = false;
    bool minus = false;
    for (char16_t const c : text.View()) {
        if (c >= u'0' && c <= u'9') {
            ++digits;
            fraction += point ? 1 : 0;
        } else if (c == u'.') {
            bad = bad || point;
            point = true;
        } else if (c == u'-' && digits == 0) {
            bad = bad || minus;
            minus = true;
        } else {
            bad = true;
        }
    }
    if (bad || digits >= 17)
        return {-1, -1};
    return {static_cast<signed char>(digits), static_cast<signed char>(fraction)};
}

DataValue DataValueOperators::ExplicitCast(DataValue const & value, DataType target) const
{
    if (value.GetDataType() == target || value.IsSpecial())
        return Cast(value, target);
    switch (value.GetDataType()) {
    case DataType::Integer:
    case DataType::Real: return CastNumber(value, target);
    case DataType::String: return CastText(value, target);
    case DataType::DateTime:
    case DataType::Date: return CastDate(value, target);
    case DataType::Boolean: return CastBoolean(value, target);
    default: return Error(target);
    }
}

DataValue DataValueOperators::CastNumber(DataValue const & value, DataType target) const
{
    bool const isInteger = value.GetDataType() == DataType::Integer;
    switch (target) {
    case DataType::Integer:
    case DataType::Real: return Cast(value, target);
    case DataType::String: return NumberAsText(value);
    case DataType::DateTime:
    case DataType::Date:
        if (isInteger) {
            auto const days = static_cast<std::int32_t>(value.GetIntUnchecked());
            return DataValue(DateTime::OLEEpoch + DateTimeSpan::Days(kDaysToBaseDate + static_cast<long long>(days)),
                             target);
        }
        return DataValue(DateTime::FromOleDate(value.GetRealUnchecked() + kDaysToBaseDate), target);
    default: return Error(target);
    }
}

DataValue DataValueOperators::CastText(DataValue const & value, DataType target)
{
    TString const & text = value.GetString();
    switch (target) {
    case DataType::Integer: {
        long long number = 0;
        return ReadSaturated(text, number) ? DataValue(number) : Error(target);
    }
    case DataType::Real: {
        double number = 0.0;
        return ReadReal(text, number) ? DataValue(number) : Error(target);
    }
    case DataType::DateTime:
    case DataType::Date: {
        DateTime date;
        return date.ParseDateTimeTryAllFormats(text) ? DataValue(date, target) : Error(target);
    }
    case DataType::Spatial: {
        DataValue spatial;
        SpatialEngine::CastStringToSpatial(text, spatial);
        return spatial;
    }
    default: return Error(target);
    }
}

DataValue DataValueOperators::CastDate(DataValue const & value, DataType target) const
{
    DateTime const date = AsDatetime(value);
    switch (target) {
    case DataType::Integer:
    case DataType::Real: return Cast(DataValue((date - DateTimeSpan::Days(kDaysToBaseDate)).ToOleDate()), target);
    case DataType::String:
        return DataValue::FromString(
            date.Format(LookupDateTimeParsingFormatString(DateTimeParsingFormats::DateFormat_14)));
    case DataType::DateTime:
    case DataType::Date: return Cast(value, target);
    default: return Error(target);
    }
}

DataValue DataValueOperators::CastBoolean(DataValue const & value, DataType target) const
{
    bool const isTrue = value.GetBoolUnchecked();
    switch (target) {
    case DataType::Integer:
    case DataType::Real: return Cast(DataValue(isTrue ? 1.0 : 0.0), target);
    case DataType::String: return DataValue::FromString(TString(isTrue ? u"1" : u"0"));
    default: return Error(target);
    }
}
