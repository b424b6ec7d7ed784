// Readable values in failing tests. Unlike the stream output of values, which raises for every marker but Null, these
// print every value. Every test file of a program that compares values includes this, so that all of it prints alike.
//
//   Integer 5    %null% Integer    Real 1.5 (5, 2)    String "a" [LEN_RUS]    Date 2021-03-04 00:00:00.0000 (...)
//   Tuple (Integer 1, Boolean true)    Binary 03 00 61    Spatial #12    moved-from or empty payloads: "String empty"
#pragma once

#include <cstdio>
#include <ostream>

#include "tests/support/DatePrinter.h"
#include "velcoredata/data/AliasedDataValue.h"
#include "velcoredata/data/BinaryDataValue.h"
#include "velcoredata/data/Bucket.h"
#include "velcoredata/data/Collation.h"
#include "velcoredata/data/DataValue.h"
#include "velcoredata/data/PrintableString.h"
#include "velcoredata/data/Tuple.h"
#include "velgeo/Spatial.h"

namespace test_support {

class ValuePrinter
{
public:
    explicit ValuePrinter(std::ostream & out) : m_out(out) {}

    void Print(DataValue const & value, int depth = 0)
    {
        if (value.IsSpecial())
            m_out << SpecialName(value.GetSpecial()) << ' ';
        m_out << TypeName(value.GetDataType());
        if (!value.IsSpecial())
            PrintPayload(value, depth);
    }

    // Members of members are shown eight levels deep.
    void Print(Tuple const & tuple, int depth = 0)
    {
        m_out << '(';
        char const * separator = "";
        for (DataValue const & member : tuple.GetValues()) {
            m_out << separator;
            separator = ", ";
            if (depth < 8)
                Print(member, depth + 1);
            else
                m_out << "...";
        }
        m_out << ')';
    }

private:
    static char const * TypeName(DataType type)
    {
        static constexpr char const * names[] = {"Integer", "Real",    "String",  "DateTime", "Boolean", "Date",
                                                 "Tuple",   "Spatial", "Unknown", "Binary",   "Time",    "Table"};
        auto const number = static_cast<std::size_t>(type);
        return number < std::size(names) ? names[number] : "type out of range";
    }
    static char const * SpecialName(DataValueTypes::Special special)
    {
        static constexpr char const * names[] = {
            "",         "%null%",  "%all%",         "%wildcard%", "%skipped%", "%no-access%",
            "%ragged%", "%error%", "%many-values%", "%missing%"};
        auto const number = static_cast<std::size_t>(special);
        return number < std::size(names) ? names[number] : "marker out of range";
    }

    void PrintPayload(DataValue const & value, int depth)
    {
        m_out << ' ';
        switch (value.GetDataType()) {
        case DataType::Integer: m_out << value.GetInt(); break;
        case DataType::Real: PrintReal(value); break;
        case DataType::Boolean: m_out << (value.GetBool() ? "true" : "false"); break;
        case DataType::Date: PrintDate(value.GetDate(), m_out); break;
        case DataType::DateTime: PrintDate(value.GetDatetime(), m_out); break;
        case DataType::Time: m_out << value.GetAny() << " us"; break;
        case DataType::String: PrintString(value); break;
        case DataType::Tuple:
            if (auto const tuple = value.GetTuple())
                Print(*tuple, depth + 1);
            else
                m_out << "empty";
            break;
        case DataType::Binary: PrintBytes(value); break;
        case DataType::Spatial:
            if (auto const spatial = value.GetSpatial())
                m_out << '#' << spatial->GetHash();
            else
                m_out << "empty";
            break;
        default: m_out << value.GetAny();
        }
    }
    void PrintReal(DataValue const & value)
    {
        char text[40];
        std::snprintf(text, sizeof text, "%.17g", value.GetReal());
        m_out << text;
        if (value.HasPrecision() || value.HasScale())
            m_out << " (" << static_cast<int>(value.GetPrecision()) << ", " << static_cast<int>(value.GetScale())
                  << ')';
    }
    void PrintString(DataValue const & value)
    {
        if (value.GetAny() == 0) {
            m_out << "empty";
            return;
        }
        m_out << toPrintableString(value.GetString()) << " [" << value.GetCollation().GetName().toStdString() << ']';
    }
    void PrintBytes(DataValue const & value)
    {
        auto const binary = value.GetBinary();
        if (!binary) {
            m_out << "empty";
            return;
        }
        char const * separator = "";
        for (char const byte : binary->GetValue()) {
            char text[4];
            std::snprintf(text, sizeof text, "%02x", static_cast<unsigned>(static_cast<unsigned char>(byte)));
            m_out << separator << text;
            separator = " ";
        }
    }

    std::ostream & m_out;
};

}  // namespace test_support

inline void PrintTo(DataValue const & value, std::ostream * out)
{
    test_support::ValuePrinter(*out).Print(value);
}
inline void PrintTo(Tuple const & tuple, std::ostream * out)
{
    test_support::ValuePrinter(*out).Print(tuple);
}
inline void PrintTo(Bucket const & bucket, std::ostream * out)
{
    PrintTo(bucket.GetValue(), out);
}
inline void PrintTo(MultiBucket const & buckets, std::ostream * out)
{
    *out << '[';
    char const * separator = "";
    for (Bucket const & bucket : buckets.GetBuckets()) {
        *out << separator;
        separator = ", ";
        PrintTo(bucket, out);
    }
    *out << ']';
}
inline void PrintTo(AliasedDataValue const & value, std::ostream * out)
{
    PrintTo(value.GetValue(), out);
    if (value.HasAlias())
        *out << " as " << toPrintableString(value.GetAlias());
}
