// DataValue: the tagged value of the system, 16 bytes.
//
//   byte   0      1         2           3       4 ............ 7   8 ........................ 15
//        +------+---------+-----------+-------+------------------+-----------------------------+
//        | type | special | precision | scale |     ordinal      |           payload           |
//        +------+---------+-----------+-------+------------------+-----------------------------+
//          DataType  Special   -1 none   -1 none   signed 32 bits     by type:
//
//        Integer         signed 64 bits                  String   shared StringWithCollation
//        Real            IEEE double                     Tuple    shared Tuple
//        Boolean         0 or 1                          Binary   shared BinaryDataValue
//        Date, DateTime  DateTime's representation       Spatial  a holder of one shared_ptr of its own
//        Time            Time's representation
//
// A value with a marker (special other than Normal) keeps its type: a null integer is another value than a null string.
// Its payload and ordinal are zero, precision and scale -1.
//
// Copying a scalar copies 16 bytes; copying a value with a shared payload adds one atomic increment; copying a spatial
// value allocates a holder. Integers, reals, booleans, dates and times never allocate. Shared payloads are immutable.
//
// Threads: one writer or many readers, as for any value. Copies on different threads that share a payload are safe.
//
// Example:
//   DataValue v(5);                                     // Integer
//   v.SetDecimal(1.5, 5, 2);                            // Real with precision 5 and scale 2
//   v.GetInt();  // raises "Incorrect data type real, getting expected integer type."
//   DataValue(DataValueTypes::Null, DataType::Integer).GetInt();  // 0: readers test the type, never the marker
#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <iosfwd>
#include <memory>
#include <utility>

#include "velcoredata/core/Export.h"
#include "velcoredata/data/DataType.h"
#include "velcoredata/data/DateTime.h"
#include "velcoredata/data/Time.h"
#include "velcoreplatform/TString.h"
#include "velsys/Hash.h"
#include "velsys/RefCntObject.h"
#include "velsys/RefCntPtr.h"

class BinaryDataValue;
class Collation;
class DataValueInspector;
struct StringWithCollation;
class Tuple;
namespace velgeo {
class Spatial;
}

class VELCOREDATA_API DataValue
{
public:
    // A typeless null: type Unknown, special Null.
    DataValue() noexcept : m_head(HeadOf(DataType::Unknown, DataValueTypes::Null)), m_payload(0) {}
    DataValue(DataValue const & other) : m_head(other.m_head), m_payload(other.m_payload)
    {
        if (OwnsPayload())
            TakeReference();
    }
    // The source's type becomes Unknown and nothing else of it changes: it may only be destroyed or assigned to.
    DataValue(DataValue && other) noexcept : m_head(other.m_head), m_payload(other.m_payload) { other.GiveUpPayload(); }

    DataValue(int value) noexcept : DataValue(static_cast<long long>(value)) {}
    DataValue(long value) noexcept : DataValue(static_cast<long long>(value)) {}
    DataValue(long long value) noexcept
        : m_head(HeadOf(DataType::Integer)), m_payload(static_cast<std::uint64_t>(value))
    {}
    // Unsigned numbers above the signed range wrap to negative ones.
    DataValue(unsigned value) noexcept : DataValue(static_cast<long long>(value)) {}
    DataValue(unsigned long value) noexcept : DataValue(static_cast<long long>(value)) {}
    DataValue(unsigned long long value) noexcept : DataValue(static_cast<long long>(value)) {}
    DataValue(bool value) noexcept : m_head(HeadOf(DataType::Boolean)), m_payload(value ? 1 : 0) {}
    DataValue(double value, signed char precision = -1, signed char scale = -1) noexcept
        : m_head(HeadOf(DataType::Real, DataValueTypes::Normal, precision, scale)),
          m_payload(std::bit_cast<std::uint64_t>(value))
    {}
    DataValue(StringWithCollation && text);
    // Throws "VeltriaException_AutoGen_0xE188009E" for a null pointer.
    DataValue(RefCntPtr<StringWithCollation, RefCntObject> const & text);
    DataValue(Collation const & collation, TString const & text);
    // The type is DateTime or Date; any other raises the assertion "false", "LogicException_LogicAssert_0x72FAA0AE". An
    // invalid date-time makes a null.
    DataValue(DateTime const & value, DataType type);
    // The type is not looked at.
    DataValue(Time const & value, DataType) noexcept
        : m_head(HeadOf(DataType::Time)), m_payload(value.GetRepresentation())
    {}
    // Throw as the setters of their types do for a null pointer.
    DataValue(RefCntPtr<BinaryDataValue, RefCntObject> value);
    DataValue(RefCntPtr<Tuple, RefCntObject> value);
    DataValue(std::shared_ptr<velgeo::Spatial const> value);
    // A marker, or Normal with a zero payload. Throws "VeltriaException_AutoGen_0xC3E581B1" if the type is Tuple.
    DataValue(DataValueTypes::Special special, DataType type);

