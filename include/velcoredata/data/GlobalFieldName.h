// GlobalFieldName: the name of a field with its data source, [source].[field]. A type of its own, so that a signature
// can say which form of name it wants.
#pragma once

#include <cstddef>
#include <functional>

#include "velcoredata/core/Export.h"
#include "velcoredata/data/FieldName.h"
#include "velcoredata/data/LocalFieldName.h"

class VELCOREDATA_API GlobalFieldName
{
public:
    // Shares the block.
    GlobalFieldName(FieldName const & name) noexcept : m_name(name) {}
    // MakeGlobalName(dataSource, local.AsFieldName()).
    GlobalFieldName(TString const & dataSource, LocalFieldName const & local);
    GlobalFieldName(GlobalFieldName const &) noexcept = default;
    GlobalFieldName & operator=(GlobalFieldName const &) noexcept = default;

    FieldName AsFieldName() const noexcept { return m_name; }
    // The root. Raises as QualifiedName::GetRootValue for a name without components.
    TString const & GetDataSourceName() const { return m_name.GetDataSourceName(); }
    TString const & GetFullValue() const { return m_name.GetFullValue(); }
    // MakeLocalName in its copying form: a name of one component is local already.
    LocalFieldName GetLocalFieldName() const;

    // Those of FieldName.
    friend bool operator==(GlobalFieldName const & a, GlobalFieldName const & b) { return a.m_name == b.m_name; }
    friend bool operator<(GlobalFieldName const & a, GlobalFieldName const & b) { return a.m_name < b.m_name; }

private:
    FieldName m_name;
};

template <>
struct std::hash<GlobalFieldName>
{
    std::size_t operator()(GlobalFieldName const & name) const { return name.AsFieldName().Hash(); }
};

// u"[a].[b]"_gnm is GlobalFieldName(FieldName::ParseGlobal of the text).
inline namespace K_gnm {
VELCOREDATA_API GlobalFieldName operator""_gnm(char16_t const * text, std::size_t length);
VELCOREDATA_API GlobalFieldName operator""_gnm(wchar_t const * text, std::size_t length);
}  // namespace K_gnm
