#include "velcoredata/data/LocalFieldName.h"

inline namespace K_lnm {

LocalFieldName operator""_lnm(char16_t const * text, std::size_t length)
{
    return LocalFieldName(FieldName::ParseLocal(TString(text, static_cast<int>(length))));
}

LocalFieldName operator""_lnm(wchar_t const * text, std::size_t length)
{
    return LocalFieldName(FieldName::ParseLocal(TString(text, static_cast<int>(length))));
}

}  // namespace K_lnm