    // A pointer would become a Boolean, a marker without a type an Integer.
    template <class T>
    DataValue(T *) = delete;
    DataValue(std::nullptr_t) = delete;
    DataValue(DataValueTypes::Special) = delete;
    DataValue(DataType) = delete;

    static DataValue FromInt(long long value) noexcept { return DataValue(value); }
    static DataValue FromDouble(double value) noexcept { return DataValue(value); }
    // A string with the unknown collation.
    static DataValue FromString(TString const & text);
    static DataValue FromDate(DateTime value) { return DataValue(value, DataType::Date); }
    static DataValue FromDateTime(DateTime value) { return DataValue(value, DataType::DateTime); }

    ~DataValue()
    {
        if (OwnsPayload())
            ReleasePayload();
    }
    DataValue & operator=(DataValue const & other)
    {
        if (this != &other) {
            DataValue copy(other);
            Swap(copy);
        }
        return *this;
    }
    DataValue & operator=(DataValue && other) noexcept
    {
        if (this != &other) {
            if (OwnsPayload())
                ReleasePayload();
            m_head = other.m_head;
            m_payload = other.m_payload;
            other.GiveUpPayload();
        }
        return *this;
    }

    // Setters. Each releases the old payload; one that raises leaves the value as it was.
    void SetInt(long long value) noexcept { Store(HeadOf(DataType::Integer), static_cast<std::uint64_t>(value)); }
    void SetReal(double value) noexcept { SetDecimal(value, -1, -1); }
    // Precision and scale are taken as they come.
    void SetDecimal(double value, signed char precision, signed char scale) noexcept
    {
        Store(HeadOf(DataType::Real, DataValueTypes::Normal, precision, scale), std::bit_cast<std::uint64_t>(value));
    }
    void SetBool(bool value) noexcept { Store(HeadOf(DataType::Boolean), value ? 1 : 0); }
    // Keeps the date alone. An invalid date-time makes a null Date, silently. A valid one before the year 400 cannot be
    // cut to its date: throws "VeltriaException_AutoGen_0xDD90F63D".
    void SetDate(DateTime value);
    // An invalid date-time makes a null DateTime, silently.
    void SetDatetime(DateTime value) noexcept;
    // No test of validity.
    void SetTime(Time value) noexcept { Store(HeadOf(DataType::Time), value.GetRepresentation()); }
    // The ordinal of a fresh string is -2, "none was set".
    void SetString(StringWithCollation && text);
    // Throws "VeltriaException_AutoGen_0xE188009E" for a null pointer.
    void SetString(RefCntPtr<StringWithCollation, RefCntObject> const & text);
    void SetString(Collation const & collation, TString const & text);
    // Throws "VeltriaException_AutoGen_0x92C27045" for a null pointer.
    void SetTuple(RefCntPtr<Tuple, RefCntObject> value);
    // Throws "VeltriaException_AutoGen_0x0EB526BD" for a null pointer.
    void SetBinary(RefCntPtr<BinaryDataValue, RefCntObject> value);
    // Throws "VeltriaException_AutoGen_0x90F95D59" for a null pointer.
    void SetSpatial(std::shared_ptr<velgeo::Spatial const> value);
    // Throws "VeltriaException_IncorrectDatatypeException_0xCA8336D1" unless the value is a string with a payload.
    void SetOrdinal(int ordinal);
    // Any marker, Normal too. Throws "VeltriaException_AutoGen_0x230EF8C1" if the type is Tuple.
    void MakeSpecial(DataValueTypes::Special special, DataType type);

