// Which official maps a locale's users are shown.
#pragma once

/// The text of each is its last two letters: "US", "CN", "IN".
enum MapCode : int
{
    MapCodeUS = 1,  ///< every locale that no row names
    MapCodeCN = 2,
    MapCodeIN = 3,
};
