// TPath: a path in the file system, as text with '/' between the parts.
#pragma once

#include "velcoreplatform/Export.h"
#include "velcoreplatform/TString.h"

class VELCOREPLATFORM_API TPath
{
public:
    TPath() = default;
    TPath(char16_t const * text) : m_text(text) {}
    TPath(TString const & text) : m_text(text) {}

    // Joins with one '/'. An empty side gives the other; an absolute right side replaces the left.
    TPath operator/(TPath const & relative) const;
    operator TString() const { return m_text; }
    bool IsEmpty() const noexcept { return m_text.isEmpty(); }

    friend bool operator==(TPath const & a, TPath const & b) noexcept { return a.m_text == b.m_text; }

private:
    TString m_text;
};

// True for anything that exists under the path: file, directory or link target; also for a compiled-in resource (":/").
VELCOREPLATFORM_API bool FileExists(TPath const & path);

// The absolute directory of the loaded module (program or shared library) that holds the address; empty for an address
// in none.
VELCOREPLATFORM_API TPath ModuleDirectory(void const * addressInModule);
