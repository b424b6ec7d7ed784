#include "velcoredata/data/CollationConflictResolver.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "tests/support/RandomCollationText.h"

namespace {

class CountingCallback : public CollationConflictResolver::Callback
{
public:
    explicit CountingCallback(bool answer) : m_answer(answer) {}
    bool PreferSecond(Collation const &, Collation const &, TString const & source) const override
    {
        EXPECT_FALSE(source.isEmpty());
        ++calls;
        return m_answer;
    }
    mutable int calls = 0;

private:
    bool m_answer;
};

SourcedCollation Make(char16_t const * source, char16_t const * name, unsigned short charset)
{
    return SourcedCollation(source, Collation(name, charset));
}

std::unique_ptr<SourcedCollation> Resolve(std::vector<SourcedCollation> const & items,
                                          CollationConflictResolver::Callback const * callback = nullptr)
{
    std::vector<SourcedCollation const *> candidates;
    for (SourcedCollation const & item : items)
        candidates.push_back(&item);
    return CollationConflictResolver(callback).ResolveSourcedCollation(candidates);
}

}  // namespace

TEST(CollationConflictResolver, SourcedCollationDefaultsToTheUnknownOne)
{
    SourcedCollation const empty;
    EXPECT_TRUE(empty.source.isEmpty());
    EXPECT_EQ(empty.collation, GetUnknownCollation());
    EXPECT_EQ(empty, SourcedCollation());
    EXPECT_NE(empty, Make(u"a", u"LROOT", 0));
    EXPECT_NE(empty, Make(u"", u"LROOT", 1));
    SourcedCollation assigned;
    assigned = Make(u"a", u"LEN", 1);
    EXPECT_EQ(assigned, Make(u"a", u"LEN", 1));
}

TEST(CollationConflictResolver, NoneAndOne)
{
    CountingCallback const callback(true);
    EXPECT_EQ(Resolve({}, &callback), nullptr);
    EXPECT_EQ(*Resolve({Make(u"a", u"LEN", 1)}, &callback), Make(u"a", u"LEN", 1));
    EXPECT_EQ(callback.calls, 0);
}

TEST(CollationConflictResolver, RulesInTheirOrder)
{
    struct
    {
        SourcedCollation first, second;
        bool second_wins;
    } const rows[] = {
        {Make(u"", u"LEN_S2", 9), Make(u"b", u"LROOT", 0), true},  // 1
        {Make(u"a", u"LEN_S2", 9), Make(u"", u"LEN", 0), false},   // 3, the first is case-insensitive
        {Make(u"", u"LEN", 0), Make(u"", u"LEN", 0), false},       // 5
        {Make(u"", u"LEN", 1), Make(u"", u"LEN", 1), false},       // 6
        {Make(u"a", u"LROOT", 0), Make(u"b", u"LEN", 0), true},    // 2
        {Make(u"a", u"LROOT", 1), Make(u"b", u"LEN", 0), false},   // a charset makes it known
        {Make(u"a", u"LEN", 5), Make(u"b", u"LEN_S1", 0), true},   // 3
        {Make(u"a", u"LEN_S1", 0), Make(u"b", u"LEN", 5), false},  // 3
        {Make(u"a", u"LEN", 0), Make(u"b", u"LEN", 5), true},      // 7
        {Make(u"a", u"LEN", 5), Make(u"b", u"LEN", 0), false},     // 5
        {Make(u"a", u"LEN", 0), Make(u"b", u"LSV", 5), false},     // 7, names differ
        {Make(u"a", u"LEN", 4), Make(u"b", u"LEN", 5), false},     // 6
    };
    for (auto const & row : rows)
        EXPECT_EQ(*Resolve({row.first, row.second}), row.second_wins ? row.second : row.first)
            << row.first.collation.GetName() << row.second.collation.GetName();
}

TEST(CollationConflictResolver, TheCallbackDecidesWithinOneSource)
{
    std::vector<SourcedCollation> const items = {Make(u"a", u"LEN", 0), Make(u"a", u"LSV", 0)};
    CountingCallback const yes(true), no(false);
    EXPECT_EQ(*Resolve(items, &yes), items[1]);
    EXPECT_EQ(*Resolve(items, &no), items[0]);
    EXPECT_EQ(*Resolve(items), items[0]);
    EXPECT_EQ(yes.calls, 1);
    EXPECT_EQ(no.calls, 1);
}

TEST(CollationConflictResolverLaws, RandomLists)
{
    test_support::RandomCollationText random(18);
    static constexpr char16_t const * names[] = {u"LROOT", u"binary", u"LEN", u"LEN_S2", u"LSV_S1", u"AS_LEN"};
    static constexpr char16_t const * sources[] = {u"", u"a", u"b", u"c", u"d", u"e", u"f"};
    for (int i = 0; i < 10000; ++i) {
        bool const distinct = random.OneIn(3), sourceless = !distinct && random.OneIn(2);
        std::vector<SourcedCollation> items;
        for (int n = 1 + random.Below(6); n > 0; --n)
            items.push_back(Make(distinct     ? sources[n]
                                 : sourceless ? u""
                                              : sources[random.Below(4)],
                                 names[random.Below(6)], static_cast<unsigned short>(random.Below(3))));
        CountingCallback const callback(random.OneIn(2));
        auto const winner = Resolve(items, &callback);
        ASSERT_NE(winner, nullptr);
        EXPECT_NE(std::find(items.begin(), items.end(), *winner), items.end());
        if (items.size() == 1 || distinct) {
            EXPECT_EQ(callback.calls, 0);
        }
        bool anyInsensitive = false, anyUnknown = false;
        for (SourcedCollation const & item : items) {
            anyInsensitive |= !item.collation.IsCaseSensitive();
            anyUnknown |= item.collation == GetUnknownCollation();
        }
        if (sourceless && anyInsensitive && !anyUnknown) {
            EXPECT_FALSE(winner->collation.IsCaseSensitive());
        }
    }
}
