// Archives and translations that are cut, damaged or made to hurt: Qt trusts every offset in them, so what is not sound
// never reaches it.

#include <gtest/gtest.h>

#include <sys/stat.h>
#include <unistd.h>

#include <cstdint>
#include <string>
#include <vector>

#include <QtCore/QDirIterator>
#include <QtCore/QTranslator>

#include "main/core/ResourceArchive.h"
#include "main/core/TranslationData.h"
#include "tests/support/ResourceBuilder.h"
#include "velcoredata/core/ResourceRegistrationCache.h"
#include "velcoredata/core/TResource.h"

using test_support::CompiledTranslation;
using test_support::PackedResources;
using test_support::ResourceFolder;

namespace {

class Registry : public ResourceRegistrationCache
{};

std::string Number32(std::uint32_t number)
{
    std::string bytes;
    for (int shift = 24; shift >= 0; shift -= 8)
        bytes.push_back(static_cast<char>(number >> shift & 0xFF));
    return bytes;
}

std::string Patched(std::string bytes, std::size_t at, std::string const & patch)
{
    return bytes.replace(at, patch.size(), patch);
}

bool IsSoundArchive(std::string const & bytes)
{
    return detail::IsSoundArchive(reinterpret_cast<unsigned char const *>(bytes.data()), bytes.size());
}

bool IsSoundTranslation(std::string const & bytes)
{
    return detail::IsSoundTranslation(reinterpret_cast<unsigned char const *>(bytes.data()), bytes.size());
}

// Reads every byte of every resource below the root; the sum keeps the reads.
unsigned WalkAll(QString const & root)
{
    unsigned sum = 0;
    QDirIterator walk(root, QDirIterator::Subdirectories);
    while (walk.hasNext()) {
        TResource const resource{TString(walk.next())};
        sum += resource.isValid() ? 1 : 0;
        for (int i = 0; i < resource.size(); ++i)
            sum += resource.GetPtr()[i];
    }
    return sum;
}

// Loads the bytes as the German language archive and uses all that is in it.
bool Load(ResourceFolder const & folder, std::string const & bytes)
{
    folder.Write("work/res/de_DE/vellangres.rcc", bytes);
    Registry registry;
    bool const loaded = registry.LoadResource(u"vellangres.rcc", u"de_DE", TString());
    TString const path = registry.GetResourcePath(u"r", u"de_DE");
    EXPECT_TRUE(loaded || path.isEmpty());
    WalkAll(QStringLiteral(":/de_DE"));
    return loaded;
}

std::string Sample()
{
    return PackedResources({{"r", "german"}, {"sub/s", "deep"}, {"sub/t", "deeper"}});
}

// The offsets of an archive's tables stand behind its magic number and version.
struct Layout
{
    explicit Layout(std::string const & bytes) : tree(At(bytes, 8)), data(At(bytes, 12)), names(At(bytes, 16)) {}
    static std::size_t At(std::string const & bytes, std::size_t at)
    {
        std::size_t number = 0;
        for (std::size_t i = at; i < at + 4; ++i)
            number = number << 8 | static_cast<unsigned char>(bytes[i]);
        return number;
    }
    std::size_t tree;
    std::size_t data;
    std::size_t names;
};

constexpr std::size_t nodeSize = 22;

std::string SampleTranslation()
{
    return CompiledTranslation({{"IDS_A", "Day", "Tag"}, {"IDS_B", "Year", "Jahr"}, {"IDS_C", "None", "Keine"}});
}

std::string Magic()
{
    return SampleTranslation().substr(0, 16);
}

std::string Section(unsigned char tag, std::string const & bytes)
{
    return std::string(1, static_cast<char>(tag)) + Number32(static_cast<std::uint32_t>(bytes.size())) + bytes;
}

// Asks a translator made of the bytes for what is in them and for what is not.
void Ask(std::string const & bytes)
{
    QTranslator translator;
    if (!translator.load(reinterpret_cast<unsigned char const *>(bytes.data()), static_cast<int>(bytes.size()),
                         QString()))
        return;
    for (char const * context : {"IDS_A", "IDS_B", "IDS_C", "IDS_D", ""}) {
        for (char const * source : {"Day", "Year", "None", ""})
            translator.translate(context, source, nullptr, -1);
        translator.translate(context, "Day", "comment", 3);
    }
}

}  // namespace

TEST(DamagedArchives, AWholeOneLoads)
{
    ResourceFolder const folder;
    ASSERT_TRUE(IsSoundArchive(Sample()));
    EXPECT_TRUE(Load(folder, Sample()));
    EXPECT_TRUE(Load(folder, PackedResources({{"r", ""}}))) << "an empty resource";
}

TEST(DamagedArchives, OneThatIsCutAnywhereDoesNotCrash)
{
    ResourceFolder const folder;
    std::string const whole = Sample();
    for (std::size_t length = 0; length < whole.size(); ++length) {
        EXPECT_FALSE(IsSoundArchive(whole.substr(0, length))) << length;
        EXPECT_FALSE(Load(folder, whole.substr(0, length))) << length;
    }
}

