// AliasedDataValue: a value with the alias that it is displayed by, empty for none.
#pragma once

#include "velcoredata/core/Export.h"
#include "velcoredata/data/DataValue.h"
#include "velcoreplatform/TString.h"

class VELCOREDATA_API AliasedDataValue
{
public:
    AliasedDataValue() = default;
    explicit AliasedDataValue(DataValue const & value) : m_value(value) {}
    AliasedDataValue(DataValue const & value, TString const & alias) : m_value(value), m_alias(alias) {}

    DataValue const & GetValue() const noexcept { return m_value; }
    void SetValue(DataValue const & value) { m_value = value; }
    TString const & GetAlias() const noexcept { return m_alias; }
    void SetAlias(TString const & alias) { m_alias = alias; }
    bool HasAlias() const noexcept { return !m_alias.isEmpty(); }

    // By the values (DataValueOperators::Compare with default flags); for equal values 0 if the aliases are equal, else
    // -1, in either order of the arguments: the alias does not order, it only separates.
    static int Compare(AliasedDataValue const & a, AliasedDataValue const & b, bool fuzzy);
    // By the aliases, code unit by code unit.
    static int CompareAliases(AliasedDataValue const & a, AliasedDataValue const & b) noexcept;

    friend bool operator==(AliasedDataValue const & a, AliasedDataValue const & b)
    {
        return a.m_value == b.m_value && a.m_alias == b.m_alias;
    }

private:
    DataValue m_value;
    TString m_alias;
};
