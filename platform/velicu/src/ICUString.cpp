#include "velicu/ICUString.h"

#include "NativeString.h"

namespace VelICU_V2 {

ICUString::ICUString(std::unique_ptr<Native> native) : m_native(std::move(native)) {}

ICUString::~ICUString() = default;

std::unique_ptr<ICUString> ICUString::createInstance(char16_t const * text, int length)
{
    icu::UnicodeString copy;
    if (text != nullptr)
        copy.setTo(text, length < 0 ? TString::length(text) : length);
    return std::make_unique<ICUString>(std::unique_ptr<Native>(new Native{std::move(copy)}));
}

std::unique_ptr<ICUString> ICUString::createInstance(char const * text, int length)
{
    if (text == nullptr)
        return createInstance(u"", 0);
    auto const bytes = length < 0 ? icu::StringPiece(text) : icu::StringPiece(text, length);
    return std::make_unique<ICUString>(std::unique_ptr<Native>(new Native{icu::UnicodeString::fromUTF8(bytes)}));
}

std::unique_ptr<ICUString> ICUString::createInstance(TString const & text)
{
    return createInstance(text.constData(), text.length());
}

int ICUString::length() const noexcept
{
    return m_native->text.length();
}

TString ICUString::ToTString() const
{
    return VelICU_V2::ToTString(m_native->text);
}

}  // namespace VelICU_V2