TEST(DamagedArchives, OneWithAnyByteChangedDoesNotCrash)
{
    ResourceFolder const folder;
    std::string const whole = Sample();
    int refused = 0;
    for (std::size_t at = 0; at < whole.size(); ++at) {
        for (char const byte : {'\x00', '\x01', '\x7F', '\x80', '\xFF'})
            refused += Load(folder, Patched(whole, at, std::string(1, byte))) ? 0 : 1;
    }
    EXPECT_GT(refused, 100);
}

TEST(DamagedArchives, OnesMadeToHurtAreRefused)
{
    ResourceFolder const folder;
    std::string const whole = Sample();
    Layout const at(whole);
    std::size_t const nodes = (whole.size() - at.tree) / nodeSize;
    ASSERT_GE(nodes, 5u);
    std::size_t directory = 0;
    std::size_t file = 0;
    for (std::size_t node = 1; node < nodes; ++node)
        ((whole[at.tree + node * nodeSize + 5] & 2) != 0 ? directory : file) = at.tree + node * nodeSize;
    ASSERT_NE(directory, 0u);
    ASSERT_NE(file, 0u);

    std::pair<char const *, std::string> const rows[] = {
        {"nothing", ""},
        {"another magic number", Patched(whole, 0, "QRES")},
        {"version 0", Patched(whole, 4, Number32(0))},
        {"version 4", Patched(whole, 4, Number32(4))},
        {"the tree behind the end", Patched(whole, 8, Number32(static_cast<std::uint32_t>(whole.size())))},
        {"the tree far away", Patched(whole, 8, Number32(0xFFFFFFFF))},
        {"the data far away", Patched(whole, 12, Number32(0x7FFFFFFF))},
        {"the names far away", Patched(whole, 16, Number32(0xFFFFFFF0))},
        {"a root that is a file", Patched(whole, at.tree + 5, std::string(1, '\0'))},
        {"a root with endless children", Patched(whole, at.tree + 6, Number32(0xFFFFFFFF))},
        {"a root that is its own child", Patched(whole, at.tree + 10, Number32(0))},
        {"children far away", Patched(whole, at.tree + 10, Number32(0x0FFFFFFF))},
        {"a directory that holds itself",
         Patched(whole, directory + 10, Number32(static_cast<std::uint32_t>((directory - at.tree) / nodeSize)))},
        {"a directory that holds the root", Patched(whole, directory + 10, Number32(0))},
        {"two parents of one node", Patched(whole, directory + 10, Number32(1))},
        {"a name far away", Patched(whole, file, Number32(0xFFFFFFFF))},
        {"a name of no letters", Patched(whole, at.names, std::string(2, '\0'))},
        {"a name that is too long", Patched(whole, at.names, std::string("\xFF\xFF", 2))},
        {"bytes far away", Patched(whole, file + 10, Number32(0xFFFFFFF0))},
        {"more bytes than there are", Patched(whole, at.data, Number32(0xFFFFFFFF))},
        {"more bytes than a number holds", Patched(whole, at.data, Number32(0x80000000))},
    };
    for (auto const & [what, bytes] : rows) {
        EXPECT_FALSE(IsSoundArchive(bytes)) << what;
        EXPECT_FALSE(Load(folder, bytes)) << what;
    }
}

// An empty name would be a directory inside itself for whoever walks it.
TEST(DamagedArchives, NamesAreSingleStepsOfAPath)
{
    std::string const whole = PackedResources({{"abc", "x"}});
    std::size_t const name = Layout(whole).names + 6;
    auto const named = [&](char const * letters) {
        std::string bytes = whole;
        for (std::size_t i = 0; letters[i] != '\0'; ++i)
            bytes[name + 2 * i + 1] = letters[i];
        return Patched(bytes, name - 6, std::string{'\0', static_cast<char>(std::string(letters).size())});
    };
    for (char const * good : {"a", "ab", "abc", "...", ".a", "a.", "..a"})
        EXPECT_TRUE(IsSoundArchive(named(good))) << good;
    for (char const * bad : {"", ".", "..", "/", "a/", "/a", "a/b", "../"})
        EXPECT_FALSE(IsSoundArchive(named(bad))) << bad;
    EXPECT_TRUE(IsSoundArchive(PackedResources({{std::string(255, 'a'), "x"}})));
    EXPECT_FALSE(IsSoundArchive(PackedResources({{std::string(256, 'a'), "x"}})));
}

