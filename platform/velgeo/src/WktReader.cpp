// By hand: recursive descent with a bound on its depth, numbers by std::from_chars.
#include "WktReader.h"

#include <algorithm>
#include <charconv>
#include <string_view>
#include <utility>

#include "ShapesBuilder.h"
#include "UnknownSpatial.h"
#include "velgeo/DefaultGeometry.h"
#include "velgeo/Geography.h"

namespace velgeo::detail {

namespace {

bool IsSpace(char c) noexcept
{
    return c == ' ' || (c >= '\t' && c <= '\r');
}
bool IsLetter(char c) noexcept
{
    return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z');
}
bool IsDigit(char c) noexcept
{
    return c >= '0' && c <= '9';
}
char Upper(char c) noexcept
{
    return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
}
bool SameWord(std::string_view word, std::string_view upper) noexcept
{
    return std::equal(word.begin(), word.end(), upper.begin(), upper.end(),
                      [](char a, char b) { return Upper(a) == b; });
}

struct Tag
{
    std::string_view name;
    ShapeType kind;  // Unknown: well-formed, but not held by the model
};

constexpr Tag kTags[] = {
    {"POINT", ShapeType::Point},
    {"LINESTRING", ShapeType::LineString},
    {"POLYGON", ShapeType::Polygon},
    {"MULTIPOINT", ShapeType::MultiPoint},
    {"MULTILINESTRING", ShapeType::MultiLineString},
    {"MULTIPOLYGON", ShapeType::MultiPolygon},
    {"GEOMETRYCOLLECTION", ShapeType::GeometryCollection},
    {"CIRCULARSTRING", ShapeType::Unknown},
    {"COMPOUNDCURVE", ShapeType::Unknown},
    {"CURVEPOLYGON", ShapeType::Unknown},
    {"MULTICURVE", ShapeType::Unknown},
    {"MULTISURFACE", ShapeType::Unknown},
    {"POLYHEDRALSURFACE", ShapeType::Unknown},
    {"TIN", ShapeType::Unknown},
    {"TRIANGLE", ShapeType::Unknown},
};

Tag const * FindTag(std::string_view word) noexcept
{
    auto const tag =
        std::find_if(std::begin(kTags), std::end(kTags), [&](Tag const & t) { return SameWord(word, t.name); });
    return tag == std::end(kTags) ? nullptr : tag;
}

// Numbers of a coordinate by the mark behind a tag; 0 for a word that is none.
int NumbersOfMark(std::string_view word) noexcept
{
    if (SameWord(word, "ZM"))
        return 4;
    return SameWord(word, "Z") || SameWord(word, "M") ? 3 : 0;
}

class WktParser
{
public:
    explicit WktParser(std::string_view text) : m_text(text) {}

    ReadOutcome Parse(bool plain, bool withReference)
    {
        std::int32_t srid = 0;
        ReadOutcome outcome;
        if (Reference(plain, withReference, srid) && Shape(0) && End()) {
            if (m_unknown)
                outcome.spatial = std::make_unique<UnknownSpatial>();
            else if (srid == Geography::kSrid)
                outcome.spatial = Geography::FromDegrees(m_builder.Take());
            else
                outcome.spatial = std::make_unique<DefaultGeometry>(m_builder.Take(), Geometry::Attributes{srid});
        } else {
            outcome.fault = m_fault;
            outcome.position = m_at;
        }
        return outcome;
    }

private:
    using CoordinateList = ShapesBuilder::CoordinateList;
    using RingList = ShapesBuilder::RingList;

    bool Fail(char const * fault)
    {
        m_fault = fault;
        return false;
    }

    char Peek() const noexcept { return m_at < m_text.size() ? m_text[m_at] : '\0'; }

    // How many.
    std::size_t SkipSpaces() noexcept
    {
        std::size_t const start = m_at;
        while (m_at < m_text.size() && IsSpace(m_text[m_at]))
            ++m_at;
        return m_at - start;
    }

    bool Take(char c) noexcept
    {
        SkipSpaces();
        if (Peek() != c)
            return false;
        ++m_at;
        return true;
    }

