#include "velcoredata/data/AliasedDataValue.h"

#include "velcoredata/utility/DataValueOperators.h"

int AliasedDataValue::Compare(AliasedDataValue const & a, AliasedDataValue const & b, bool fuzzy)
{
    int const order = DataValueOperators().Compare(a.m_value, b.m_value, fuzzy);
    if (order != 0)
        return order;
    return a.m_alias == b.m_alias ? 0 : -1;
}

int AliasedDataValue::CompareAliases(AliasedDataValue const & a, AliasedDataValue const & b) noexcept
{
    return a.m_alias.Compare(b.m_alias);
}
