#pragma once

#include "velcoredata/core/ColorObject.h"
#include "velcoredata/core/Export.h"

/// Reads a colour's text: "#ff0080", "#ff008080" with alpha last, "rgb(255,0,128)" or "rgba(255,0,128,128)" with alpha
/// from 0 to 255. Blanks count nowhere. Hexadecimal digits are of either case, "rgb" is of lower case; short forms and
/// fractional alphas are not read. A value: copies are independent of the text. Nothing raises.
///
///   ColorObjectParser parser(u"#FF00 80");
///   parser.Failed();  // false
///   parser.GetB();    // 128
///
/// The laws stand with ColorObject.
class VELCOREDATA_API ColorObjectParser
{
public:
    /// The text up to its terminator; null is the empty text, which fails.
    explicit ColorObjectParser(char16_t const * text);

    /// The text is no colour. The channels are then those of opaque black.
    bool Failed() const noexcept { return m_failed; }
    unsigned char GetR() const noexcept { return m_red; }
    unsigned char GetG() const noexcept { return m_green; }
    unsigned char GetB() const noexcept { return m_blue; }
    unsigned char GetA() const noexcept { return m_alpha; }

    /// The colour of a text. A text that is no colour gives opaque black and logs "Warning: could not parse color "
    /// with the text.
    static ColorObject Parse(char16_t const * text);

private:
    unsigned char m_red = 0;
    unsigned char m_green = 0;
    unsigned char m_blue = 0;
    unsigned char m_alpha = 255;
    bool m_failed = false;
};
