#include "velcoredata/utility/SpatialTransform.h"

#include "velgeo/DefaultGeometry.h"
#include "velgeo/Geography.h"

namespace {

using velgeo::GeometryShapes;

// The pair that a transform is given, out of a stored coordinate.
std::pair<double, double> PairOf(velgeo::GeographyCoordinate const & c)
{
    return {velgeo::Degrees(c.Longitude()).Value(), velgeo::Degrees(c.Latitude()).Value()};
}
std::pair<double, double> PairOf(velgeo::GeometryCoordinate const & c)
{
    return {c.X(), c.Y()};
}

template <class Coordinate>
class Rebuild
{
public:
    explicit Rebuild(SpatialTransform const & transform) : m_transform(transform) {}

    std::shared_ptr<velgeo::Geometry const> Of(velgeo::Shapes<Coordinate> const & shapes) const
    {
        auto points = Transformed<GeometryShapes::CoordinateList>(shapes.points);
        auto lineStrings = Transformed<GeometryShapes::RingList>(shapes.lineStrings);
        auto polygons = Transformed<GeometryShapes::PolygonList>(shapes.polygons);
        return std::make_shared<velgeo::DefaultGeometry const>(std::move(points), std::move(lineStrings),
                                                               std::move(polygons), velgeo::Geometry::Attributes());
    }

private:
    template <class List, class Source>
    List Transformed(Source const & source) const
    {
        List list(velgeo::GetMemoryResource());
        list.reserve(source.size());
        for (auto const & element : source)
            list.push_back(One<typename List::value_type>(element));
        return list;
    }

    template <class Element, class Source>
    Element One(Source const & source) const
    {
        if constexpr (std::is_same_v<Source, Coordinate>) {
            auto const [first, second] = PairOf(source);
            std::pair<double, double> out;
            m_transform.Transform(out, first, second);
            return Element(out.first, out.second, velgeo::GeometryCoordinate::Bias::None());
        } else {
            return Transformed<Element>(source);
        }
    }

    SpatialTransform const & m_transform;
};

}  // namespace

SpatialTransform::SpatialTransform() = default;
SpatialTransform::SpatialTransform(SpatialTransform const &) = default;
SpatialTransform & SpatialTransform::operator=(SpatialTransform const &) = default;
SpatialTransform::~SpatialTransform() = default;

std::shared_ptr<velgeo::Geometry const>
SpatialTransform::Execute(std::shared_ptr<velgeo::Spatial const> const & spatial, SpatialTransform const & transform)
{
    if (spatial != nullptr && spatial->IsGeography())
        return Rebuild<velgeo::GeographyCoordinate>(transform).Of(spatial->AsGeography()->GetShapes());
    if (spatial != nullptr && spatial->IsGeometry())
        return Rebuild<velgeo::GeometryCoordinate>(transform).Of(spatial->AsGeometry()->GetShapes());
    return std::make_shared<velgeo::DefaultGeometry const>();
}
