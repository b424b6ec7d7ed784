// Date arithmetic and date parts of DataValueOperators.
#include "velcoredata/data/DateTimeSpan.h"
#include "velcoredata/utility/DataValueInterpolator.h"
#include "velcoredata/utility/DataValueOperators.h"

DataValue DataValueOperators::DateAdd(DataValue const & a, DataValue const & b) const
{
    if (IsTemporal(b.GetDataType()) && IsNumeric(a.GetDataType()))
        return DateAdd(b, a);
    if (m_sqlNullSemantics && (a.IsSpecial() || b.IsSpecial()))
        return DataValue(a.IsSpecial() ? a.GetSpecial() : b.GetSpecial(), a.GetDataType());
    if (!IsTemporal(a.GetDataType()) || !IsNumeric(b.GetDataType()))
        ThrowTypeException(a.GetDataType(), b.GetDataType());

    bool const wholeDays = b.GetDataType() == DataType::Integer;
    DateTimeSpan const span = wholeDays ? DateTimeSpan::Days(static_cast<int>(AsInt(b))) : DateTimeSpan(AsReal(b));
    DataValue result;
    if (a.GetDataType() == DataType::Date && wholeDays)
        result.SetDate(AsDate(a) + span);
    else
        result.SetDatetime(AsDatetime(a) + span);
    return result;
}

DataValue DataValueOperators::DateSubtract(DataValue const & a, DataValue const & b) const
{
    DataType const aType = a.GetDataType();
    DataType const bType = b.GetDataType();
    if (!IsTemporal(aType) || !IsTemporal(bType))
        return DateAdd(a, Negate(b));
    if (aType != bType) {
        DataType const type = Promote(aType, bType);
        DataValue const right = Cast(b, type);
        return DateSubtract(Cast(a, type), right);
    }
    bool const dates = aType == DataType::Date;
    if (m_sqlNullSemantics && (a.IsSpecial() || b.IsSpecial()))
        return DataValue(a.IsSpecial() ? a.GetSpecial() : b.GetSpecial(), dates ? DataType::Integer : DataType::Real);
    if (dates)
        return DataValue((AsDate(a) - AsDate(b)).GetTotalDays());
    return DataValue(AsDatetime(a).ToOleDate() - AsDatetime(b).ToOleDate());
}

DataValue DataValueOperators::DateAsYear(DataValue const & value) const
{
    return DataValue(static_cast<int>(AsDate(value).GetYear()));
}

DataValue DataValueOperators::DateAsQuarter(DataValue const & value) const
{
    return DataValue(static_cast<int>(AsDate(value).GetQuarter()));
}

DataValue DataValueOperators::DateAsMonth(DataValue const & value) const
{
    return DataValue(static_cast<int>(AsDate(value).GetMonth()));
}

DataValue DataValueOperators::DateAsWeek(DataValue const & value) const
{
    return DataValue(static_cast<int>(AsDate(value).GetWeek()));
}

DataValue DataValueOperators::DateAsDay(DataValue const & value) const
{
    return DataValue(static_cast<int>(AsDate(value).GetDay()));
}

DataValue DataValueOperators::DateAsDayOfYear(DataValue const & value) const
{
    return DataValue(static_cast<int>(AsDate(value).GetDayOfYear()));
}

DataValue DataValueOperators::DateAsDayOfWeek(DataValue const & value) const
{
    return DataValue(static_cast<int>(AsDate(value).GetDayOfWeek()));
}

DataValue DataValueOperators::DateAsISOYear(DataValue const & value) const
{
    return DataValue(static_cast<int>(AsDate(value).GetISO8601Year()));
}

DataValue DataValueOperators::DateAsISOQuarter(DataValue const & value) const
{
    return DataValue(static_cast<int>(AsDate(value).GetISO8601Quarter()));
}

DataValue DataValueOperators::DateAsISOWeek(DataValue const & value) const
{
    return DataValue(static_cast<int>(AsDate(value).GetISO8601Week()));
}

DataValue DataValueOperators::DateAsISODayOfWeek(DataValue const & value) const
{
    return DataValue(static_cast<int>(AsDate(value).GetISO8601DayOfWeek()));
}

DataValue DataValueOperators::DateAsMonthYear(DataValue const & value) const
{
    DateTime const date = AsDate(value);
    return DataValue(static_cast<int>(date.GetMonth() * 10000 + date.GetYear()));
}

DataValue DataValueOperators::DateAsMonthDayYear(DataValue const & value) const
{
    DateTime const date = AsDate(value);
    return DataValue(static_cast<int>((date.GetMonth() * 100 + date.GetDay()) * 10000 + date.GetYear()));
}

DataValue DataValueOperators::DateTimeAsHour(DataValue const & value) const
{
    return DataValue(static_cast<int>(AsDatetime(value).GetHour()));
}

DataValue DataValueOperators::DateTimeAsMinute(DataValue const & value) const
{
    return DataValue(static_cast<int>(AsDatetime(value).GetMinute()));
}

DataValue DataValueOperators::DateTimeAsSecond(DataValue const & value) const
{
    return DataValue(static_cast<int>(AsDatetime(value).GetSecond()));
}

DataValue DataValueOperators::Interpolate(double fraction, DataValue const & start, DataValue const & end,
                                          bool noCast) const
{
    DataValueInterpolator interpolator(start, end);
    interpolator.SetCast(!noCast);
    return interpolator(fraction);
}

double DataValueOperators::InverseInterpolate(DataValue const & value, DataValue const & start,
                                              DataValue const & end) const
{
    return DataValueInterpolator(start, end).Inverse(value);
}
