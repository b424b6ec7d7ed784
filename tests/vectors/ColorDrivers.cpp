// Drivers of the tables small_color_*. A colour's cell is "r,g,b,a".

#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <string>

#include "main/core/ColorName.h"
#include "main/core/StringTable.h"
#include "tests/vectors/VectorDriver.h"
#include "velcoredata/core/ColorObject.h"
#include "velcoredata/core/ColorObjectParser.h"

namespace {

using velcoredata::vectors::Row;

// Decimal too, unlike the cells of the tables of values.
float Float(Row const & row, char const * column)
{
    return static_cast<float>(std::strtod(row.Cell(column).c_str(), nullptr));
}

ColorObject Color(std::string const & cell)
{
    unsigned channels[4] = {};
    char const * text = cell.c_str();
    for (unsigned & channel : channels) {
        char * end = nullptr;
        channel = static_cast<unsigned>(std::strtoul(text, &end, 10));
        text = end + 1;
    }
    ColorObject color;
    color.SetRGBA(static_cast<unsigned char>(channels[0]), static_cast<unsigned char>(channels[1]),
                  static_cast<unsigned char>(channels[2]), static_cast<unsigned char>(channels[3]));
    return color;
}

std::string Cell(ColorObject const & color)
{
    return std::to_string(color.Red()) + ',' + std::to_string(color.Green()) + ',' + std::to_string(color.Blue()) +
           ',' + std::to_string(color.Alpha());
}

// One of the answers between bars.
void ExpectAnyOf(Row & row, char const * column, std::string const & actual)
{
    std::string const all = row.Cell(column);
    row.Expect(column, all, ('|' + all + '|').find('|' + actual + '|') == all.npos ? actual : all);
}

ColorObject Made(Row & row)
{
    std::string const & constructor = row.Cell("ctor");
    if (constructor == "FromQRGB")
        return ColorObject::FromQRGB(static_cast<unsigned>(row.UInt("a1")));
    if (constructor == "FromRGB")
        return ColorObject::FromRGB(static_cast<unsigned>(row.UInt("a1")));
    if (constructor == "SetHSVA_on_9_8_7_6_keeps_rgb") {
        ColorObject color = Color("9,8,7,6");
        color.SetHSVA(Float(row, "a1"), Float(row, "a2"), Float(row, "a3"), Float(row, "a4"));
        return color;
    }
    auto const type = constructor.ends_with("RGB") ? ColorObject::RGB : ColorObject::HSV;
    auto const integer = [&row](char const * column) { return static_cast<int>(row.Int(column)); };
    if (constructor.starts_with("int3_"))
        return ColorObject(integer("a1"), integer("a2"), integer("a3"), type);
    if (constructor.starts_with("int4_"))
        return ColorObject(integer("a1"), integer("a2"), integer("a3"), integer("a4"), type);
    if (constructor.starts_with("float3_"))
        return ColorObject(Float(row, "a1"), Float(row, "a2"), Float(row, "a3"), type);
    if (constructor.starts_with("float4_"))
        return ColorObject(Float(row, "a1"), Float(row, "a2"), Float(row, "a3"), Float(row, "a4"), type);
    row.Fail("no such constructor");
    return ColorObject();
}

ColorObject Result(Row & row)
{
    std::string const & op = row.Cell("op");
    ColorObject const color = Color(row.Cell("color"));
    ColorObject const other = Color(row.Cell("other"));
    float const parameter = Float(row, "param");
    if (op == "AlphaBlend")
        return color.AlphaBlend(other);
    if (op == "FullAlphaBlend")
        return color.FullAlphaBlend(other);
    if (op == "Average")
        return color.Average(other);
    if (op == "mean_ctor")
        return ColorObject(color, other);
    if (op == "ContrastingColor")
        return color.ContrastingColor();
    if (op == "Monochrome")
        return color.Monochrome();
    if (op == "Darken")
        return color.Darken();
    if (op == "Lighten")
        return color.Lighten();
    if (op == "Saturate")
        return color.Saturate(parameter);
    if (op == "Desaturate")
        return color.Desaturate(parameter);
    if (op == "Fog")
        return color.Fog(other, parameter);
    if (op == "MakeTransparentColor")
        return MakeTransparentColor(color, static_cast<int>(row.Int("param")));
    ColorObject changed(color);
    if (op == "SetAlphaF")
        changed.SetAlphaF(parameter);
    else
        row.Fail("no such operation");
    return changed;
}

}  // namespace

