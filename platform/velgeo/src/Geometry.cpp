#include "velgeo/Geometry.h"

velgeo::Geometry::~Geometry() = default;
