#include "velcoreplatform/TPath.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>

#include <gtest/gtest.h>

#include "tests/support/ErrorMatchers.h"

namespace {

namespace fs = std::filesystem;

TString Text(TPath const & path)
{
    return path;
}

TPath PathOf(fs::path const & path)
{
    return TPath(TString::fromStdString(path.string()));
}

TEST(TPath, IsMadeFromNothingALiteralAndText)
{
    EXPECT_TRUE(TPath().IsEmpty());
    EXPECT_EQ(Text(TPath()), u"");
    EXPECT_EQ(Text(TPath(u"/a/b")), u"/a/b");
    EXPECT_EQ(Text(TPath(TString(u"a"))), u"a");
    EXPECT_FALSE(TPath(u"a").IsEmpty());
    TPath assigned;
    assigned = TPath(u"a");
    TPath const copy(assigned);
    EXPECT_TRUE(copy == assigned);
    EXPECT_FALSE(copy == TPath(u"b"));
}

TEST(TPath, JoinsWithOneSlash)
{
    struct Row
    {
        char16_t const * left;
        char16_t const * right;
        char16_t const * expected;
    };
    Row const rows[] = {
        {u"a", u"b", u"a/b"}, {u"a/", u"b", u"a/b"}, {u"/", u"b", u"/b"},  {u"", u"b", u"b"},
        {u"a", u"", u"a"},    {u"", u"", u""},       {u"a", u"/b", u"/b"}, {u"a/b", u"c/d", u"a/b/c/d"},
        {u":", u"b", u":/b"},
    };
    for (Row const & row : rows)
        EXPECT_EQ(Text(TPath(row.left) / TPath(row.right)), row.expected);
    EXPECT_EQ(Text(TPath(u"a") / u"b" / TString(u"c")), u"a/b/c");
}

TEST(FileExists, IsTrueForFilesDirectoriesAndLinksToThem)
{
    std::string pattern = (fs::temp_directory_path() / "velcoreplatform-path-XXXXXX").string();
    fs::path const folder = mkdtemp(pattern.data());
    std::ofstream(folder / "file") << 'x';
    fs::create_symlink("file", folder / "link");
    fs::create_symlink("nothing", folder / "broken");
    std::ofstream(folder / "\xC3\xBC") << 'x';

    EXPECT_TRUE(FileExists(PathOf(folder)));
    EXPECT_TRUE(FileExists(PathOf(folder / "file")));
    EXPECT_TRUE(FileExists(PathOf(folder / "link")));
    EXPECT_TRUE(FileExists(PathOf(folder) / u"\u00FC"));
    EXPECT_FALSE(FileExists(PathOf(folder / "broken")));
    EXPECT_FALSE(FileExists(PathOf(folder / "nothing")));
    EXPECT_FALSE(FileExists(TPath()));
    fs::remove_all(folder);
}

int g_inThisProgram = 0;

TEST(ModuleDirectory, IsTheDirectoryOfTheModuleThatHoldsTheAddress)
{
    fs::path const program = fs::canonical("/proc/self/exe").parent_path();
    EXPECT_EQ(Text(ModuleDirectory(&g_inThisProgram)).toStdString(), program.string());
    TString const library = ModuleDirectory(reinterpret_cast<void const *>(&std::abort));
    EXPECT_TRUE(FileExists(TPath(library) / u"libc.so.6")) << library;
}

TEST(ModuleDirectory, IsAnAbsolutePathForALibraryOfOurs)
{
    TString const directory = ModuleDirectory(reinterpret_cast<void const *>(&FileExists));
    EXPECT_TRUE(directory.startsWith(u"/")) << directory;
    EXPECT_TRUE(FileExists(TPath(directory) / u"libvelcoreplatform.so.0")) << directory;
}

TEST(ModuleDirectory, IsEmptyForAnAddressInNoModule)
{
    int onTheStack = 0;
    EXPECT_TRUE(ModuleDirectory(&onTheStack).IsEmpty());
    EXPECT_TRUE(ModuleDirectory(nullptr).IsEmpty());
}

}  // namespace
