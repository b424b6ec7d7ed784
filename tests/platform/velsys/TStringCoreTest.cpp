#include "velsys/TStringCore.h"

#include <thread>
#include <vector>

#include <gtest/gtest.h>

namespace {

TEST(TStringCore, IsMadeFromALiteralAndALength)
{
    EXPECT_EQ(TStringCore(u"text").length(), 4);
    EXPECT_EQ(TStringCore(u"text", -1).length(), 4);
    EXPECT_EQ(TStringCore(u"text", 2), TStringCore(u"te"));
    EXPECT_EQ(TStringCore(u"a\0b", 3).length(), 3);
    EXPECT_EQ(TStringCore(u"text", 0).length(), 0);
    EXPECT_EQ(TStringCore(static_cast<char16_t const *>(nullptr), 5).length(), 0);
}

TEST(TStringCore, CountsCodeUnits)
{
    EXPECT_EQ(TStringCore(u"\U0001F600").length(), 2);
}

TEST(TStringCore, IsComparedWithAWideLiteral)
{
    TStringCore const text(u"text");
    EXPECT_TRUE(text == u"text");
    EXPECT_FALSE(text == u"tex");
    EXPECT_FALSE(text == u"texu");
    EXPECT_TRUE(text != u"Text");
    EXPECT_FALSE(TStringCore(u"a\0b", 3) == u"a");
    EXPECT_TRUE(TStringCore() == u"");
    EXPECT_TRUE(TStringCore() == static_cast<char16_t const *>(nullptr));
}

TEST(TStringCore, IsAlwaysTerminated)
{
    static char16_t const letters[] = {u'a', u'b', u'c', u'd'};
    TStringCore const raw(QString::fromRawData(reinterpret_cast<QChar const *>(letters), 3));
    EXPECT_EQ(raw.length(), 3);
    EXPECT_EQ(raw.constData()[3], u'\0');
    EXPECT_NE(raw.constData(), letters);
    EXPECT_EQ(TStringCore(u"text", 2).constData()[2], u'\0');
    ASSERT_NE(TStringCore().constData(), nullptr);
    EXPECT_EQ(TStringCore().constData()[0], u'\0');
}

TEST(TStringCore, SharesItsStorageWithItsCopies)
{
    TStringCore const text(u"text");
    TStringCore const copy(text);
    EXPECT_EQ(copy.constData(), text.constData());
    TStringCore assigned(u"other");
    assigned = text;
    EXPECT_EQ(assigned.constData(), text.constData());
}

TEST(TStringCore, GivesItsStorageAwayWhenMoved)
{
    TStringCore text(u"text");
    char16_t const * const data = text.constData();
    TStringCore target(u"other");
    target = std::move(text);
    EXPECT_EQ(target.constData(), data);
    TStringCore made(std::move(target));
    EXPECT_EQ(made.constData(), data);
}

TEST(TStringCore, SurvivesAssignmentToItself)
{
    TStringCore text(u"text");
    TStringCore & same = text;
    text = same;
    EXPECT_EQ(text, u"text");
    text = std::move(same);
    EXPECT_EQ(text, u"text");
}

TEST(TStringCore, MayBeReadFromSeveralThreads)
{
    TStringCore const empty;
    TStringCore const literal(QStringLiteral("literal"));
    std::vector<std::thread> threads;
    std::vector<int> lengths(8);
    for (std::size_t i = 0; i < lengths.size(); ++i) {
        threads.emplace_back([&, i] {
            for (int round = 0; round < 1000; ++round) {
                TStringCore const copy(i % 2 == 0 ? empty : literal);
                lengths[i] = copy.length() + static_cast<int>(copy.constData()[copy.length()]) +
                             static_cast<int>(empty.constData()[0]);
            }
        });
    }
    for (std::thread & thread : threads)
        thread.join();
    for (std::size_t i = 0; i < lengths.size(); ++i)
        EXPECT_EQ(lengths[i], i % 2 == 0 ? 0 : 7);
}

}  // namespace
