// NumberFormat: numbers as an encoded number format writes them.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "velcoredata/data/DataValue.h"
#include "velcoredata/string/NumberFormatEncoding.h"
#include "velcoredata/string/NumberFormatOptions.h"
#include "velsys/Lcid.h"

namespace typedtable {

/// An encoded number format, opened out: `n#,##0.00;(#,##0.00)` writes 1234.5 as `1,234.50` and -2 as `(2.00)`. All
/// kinds that write numbers are taken: c, n, i and their names, p, e, C and N.
class NumberFormat
{
public:
    static constexpr std::size_t kLongest = 1000;  // bytes

    /// The separators are those of the locale that the format names, else of `lcid`. Throws UserError for a format that
    /// is longer, is none, or writes no numbers.
    NumberFormat(std::string const & encoded, LCID lcid);

    /// UTF-8 text of an Integer or a Real without a marker; infinities and NaN as ValueText has them. Reals are rounded
    /// by their exact binary value; what is written with zeros alone has no minus sign.
    std::string TextOf(DataValue const & value) const;

private:
    enum class Style
    {
        Plain,
        Percent,
        Scientific
    };

    void Open(std::string const & encoded, LCID lcid);
    std::string DigitsOf(DataValue const & value) const;
    std::string Group(std::string const & whole) const;
    std::string Signed(std::string const & number) const;

    Style m_style = Style::Plain;
    NumberFormatOptions m_options;
    std::vector<std::size_t> m_groups;  // sizes from the point on; the last repeats if m_repeats
    bool m_repeats = false;
};

}  // namespace typedtable
