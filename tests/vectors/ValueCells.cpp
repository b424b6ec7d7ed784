#include "tests/vectors/ValueCells.h"

#include "velcoredata/data/Collation.h"
#include "velcoredata/data/Tuple.h"
#include "velcoredata/data/XMLEnumException.h"
#include "velsys/LogicException.h"
#include "velsys/VeltriaException.h"

#include <array>
#include <bit>
#include <charconv>
#include <cmath>
#include <cstdio>
#include <utility>
#include <vector>

namespace velcoredata::vectors {
namespace {

constexpr std::array<char const *, 12> kTypes = {"Integer", "Real",    "String",  "DateTime", "Boolean", "Date",
                                                 "Tuple",   "Spatial", "Unknown", "Binary",   "Time",    "Table"};
constexpr std::array<char const *, 10> kSpecials = {"Normal",   "Null",   "All",   "Wildcard",   "Skipped",
                                                    "NoAccess", "Ragged", "Error", "ManyValues", "Missing"};

template <class Names>
int IndexOf(Names const & names, std::string_view name)
{
    for (std::size_t i = 0; i < names.size(); ++i)
        if (name == names[i])
            return static_cast<int>(i);
    throw std::runtime_error("no such name: " + std::string(name));
}

std::vector<std::string_view> Split(std::string_view text, char separator)
{
    std::vector<std::string_view> parts;
    for (;;) {
        std::size_t const end = text.find(separator);
        parts.push_back(text.substr(0, end));
        if (end == std::string_view::npos)
            return parts;
        text.remove_prefix(end + 1);
    }
}

DataValue DecodeRealValue(std::string_view text)
{
    if (text.starts_with('#')) {
        std::uint64_t bits = 0;
        auto const end = std::from_chars(text.data() + 1, text.data() + text.size(), bits, 16).ptr;
        if (end != text.data() + text.size())
            throw std::runtime_error("bad bits: " + std::string(text));
        return DataValue(std::bit_cast<double>(bits));
    }
    auto const parts = Split(text, '/');
    double const real = DecodeReal(parts[0]);
    if (parts.size() == 1)
        return DataValue(real);
    return DataValue(real, static_cast<signed char>(DecodeInt(parts.at(1))),
                     static_cast<signed char>(DecodeInt(parts.at(2))));
}

std::string EncodeRealValue(DataValue const & value)
{
    double const real = value.GetReal();
    std::string text = "R:";
    if (std::isnan(real) && std::bit_cast<std::uint64_t>(real) != 0x7ff8000000000000u) {
        char bits[32];
        std::snprintf(bits, sizeof bits, "#%016llx",
                      static_cast<unsigned long long>(std::bit_cast<std::uint64_t>(real)));
        text += bits;
    } else
        text += EncodeReal(real);
    if (value.GetPrecision() != -1 || value.GetScale() != -1)
        text += '/' + std::to_string(value.GetPrecision()) + '/' + std::to_string(value.GetScale());
    return text;
}

RefCntPtr<BinaryDataValue, RefCntObject> DecodeBinary(std::string_view text, BinaryObjects & objects)
{
    std::size_t const colon = text.find(':');
    std::string const id(text.substr(0, colon));
    auto & object = objects[id];
    if (!object) {
        std::vector<char> bytes;
        for (std::size_t i = colon + 1; i + 1 < text.size(); i += 2)
            bytes.push_back(static_cast<char>(std::stoi(std::string(text.substr(i, 2)), nullptr, 16)));
        object = new BinaryDataValue(std::move(bytes));
    }
    return object;
}

// Commas, brackets and backslashes of texts are escaped inside values, so that a comma ends a member.
DataValue DecodeTuple(std::string_view cell, BinaryObjects & objects)
{
    std::vector<DataValue> members;
    std::size_t depth = 0;
    std::size_t start = 1;
    for (std::size_t i = 0; i < cell.size(); ++i) {
        bool const closes = cell[i] == ')' && depth == 1;
        if ((cell[i] == ',' && depth == 1) || (closes && i > 1)) {
            members.push_back(DecodeValue(cell.substr(start, i - start), objects));
            start = i + 1;
        }
        if (cell[i] == '(')
            ++depth;
        if (cell[i] == ')')
            --depth;
    }
    return DataValue(RefCntPtr<Tuple, RefCntObject>(new Tuple(std::move(members))));
}

}  // namespace

std::string EncodeBytes(std::vector<char> const & bytes)
{
    constexpr char const * digits = "0123456789abcdef";
    std::string text;
    for (char const byte : bytes) {
        text += digits[static_cast<unsigned char>(byte) >> 4];
        text += digits[static_cast<unsigned char>(byte) & 15];
    }
    return text;
}

DataType DecodeTypeName(std::string_view name)
{
    return static_cast<DataType>(IndexOf(kTypes, name));
}

std::string EncodeTypeName(DataType type)
{
    return kTypes.at(static_cast<std::size_t>(type));
}

DataValue DecodeValue(std::string_view cell)
{
    BinaryObjects objects;
    return DecodeValue(cell, objects);
}

DataValue DecodeValue(std::string_view cell, BinaryObjects & objects)
{
    if (cell.starts_with('('))
        return DecodeTuple(cell, objects);
    std::size_t const colon = cell.find(':');
    if (colon == std::string_view::npos)
        throw std::runtime_error("not a value: " + std::string(cell));
    std::string_view const kind = cell.substr(0, colon);
    std::string_view const rest = cell.substr(colon + 1);
    if (kind == "I")
        return DataValue(DecodeInt(rest));
    if (kind == "R")
        return DecodeRealValue(rest);
    if (kind == "B")
        return DataValue(DecodeBool(rest));
    if (kind == "D")
        return DataValue(DateTime::FromValue(DecodeUInt(rest)), DataType::Date);
    if (kind == "DT")
        return DataValue(DateTime::FromValue(DecodeUInt(rest)), DataType::DateTime);
    if (kind == "T") {
        unsigned long long const micros = DecodeUInt(rest);
        return DataValue(micros == Time::MicrosecondsPerDay ? Time(23, 59, 59, 1000000u) : Time(micros),
                         DataType::Time);
    }
    if (kind == "X") {
        auto const parts = Split(rest, ':');
        return DataValue(static_cast<DataValueTypes::Special>(IndexOf(kSpecials, parts.at(0))),
                         DecodeTypeName(parts.at(1)));
    }
    if (kind == "S") {
        std::size_t const name = rest.find(':');
        return DataValue(Collation(TString::fromView(DecodeText(rest.substr(0, name))), 0),
                         TString::fromView(DecodeText(rest.substr(name + 1))));
    }
    if (kind == "BIN")
        return DataValue(DecodeBinary(rest, objects));
    throw std::runtime_error("not a value: " + std::string(cell));
}

std::string EncodeValue(DataValue const & value)
{
    auto const type = static_cast<std::size_t>(value.GetDataType());
    if (value.IsSpecial() || value.GetDataType() == DataType::Unknown)
        return std::string("X:") + kSpecials.at(value.GetSpecial()) + ':' + kTypes.at(type);
    switch (value.GetDataType()) {
    case DataType::Integer: return "I:" + std::to_string(value.GetInt());
    case DataType::Real: return EncodeRealValue(value);
    case DataType::Boolean: return value.GetBool() ? "B:1" : "B:0";
    case DataType::Date: return "D:" + std::to_string(static_cast<unsigned long long>(value.GetAny()));
    case DataType::DateTime: return "DT:" + std::to_string(static_cast<unsigned long long>(value.GetAny()));
    case DataType::Time: return "T:" + std::to_string(value.GetTime().GetRepresentation());
    default: return std::string("?:") + kTypes.at(type);
    }
}

bool MeetsValueCell(std::string_view cell, DataValue const & value)
{
    if (cell == "R:nan")
        return value.GetDataType() == DataType::Real && !value.IsSpecial() && std::isnan(value.GetReal());
    return EncodeValue(DecodeValue(cell)) == EncodeValue(value);
}

void ExpectOutcome(Row & row, std::string_view column, std::function<std::string()> const & call)
{
    std::string const & expected = row.Cell(column);
    try {
        row.Expect(column, expected, call());
    } catch (Implementation::XMLEnumEncodingException const &) {
        row.Expect(column, expected, "!XMLEnumEncodingException");
    } catch (LogicException const & e) {
        std::string const text = "!assert:" + e.GetConcatenatedMessages().toQString().toStdString();
        std::string const name = "!" + e.GetErrorInfo().GetError().GetName().toQString().toStdString();
        row.Expect(column, expected, expected.starts_with("!assert:") ? text : name);
    } catch (VeltriaException const & e) {
        std::string actual = "!" + e.GetErrorInfo().GetError().GetName().toQString().toStdString();
        if (expected.find('|') != std::string::npos)
            actual += '|' + e.GetConcatenatedMessages().toQString().toStdString();
        row.Expect(column, expected, actual);
    }
}

void ExpectValue(Row & row, std::string_view column, std::function<DataValue()> const & call)
{
    std::string const & expected = row.Cell(column);
    ExpectOutcome(row, column, [&] {
        DataValue const value = call();
        bool const met = !expected.starts_with('!') && MeetsValueCell(expected, value);
        return met ? expected : EncodeValue(value);
    });
}

}  // namespace velcoredata::vectors
