// The input as a text, cast to every type, and read as a number.
#include <optional>
#include <string_view>

#include "fuzz/support/FuzzText.h"
#include "velcoredata/data/Collation.h"
#include "velcoredata/data/DataValue.h"
#include "velcoredata/utility/DataValueOperatorException.h"
#include "velcoredata/utility/DataValueOperators.h"

namespace {

using fuzz_support::Require;

// Nothing for the error of a text that is no number.
template <class Read>
auto Number(Read read) -> std::optional<decltype(read())>
{
    try {
        return read();
    } catch (DataValueOperatorException const &) {
        return std::nullopt;
    }
}

bool IsError(DataValue const & value)
{
    return value.IsSpecial(DataValueTypes::Error);
}

void CheckNumbers(DataValueOperators const & operators, DataValue const & text)
{
    auto const integer = Number([&] { return operators.StringToInt(text.GetString()); });
    auto const real = Number([&] { return operators.StringToReal(text.GetString()); });
    bool ok = false;
    double const plain = text.GetString().toDouble(&ok);
    Require(real.has_value() == ok, "text is a real where TString says so");
    Require(!ok || DataValue(*real) == DataValue(plain), "and the same one to the bit");
    DataValue const asInteger = operators.ExplicitCast(text, DataType::Integer);
    DataValue const asReal = operators.ExplicitCast(text, DataType::Real);
    Require(integer ? asInteger == DataValue(*integer) : IsError(asInteger), "the cast to Integer is StringToInt");
    Require(real ? asReal == DataValue(*real) : IsError(asReal), "the cast to Real is StringToReal");
    long long const plainInteger = text.GetString().toLongLong(&ok);
    Require(!ok || (integer && *integer == plainInteger), "an integer of TString is one");
    auto const [precision, scale] =
        DataValueOperators::GetImplicitPrecisionAndScaleFromDecimalFormattedAsString(text.GetString());
    Require(precision < 17 && scale <= precision && (precision == -1) == (scale == -1), "precision and scale agree");
}

void CheckDates(DataValueOperators const & operators, DataValue const & text)
{
    DataValue const moment = operators.ExplicitCast(text, DataType::DateTime);
    Require(moment.GetDataType() == DataType::DateTime, "a date-time");
    // A day before the year 400 is a moment, and no date.
    if (moment.GetSpecial() != DataValueTypes::Normal || moment.GetDatetime() < DateTime(400, 1, 1, 0, 0, 0, 0.0))
        return;
    DataValue const date = operators.ExplicitCast(moment, DataType::Date);
    Require(date.GetDataType() == DataType::Date && !date.GetDate().HasTime(), "a date has no time of day");
    operators.ExplicitCast(moment, DataType::String);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const * data, std::size_t size)
{
    DataValue const text(GetBinaryCollation(), fuzz_support::Text(data, size));
    DataValueOperators const operators;
    CheckNumbers(operators, text);
    CheckDates(operators, text);
    Require(operators.ExplicitCast(text, DataType::Spatial).GetDataType() == DataType::Spatial, "a spatial value");
    Require(operators.ExplicitCast(text, DataType::String) == text, "text stays");
    for (DataType const target :
         {DataType::Boolean, DataType::Unknown, DataType::Binary, DataType::Time, DataType::Table})
        Require(IsError(operators.ExplicitCast(text, target)), "nothing else is made of text");
    return 0;
}
