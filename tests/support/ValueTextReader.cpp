#include "tests/support/ValueTextReader.h"

#include <charconv>
#include <cmath>
#include <limits>
#include <memory>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>
#include <vector>

#include "velcoredata/data/Collation.h"
#include "velcoredata/data/Tuple.h"
#include "velgeo/WktSerialization.h"
#include "velsys/VeltriaException.h"

namespace test_support {

namespace {

using View = std::u16string_view;
using Value = std::optional<DataValue>;
using Attributes = std::unordered_map<TString, TString>;

constexpr int kDeepest = 2000;

constexpr View kTypes[] = {u"integer", u"real",    u"string",  u"datetime", u"boolean", u"date",
                           u"tuple",   u"spatial", u"unknown", u"binary",   u"time",    u"table"};
constexpr View kMarkers[] = {u"%null%",   u"%all%",   u"%wildcard%",    u"%skipped%", u"%no-access%",
                             u"%ragged%", u"%error%", u"%many-values%", u"%missing%"};

std::optional<DataType> TypeNamed(View name)
{
    for (std::size_t i = 0; i < std::size(kTypes); ++i)
        if (kTypes[i] == name)
            return static_cast<DataType>(i);
    return std::nullopt;
}

// Decimal digits, at least `least` and at most `most`, from the front of the text.
std::optional<int> TakeNumber(View & text, std::size_t least, std::size_t most)
{
    std::size_t count = 0;
    int number = 0;
    while (count < text.size() && count < most && text[count] >= u'0' && text[count] <= u'9')
        number = number * 10 + (text[count++] - u'0');
    if (count < least)
        return std::nullopt;
    text.remove_prefix(count);
    return number;
}

bool Take(View & text, View what)
{
    if (!text.starts_with(what))
        return false;
    text.remove_prefix(what.size());
    return true;
}

// The whole text as a number of std::from_chars.
template <class Number>
std::optional<Number> WholeNumber(View text)
{
    std::string narrow;
    for (char16_t const c : text) {
        if (c > 127)
            return std::nullopt;
        narrow += static_cast<char>(c);
    }
    Number number{};
    auto const [end, error] = std::from_chars(narrow.data(), narrow.data() + narrow.size(), number);
    if (end != narrow.data() + narrow.size())
        return std::nullopt;
    if (error == std::errc())
        return number;
    // Rounded to few digits, the largest reals are beyond all reals.
    if (error == std::errc::result_out_of_range && text.find(u"e-") == text.npos && std::is_floating_point_v<Number>)
        return narrow[0] == '-' ? -std::numeric_limits<Number>::infinity() : std::numeric_limits<Number>::infinity();
    return std::nullopt;
}

class Reader
{
public:
    explicit Reader(Attributes const & attributes) : m_attributes(attributes) {}

    Value ReadWhole(View text) const
    {
        if (TString const * const types = Find(u"tuple-datatypes"))
            return ReadTypedTuple(text, types->View());
        std::optional<DataType> type;
        if (TString const * const name = Find(u"datatype")) {
            type = TypeNamed(name->View());
            if (!type)
                return std::nullopt;
        }
        return Read(text, type, 0);
    }

private:
    TString const * Find(char16_t const * key) const
    {
        auto const place = m_attributes.find(TString(key));
        return place == m_attributes.end() ? nullptr : &place->second;
    }

    signed char Number(char16_t const * key) const
    {
        TString const * const text = Find(key);
        return static_cast<signed char>(text == nullptr ? -1 : text->toInt());
    }

    Value Read(View text, std::optional<DataType> type, int depth) const
    {
        if (text.starts_with(u'%')) {
            for (std::size_t i = 0; i < std::size(kMarkers); ++i)
                if (kMarkers[i] == text && type != DataType::Tuple)
                    return DataValue(static_cast<DataValueTypes::Special>(i + 1), type.value_or(DataType::Unknown));
            return std::nullopt;
        }
        switch (type ? *type : TypeByForm(text)) {
        case DataType::Integer: return ReadInteger(text);
        case DataType::Real: return ReadReal(text, type.has_value());
        case DataType::String: return ReadString(text, type.has_value());
        case DataType::DateTime: return ReadDateTime(text);
        case DataType::Boolean: return ReadBoolean(text);
        case DataType::Date: return ReadDate(text);
        case DataType::Tuple: return ReadTuple(text, nullptr, std::nullopt, depth);
        case DataType::Spatial: return ReadSpatial(text);
        case DataType::Time: return ReadTime(text);
        case DataType::Binary:
        case DataType::Unknown:
            if (text.empty())
                return DataValue(DataValueTypes::Normal, type.value_or(DataType::Unknown));
            return std::nullopt;
        default: return std::nullopt;
        }
    }

