#pragma once

#include <memory>

#include "velcoreplatform/TString.h"
#include "velicu/Export.h"

namespace VelICU_V2 {

// Text in ICU's own string, for operations that keep pointing into it. Immutable; may be read from several threads.
class VELICU_API ICUString
{
public:
    struct Native;  // ICU's string, known to this layer's sources

    // UTF-16 text of `length` code units, up to the terminator for -1. A null pointer gives the empty string.
    static std::unique_ptr<ICUString> createInstance(char16_t const * text, int length = -1);
    // UTF-8 text; ill-formed sequences become U+FFFD.
    static std::unique_ptr<ICUString> createInstance(char const * text, int length = -1);
    static std::unique_ptr<ICUString> createInstance(TString const & text);

    ~ICUString();

    int length() const noexcept;  // code units
    TString ToTString() const;

    explicit ICUString(std::unique_ptr<Native> native);
    Native const & GetNative() const noexcept { return *m_native; }

private:
    std::unique_ptr<Native> m_native;
};

}  // namespace VelICU_V2
