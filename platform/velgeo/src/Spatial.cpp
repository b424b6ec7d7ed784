#include "velgeo/Spatial.h"

velgeo::Spatial::~Spatial() = default;