    // The letters from here on; not taken.
    std::string_view NextWord() noexcept
    {
        SkipSpaces();
        std::size_t end = m_at;
        while (end < m_text.size() && IsLetter(m_text[end]))
            ++end;
        return m_text.substr(m_at, end - m_at);
    }

    bool TakeWord(std::string_view upper) noexcept
    {
        if (!SameWord(NextWord(), upper))
            return false;
        m_at += upper.size();
        return true;
    }

    // "SRID=n;" or nothing.
    bool Reference(bool plain, bool withReference, std::int32_t & srid)
    {
        if (!TakeWord("SRID"))
            return plain || Fail("a system of reference is missing");
        if (!withReference)
            return Fail("a system of reference where none may stand");
        if (!Take('='))
            return Fail("SRID without =");
        SkipSpaces();
        char const * const first = m_text.data() + m_at;
        auto const [end, error] = std::from_chars(first, m_text.data() + m_text.size(), srid);
        if (error != std::errc() || srid < 0)
            return Fail("the system of reference is no number");
        m_at += static_cast<std::size_t>(end - first);
        return Take(';') || Fail("a system of reference without ; behind it");
    }

    bool End()
    {
        SkipSpaces();
        return m_at == m_text.size() || Fail("text behind the shape");
    }

    bool Shape(int depth)
    {
        std::string_view word = NextWord();
        int numbers = 0;
        Tag const * tag = FindTag(word);
        // The mark may be written to the tag: POINTZ.
        for (std::size_t mark = 1; tag == nullptr && mark <= 2 && mark < word.size(); ++mark) {
            numbers = NumbersOfMark(word.substr(word.size() - mark));
            if (numbers != 0)
                tag = FindTag(word.substr(0, word.size() - mark));
        }
        if (tag == nullptr)
            return Fail("no kind of shape");
        m_at += word.size();
        if (numbers == 0) {
            word = NextWord();
            numbers = NumbersOfMark(word);
            if (numbers != 0)
                m_at += word.size();
        }
        m_numbers = numbers;
        return Body(tag->kind, depth);
    }

    bool Body(ShapeType kind, int depth)
    {
        switch (kind) {
        case ShapeType::Point: return Point();
        case ShapeType::LineString: m_builder.Count(m_builder.Open(kind)); return LineString();
        case ShapeType::Polygon: m_builder.Count(m_builder.Open(kind)); return Polygon();
        case ShapeType::MultiPoint: return MultiPoint(m_builder.Open(kind));
        case ShapeType::MultiLineString: return Many(m_builder.Open(kind), [this] { return LineString(); });
        case ShapeType::MultiPolygon: return Many(m_builder.Open(kind), [this] { return Polygon(); });
        case ShapeType::GeometryCollection:
            if (depth == kMostNesting)
                return Fail("collections are nested too deep");
            return Many(m_builder.Open(kind), [this, depth] { return Shape(depth + 1); });
        default: m_unknown = true; return Foreign(depth);
        }
    }

    // ( item , item ) with at least one.
    template <class Item>
    bool List(Item item)
    {
        if (!Take('('))
            return Fail("( or EMPTY is missing");
        do {
            if (!item())
                return false;
        } while (Take(','));
        return Take(')') || Fail(", or ) is missing");
    }

    template <class Item>
    bool ListOrEmpty(Item item)
    {
        return TakeWord("EMPTY") || List(item);
    }

    template <class Item>
    bool Many(std::size_t place, Item item)
    {
        return ListOrEmpty([&] {
            m_builder.Count(place);
            return item();
        });
    }

    bool Point()
    {
        if (TakeWord("EMPTY")) {
            m_builder.AddEmptyPoint();
            return true;
        }
        bool taken = false;
        return List([&] {
            if (std::exchange(taken, true))
                return Fail("a point has two coordinates");
            return Coordinate([this](GeometryCoordinate const & c) { m_builder.AddPoint(c); });
        });
    }