    static DataType TypeByForm(View text)
    {
        if (text.empty())
            return DataType::Unknown;
        switch (text[0]) {
        case u'"': return DataType::String;
        case u'#': return text.find(u':') == text.npos ? DataType::Date : DataType::DateTime;
        case u'(': return DataType::Tuple;
        case u't':
        case u'f': return DataType::Boolean;
        default: break;
        }
        if (text[0] >= u'A' && text[0] <= u'Z')
            return DataType::Spatial;
        if (text.find(u':') != text.npos)
            return DataType::Time;
        // A point, an exponent, or one of the words; or an infinity of the decimal style.
        return text.find_first_of(u".en") != text.npos || IsDecimalInfinity(text) ? DataType::Real : DataType::Integer;
    }

    // 10^37 in full; the number itself is written with an exponent.
    static bool IsDecimalInfinity(View text)
    {
        Take(text, u"-");
        return text.size() == 38 && text[0] == u'1' && text.find_first_not_of(u'0', 1) == text.npos;
    }

    static Value ReadInteger(View text)
    {
        if (auto const number = WholeNumber<long long>(text))
            return DataValue(*number);
        // In a nested tuple: the hash of a spatial object.
        return ReadHash(text);
    }

    static Value ReadHash(View text)
    {
        if (auto const number = WholeNumber<unsigned long long>(text))
            return DataValue(*number);
        return std::nullopt;
    }

    static Value ReadSpatial(View text)
    {
        if (auto hash = ReadHash(text))
            return hash;
        if (text.empty())
            return DataValue(DataValueTypes::Normal, DataType::Spatial);
        std::shared_ptr<velgeo::Spatial const> spatial =
            velgeo::WktSerialization::TryRead(TString::fromView(text).toStdString(), 3);
        return spatial == nullptr ? Value() : Value(DataValue(std::move(spatial)));
    }

    Value ReadReal(View text, bool typed) const
    {
        if (text.find_first_not_of(u"0123456789.e+-") != text.npos && text != u"inf" && text != u"-inf" &&
            text != u"nan" && text != u"-nan")
            return std::nullopt;
        auto number = WholeNumber<double>(text);
        if (number && IsDecimalInfinity(text))
            number = std::copysign(std::numeric_limits<double>::infinity(), *number);
        if (!number)
            return std::nullopt;
        return typed ? DataValue(*number, Number(u"precision"), Number(u"scale")) : DataValue(*number);
    }

    static Value ReadBoolean(View text)
    {
        if (text == u"true" || text == u"false")
            return DataValue(text == u"true");
        return std::nullopt;
    }

    Value ReadString(View text, bool typed) const
    {
        if (text.size() < 2 || text.front() != u'"' || text.back() != u'"')
            return std::nullopt;
        text = text.substr(1, text.size() - 2);
        std::u16string unescaped;
        while (!text.empty()) {
            char16_t const c = text[0];
            text.remove_prefix(1);
            if (c == u'"')
                return std::nullopt;
            if (c != u'\\')
                unescaped += c;
            else if (!TakeEscaped(text, unescaped))
                return std::nullopt;
        }
        TString const content = TString::fromStdU16String(unescaped);
        TString const * const name = Find(u"collation");
        if (!typed || name == nullptr)
            return DataValue::FromString(content);
        TString const * const charset = Find(u"charset");
        return DataValue(Collation(*name, static_cast<unsigned short>(charset == nullptr ? 0 : charset->toInt())),
                         content);
    }

    // What stands behind a backslash.
    static bool TakeEscaped(View & text, std::u16string & out)
    {
        if (text.empty())
            return false;
        char16_t const c = text[0];
        text.remove_prefix(1);
        if (c == u'"' || c == u'#' || c == u'%' || c == u'\\') {
            out += c;
            return true;
        }
        std::size_t const end = text.find(u';');
        if (c != u'x' || end == text.npos || end == 0 || end > 4)
            return false;
        unsigned code = 0;
        for (char16_t const digit : text.substr(0, end)) {
            if (digit >= u'0' && digit <= u'9')
                code = code * 16 + (digit - u'0');
            else if (digit >= u'A' && digit <= u'F')
                code = code * 16 + 10 + (digit - u'A');
            else
                return false;
        }
        out += static_cast<char16_t>(code);
        text.remove_prefix(end + 1);
        return true;
    }

    static bool Undelimit(View & text)
    {
        if (text.size() < 2 || text.front() != u'#' || text.back() != u'#')
            return false;
        text = text.substr(1, text.size() - 2);
        return true;
    }

    struct Day
    {
        int year = 1899, month = 12, day = 30;
    };

    static std::optional<Day> TakeDay(View & text)
    {
        auto const year = TakeNumber(text, 1, 7);
        if (!year || !Take(text, u"-"))
            return std::nullopt;
        auto const month = TakeNumber(text, 2, 2);
        if (!month || !Take(text, u"-"))
            return std::nullopt;
        auto const day = TakeNumber(text, 2, 2);
        if (!day)
            return std::nullopt;
        return Day{*year, *month, *day};
    }

