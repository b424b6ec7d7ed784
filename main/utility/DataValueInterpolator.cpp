#include "velcoredata/utility/DataValueInterpolator.h"

#include <cmath>

DataValueInterpolator::DataValueInterpolator(DataValue const & start, DataValue const & end)
    : m_start(start), m_end(end), m_startType(start.GetDataType())
{
    if (m_operators.Compare(start, end, false) == 0) {
        m_mode = Mode::EqualEnds;
        return;
    }
    if (IsNumeric(start.GetDataType()) && IsNumeric(end.GetDataType())) {
        // Each end is scaled first, so that the difference cannot overflow.
        double const distance = std::fabs(m_operators.AsReal(end) * 1e-6 - m_operators.AsReal(start) * 1e-6);
        m_mode = distance > 1.0 ? Mode::LargeRange : Mode::Ordinary;
    }
}

DataValue DataValueInterpolator::operator()(double fraction)
{
    DataValue value;
    switch (m_mode) {
    case Mode::EqualEnds: value = m_start; break;
    case Mode::LargeRange:
        value = m_operators.Add(m_operators.Multiply(m_start, DataValue(1.0 - fraction)),
                                m_operators.Multiply(m_end, DataValue(fraction)));
        break;
    case Mode::Ordinary:
        value =
            m_operators.Add(m_start, m_operators.Multiply(DataValue(fraction), m_operators.Subtract(m_end, m_start)));
        break;
    }
    return m_cast ? m_operators.Cast(value, m_startType) : value;
}

double DataValueInterpolator::Inverse(DataValue const & value)
{
    if (m_mode == Mode::EqualEnds)
        return 0.0;
    if (m_mode == Mode::LargeRange) {
        double const s = m_operators.AsReal(m_start);
        double const e = m_operators.AsReal(m_end);
        double const x = m_operators.AsReal(value);
        if (s != 0.0 && s != e)
            return (x / s - 1.0) / (e / s - 1.0);
        if (e == 0.0 || s == e)
            return 0.0;
        return ((x - s) / e) / (1.0 - s / e);
    }
    double const distance = m_operators.AsReal(m_operators.Subtract(m_end, m_start));
    if (distance == 0.0)
        return 0.0;
    return m_operators.AsReal(m_operators.Subtract(value, m_start)) / distance;
}
