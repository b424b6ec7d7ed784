// SpatialEngine: start and stop of the geometry services, and texts read as spatial values.
#pragma once

#include "velcoredata/core/Export.h"
#include "velcoredata/data/DataValue.h"
#include "velcoreplatform/TString.h"

/// No state of its own; all operations may be called from any thread.
class VELCOREDATA_API SpatialEngine
{
public:
    /// Before the first spatial cast. The directory holds the resources of projections.
    static void Initialize(TString const & resourceDirectory);
    /// After the last spatial cast.
    static void Shutdown();

    /// Reads well-known text, and what is none, or is of a kind that spatial objects do not have, as GeoJSON. Text that
    /// neither form can read makes `out` the null Spatial; nothing is raised. What `out` held before is released in
    /// both cases. docs/formats/spatial-text.md describes both forms.
    ///
    ///   CastStringToSpatial(u"POINT (1 2)", v)      v.GetSpatial()->IsGeometry()
    ///   CastStringToSpatial(u"{\"type\": \"Point\", \"coordinates\": [2.35, 48.85]}", v)      ...->IsGeography()
    ///   CastStringToSpatial(u"", v)                 v.IsNull()
    static void CastStringToSpatial(TString const & text, DataValue & out);
};