    // Readers. The checked ones test the type alone and throw "VeltriaException_IncorrectDatatypeException_0xCA8336D0"
    // if it is another; the unchecked ones test nothing.
    DataType GetDataType() const noexcept { return static_cast<DataType>(m_head & 0xFF); }
    DataValueTypes::Special GetSpecial() const noexcept
    {
        return static_cast<DataValueTypes::Special>((m_head >> 8) & 0xFF);
    }
    bool IsSpecial() const noexcept { return GetSpecial() != DataValueTypes::Normal; }
    bool IsSpecial(DataValueTypes::Special special) const noexcept { return GetSpecial() == special; }
    bool IsNull() const noexcept { return GetSpecial() == DataValueTypes::Null; }
    bool IsMissing() const noexcept { return GetSpecial() == DataValueTypes::Missing; }
    // The payload's raw 64 bits, whatever the type.
    long long GetAny() const noexcept { return static_cast<long long>(m_payload); }
    // Throws unless the type is Integer.
    long long GetInt() const
    {
        Require(DataType::Integer);
        return GetIntUnchecked();
    }
    long long GetIntUnchecked() const noexcept { return static_cast<long long>(m_payload); }
    // Throws unless the type is Real.
    double GetReal() const
    {
        Require(DataType::Real);
        return GetRealUnchecked();
    }
    double GetRealUnchecked() const noexcept { return std::bit_cast<double>(m_payload); }
    // Throws unless the type is Boolean.
    bool GetBool() const
    {
        Require(DataType::Boolean);
        return GetBoolUnchecked();
    }
    bool GetBoolUnchecked() const noexcept { return (m_payload & 0xFF) != 0; }
    // Throws unless the type is Date. A marker gives the default DateTime, 1899-12-30.
    DateTime GetDate() const
    {
        Require(DataType::Date);
        return GetDateUnchecked();
    }
    DateTime GetDateUnchecked() const noexcept { return m_payload == 0 ? DateTime() : DateTime::FromValue(m_payload); }
    // Throws unless the type is DateTime. A marker gives the default DateTime.
    DateTime GetDatetime() const
    {
        Require(DataType::DateTime);
        return GetDatetimeUnchecked();
    }
    DateTime GetDatetimeUnchecked() const noexcept { return GetDateUnchecked(); }
    // Throws unless the type is Time. A marker gives midnight.
    Time GetTime() const
    {
        Require(DataType::Time);
        return GetTimeUnchecked();
    }
    // The stored count as it is, 86400000000 too.
    Time GetTimeUnchecked() const noexcept { return std::bit_cast<Time>(m_payload); }
    // Throws unless the type is String. A marker gives the empty string. The reference lives as long as the payload.
    TString const & GetString() const;
    // The terminated text of GetString.
    char16_t const * GetStringRaw() const;
    // Never fails: the unknown collation for everything but a string with a payload.
    Collation const & GetCollation() const;
    // -2 for everything but a string with a payload.
    int GetOrdinal() const noexcept;
    // -1 for everything but a Real.
    signed char GetPrecision() const noexcept { return RealByte(16); }
    signed char GetScale() const noexcept { return RealByte(24); }
    bool HasPrecision() const noexcept { return static_cast<unsigned char>(GetPrecision()) < 255; }
    bool HasScale() const noexcept { return static_cast<unsigned char>(GetScale()) < 255; }
    // Throws unless the type is Tuple. May be null on a tuple-typed null.
    RefCntPtr<Tuple, RefCntObject> GetTuple() const;
    // Throws unless the type is Binary. A marker gives a null pointer.
    RefCntPtr<BinaryDataValue, RefCntObject> GetBinary() const;
    RefCntPtr<BinaryDataValue, RefCntObject> GetBinaryUnchecked() const;
    // Throws unless the type is Spatial. A marker gives an empty pointer.
    std::shared_ptr<velgeo::Spatial const> GetSpatial() const;

