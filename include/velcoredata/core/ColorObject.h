#pragma once

#include "velcoredata/core/Export.h"
#include "velcoreplatform/TString.h"

/// An RGBA colour: red, green, blue and alpha of 0 to 255 each; alpha 255 is opaque, 0 completely transparent. A plain
/// value of four bytes.
///
/// Hue, saturation and value are computed in single precision: hue h from 0 (red) over 1/3 (green) and 2/3 (blue) back
/// to 1, s and v from 0 to 1. Real channels are cut toward zero, not rounded, and what does not fit a byte loses its
/// high bits: there is no clamp where none is said.
///
///   ColorObject sky(135, 206, 235, ColorObject::RGB);
///   sky.String()      // "#87ceeb"
///   sky.Darken()      // 104,170,196
///   sky.GetTooltip()  // "Light Blue: #87CEEB"
///
///   ColorObjectParser(c.String()) and ColorObjectParser(c.RGBAString()) give c back, for every colour c
///   ColorObjectParser(c.CSSString()) gives c back iff c is opaque or completely transparent
///   every channel of a.AlphaBlend(b) lies between those of a and b, one off at the most
///   a.AlphaBlend(b) == a and a.FullAlphaBlend(b) == a for every opaque a
///   a.Average(b) and b.Average(a) have the same colour channels
///   0 <= c.Hue() < 1
class VELCOREDATA_API ColorObject
{
public:
    /// What three or four numbers mean. Every other value counts as HSV.
    enum Type : int
    {
        RGB = 0,
        HSV = 1
    };

    /// Opaque black.
    ColorObject() noexcept = default;
    /// The mean of each of the four channels, rounded down.
    ColorObject(ColorObject const & a, ColorObject const & b) noexcept;
    /// RGB: the low bytes. HSV: SetHSVA of each / 255; so an alpha of 255 becomes 1 and every lower one 0, since
    /// SetHSVA counts alpha in bytes. Without alpha the colour is opaque.
    ColorObject(int redOrHue, int greenOrSaturation, int blueOrValue, Type type) noexcept;
    ColorObject(int redOrHue, int greenOrSaturation, int blueOrValue, int alpha, Type type) noexcept;
    /// RGB: each from 0 to 1, times 255. HSV: SetHSVA as given, with alpha from 0 to 255.
    ColorObject(float redOrHue, float greenOrSaturation, float blueOrValue, Type type) noexcept;
    ColorObject(float redOrHue, float greenOrSaturation, float blueOrValue, float alpha, Type type) noexcept;

    /// From and to 0xAARRGGBB.
    static ColorObject FromQRGB(unsigned argb) noexcept;
    unsigned ToQRGB() const noexcept;
    /// Opaque, from 0x00BBGGRR: the low byte is red.
    static ColorObject FromRGB(unsigned bgr) noexcept;
    /// 0x00BBGGRR, without alpha.
    operator unsigned int() const noexcept;
    /// String().
    operator TString() const;

    unsigned char Red() const noexcept { return m_red; }
    unsigned char Green() const noexcept { return m_green; }
    unsigned char Blue() const noexcept { return m_blue; }
    unsigned char Alpha() const noexcept { return m_alpha; }
    void SetRGBA(unsigned char red, unsigned char green, unsigned char blue, unsigned char alpha) noexcept;
    void SetAlpha(unsigned char alpha) noexcept { m_alpha = alpha; }
    /// Clamped to 0 and 1, times 255.
    void SetAlphaF(float alpha) noexcept;

    /// Alpha counts from 0 to 255. A hue outside -1/6 < h < 7/6 sets alpha alone and leaves the colour as it was.
    void SetHSVA(float h, float s, float v, float a) noexcept;
    void GetHSV(float & h, float & s, float & v) const noexcept;
    float Hue() const noexcept;
    float Saturation() const noexcept;
    float Value() const noexcept;

    bool IsOpaque() const noexcept { return m_alpha == 255; }
    bool IsCompletelyTransparent() const noexcept { return m_alpha == 0; }
    /// True of a completely transparent colour too.
    bool IsPartiallyTransparent() const noexcept { return m_alpha < 255; }

    // Each returns a new colour.

    /// This colour over an opaque background; the background's alpha is not read. The result is opaque.
    ColorObject AlphaBlend(ColorObject const & background) const noexcept;
    /// The same with the background's alpha; two completely transparent colours give four zeros.
    ColorObject FullAlphaBlend(ColorObject const & background) const noexcept;
    /// The mean of the colour channels, rounded down, with this alpha.
    ColorObject Average(ColorObject const & other) const noexcept;
    /// Opaque black or white, whichever is easier to read on this one.
    ColorObject ContrastingColor() const noexcept;
    /// Gray of this one's luminance, 0.59 green + 0.3 red + 0.11 blue.
    ColorObject Monochrome() const noexcept;

    // By hue, saturation and value; hue and alpha are kept.

    /// Value 0.15 less and saturation a tenth more; where the value comes to 0, 0.1 more on top.
    ColorObject Darken() const noexcept;
    /// Value 0.15 more and saturation a tenth less; where the value comes to 1, 0.15 less on top. A colour without
    /// saturation stops at the value 0.9 instead, so that white becomes darker.
    ColorObject Lighten() const noexcept;
    /// Saturation times f, at most 1.
    ColorObject Saturate(float f) const noexcept;
    /// Saturation times f, at least 0.
    ColorObject Desaturate(float f) const noexcept;
    /// Average with another, then Desaturate by alpha / 255 * f. White and what is nearly transparent (alpha below 0.05
    /// of 255) stay.
    ColorObject Fog(ColorObject const & other, float f) const noexcept;

    /// "#ff0000", and with alpha as the last pair where the colour is not opaque: "#ff000080".
    TString String() const;
    /// String(), or "rgba(255,0,0,0.501961)" where the colour is not opaque. ColorObjectParser does not read the
    /// latter.
    TString CSSString() const;
    /// "rgb(255,0,0)", or "rgba(255,0,0,128)" where the colour is not opaque.
    TString RGBAString() const;
    /// The same in the notation of the session's language: "rgb (255,0,0)".
    TString LineColorRGBAString() const;
    /// A name in the session's language and String() in upper case: "Pink: #FFC0CB".
    TString GetTooltip() const;

    friend bool operator==(ColorObject const & a, ColorObject const & b) noexcept
    {
        return a.m_red == b.m_red && a.m_green == b.m_green && a.m_blue == b.m_blue && a.m_alpha == b.m_alpha;
    }
    friend bool operator!=(ColorObject const & a, ColorObject const & b) noexcept { return !(a == b); }

private:
    unsigned char Luminance() const noexcept;

    unsigned char m_red = 0;
    unsigned char m_green = 0;
    unsigned char m_blue = 0;
    unsigned char m_alpha = 255;
};

/// The colour with the low byte of `alpha`.
VELCOREDATA_API ColorObject MakeTransparentColor(ColorObject const & color, int alpha) noexcept;
