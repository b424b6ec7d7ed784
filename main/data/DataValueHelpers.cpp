#include "velcoredata/data/DataValueHelpers.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

#include "velcoredata/core/LocalStrings.h"
#include "velcoredata/core/StringUtils.h"
#include "velcoredata/data/DateTimeSpan.h"
#include "velsys/Arithmetic.h"
#include "velsys/ThrowSite.h"

namespace {

using CoreData::StringId;

TString NoValues()
{
    return CoreData::LookupTStrExported(StringId::IDS_VALUE_LIST_NO_VALUES);
}

// How many values a limit takes.
std::ptrdiff_t Taken(std::size_t count, int limit)
{
    return std::clamp<std::ptrdiff_t>(limit, 0, static_cast<std::ptrdiff_t>(count));
}

DataValue WholeDay(DateTime const & value, RoundingMode roundingMode)
{
    DateTime day(value.GetYear(), value.GetMonth(), value.GetDay(), 0, 0, 0, 0.0);
    if (roundingMode == RoundingMode::Up && value.HasTime())
        day = day + DateTimeSpan::Days(1);
    return DataValue::FromDate(day);
}

}  // namespace

DataValue ConvertToType(DataValue const & value, DataType const & targetType, RoundingMode roundingMode)
{
    if (value.GetDataType() == targetType)
        return value;
    switch (value.GetDataType()) {
    case DataType::Integer:
        VELTRIA_ASSERT(targetType == DataType::Real, 0x007398D2);
        return DataValue::FromDouble(static_cast<double>(value.GetIntUnchecked()));
    case DataType::Real: {
        VELTRIA_ASSERT(targetType == DataType::Integer, 0xF95ACAF3);
        VELTRIA_ASSERT(roundingMode != RoundingMode::Unnecessary, 0xD8D349BD);
        double const real = value.GetRealUnchecked();
        return DataValue(detail::RealToInt32(roundingMode == RoundingMode::Up ? std::ceil(real) : std::floor(real)));
    }
    case DataType::DateTime:
        VELTRIA_ASSERT(targetType == DataType::Date, 0x342B3714);
        VELTRIA_ASSERT(roundingMode != RoundingMode::Unnecessary, 0xE5004855);
        return WholeDay(value.GetDatetimeUnchecked(), roundingMode);
    case DataType::Date:
        VELTRIA_ASSERT(targetType == DataType::DateTime, 0xB6ECE404);
        return DataValue::FromDateTime(value.GetDateUnchecked());
    default: VELTRIA_FAIL("DataValueHelper ConvertToType reached unsupported conversion case.", 0x54AEFE46);
    }
}

TString BuildValueList(std::vector<TString> const & values, int limit, bool firstOnly)
{
    if (values.empty())
        return NoValues();
    if (values.size() == 1 || firstOnly)
        return values.front();
    if (values.size() == 2)
        return CoreData::LookupTFormatStrExported(StringId::IDP_VALUE_LIST_FEW_VALUES)
            .arg(values.front(), values.back());
    TString const separator = CoreData::LookupTStrExported(StringId::IDS_VALUE_LIST_SEPARATOR);
    auto const taken = Taken(values.size(), limit);
    TString const joined = JoinString(values.begin(), values.begin() + taken, separator);
    auto const left = static_cast<long long>(values.size()) - taken;
    if (left == 0)
        return joined;
    return CoreData::LookupTFormatStrExported(StringId::IDP_VALUE_LIST_MANY_VALUES).arg(joined, TString::number(left));
}

DataValue BuildFromValueList(std::vector<DataValue> const & values, int limit, bool firstOnly)
{
    if (values.empty())
        return DataValue::FromString(NoValues());
    if (values.front().GetDataType() != DataType::String || values.size() == 1 || firstOnly)
        return values.front();
    auto const taken = static_cast<std::size_t>(Taken(values.size(), limit));
    std::vector<TString> texts;
    texts.reserve(taken);
    for (std::size_t i = 0; i < taken; ++i)
        texts.push_back(values[i].GetString());
    return DataValue::FromString(BuildValueList(texts, limit, false));
}
