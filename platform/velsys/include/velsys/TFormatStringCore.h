// TFormatStringCore: a message template with numbered places %1, %2, ... %99.
//
// Each arg call fills the lowest-numbered place that is left; all places with the same number take the same value. Text
// that was put in is never looked at again, so a value may itself contain "%1". A call without a place left changes
// nothing. Example: TFormatStringCore(u"%1 of %2").arg(u"3").arg(u"%1").Text() is "3 of %1".
#pragma once

#include <vector>

#include "velsys/Export.h"
#include "velsys/TStringCore.h"

class VELSYS_API TFormatStringCore
{
public:
    TFormatStringCore() = default;
    TFormatStringCore(TStringCore const & pattern);
    TFormatStringCore(char16_t const * pattern, int length = -1);

    // Fills the lowest-numbered place left. Returns *this.
    TFormatStringCore & arg(TStringCore const & value);

    // Fills as many places as there are values, the lowest number with the first value, all at once.
    TFormatStringCore & args(TStringCore const * const * values, std::size_t count);

    // The text so far; places not filled stand as they were written.
    TStringCore Text() const;

private:
    struct Piece
    {
        TStringCore text;  // literal text, or the place as written
        int place;         // 1 to 99, 0 for literal text
    };

    int LowestPlaceAbove(int place) const;

    std::vector<Piece> m_pieces;
};
