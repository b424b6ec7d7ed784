// The cells of a mixed column, for value text and for its peers.
#pragma once

#include <cstddef>
#include <cstdio>
#include <random>
#include <string>
#include <variant>
#include <vector>

namespace benchmarks {

struct Day
{
    int year, month, day;

    std::string Text() const
    {
        char text[16];
        std::snprintf(text, sizeof text, "%d-%02d-%02d", year % 10000, month % 100, day % 100);
        return text;
    }
};

using Cell = std::variant<std::nullptr_t, bool, long long, double, std::string, Day>;

// 32,768 cells: of eight, two integers, two reals, two texts, a date, and a null or a Boolean.
inline std::vector<Cell> MixedColumn()
{
    static char const * const words[] = {"Frankfurt", "net sales",   "n/a",         "a \"quoted\" word",
                                         "50% off",   "sub\\folder", "Bogot\u00e1", "2020-Q4, revised"};
    std::mt19937_64 random(1);
    std::vector<Cell> cells;
    while (cells.size() < 32'768) {
        switch (random() % 8) {
        case 0: cells.emplace_back(static_cast<long long>(random() % 1000)); break;
        case 1: cells.emplace_back(static_cast<long long>(random() >> (1 + random() % 50))); break;
        case 2: cells.emplace_back(static_cast<double>(random() % 10000000) / 100); break;
        case 3: cells.emplace_back(static_cast<double>(random() >> 11) * 0x1p-53); break;
        case 4: cells.emplace_back(std::string(words[random() % 8])); break;
        case 5: cells.emplace_back(std::string(words[random() % 8]) + ' ' + std::to_string(random() % 1000)); break;
        case 6:
            cells.emplace_back(Day{static_cast<int>(1990 + random() % 40), static_cast<int>(1 + random() % 12),
                                   static_cast<int>(1 + random() % 28)});
            break;
        default:
            if (random() % 2 == 0)
                cells.emplace_back(nullptr);
            else
                cells.emplace_back(random() % 2 == 0);
        }
    }
    return cells;
}

}  // namespace benchmarks
