#include "velcoredata/core/ColorObject.h"

#include <algorithm>

#include "main/core/ColorName.h"
#include "velcoredata/core/LocalStrings.h"
#include "velsys/Arithmetic.h"

namespace {

unsigned char LowByte(int value) noexcept
{
    return static_cast<unsigned char>(static_cast<unsigned>(value));
}

unsigned char Truncated(double value) noexcept
{
    return LowByte(detail::RealToInt32(value));
}

unsigned char Mean(unsigned char a, unsigned char b) noexcept
{
    return static_cast<unsigned char>((a + b) >> 1);
}

}  // namespace

ColorObject::ColorObject(ColorObject const & a, ColorObject const & b) noexcept
    : m_red(Mean(a.m_red, b.m_red)),
      m_green(Mean(a.m_green, b.m_green)),
      m_blue(Mean(a.m_blue, b.m_blue)),
      m_alpha(Mean(a.m_alpha, b.m_alpha))
{}

ColorObject::ColorObject(int redOrHue, int greenOrSaturation, int blueOrValue, Type type) noexcept
{
    if (type == RGB)
        SetRGBA(LowByte(redOrHue), LowByte(greenOrSaturation), LowByte(blueOrValue), 255);
    else
        SetHSVA(static_cast<float>(redOrHue / 255.0), static_cast<float>(greenOrSaturation / 255.0),
                static_cast<float>(blueOrValue / 255.0), 255.0F);
}

ColorObject::ColorObject(int redOrHue, int greenOrSaturation, int blueOrValue, int alpha, Type type) noexcept
{
    if (type == RGB)
        SetRGBA(LowByte(redOrHue), LowByte(greenOrSaturation), LowByte(blueOrValue), LowByte(alpha));
    else
        SetHSVA(static_cast<float>(redOrHue / 255.0), static_cast<float>(greenOrSaturation / 255.0),
                static_cast<float>(blueOrValue / 255.0), static_cast<float>(alpha / 255.0));
}

ColorObject::ColorObject(float redOrHue, float greenOrSaturation, float blueOrValue, Type type) noexcept
{
    if (type == RGB)
        SetRGBA(Truncated(redOrHue * 255.0), Truncated(greenOrSaturation * 255.0), Truncated(blueOrValue * 255.0), 255);
    else
        SetHSVA(redOrHue, greenOrSaturation, blueOrValue, 255.0F);
}

ColorObject::ColorObject(float redOrHue, float greenOrSaturation, float blueOrValue, float alpha, Type type) noexcept
{
    if (type == RGB)
        SetRGBA(Truncated(redOrHue * 255.0), Truncated(greenOrSaturation * 255.0), Truncated(blueOrValue * 255.0),
                Truncated(alpha * 255.0));
    else
        SetHSVA(redOrHue, greenOrSaturation, blueOrValue, alpha);
}

ColorObject ColorObject::FromQRGB(unsigned argb) noexcept
{
    ColorObject color;
    color.SetRGBA(static_cast<unsigned char>(argb >> 16), static_cast<unsigned char>(argb >> 8),
                  static_cast<unsigned char>(argb), static_cast<unsigned char>(argb >> 24));
    return color;
}

unsigned ColorObject::ToQRGB() const noexcept
{
    return static_cast<unsigned>(m_alpha) << 24 | static_cast<unsigned>(m_red) << 16 |
           static_cast<unsigned>(m_green) << 8 | static_cast<unsigned>(m_blue);
}

ColorObject ColorObject::FromRGB(unsigned bgr) noexcept
{
    ColorObject color;
    color.SetRGBA(static_cast<unsigned char>(bgr), static_cast<unsigned char>(bgr >> 8),
                  static_cast<unsigned char>(bgr >> 16), 255);
    return color;
}

ColorObject::operator unsigned int() const noexcept
{
    return static_cast<unsigned>(m_blue) << 16 | static_cast<unsigned>(m_green) << 8 | static_cast<unsigned>(m_red);
}

ColorObject::operator TString() const
{
    return String();
}

