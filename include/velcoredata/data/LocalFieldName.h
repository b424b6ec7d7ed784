// LocalFieldName: the name of a field within one data source, [field]. A type of its own, so that a signature can say
// which form of name it wants.
#pragma once

#include <cstddef>
#include <functional>
#include <set>

#include "velcoredata/core/Export.h"
#include "velcoredata/data/FieldName.h"

class VELCOREDATA_API LocalFieldName
{
public:
    // Shares the block.
    LocalFieldName(FieldName const & name) noexcept : m_name(name) {}
    // One component, as it stands: LocalFieldName(u"a.b") is [a.b].
    LocalFieldName(TString const & name) : m_name(QualifiedName(name)) {}
    LocalFieldName(LocalFieldName const &) noexcept = default;
    LocalFieldName & operator=(LocalFieldName const &) noexcept = default;
    ~LocalFieldName() = default;

    FieldName const & AsFieldName() const noexcept { return m_name; }
    TString const & GetFullValue() const { return m_name.GetFullValue(); }

    // Those of QualifiedName.
    friend bool operator==(LocalFieldName const & a, LocalFieldName const & b) { return a.m_name == b.m_name; }
    friend bool operator<(LocalFieldName const & a, LocalFieldName const & b) { return a.m_name < b.m_name; }

private:
    FieldName m_name;
};

template <>
struct std::hash<LocalFieldName>
{
    std::size_t operator()(LocalFieldName const & name) const { return name.AsFieldName().Hash(); }
};

// As that of a set of FieldName.
template <>
struct std::hash<std::set<LocalFieldName>>
{
    std::size_t operator()(std::set<LocalFieldName> const & names) const { return detail::HashOfNames(names); }
};

// u"[a]"_lnm is LocalFieldName(FieldName::ParseLocal of the text).
inline namespace K_lnm {
VELCOREDATA_API LocalFieldName operator""_lnm(char16_t const * text, std::size_t length);
VELCOREDATA_API LocalFieldName operator""_lnm(wchar_t const * text, std::size_t length);
}  // namespace K_lnm
