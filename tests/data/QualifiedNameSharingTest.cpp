// What names cost and share: allocations, addresses, threads.

#include <gtest/gtest.h>

#include <array>
#include <barrier>
#include <stdexcept>
#include <string>
#include <thread>
#include <utility>
#include <vector>

#include "tests/data/NameSamples.h"
#include "tests/support/AllocationCounter.h"
#include "velcoredata/data/QualifiedName.h"

namespace {

using test_support::NameOf;

QualifiedName NameWithText(std::size_t components, std::size_t length, char16_t character)
{
    boost::container::small_vector<TString, 2> list;
    for (std::size_t i = 0; i < components; ++i)
        list.push_back(TString(character, static_cast<int>(length)));
    return QualifiedName(std::move(list));
}

}  // namespace

TEST(QualifiedNameSharing, CopiesShareTheBlockAndAllocateNothing)
{
    QualifiedName const name = NameOf({u"sales", u"Order Date", u"Year"});
    AllocationCounter const allocations;
    QualifiedName const copy(name);
    QualifiedName assigned;
    assigned = copy;
    QualifiedName moved(std::move(assigned));
    assigned.Swap(moved);
    bool const equal = assigned == name;
    EXPECT_EQ(allocations.Count(), 0u);
    EXPECT_TRUE(equal);
    EXPECT_EQ(&copy.GetComponents(), &name.GetComponents());
    EXPECT_EQ(&assigned.GetComponents(), &name.GetComponents());
}

TEST(QualifiedNameSharing, TheEmptyNameCostsNoAllocation)
{
    AllocationCounter const allocations;
    QualifiedName name;
    QualifiedName const copy(name);
    name.Clear();
    bool const empty = name.GetFullValue().isEmpty() && name.TryGetLeafValue().isEmpty() && name.Hash() != 0 &&
                       name == copy && QualifiedName::ParseGlobal(TString()) == copy && name.PopValue().isEmpty();
    EXPECT_EQ(allocations.Count(), 0u);
    EXPECT_TRUE(empty);
    EXPECT_EQ(&name.GetComponents(), &copy.GetComponents());
    EXPECT_EQ(&QualifiedName(TString(u"a")).PopLeafValue().GetComponents(), &copy.GetComponents());
}

TEST(QualifiedNameSharing, TheFullValueIsOneAllocation)
{
    for (std::size_t components : {1u, 2u, 3u, 7u}) {
        for (std::size_t length = 0; length < 40; ++length) {
            for (char16_t const character : {u'a', u']'}) {
                QualifiedName const name = NameWithText(components, length, character);
                AllocationCounter const allocations;
                name.GetFullValue();
                EXPECT_EQ(allocations.Count(), 1u) << components << " components of " << length;
                QualifiedName const copy(name);
                copy.GetFullValue();
                name.Compare(copy);
                EXPECT_EQ(allocations.Count(), 1u);
                EXPECT_EQ(QualifiedName::ParseGlobal(name.GetFullValue()), name);
            }
        }
    }
}

TEST(QualifiedNameSharing, TwoComponentsStandInTheBlock)
{
    TString const root(u"root");
    TString const leaf(u"leaf");
    AllocationCounter allocations;
    QualifiedName const two(root, leaf);
    EXPECT_EQ(allocations.Count(), 1u);
    allocations.Reset();
    QualifiedName const one = two.PopLeafValue();
    EXPECT_EQ(allocations.Count(), 1u);
    allocations.Reset();
    QualifiedName const again = one.PushLeafValue(leaf);
    EXPECT_EQ(allocations.Count(), 1u);
    allocations.Reset();
    QualifiedName const three = two.PushLeafValue(leaf);
    EXPECT_EQ(allocations.Count(), 2u);
}

TEST(QualifiedNameSharing, AParsedNameCostsItsBlockAndItsComponents)
{
    TString const plain(u" [sales].[Order Date] ");
    TString const withPairs(u"[sal]]es].[Order]]Date]");
    for (TString const & text : {plain, withPairs}) {
        AllocationCounter const allocations;
        QualifiedName const name = QualifiedName::ParseGlobal(text);
        EXPECT_EQ(allocations.Count(), 3u) << text.toStdString();
    }
    AllocationCounter const allocations;
    bool const parses = QualifiedName::CanParseQualifiedName(plain) && !QualifiedName::CanParseQualifiedName(u"[a");
    EXPECT_LE(allocations.Count(), 1u) << "but for the text of this test";
    EXPECT_TRUE(parses);
}