TEST(DamagedArchives, WhatIsNoReadableFileIsMissing)
{
    ResourceFolder const folder;
    folder.Write("work/res/de_DE/vellangres.rcc/inside", "a folder of the name");
    folder.Write("work/res/fr_FR/vellangres.rcc", Sample());
    ASSERT_EQ(chmod(folder.PathOf("work/res/fr_FR/vellangres.rcc").c_str(), 0), 0);
    ASSERT_EQ(mkdir(folder.PathOf("work/res/it_IT").c_str(), 0700), 0);
    ASSERT_EQ(mkfifo(folder.PathOf("work/res/it_IT/vellangres.rcc").c_str(), 0600), 0);
    ASSERT_EQ(mkdir(folder.PathOf("work/res/ja_JP").c_str(), 0700), 0);
    ASSERT_EQ(symlink("vellangres.rcc", folder.PathOf("work/res/ja_JP/vellangres.rcc").c_str()), 0) << "a circle";
    Registry registry;
    for (char16_t const * language : {u"de_DE", u"it_IT", u"ja_JP", u"ko_KR", u"", u"../..", u"\xD800", u"a/b/c"})
        EXPECT_FALSE(registry.LoadResource(u"vellangres.rcc", language, TString())) << TString(language);
    // Root reads it all the same.
    EXPECT_EQ(registry.LoadResource(u"vellangres.rcc", u"fr_FR", TString()), geteuid() == 0);
}

TEST(DamagedTranslations, AWholeOneIsSound)
{
    EXPECT_TRUE(IsSoundTranslation(SampleTranslation()));
    EXPECT_TRUE(IsSoundTranslation(Magic())) << "no section";
}

TEST(DamagedTranslations, OneThatIsCutAnywhereIsRefusedOrHarmless)
{
    std::string const whole = SampleTranslation();
    int sound = 0;
    for (std::size_t length = 0; length < whole.size(); ++length) {
        std::string const cut = whole.substr(0, length);
        if (IsSoundTranslation(cut)) {
            ++sound;
            Ask(cut);
        }
    }
    // The cuts between two sections.
    EXPECT_LE(sound, 4);
}

TEST(DamagedTranslations, OneWithAnyByteChangedIsRefusedOrHarmless)
{
    std::string const whole = SampleTranslation();
    int refused = 0;
    for (std::size_t at = 0; at < whole.size(); ++at) {
        for (char const byte : {'\x00', '\x01', '\x05', '\x7F', '\x80', '\xFF'}) {
            std::string const changed = Patched(whole, at, std::string(1, byte));
            if (IsSoundTranslation(changed))
                Ask(changed);
            else
                ++refused;
        }
    }
    EXPECT_GT(refused, 100);
}

TEST(DamagedTranslations, OnesMadeToHurtAreRefused)
{
    // One message: a translation, a source text, the end.
    std::string const translation = std::string(1, '\x03') + Number32(2) + std::string("\0A", 2);
    std::string const source = std::string(1, '\x06') + Number32(1) + "a";
    std::string const hash = Number32(0) + Number32(0);
    std::string const end(1, '\x01');
    ASSERT_TRUE(IsSoundTranslation(Magic() + Section(0x42, hash) + Section(0x69, translation + source + end)));

    std::pair<char const *, std::string> const rows[] = {
        {"nothing", ""},
        {"another magic number", Patched(SampleTranslation(), 0, "?")},
        {"a section longer than the file", Magic() + '\x42' + Number32(0xFFFFFFFF)},
        {"a section without a length", Magic() + '\x42'},
        {"an empty section",
         Magic() + Section(0x42, hash) + Section(0x69, translation + source + end) + Section(0x42, "")},
        {"two sections of one kind",
         Magic() + Section(0x42, hash) + Section(0x69, translation + source + end) + Section(0x69, end)},
        {"an unknown section", Magic() + Section(0x01, "")},
        {"names of further files", Magic() + Section(0x96, std::string("\0\0\0\x02\0a", 6))},
        {"half a hash", Magic() + Section(0x42, hash.substr(0, 7)) + Section(0x69, translation + source + end)},
        {"a message behind the end", Magic() + Section(0x42, Number32(0) + Number32(99)) + Section(0x69, end)},
        {"a message without an end", Magic() + Section(0x42, hash) + Section(0x69, translation + source)},
        {"a hash without messages", Magic() + Section(0x42, hash)},
        {"a text longer than its section",
         Magic() + Section(0x42, hash) + Section(0x69, std::string(1, '\x06') + Number32(0x7FFFFFFF) + end)},
        {"a translation of half units",
         Magic() + Section(0x42, hash) + Section(0x69, std::string(1, '\x03') + Number32(1) + "a" + end)},
        {"an unknown part", Magic() + Section(0x42, hash) + Section(0x69, std::string(1, '\x63') + end)},
        {"a table of no contexts", Magic() + Section(0x2f, std::string(2, '\0'))},
        {"fewer contexts than said", Magic() + Section(0x2f, std::string("\xFF\xFF", 2))},
        {"a context behind the end", Magic() + Section(0x2f, std::string("\0\x01\xFF\xFF", 4))},
        {"a chain of contexts without an end", Magic() + Section(0x2f, std::string("\0\x01\0\x01\0\0\x01\x61", 8))},
    };
    for (auto const & [what, bytes] : rows)
        EXPECT_FALSE(IsSoundTranslation(bytes)) << what;
}
