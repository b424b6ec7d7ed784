// Names of the resource archives, and how the directory of this library is read.
#pragma once

#include "velcoreplatform/TString.h"

namespace detail {

inline constexpr char16_t brandArchive[] = u"veltria-oem.rcc";
inline constexpr char16_t languageArchive[] = u"vellangres.rcc";
inline constexpr char16_t brandPrefix[] = u"OEM";
inline constexpr char16_t translationResource[] = u"TQRC_VELSTRINGS";
inline constexpr char16_t resourceRoot[] = u":/";

// The directory whose resources serve a library that lies in `moduleDirectory`: 32-bit builds ("\bin32") share those of
// "\bin", and with alternative paths the build tree of release 1.3 those of its 64-bit neighbour.
inline TString LibraryResourceDirectory(TString moduleDirectory, bool allowAlternativePaths)
{
    moduleDirectory.replace(TString(u"\\bin32"), TString(u"\\bin"), TString::CaseSensitive);
    if (allowAlternativePaths && moduleDirectory.contains(TString(u"veltria-1.3\\build")) &&
        !moduleDirectory.endsWith(TString(u"-x64")))
        moduleDirectory.append(u"-x64");
    return moduleDirectory;
}

}  // namespace detail
