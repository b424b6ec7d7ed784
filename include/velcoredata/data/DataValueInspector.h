// DataValueInspector: the visitor through which code reads a value without a switch of its own.
//
// DataValue::Accept calls exactly one operation: InspectSpecial for a marker, else the one of the value's type. A
// Binary value without a marker calls none: it is invisible to inspectors. A Tuple is handed over whole; Tuple::Accept
// visits its members. What an inspector raises passes through.
#pragma once

#include <memory>

#include "velcoredata/core/Export.h"
#include "velcoredata/data/DataType.h"
#include "velcoredata/data/DateTime.h"
#include "velcoredata/data/Time.h"
#include "velsys/RefCntPtr.h"

class Collation;
class TString;
class Tuple;
namespace velgeo {
class Spatial;
}

class VELCOREDATA_API DataValueInspector
{
public:
    DataValueInspector() = default;
    DataValueInspector(DataValueInspector const &) = default;
    DataValueInspector & operator=(DataValueInspector const &) = default;

    virtual ~DataValueInspector();
    virtual void InspectSpecial(DataValueTypes::Special special, DataType type) = 0;
    virtual void InspectBool(bool value) = 0;
    virtual void InspectInt(long long value) = 0;
    // Precision and scale are -1 for "none".
    virtual void InspectReal(double value, signed char precision, signed char scale) = 0;
    virtual void InspectDate(DateTime value) = 0;
    virtual void InspectDatetime(DateTime value) = 0;
    virtual void InspectTime(Time value) = 0;
    virtual void InspectString(Collation const & collation, TString const & text) = 0;
    // These two do nothing unless they are overridden.
    virtual void InspectTuple(RefCntPtr<Tuple, RefCntObject> value);
    virtual void InspectSpatial(std::shared_ptr<velgeo::Spatial const> value);
};
