// FieldName: the name of a field of a data source, a QualifiedName whose root is by convention the data source and
// whose other components are the field: [source].[field] is its global form, [field] its local form within one source.
// MakeQualifiedName.h turns one form into the other.
//
// Laws: std::hash of a set and of a vector with the same names in the same order agree; both give 0 for no names.
// Threads: as for QualifiedName.
#pragma once

#include <cstddef>
#include <functional>
#include <memory>
#include <set>
#include <unordered_map>
#include <utility>
#include <vector>

#include "velcoredata/core/Export.h"
#include "velcoredata/data/QualifiedName.h"
#include "velsys/Hash.h"

class VELCOREDATA_API FieldName : public QualifiedName
{
public:
    FieldName() noexcept = default;
    // Shares the block.
    FieldName(QualifiedName const & name) noexcept : QualifiedName(name) {}
    FieldName(QualifiedName && name) noexcept : QualifiedName(std::move(name)) {}
    FieldName(FieldName const &) noexcept = default;
    FieldName(FieldName &&) noexcept = default;
    ~FieldName() override;
    FieldName & operator=(FieldName const &) noexcept = default;
    FieldName & operator=(FieldName &&) noexcept = default;

    // Those of QualifiedName, with their errors. One cache serves both classes.
    static FieldName ParseGlobal(TString const & text) { return QualifiedName::ParseGlobal(text); }
    static FieldName ParseGlobal(TString const & text, std::unordered_map<TString, QualifiedName> & cache)
    {
        return QualifiedName::ParseGlobal(text, cache);
    }
    static FieldName ParseLocal(TString const & text) { return QualifiedName::ParseLocal(text); }
    static FieldName ParseLocal(TString const & text, std::unordered_map<TString, QualifiedName> & cache)
    {
        return QualifiedName::ParseLocal(text, cache);
    }
    static FieldName ParseUnquoted(TString const & text) { return QualifiedName::ParseUnquoted(text); }
    // Null for a text that does not parse; raises nothing.
    static std::unique_ptr<FieldName> TryParseFieldName(TString const & text);

    // The root. Raises as GetRootValue for a name without components.
    TString const & GetDataSourceName() const { return GetRootValue(); }
    TString const & GetLeafValue() const { return QualifiedName::GetLeafValue(); }
    // What a user is shown: the leaf as it stands, without brackets. Raises as GetLeafValue.
    TString const & FormatDisplay() const { return GetLeafValue(); }
};

namespace detail {

// From 0, each name folded in.
template <class Names>
std::size_t HashOfNames(Names const & names)
{
    unsigned long long hash = 0;
    for (auto const & name : names)
        hash = THashCombine(hash, std::hash<typename Names::value_type>()(name));
    return hash;
}

}  // namespace detail

template <>
struct std::hash<FieldName>
{
    std::size_t operator()(FieldName const & name) const { return name.Hash(); }
};

template <>
struct std::hash<std::set<FieldName>>
{
    std::size_t operator()(std::set<FieldName> const & names) const { return detail::HashOfNames(names); }
};

template <>
struct std::hash<std::vector<FieldName>>
{
    std::size_t operator()(std::vector<FieldName> const & names) const { return detail::HashOfNames(names); }
};

// u"[a].[b]"_fn is FieldName::ParseGlobal of the text.
inline namespace K_fn {
VELCOREDATA_API FieldName operator""_fn(char16_t const * text, std::size_t length);
VELCOREDATA_API FieldName operator""_fn(wchar_t const * text, std::size_t length);
}  // namespace K_fn
