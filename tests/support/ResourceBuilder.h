// Resource archives and translations that a test makes itself, with Qt's own compilers, in a folder that goes with it.
//
// A test program that uses it lists tests/support/ResourceBuilder.cpp among its sources and gets the programs' paths as
// VELCOREDATA_RCC and VELCOREDATA_LRELEASE.
#pragma once

#include <map>
#include <string>
#include <vector>

#include <QtCore/QTemporaryDir>

#include "velcoreplatform/TPath.h"

namespace test_support {

// A folder with the subfolders "work" and "app", which are the working directory and the directory of the program while
// the object lives.
class ResourceFolder
{
public:
    ResourceFolder();
    ~ResourceFolder();
    ResourceFolder(ResourceFolder const &) = delete;
    ResourceFolder & operator=(ResourceFolder const &) = delete;

    // The path of a file of the folder, "work/res/vellangres.rcc".
    std::string PathOf(std::string const & relative) const;
    // Makes the directories on the way too.
    void Write(std::string const & relative, std::string const & bytes) const;
    void Remove(std::string const & relative) const;

    // Packs resources (path inside the archive to bytes) into an archive.
    void Pack(std::string const & relative, std::map<std::string, std::string> const & resources) const;

private:
    QTemporaryDir m_folder;
    std::string m_workingBefore;
    TPath m_applicationBefore;
};

// The bytes of an archive, uncompressed.
std::string PackedResources(std::map<std::string, std::string> const & resources);

struct TranslatedText
{
    std::string context;
    std::string source;
    std::string translation;
};

// The bytes of compiled translations (.qm). The texts hold no characters that XML escapes.
std::string CompiledTranslation(std::vector<TranslatedText> const & texts);

}  // namespace test_support