VECTOR_DRIVER("small_color_make")
{
    ExpectAnyOf(row, "expected_any_of", Cell(Made(row)));
}

VECTOR_DRIVER("small_color_ops")
{
    ExpectAnyOf(row, "expected_any_of", Cell(Result(row)));
}

VECTOR_DRIVER("small_color_hsv")
{
    ColorObject color = Color(row.Cell("r") + ',' + row.Cell("g") + ',' + row.Cell("b") + ",255");
    float h, s, v;
    color.GetHSV(h, s, v);
    float const tolerance = Float(row, "tolerance");
    auto const expectNear = [&](char const * column, float actual) {
        bool const near = std::abs(actual - Float(row, column)) <= tolerance;
        row.Expect(column, row.Cell(column), near ? row.Cell(column) : std::to_string(actual));
    };
    expectNear("h", h);
    expectNear("s", s);
    expectNear("v", v);
    color.SetHSVA(h, s, v, 255.0F);
    std::string const cell = Cell(color);
    ExpectAnyOf(row, "round_trip_any_of", cell.substr(0, cell.rfind(',')));
}

VECTOR_DRIVER("small_color_text")
{
    ColorObject const color = Color(row.Cell("color"));
    row.ExpectText("String", color.String().View());
    row.ExpectText("CSSString", color.CSSString().View());
    row.ExpectText("RGBAString", color.RGBAString().View());
    row.ExpectText("LineColorRGBAString_en", color.LineColorRGBAString().View());
    row.ExpectUInt("uint_00BBGGRR", static_cast<unsigned>(color));
    row.ExpectUInt("argb", color.ToQRGB());
    row.ExpectBool("opaque", color.IsOpaque());
    row.ExpectBool("completely_transparent", color.IsCompletelyTransparent());
    row.ExpectBool("partially_transparent", color.IsPartiallyTransparent());
}

VECTOR_DRIVER("small_color_tooltip")
{
    ColorObject const color = Color(row.Cell("color"));
    CoreData::StringId const id = CoreData::detail::ColorName(color.Hue(), color.Saturation(), color.Value());
    ExpectAnyOf(row, "key_any_of", CoreData::detail::StringTableKey(id));
    std::string const tooltip = color.GetTooltip().toStdString();
    std::size_t const colon = tooltip.find(": ");
    std::string const name = tooltip.substr(0, colon);
    row.Expect("name", CoreData::detail::StringTableEnglish(id), name);
    row.Expect("upper_case_text", row.Cell("upper_case_text"), tooltip.substr(colon + 2));
    // Some names are given by the number of their key.
    char number[16];
    std::snprintf(number, sizeof number, "id 0x%08X", static_cast<unsigned>(id));
    bool const byNumber = row.Cell("name_or_id_any_of").find("id ") != std::string::npos;
    ExpectAnyOf(row, "name_or_id_any_of", byNumber ? number : name);
}

VECTOR_DRIVER("small_color_parse")
{
    TString const text = TString::fromStdU16String(row.Text("text"));
    ColorObjectParser const parser(text);
    row.ExpectBool("failed", parser.Failed());
    row.ExpectUInt("r", parser.GetR());
    row.ExpectUInt("g", parser.GetG());
    row.ExpectUInt("b", parser.GetB());
    row.ExpectUInt("a", parser.GetA());
}
