#include "velcoredata/formalism/OMeasures.h"

#include "velcoredata/data/Collation.h"

namespace OMeasures {

DataValue Encode(FieldName const & name)
{
    return DataValue(GetUnknownCollation(), name.GetFullValue());
}

DataValue Encode(IndexedFieldName const & name)
{
    DataValue value = Encode(name.GetFieldName());
    if (name.GetIndex() != 0) {
        TString const text = value.GetString() + u":" + TString::number(static_cast<unsigned long>(name.GetIndex()));
        value.SetString(value.GetCollation(), text);
    }
    return value;
}

FieldName Decode(DataValue const & value)
{
    return DecodeWithIndex(value).GetFieldName();
}

IndexedFieldName DecodeWithIndex(DataValue const & value)
{
    TString const & text = value.GetString();
    int const bracket = text.lastIndexOf(u']');
    int const colon = text.lastIndexOf(u':');
    if (colon == -1 || colon < bracket)
        return IndexedFieldName(FieldName::ParseGlobal(text), 0);
    int const index = text.mid(colon + 1).toInt();
    return IndexedFieldName(FieldName::ParseGlobal(text.left(colon)), static_cast<std::size_t>(index));
}

}  // namespace OMeasures
