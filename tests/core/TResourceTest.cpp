#include "velcoredata/core/TResource.h"

#include <gtest/gtest.h>

#include <string>
#include <type_traits>
#include <utility>

#include "tests/support/ErrorMatchers.h"
#include "tests/support/FreshProcess.h"
#include "tests/support/ResourceBuilder.h"
#include "velcoredata/core/ResourceRegistrationCache.h"

using test_support::InFreshProcess;
using test_support::ResourceFolder;

namespace {

class Registry : public ResourceRegistrationCache
{};

// Registers one archive as the German one; its resources are below ":/de_DE".
class Resources
{
public:
    Resources()
    {
        m_folder.Pack("work/res/de_DE/vellangres.rcc", {{"text", "Grüße"},
                                                        {"zero", std::string("before\0after", 12)},
                                                        {"bad", "a\xFF\xC3"},
                                                        {"empty", ""},
                                                        {"folder/inside", "i"}});
        EXPECT_TRUE(m_registry.LoadResource(u"vellangres.rcc", u"de_DE", TString()));
    }

private:
    ResourceFolder m_folder;
    Registry m_registry;
};

std::string Bytes(TResource const & resource)
{
    return {reinterpret_cast<char const *>(resource.GetPtr()), static_cast<std::size_t>(resource.size())};
}

static_assert(!std::is_copy_constructible_v<TResource> && !std::is_copy_assignable_v<TResource>);
static_assert(std::is_nothrow_move_constructible_v<TResource> && std::is_nothrow_move_assignable_v<TResource>);
static_assert(!std::is_copy_constructible_v<UTF8StringTResource>);
static_assert(std::is_nothrow_move_constructible_v<UTF8StringTResource>);

}  // namespace

TEST(TResource, GivesTheBytesOfAResource)
{
    Resources const resources;
    TResource const resource(u":/de_DE/text");
    EXPECT_TRUE(resource.isValid());
    EXPECT_EQ(Bytes(resource), "Grüße");
    EXPECT_EQ(Bytes(TResource(u":/de_DE/zero")), std::string("before\0after", 12));
}

TEST(TResource, IsNotValidWithoutAResource)
{
    Resources const resources;
    for (char16_t const * path : {u"", u":/", u":/de_DE/missing", u":/fr_FR/text", u"no path of Qt"}) {
        TResource const resource{TString(path)};
        EXPECT_EQ(resource.size(), 0) << TString(path);
        EXPECT_EQ(resource.GetPtr(), nullptr) << TString(path);
    }
    EXPECT_FALSE(TResource(u":/de_DE/missing").isValid());
    EXPECT_FALSE(TResource(TString()).isValid());
    EXPECT_EQ(TResource(u":/de_DE/folder").GetPtr(), nullptr) << "a directory has no bytes";
    EXPECT_EQ(TResource(u":/de_DE/folder").size(), 0);
    TResource const empty(u":/de_DE/empty");
    EXPECT_TRUE(empty.isValid());
    EXPECT_EQ(empty.size(), 0);
}

TEST(TResource, Moves)
{
    Resources const resources;
    TResource first(u":/de_DE/text");
    TResource second(std::move(first));
    EXPECT_EQ(Bytes(second), "Grüße");
    EXPECT_FALSE(first.isValid());
    EXPECT_EQ(first.GetPtr(), nullptr);
    EXPECT_EQ(first.size(), 0);
    TResource third(u":/de_DE/zero");
    third = std::move(second);
    EXPECT_EQ(Bytes(third), "Grüße");
    EXPECT_FALSE(second.isValid());
}

TEST(TResource, AsksForItsLanguage)
{
    InFreshProcess([] {
        ResourceFolder const folder;
        folder.Pack("app/res/vellangres.rcc", {{"r", "english"}});
        folder.Pack("app/res/de_DE/vellangres.rcc", {{"r", "german"}});
        EXPECT_EQ(Bytes(TResource(u"r", u"de_DE")), "german");
        EXPECT_EQ(Bytes(TResource(u"r", u"fr_FR")), "english");
        EXPECT_EQ(Bytes(TResource(u"r", u"")), "english");
        EXPECT_FALSE(TResource(u"missing", u"de_DE").isValid());
        EXPECT_EQ(UTF8StringTResource(u"r", u"de_DE").GetString(), u"german");
        EXPECT_EQ(UTF8StringTResource(u"missing", u"de_DE").GetString(), u"");
    });
}

TEST(UTF8StringTResource, DecodesTheBytesUpToTheFirstZero)
{
    Resources const resources;
    EXPECT_EQ(UTF8StringTResource(u":/de_DE/text").GetString(), u"Grüße");
    EXPECT_EQ(UTF8StringTResource(u":/de_DE/zero").GetString(), u"before");
    EXPECT_EQ(UTF8StringTResource(u":/de_DE/bad").GetString(), u"a\uFFFD\uFFFD");
    EXPECT_EQ(UTF8StringTResource(u":/de_DE/empty").GetString(), u"");
    EXPECT_EQ(UTF8StringTResource(u":/de_DE/missing").GetString(), u"");
    EXPECT_EQ(UTF8StringTResource(u":/de_DE/folder").GetString(), u"");
}

TEST(UTF8StringTResource, CountsTheZeroAtItsEnd)
{
    Resources const resources;
    EXPECT_EQ(UTF8StringTResource(u":/de_DE/text").size(), 8);
    EXPECT_EQ(UTF8StringTResource(u":/de_DE/zero").size(), 13);
    EXPECT_EQ(UTF8StringTResource(u":/de_DE/empty").size(), 1);
    EXPECT_EQ(UTF8StringTResource(u":/de_DE/missing").size(), 1);
}

TEST(UTF8StringTResource, MovesWithItsBytes)
{
    std::string kept;
    UTF8StringTResource outer(u":/nothing");
    {
        Resources const resources;
        UTF8StringTResource inner(u":/de_DE/text");
        UTF8StringTResource moved(std::move(inner));
        EXPECT_EQ(inner.GetString(), u"");
        EXPECT_FALSE(inner.isValid());
        outer = std::move(moved);
    }
    EXPECT_EQ(outer.GetString(), u"Grüße") << "the text outlives the archive";
}