void ColorObject::SetRGBA(unsigned char red, unsigned char green, unsigned char blue, unsigned char alpha) noexcept
{
    m_red = red;
    m_green = green;
    m_blue = blue;
    m_alpha = alpha;
}

void ColorObject::SetAlphaF(float alpha) noexcept
{
    m_alpha = Truncated(std::clamp(alpha, 0.0F, 1.0F) * 255.0);
}

void ColorObject::SetHSVA(float h, float s, float v, float a) noexcept
{
    m_alpha = Truncated(a);
    float const scaled = v * 255.0F;
    int const i = detail::RealToInt32(h * 6);
    float const f = h * 6 - static_cast<float>(i);
    unsigned char const p = Truncated((1 - s) * scaled);
    unsigned char const q = Truncated((1 - f * s) * scaled);
    unsigned char const t = Truncated((1 - (1 - f) * s) * scaled);
    unsigned char const w = Truncated(scaled);
    switch (i) {
    case 0:
    case 6: SetRGBA(w, t, p, m_alpha); break;
    case 1: SetRGBA(q, w, p, m_alpha); break;
    case 2: SetRGBA(p, w, t, m_alpha); break;
    case 3: SetRGBA(p, q, w, m_alpha); break;
    case 4: SetRGBA(t, p, w, m_alpha); break;
    case 5: SetRGBA(w, p, q, m_alpha); break;
    default: break;
    }
}

void ColorObject::GetHSV(float & h, float & s, float & v) const noexcept
{
    float const r = static_cast<float>(m_red / 255.0);
    float const g = static_cast<float>(m_green / 255.0);
    float const b = static_cast<float>(m_blue / 255.0);
    h = 0;
    s = 0;
    v = std::max({r, g, b});
    if (v == 0)
        return;
    float const delta = v - std::min({r, g, b});
    s = delta / v;
    if (delta == 0)
        return;
    float x = 0;
    if (r == v)
        x = (g - b) / delta;
    else if (g == v)
        x = (b - r) / delta + 2;
    else
        x = (r - g) / delta + 4;
    x *= 60;
    if (x < 0)
        x += 360;
    h = x / 360;
}

float ColorObject::Hue() const noexcept
{
    float h, s, v;
    GetHSV(h, s, v);
    return h;
}

float ColorObject::Saturation() const noexcept
{
    float h, s, v;
    GetHSV(h, s, v);
    return s;
}

float ColorObject::Value() const noexcept
{
    float h, s, v;
    GetHSV(h, s, v);
    return v;
}

ColorObject ColorObject::AlphaBlend(ColorObject const & background) const noexcept
{
    if (IsOpaque())
        return *this;
    double const p = m_alpha / 255.0;
    double const q = (255 - m_alpha) / 255.0;
    auto const blend = [p, q](unsigned char below, unsigned char above) { return Truncated(below * q + above * p); };
    ColorObject color;
    color.SetRGBA(blend(background.m_red, m_red), blend(background.m_green, m_green), blend(background.m_blue, m_blue),
                  255);
    return color;
}

ColorObject ColorObject::FullAlphaBlend(ColorObject const & background) const noexcept
{
    if (IsOpaque())
        return *this;
    float const p = static_cast<float>(m_alpha / 255.0);
    float const q = static_cast<float>(background.m_alpha / 255.0) * (1 - p);
    float const o = p + q;
    if (o == 0) {
        ColorObject nothing;
        nothing.SetRGBA(0, 0, 0, 0);
        return nothing;
    }
    auto const blend = [p, q, o](unsigned char below, unsigned char above) {
        return (static_cast<float>(below / 255.0) * q + static_cast<float>(above / 255.0) * p) / o;
    };
    return ColorObject(blend(background.m_red, m_red), blend(background.m_green, m_green),
                       blend(background.m_blue, m_blue), o, RGB);
}

ColorObject ColorObject::Average(ColorObject const & other) const noexcept
{
    ColorObject color(*this, other);
    color.m_alpha = m_alpha;
    return color;
}

unsigned char ColorObject::Luminance() const noexcept
{
    return Truncated(0.59 * m_green + 0.3 * m_red + 0.11 * m_blue);
}

