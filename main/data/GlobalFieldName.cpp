#include "velcoredata/data/GlobalFieldName.h"

#include "velcoredata/data/MakeQualifiedName.h"

GlobalFieldName::GlobalFieldName(TString const & dataSource, LocalFieldName const & local)
    : m_name(MakeGlobalName(dataSource, local.AsFieldName()))
{}

LocalFieldName GlobalFieldName::GetLocalFieldName() const
{
    return LocalFieldName(MakeLocalName(m_name));
}

inline namespace K_gnm {

GlobalFieldName operator""_gnm(char16_t const * text, std::size_t length)
{
    return GlobalFieldName(FieldName::ParseGlobal(TString(text, static_cast<int>(length))));
}

GlobalFieldName operator""_gnm(wchar_t const * text, std::size_t length)
{
    return GlobalFieldName(FieldName::ParseGlobal(TString(text, static_cast<int>(length))));
}

}  // namespace K_gnm
