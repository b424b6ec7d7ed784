// Radians and Degrees: the two units of an angle, kept apart by type.
#pragma once

namespace velgeo {

class Degrees;

/// An angle in radians; the unit that geographies are stored in.
class Radians
{
public:
    explicit constexpr Radians(double value) noexcept : m_value(value) {}
    explicit constexpr Radians(Degrees const & angle) noexcept;

    constexpr double Value() const noexcept { return m_value; }

private:
    double m_value;
};

/// An angle in degrees. Converting there and back may change the last bit: Degrees(Radians(Degrees(x))) is x only to
/// within a few units in the last place.
class Degrees
{
public:
    explicit constexpr Degrees(double value) noexcept : m_value(value) {}
    /// Degrees(Radians(3.141592653589793)) is 180.
    constexpr Degrees(Radians const & angle) noexcept : m_value(angle.Value() * kPerRadian) {}

    constexpr double Value() const noexcept { return m_value; }

    static constexpr double kPerRadian = 57.295779513082320876798154814105;

private:
    double m_value;
};

inline constexpr Radians::Radians(Degrees const & angle) noexcept
    : m_value(angle.Value() * 0.017453292519943295769236907684886)
{}

}  // namespace velgeo