    bool MultiPoint(std::size_t place)
    {
        return ListOrEmpty([&] {
            auto const add = [&](GeometryCoordinate const & c) { m_builder.AddPointOf(place, c); };
            if (TakeWord("EMPTY")) {
                m_builder.AddEmptyPointOf(place);
                return true;
            }
            if (!Take('('))
                return Coordinate(add);
            return Coordinate(add) && (Take(')') || Fail("a point without ) behind it"));
        });
    }

    bool Coordinates(CoordinateList & list)
    {
        return List([&] { return Coordinate([&](GeometryCoordinate const & c) { list.push_back(c); }); });
    }

    bool LineString()
    {
        CoordinateList & list = m_builder.LineStrings().emplace_back();
        return TakeWord("EMPTY") || (Coordinates(list) && Passes(ShapesBuilder::FaultOfLineString(list)));
    }

    bool Polygon()
    {
        RingList & rings = m_builder.Polygons().emplace_back();
        return ListOrEmpty([&] {
            CoordinateList & ring = rings.emplace_back();
            return Coordinates(ring) && Passes(ShapesBuilder::FaultOfRing(ring));
        });
    }

    bool Passes(char const * fault) { return fault == nullptr || Fail(fault); }

    // Two to four numbers, of which the first two are kept; as many as the mark says, or as in the shape's first
    // coordinate.
    template <class Add>
    bool Coordinate(Add add)
    {
        double values[4];
        int n = 0;
        do {
            if (!Number(values[n]))
                return false;
            ++n;
        } while (n < 4 && SkipSpaces() > 0 && Peek() != ',' && Peek() != ')' && m_at < m_text.size());
        if (n < 2)
            return Fail("a coordinate has one number");
        if (m_numbers == 0)
            m_numbers = n;
        if (m_numbers != n)
            return Fail("a coordinate has more or fewer numbers than the others");
        add(GeometryCoordinate(values[0], values[1], GeometryCoordinate::Bias::None()));
        return true;
    }

    bool Number(double & value)
    {
        SkipSpaces();
        std::size_t start = m_at;
        if (Peek() == '+')
            ++start;
        // from_chars takes a minus sign, and the words of infinity and NaN, which have no place here.
        std::size_t const digits = start + static_cast<std::size_t>(start == m_at && Peek() == '-');
        if (digits >= m_text.size() || !(IsDigit(m_text[digits]) || m_text[digits] == '.'))
            return Fail("a number is missing");
        char const * const first = m_text.data() + start;
        auto const [end, error] = std::from_chars(first, m_text.data() + m_text.size(), value);
        if (error == std::errc::result_out_of_range)
            return Fail("a number is beyond what a coordinate holds");
        if (error != std::errc())
            return Fail("a number is missing");
        m_at = start + static_cast<std::size_t>(end - first);
        return true;
    }

    // The body of a kind that the model does not hold, for its form alone: coordinates, lists and tagged shapes mixed.
    bool Foreign(int depth)
    {
        if (TakeWord("EMPTY"))
            return true;
        if (depth == kMostNesting)
            return Fail("shapes are nested too deep");
        return List([this, depth] {
            SkipSpaces();
            if (Peek() == '(')
                return Foreign(depth + 1);
            if (!IsLetter(Peek()))
                return Coordinate([](GeometryCoordinate const &) {});
            if (TakeWord("EMPTY"))
                return true;
            int const numbers = m_numbers;
            bool const read = Shape(depth + 1);
            m_numbers = numbers;
            return read;
        });
    }

    std::string_view m_text;
    std::size_t m_at = 0;
    char const * m_fault = nullptr;
    int m_numbers = 0;  // of the shape that is being read; 0: not known yet
    bool m_unknown = false;
    ShapesBuilder m_builder;
};

}  // namespace

ReadOutcome ReadWkt(std::string const & text, bool plain, bool withReference)
{
    if (IsTooLong(text))
        return {nullptr, "the text is longer than 2 GiB", 0};
    return WktParser(text).Parse(plain, withReference);
}

}  // namespace velgeo::detail
