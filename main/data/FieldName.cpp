#include "velcoredata/data/FieldName.h"

FieldName::~FieldName() = default;

std::unique_ptr<FieldName> FieldName::TryParseFieldName(TString const & text)
{
    std::unique_ptr<QualifiedName> name = TryParseQualifiedName(text, false);
    return name == nullptr ? nullptr : std::make_unique<FieldName>(std::move(*name));
}

inline namespace K_fn {

FieldName operator""_fn(char16_t const * text, std::size_t length)
{
    return FieldName::ParseGlobal(TString(text, static_cast<int>(length)));
}

FieldName operator""_fn(wchar_t const * text, std::size_t length)
{
    return FieldName::ParseGlobal(TString(text, static_cast<int>(length)));
}

}  // namespace K_fn
