#include "velgeo/MemoryResource.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <type_traits>

#include "velgeo/Geometry.h"
#include "velgeo/WktSerialization.h"

namespace {

// While it lives, std::pmr's default resource gives no memory.
class NoDefaultMemory
{
public:
    NoDefaultMemory() : m_before(std::pmr::set_default_resource(std::pmr::null_memory_resource())) {}
    ~NoDefaultMemory() { std::pmr::set_default_resource(m_before); }
    NoDefaultMemory(NoDefaultMemory const &) = delete;

private:
    std::pmr::memory_resource * m_before;
};

}  // namespace

TEST(MemoryResource, IsOneForTheProcess)
{
    ASSERT_NE(velgeo::GetMemoryResource(), nullptr);
    EXPECT_EQ(velgeo::GetMemoryResource(), velgeo::GetMemoryResource());
    static_assert(std::is_same_v<velgeo::ResourceVector<int>::allocator_type, velgeo::ResourceAllocator<int>>);
}

TEST(MemoryResource, EveryListOfAReadObjectLivesInIt)
{
    NoDefaultMemory const none;
    auto const spatial = velgeo::WktSerialization::Read(
        "GEOMETRYCOLLECTION (POINT (1 2), MULTILINESTRING ((1 2, 3 4), (5 6, 7 8)),"
        " MULTIPOLYGON (((0 0, 1 0, 1 1, 0 0), (0 0, 1 0, 1 1, 0 0)), ((0 0, 1 0, 1 1, 0 0))))",
        3);
    auto const & shapes = spatial->AsGeometry()->GetShapes();
    auto * const resource = velgeo::GetMemoryResource();
    EXPECT_EQ(shapes.structure.get_allocator().resource(), resource);
    EXPECT_EQ(shapes.points.get_allocator().resource(), resource);
    EXPECT_EQ(shapes.lineStrings.get_allocator().resource(), resource);
    EXPECT_EQ(shapes.lineStrings[1].get_allocator().resource(), resource);
    EXPECT_EQ(shapes.polygons[0][1].get_allocator().resource(), resource);
}