    static Value ReadDate(View text)
    {
        if (!Undelimit(text))
            return std::nullopt;
        auto const day = TakeDay(text);
        if (!day || !text.empty())
            return std::nullopt;
        return Checked(
            [&] { return DataValue(DateTime(day->year, day->month, day->day, 0, 0, 0, 0.0), DataType::Date); });
    }

    static Value ReadDateTime(View text)
    {
        if (!Undelimit(text))
            return std::nullopt;
        Day day;
        if (text.find(u' ') != text.npos) {
            auto const taken = TakeDay(text);
            if (!taken || !Take(text, u" "))
                return std::nullopt;
            day = *taken;
        }
        auto const hour = TakeNumber(text, 2, 2);
        if (!hour || !Take(text, u":"))
            return std::nullopt;
        auto const minute = TakeNumber(text, 2, 2);
        if (!minute || !Take(text, u":"))
            return std::nullopt;
        auto const second = TakeNumber(text, 2, 2);
        std::optional<int> milliseconds = 0;
        if (second && Take(text, u"."))
            milliseconds = TakeNumber(text, 3, 3);
        if (!second || !milliseconds || !text.empty() || *hour > 23 || *minute > 59 || *second > 59)
            return std::nullopt;
        return Checked([&] {
            return DataValue(DateTime(day.year, day.month, day.day, *hour, *minute, *second, *milliseconds / 1000.0),
                             DataType::DateTime);
        });
    }

    static Value ReadTime(View text)
    {
        if (text == u"24:0:0.0")
            return DataValue(Time(23, 59, 59, 1000000u), DataType::Time);
        unsigned parts[4];
        for (std::size_t i = 0; i < 4; ++i) {
            static constexpr View ends[] = {u":", u":", u".", u""};
            auto const part = TakeNumber(text, 1, i < 3 ? 2 : 6);
            if (!part || !Take(text, ends[i]))
                return std::nullopt;
            parts[i] = static_cast<unsigned>(*part);
        }
        if (!text.empty())
            return std::nullopt;
        return Checked([&] { return DataValue(Time(parts[0], parts[1], parts[2], parts[3]), DataType::Time); });
    }

    // A date or time that does not exist is no text of a writer.
    template <class Make>
    static Value Checked(Make make)
    {
        try {
            return make();
        } catch (VeltriaException const &) {
            return std::nullopt;
        }
    }

    Value ReadTypedTuple(View text, View types) const
    {
        auto const names = Members(types, std::nullopt);
        TString const * const size = Find(u"tuple-size");
        if (!names || size == nullptr || static_cast<std::size_t>(size->toUInt()) != names->size())
            return std::nullopt;
        return ReadTuple(text, &*names, names->size(), 0);
    }

    Value ReadTuple(View text, std::vector<std::u16string> const * names, std::optional<std::size_t> size,
                    int depth) const
    {
        auto const texts = Members(text, size);
        if (!texts || depth >= kDeepest || (size && texts->size() != *size))
            return std::nullopt;
        std::vector<DataValue> members;
        for (std::size_t i = 0; i < texts->size(); ++i) {
            std::optional<DataType> type;
            if (names != nullptr) {
                type = TypeNamed((*names)[i]);
                if (!type)
                    return std::nullopt;
            }
            Value member = Read((*texts)[i], type, depth + 1);
            if (!member)
                return std::nullopt;
            members.push_back(*std::move(member));
        }
        return DataValue(RefCntPtr<Tuple, RefCntObject>(new Tuple(std::move(members))));
    }

    // The texts of a tuple's members with one backslash taken off each of their marks.
    static std::optional<std::vector<std::u16string>> Members(View text, std::optional<std::size_t> size)
    {
        if (text.size() < 2 || text.front() != u'(' || text.back() != u')')
            return std::nullopt;
        text = text.substr(1, text.size() - 2);
        std::vector<std::u16string> members;
        // One member without a text looks like none.
        if (text.empty() && size != 1u)
            return members;
        members.emplace_back();
        for (std::size_t i = 0; i < text.size(); ++i) {
            char16_t const c = text[i];
            bool const escaped = !members.back().empty() && members.back().back() == u'\\';
            if ((c == u',' || c == u')') && escaped)
                members.back().back() = c;
            else if (c == u',')
                members.emplace_back();
            else if (c == u')')
                return std::nullopt;
            else
                members.back() += c;
        }
        return members;
    }

    Attributes const & m_attributes;
};

}  // namespace

std::optional<DataValue> ReadValueText(TString const & text, Attributes const & attributes)
{
    View view = text.View();
    if (view.starts_with(u"esv-marked[") && view.ends_with(u"]"))
        view = view.substr(11, view.size() - 12);
    return Reader(attributes).ReadWhole(view);
}

}  // namespace test_support