    // Identity: the order of containers and sorts, not that of queries (see DataValueOperators::Compare).
    //
    //                                     ==      <       DataValueOperators::Compare
    //   Integer 1     and Real 1.0        false   false   0
    //   Integer 2     and Real 2.5        false   true    -1
    //   null Integer  and Integer 0       false   true    -1
    //   null Integer  and Real -1.0       false   false   -1 (< reads the null as 0)
    //   Real 0.0      and Real -0.0       false   false   0
    //   NaN           and the same NaN    true    false   0
    //   NaN           and Real 1.0        false   false   1
    //   Integer 9     and String "1"      false   true    raises "type exception"
    //
    // Equality: type and marker, then strings and tuples by their own ==, spatial objects by theirs, every other type
    // by the payload's bits; a Binary is equal only to a value of the same object. Precision, scale and ordinal take no
    // part. Order: types by their numbers, but Integer and Real among each other by value (markers read as 0); within a
    // type Null first, then Normal, then the other markers by number. `==` implies equal hashes for strings of one
    // collation and for all other types. `<` is irreflexive and asymmetric; it is transitive within one type without
    // NaN, and no strict weak order over mixed numbers and NaN: -0.0 and 0.0 are neighbours though they differ.
    friend bool operator==(DataValue const & a, DataValue const & b)
    {
        if (((a.m_head ^ b.m_head) & 0xFFFF) != 0)
            return false;
        return a.m_payload == b.m_payload || (a.HasComparedPayload() && EqualPayloads(a, b));
    }
    friend bool operator<(DataValue const & a, DataValue const & b)
    {
        if (((a.m_head | b.m_head) & 0xFFFF) == 0)  // two integers without markers
            return static_cast<long long>(a.m_payload) < static_cast<long long>(b.m_payload);
        return Less(a, b);
    }
    friend bool operator<=(DataValue const & a, DataValue const & b) { return a == b || a < b; }
    friend bool operator>=(DataValue const & a, DataValue const & b) { return a == b || b < a; }
    friend bool operator>(DataValue const & a, DataValue const & b) { return b < a; }

    // The hash of a Real leaves precision and scale out; a string's is its collation hash; all others count every
    // field.
    unsigned Hash() const
    {
        return ((kHashedByPayload >> (m_head & 31)) & 1) == 0 ? detail::HashTwoWords(m_head, m_payload, 0xdeadbeefu)
                                                              : HashPayload();
    }

    // What a query language would read: NULL, 3, 3., "text" with quotes doubled, true, #2020-01-02#,
    // #2020-01-02 12:00:00.005#; empty for tuples, binary data and unknown values. Reals have 17 significant digits and
    // always a point or an exponent. Raises "GetSpecial() == DataValueTypes::Null",
    // "LogicException_LogicAssert_0x21164B74", for every other marker: the form has no place for them.
    TString FormatAsLiteral() const;

    // Calls the one operation of the inspector that fits. Raises "DataType::Table not expected in DataValue",
    // "LogicException_LogicAssert_0x935B635F", for type Table without a marker.
    void Accept(DataValueInspector & inspector) const;

    // "INTEGER", "REAL", "STRING", "DATETIME", "BOOLEAN", "DATE", "TUPLE", "SPATIAL"; "UNKNOWN(9)" for every other
    // number.
    static TString DataTypeToString(DataType type);

private:
    static constexpr std::uint64_t HeadOf(DataType type, DataValueTypes::Special special = DataValueTypes::Normal,
                                          signed char precision = -1, signed char scale = -1,
                                          std::int32_t ordinal = 0) noexcept
    {
        return static_cast<std::uint64_t>(type) | static_cast<std::uint64_t>(special) << 8 |
               static_cast<std::uint64_t>(static_cast<unsigned char>(precision)) << 16 |
               static_cast<std::uint64_t>(static_cast<unsigned char>(scale)) << 24 |
               static_cast<std::uint64_t>(static_cast<std::uint32_t>(ordinal)) << 32;
    }
    // Types whose payload is a counted object, and with them the spatial holder.
    static constexpr std::uint32_t kCounted = 1u << static_cast<unsigned>(DataType::String) |
                                              1u << static_cast<unsigned>(DataType::Tuple) |
                                              1u << static_cast<unsigned>(DataType::Binary);
    static constexpr std::uint32_t kOwned = kCounted | 1u << static_cast<unsigned>(DataType::Spatial);

