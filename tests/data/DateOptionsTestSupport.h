#pragma once

#include "velcoredata/data/AggType.h"
#include "velcoredata/data/IDateOptions.h"

#include <type_traits>
#include <utility>
#include <vector>

namespace test_support {

inline std::vector<int> Numbers(std::vector<AggType> const & aggregations)
{
    return std::vector<int>(aggregations.begin(), aggregations.end());
}

inline std::vector<int> NumbersFrom(int first, int last)
{
    std::vector<int> numbers;
    for (int number = first; number <= last; ++number)
        numbers.push_back(number);
    return numbers;
}

// What ConvertToISO8601AggType and ConvertToGregorianAggType change; all other numbers stay.
inline std::vector<std::pair<int, int>> const toISO8601 = {{14, 26}, {15, 27}, {16, 28}, {17, 29}, {21, 28}, {22, 29},
                                                           {30, 38}, {31, 39}, {32, 40}, {33, 40}, {34, 41}};
inline std::vector<std::pair<int, int>> const toGregorian = {{26, 14}, {27, 15}, {28, 21}, {29, 22},
                                                             {38, 30}, {39, 31}, {40, 33}, {41, 34}};

inline int MappedBy(std::vector<std::pair<int, int>> const & map, int number)
{
    for (auto const & [from, to] : map)
        if (from == number)
            return to;
    return number;
}

// The hierarchy's levels, read by its own questions from the coarsest one on.
template <class Hierarchy>
std::vector<int> Levels(Hierarchy const & hierarchy, int coarsest)
{
    std::vector<int> levels = {coarsest};
    while (hierarchy.HasNestedDateAggregation(static_cast<AggType>(levels.back())))
        levels.push_back(hierarchy.GetNestedDateAggregation(static_cast<AggType>(levels.back())));
    return levels;
}

struct HierarchyCase
{
    DateDataType dataType;
    DateComputationKind kind;
    std::vector<int> levels;
};

}  // namespace test_support
