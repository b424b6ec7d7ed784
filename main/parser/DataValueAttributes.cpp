// The attributes that go with the text of a value.
#include <utility>
#include <vector>

#include "main/data/DataTypeNames.h"
#include "velcoredata/data/Collation.h"
#include "velcoredata/data/DataValue.h"
#include "velcoredata/data/Tuple.h"
#include "velcoredata/parser/DataValueFormatter.h"
#include "velsys/ThrowSite.h"

namespace {

using Attributes = std::unordered_map<TString, TString>;

void Add(Attributes & attributes, char16_t const * key, TString const & text)
{
    auto const [place, added] = attributes.try_emplace(TString(key), text);
    if (!added && place->second != text)
        VELTRIA_THROW_NAMED(VeltriaException, DataValueFormatter, 0x89515929, 1, 3,
                            u"Member values of Tuple-type DataValues must all have the same type attributes.");
}

}  // namespace
std::unordered_map<TString, TString> DataValueFormatter::GetDataValueTypeAttributes(DataValue const & value)
{
    Attributes attributes;
    DataValueFormatter formatter;
    // What belongs to a Real and to a String; the other types have none.
    auto const addOf = [&](DataValue const & of) {
        if (of.HasPrecision()) {
            formatter.InspectPrecision(of.GetPrecision());
            Add(attributes, u"precision", formatter.GetResult());
        }
        if (of.HasScale()) {
            formatter.InspectScale(of.GetScale());
            Add(attributes, u"scale", formatter.GetResult());
        }
        if (of.GetDataType() == DataType::String) {
            Collation const & collation = of.GetCollation();
            Add(attributes, u"collation", collation.GetName());
            formatter.InspectCharsetID(collation.GetCharsetID());
            Add(attributes, u"charset", formatter.GetResult());
        }
    };

    if (value.GetDataType() != DataType::Tuple) {
        Add(attributes, u"datatype", detail::DataTypeAttributeName(value.GetDataType()));
        addOf(value);
        return attributes;
    }
    auto const tuple = value.GetTuple();
    std::vector<DataValue> names;
    for (DataValue const & member : tuple->GetValues()) {
        addOf(member);
        names.push_back(DataValue::FromString(detail::DataTypeAttributeName(member.GetDataType())));
    }
    // The names stand without quotes.
    FormatOptions options;
    options.quoteStrings = false;
    options.inheritOptionsInTuples = true;
    DataValueFormatter typeNames(options);
    typeNames.InspectTuple(RefCntPtr<Tuple, RefCntObject>(new Tuple(std::move(names))));
    Add(attributes, u"tuple-datatypes", typeNames.GetResult());
    formatter.InspectInt(tuple->GetSize());
    Add(attributes, u"tuple-size", formatter.GetResult());
    return attributes;
}
