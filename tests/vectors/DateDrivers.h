// What the drivers of the date tables share.
#pragma once

#include <sstream>
#include <string>
#include <type_traits>
#include <vector>

#include "tests/vectors/VectorDriver.h"
#include "velcoredata/data/DateTime.h"
#include "velsys/LogicException.h"
#include "velsys/VeltriaException.h"

namespace velcoredata::vectors {

// The result of a call as the tables write it: a whole number or text as it stands, a real as hexadecimal float, a
// date-time by its representation, a fault as `!Name`, an assertion as `!assert:text`.
template <class Call>
std::string Outcome(Call const & call)
{
    try {
        auto const result = call();
        using Result = std::remove_cv_t<decltype(result)>;
        if constexpr (std::is_same_v<Result, std::string>)
            return result;
        else if constexpr (std::is_same_v<Result, bool>)
            return result ? "1" : "0";
        else if constexpr (std::is_floating_point_v<Result>)
            return EncodeReal(result);
        else if constexpr (std::is_same_v<Result, DateTime>)
            return std::to_string(result.GetRepresentation());
        else
            return std::to_string(result);
    } catch (LogicException const & e) {
        return "!assert:" + e.GetExpression().toQString().toStdString();
    } catch (VeltriaException const & e) {
        return "!" + e.GetErrorInfo().GetError().GetName().toQString().toStdString();
    }
}

// Results of several calls, joined by commas.
template <class... Calls>
std::string Outcomes(Calls const &... calls)
{
    std::string text;
    ((text += (text.empty() ? "" : ",") + Outcome(calls)), ...);
    return text;
}

inline std::vector<std::string> SplitCommas(std::string const & cell)
{
    std::vector<std::string> parts;
    std::istringstream in(cell);
    for (std::string part; std::getline(in, part, ',');)
        parts.push_back(part);
    return parts;
}

// Midnight of a day number.
inline DateTime Midnight(long long dayNumber)
{
    return DateTime::FromValue(static_cast<unsigned long long>(dayNumber) * DateTime::s_scaling);
}

inline long long DayNumberOf(DateTime const & value)
{
    return static_cast<long long>(value.GetRepresentation() / DateTime::s_scaling);
}

}  // namespace velcoredata::vectors
