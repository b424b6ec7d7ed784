// BinaryDataValue: the bytes of a binary column, and the byte form of every value that such a column can hold.
//
// All numbers are little-endian:
//
//   Boolean   1 byte                        Date      4 bytes: days, GetRepresentation() / 864000000 + 1, low half
//   Integer   8 bytes (2, 4 on request)     DateTime  8 bytes: (GetRepresentation() + 864000000) * 100
//   Real      8 bytes: the IEEE double;     String    4-byte count of bytes, then UTF-8
//             with a scale, llround(10^scale * value) as an integer
//
// Each encoder replaces the whole content. A null Integer encodes as eight zero bytes: markers are not looked at. An
// object is treated as immutable once a DataValue holds it.
#pragma once

#include <cstddef>
#include <memory>
#include <string>
#include <vector>

#include "velcoredata/core/Export.h"
#include "velcoredata/data/DataValue.h"
#include "velsys/RefCntObject.h"
#include "velsys/RefCntPtr.h"

class VELCOREDATA_API BinaryDataValue : public RefCntObject
{
public:
    BinaryDataValue() = default;
    explicit BinaryDataValue(std::vector<char> const & bytes);
    explicit BinaryDataValue(std::vector<char> && bytes);
    BinaryDataValue(char const * bytes, std::size_t count);
    explicit BinaryDataValue(TString const & text);
    explicit BinaryDataValue(DataValue const & value);

    std::vector<char> const & GetValue() const noexcept { return m_bytes; }
    void SetValue(std::vector<char> const & bytes);
    void SetValue(std::vector<char> && bytes);
    void SetValue(char const * bytes, std::size_t count);

    void SetBoolean(bool const & value);
    void SetInt16(short value);
    void SetInt32(int value);
    void SetInt64(long long value);
    // A scale of -1 is "none"; a scaled integer has one of 0 to 11. No other scale is tested for: it is taken as -1.
    void SetReal(double const & value, signed char scale);
    void SetDate(DateTime const & value);
    void SetDateTime(DateTime const & value);
    // Counts above the 32-bit range are stored by their low half.
    void SetString(char const * bytes, std::size_t count);
    void SetString(std::string const & bytes);
    void SetString(TString const & text);
    // Integer, Real with its scale, String, Date, DateTime and Boolean; any other type changes nothing.
    void SetDataValue(DataValue const & value);

    // Refused: throw "VeltriaException_IncorrectDatatypeException_0xCA8348EE" and
    // "VeltriaException_IncorrectDatatypeException_0xCA836145", with the numbers of the types in the message.
    void SetTuple(RefCntPtr<Tuple, RefCntObject> const & value);
    void SetSpatial(std::shared_ptr<velgeo::Spatial const> const & value);

protected:
    ~BinaryDataValue() override;

private:
    static long long const s_numericShifts[12];

    std::vector<char> m_bytes;
};
