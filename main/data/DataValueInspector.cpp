#include "velcoredata/data/DataValueInspector.h"

DataValueInspector::~DataValueInspector() = default;

void DataValueInspector::InspectTuple(RefCntPtr<Tuple, RefCntObject>) {}

void DataValueInspector::InspectSpatial(std::shared_ptr<velgeo::Spatial const>) {}