    // Types whose equality is more than that of the payload's bits.
    static constexpr std::uint32_t kCompared = 1u << static_cast<unsigned>(DataType::String) |
                                               1u << static_cast<unsigned>(DataType::Tuple) |
                                               1u << static_cast<unsigned>(DataType::Spatial);

    static constexpr std::uint32_t kHashedByPayload = kCompared | 1u << static_cast<unsigned>(DataType::Real);

    unsigned HashPayload() const;
    bool HasComparedPayload() const noexcept { return ((kCompared >> (m_head & 31)) & 1) != 0; }
    static bool EqualPayloads(DataValue const & a, DataValue const & b);
    static bool Less(DataValue const & a, DataValue const & b);
    // The type first: the payload of a scalar is not even loaded.
    bool OwnsPayload() const noexcept { return ((kOwned >> (m_head & 31)) & 1) != 0 && m_payload != 0; }
    RefCntObject const * Counted() const noexcept { return reinterpret_cast<RefCntObject const *>(m_payload); }
    void TakeReference()
    {
        if (GetDataType() == DataType::Spatial)
            CopySpatialHolder();
        else
            Counted()->AddReference();
    }
    void ReleasePayload() noexcept
    {
        if (GetDataType() == DataType::Spatial)
            FreeSpatialHolder();
        else
            Counted()->RemoveReference();
    }
    void GiveUpPayload() noexcept
    {
        m_head = (m_head & ~std::uint64_t{0xFF}) | static_cast<std::uint64_t>(DataType::Unknown);
    }
    void Store(std::uint64_t head, std::uint64_t payload) noexcept
    {
        if (OwnsPayload())
            ReleasePayload();
        m_head = head;
        m_payload = payload;
    }
    void StoreCounted(DataType type, RefCntObject const * object, std::int32_t ordinal) noexcept;
    void Swap(DataValue & other) noexcept
    {
        std::swap(m_head, other.m_head);
        std::swap(m_payload, other.m_payload);
    }
    void Require(DataType expected) const
    {
        if (GetDataType() != expected) [[unlikely]]
            ThrowIncorrectTypeGet(expected, GetDataType());
    }
    signed char RealByte(unsigned shift) const noexcept
    {
        return GetDataType() == DataType::Real ? static_cast<signed char>((m_head >> shift) & 0xFF)
                                               : static_cast<signed char>(-1);
    }
    void CopySpatialHolder();
    void FreeSpatialHolder() noexcept;
    [[noreturn]] static void ThrowIncorrectTypeGet(DataType expected, DataType actual);
    [[noreturn]] static void ThrowIncorrectTypeSet(DataType expected, DataType actual);

    std::uint64_t m_head;  // bytes 0 to 7 of the picture; one word, so that it is written by one store
    std::uint64_t m_payload;
};

static_assert(sizeof(DataValue) == 16);
static_assert(std::endian::native == std::endian::little, "the picture above is that of a little-endian machine");

// The wrapped negative of an Integer, the Real with its sign flipped (precision and scale are lost). The type alone
// counts: a null Integer gives 0, a null Real -0.0; DataValueOperators::Negate keeps nulls. Raises "Unary operator- is
// unsupported for this data type.", "LogicException_LogicAssert_0xED6A87E9", for every other type.
VELCOREDATA_API DataValue operator-(DataValue value);

// toPrintableString(FormatAsLiteral()) with the stream's width and fill.
VELCOREDATA_API std::ostream & operator<<(std::ostream & out, DataValue const & value);

template <>
struct std::hash<DataValue>
{
    std::size_t operator()(DataValue const & value) const { return value.Hash(); }
};

// 1.5_dv is a Real, 5_dv an Integer, u"text"_dv a String with the unknown collation.
inline DataValue operator""_dv(long double value) noexcept
{
    return DataValue(static_cast<double>(value));
}
inline DataValue operator""_dv(unsigned long long value) noexcept
{
    return DataValue(value);
}
VELCOREDATA_API DataValue operator""_dv(char16_t const * text, std::size_t length);