TEST(QualifiedNameSharing, EqualityMakesNoFullValue)
{
    QualifiedName const a = NameOf({u"a", u"b"});
    QualifiedName const b = NameOf({u"a", u"b"});
    AllocationCounter const allocations;
    bool const equal = a == b && a.Hash() == b.Hash();
    EXPECT_EQ(allocations.Count(), 0u);
    EXPECT_TRUE(equal);
}

TEST(QualifiedNameSharing, ACopyOfTheFullValueOutlivesTheName)
{
    TString text;
    {
        QualifiedName const name(u"sales", u"Order Date");
        text = name.GetFullValue();
    }
    EXPECT_EQ(text, u"[sales].[Order Date]");
    // It is free to grow, and shares nothing.
    for (int i = 0; i < 40; ++i)
        text += u'x';
    EXPECT_EQ(text, u"[sales].[Order Date]" + TString(u'x', 40));
    text.clear();

    QualifiedName name(u"a", u"b");
    TString copy = name.GetFullValue();
    copy += u"!";
    EXPECT_EQ(name.GetFullValue(), u"[a].[b]");
    copy = name.GetFullValue();
    name.Clear();
    EXPECT_EQ(copy, u"[a].[b]");
}

TEST(QualifiedNameSharing, ATextBeyondTheLongestStringIsRefused)
{
    // One shared text many times, so that little memory goes into it. The brackets count twice.
    boost::container::small_vector<TString, 2> components(64, TString(u']', 1 << 24));
    QualifiedName const name(std::move(components));
    EXPECT_THROW(name.GetFullValue(), std::length_error);
    EXPECT_EQ(name, name.PushLeafValue(u"b").PopLeafValue());
}

// Texts long enough that several threads make one at the same time.
TEST(QualifiedNameSharing, EightThreadsThatAskFirstGetOneAddress)
{
    constexpr std::size_t threadCount = 8;
    constexpr std::size_t rounds = 400;
    TString const longText(u']', 20'000);
    std::vector<QualifiedName> names;
    for (std::size_t i = 0; i < rounds; ++i)
        names.push_back(NameOf({TString::number(static_cast<unsigned long>(i)), longText}));
    std::vector<std::array<TString const *, threadCount>> addresses(rounds);
    std::vector<std::array<unsigned, threadCount>> hashes(rounds);
    std::vector<std::array<bool, threadCount>> whole(rounds);
    std::barrier start(threadCount);
    std::vector<std::thread> threads;
    for (std::size_t t = 0; t < threadCount; ++t) {
        threads.emplace_back([&, t] {
            for (std::size_t i = 0; i < rounds; ++i) {
                QualifiedName const copy(names[i]);
                start.arrive_and_wait();
                addresses[i][t] = &copy.GetFullValue();
                hashes[i][t] = copy.Hash();
                std::u16string_view const text = addresses[i][t]->View();
                whole[i][t] = text.size() == static_cast<std::size_t>(copy.GetRootValue().length()) + 40'005 &&
                              text.back() == u']' && text[text.size() / 2] == u']';
            }
        });
    }
    for (std::thread & thread : threads)
        thread.join();
    for (std::size_t i = 0; i < rounds; ++i) {
        for (std::size_t t = 0; t < threadCount; ++t) {
            ASSERT_EQ(addresses[i][t], &names[i].GetFullValue()) << i;
            ASSERT_EQ(hashes[i][t], names[i].Hash()) << i;
            ASSERT_TRUE(whole[i][t]) << i;
        }
    }
}

TEST(QualifiedNameSharing, ThreadsCopyAndDropNamesAndTheirTexts)
{
    QualifiedName const name(u"sales", u"Order Date");
    std::vector<std::thread> threads;
    std::array<int, 8> wrong{};
    for (std::size_t t = 0; t < wrong.size(); ++t) {
        threads.emplace_back([&name, &count = wrong[t]] {
            for (int i = 0; i < 2000; ++i) {
                QualifiedName own(name);
                TString const text = own.GetFullValue();
                own.PushValue(u"Year");
                TString const longer = own.GetFullValue();
                own.Clear();
                count += text == u"[sales].[Order Date]" && longer == u"[sales].[Order Date].[Year]" ? 0 : 1;
            }
        });
    }
    for (std::thread & thread : threads)
        thread.join();
    for (int const count : wrong)
        EXPECT_EQ(count, 0);
}