ColorObject ColorObject::ContrastingColor() const noexcept
{
    return Luminance() < 128 ? ColorObject(255, 255, 255, RGB) : ColorObject();
}

ColorObject ColorObject::Monochrome() const noexcept
{
    unsigned char const luminance = Luminance();
    ColorObject color;
    color.SetRGBA(luminance, luminance, luminance, m_alpha);
    return color;
}

ColorObject ColorObject::Darken() const noexcept
{
    float h, s, v;
    GetHSV(h, s, v);
    s = static_cast<float>(std::min(1.0, s * 1.1));
    v = static_cast<float>(std::max(0.0, v - 0.15));
    if (v == 0)
        s = static_cast<float>(std::min(1.0, s + 0.1));
    ColorObject color;
    color.SetHSVA(h, s, v, m_alpha);
    return color;
}

ColorObject ColorObject::Lighten() const noexcept
{
    float h, s, v;
    GetHSV(h, s, v);
    s = static_cast<float>(s * 0.9);
    v = static_cast<float>(std::min(1.0, v + 0.15));
    if (v == 1) {
        if (s == 0)
            v = 0.9F;
        else
            s = static_cast<float>(std::max(0.0, s - 0.15));
    }
    ColorObject color;
    color.SetHSVA(h, s, v, m_alpha);
    return color;
}

ColorObject ColorObject::Saturate(float f) const noexcept
{
    float h, s, v;
    GetHSV(h, s, v);
    ColorObject color;
    color.SetHSVA(h, std::min(1.0F, s * f), v, m_alpha);
    return color;
}

ColorObject ColorObject::Desaturate(float f) const noexcept
{
    float h, s, v;
    GetHSV(h, s, v);
    ColorObject color;
    color.SetHSVA(h, std::max(0.0F, s * f), v, m_alpha);
    return color;
}

ColorObject ColorObject::Fog(ColorObject const & other, float f) const noexcept
{
    float const a = static_cast<float>(m_alpha / 255.0);
    if (a < 0.05 || (m_red > 254 && m_green > 254 && m_blue > 254))
        return *this;
    return Average(other).Desaturate(a * f);
}

TString ColorObject::String() const
{
    TFormatString text(IsOpaque() ? u"#%1%2%3" : u"#%1%2%3%4");
    for (unsigned char const channel : {m_red, m_green, m_blue})
        text.arg(channel, 2, 16, u'0');
    if (!IsOpaque())
        text.arg(m_alpha, 2, 16, u'0');
    return text;
}

TString ColorObject::CSSString() const
{
    if (IsOpaque())
        return String();
    return TFormatString(u"rgba(%1,%2,%3,%4)")
        .arg(int{m_red})
        .arg(int{m_green})
        .arg(int{m_blue})
        .arg(double{static_cast<float>(m_alpha / 255.0)}, 0, 'g', 6);
}

TString ColorObject::RGBAString() const
{
    TFormatString text(IsOpaque() ? u"rgb(%1,%2,%3)" : u"rgba(%1,%2,%3,%4)");
    text.arg(int{m_red}).arg(int{m_green}).arg(int{m_blue});
    return IsOpaque() ? text : text.arg(int{m_alpha});
}

TString ColorObject::LineColorRGBAString() const
{
    TFormatString text =
        CoreData::LookupTFormatStrExported(IsOpaque() ? CoreData::StringId::IDS_DASH_LAYOUT_SPACING_COLOR_RGB
                                                      : CoreData::StringId::IDS_DASH_LAYOUT_SPACING_COLOR_RGBA);
    text.arg(int{m_red}).arg(int{m_green}).arg(int{m_blue});
    return IsOpaque() ? text : text.arg(int{m_alpha});
}

TString ColorObject::GetTooltip() const
{
    float h, s, v;
    GetHSV(h, s, v);
    TString const name = CoreData::LookupTStrExported(CoreData::detail::ColorName(h, s, v));
    return TFormatString(u"%1: %2").arg(name, String().toUpper());
}

ColorObject MakeTransparentColor(ColorObject const & color, int alpha) noexcept
{
    ColorObject result(color);
    result.SetAlpha(LowByte(alpha));
    return result;
}
