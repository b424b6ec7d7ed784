// DataValueInterpolator: maps a fraction to a value between two values, and back.
//
//   f(0.0) is start, f(1.0) is end; fractions outside 0 to 1 extrapolate, nothing is clamped
//   f.Inverse(f(x)) is x up to rounding, unless the ends are equal, where it is 0.0
//
// Works on numbers and dates; between a Date and a Date it computes in days. Results are cast back to the type of start
// unless SetCast(false): an Integer then truncates and a Date loses its time. Type errors of DataValueOperators pass
// through. An object belongs to one thread at a time.
#pragma once

#include "velcoredata/core/Export.h"
#include "velcoredata/data/DataValue.h"
#include "velcoredata/utility/DataValueOperators.h"

class VELCOREDATA_API DataValueInterpolator
{
public:
    // Throws if the types of the two do not promote to a common one.
    DataValueInterpolator(DataValue const & start, DataValue const & end);

    DataValue operator()(double fraction);
    double Inverse(DataValue const & value);

    bool GetCast() const noexcept { return m_cast; }
    void SetCast(bool value) noexcept { m_cast = value; }

private:
    enum class Mode : int
    {
        EqualEnds = 0,
        LargeRange = 1,  // over one million apart: a weighted sum, which does not overflow
        Ordinary = 2
    };

    DataValue m_start;
    DataValue m_end;
    DataType m_startType;
    DataValueOperators m_operators;
    bool m_cast = true;
    Mode m_mode = Mode::Ordinary;
};
