#include "velcoredata/utility/SpatialEngine.h"

#include <memory>
#include <string>
#include <utility>

#include "velgeo/BasicServices.h"
#include "velgeo/GeoJSONSerialization.h"
#include "velgeo/WktSerialization.h"

namespace {

constexpr int kBothForms = velgeo::WktSerialization::kPlain | velgeo::WktSerialization::kWithReference;
static_assert(kBothForms == 3);

// Whatever goes wrong, lack of memory too: null. Bad text comes back as null from the readers, without a throw.
template <class Reader>
std::unique_ptr<velgeo::Spatial> ReadOrNull(Reader read)
{
    try {
        return read();
    } catch (...) {
        return nullptr;
    }
}

bool IsKnown(std::unique_ptr<velgeo::Spatial> const & spatial)
{
    return spatial != nullptr && !spatial->IsUnknown();
}

}  // namespace

void SpatialEngine::Initialize(TString const & resourceDirectory)
{
    velgeo::BasicServices::Register();
    velgeo::BasicServices::SetProjResourceDirectory(resourceDirectory.toStdString());
}

void SpatialEngine::Shutdown()
{
    velgeo::BasicServices::Unregister();
}

void SpatialEngine::CastStringToSpatial(TString const & text, DataValue & out)
{
    std::string const utf8 = text.toStdString();
    auto spatial = ReadOrNull([&] { return velgeo::WktSerialization::TryRead(utf8, kBothForms); });
    if (!IsKnown(spatial))
        spatial = ReadOrNull([&] { return velgeo::GeoJSONSerialization::TryRead(utf8); });
    if (IsKnown(spatial))
        out.SetSpatial(std::move(spatial));
    else
        out.MakeSpecial(DataValueTypes::Null, DataType::Spatial);
}
