#include "velcoreplatform/TString.h"

#include <functional>
#include <iterator>
#include <random>
#include <set>
#include <string>
#include <thread>
#include <unordered_set>
#include <vector>

#include <QtCore/QStringDecoder>

#include <gtest/gtest.h>

#include "tests/support/AllocationCounter.h"
#include "tests/support/ErrorMatchers.h"
#include "velsys/Hash.h"

namespace {

constexpr auto kNoCase = TString::CaseInsensitive;
constexpr auto kCase = TString::CaseSensitive;

TEST(TStringMake, FromEveryKindOfTextWithALength)
{
    EXPECT_EQ(TString(), u"");
    EXPECT_EQ(TString(u"text"), u"text");
    EXPECT_EQ(TString(u"text", 2), u"te");
    EXPECT_EQ(TString(u"text", -1), u"text");
    EXPECT_EQ(TString(L"te\U0001F600xt", 3), u"te\U0001F600");
    EXPECT_EQ(TString(L"text", -1), u"text");
    EXPECT_EQ(TString("\xC3\xBC"
                      "ber",
                      2),
              u"\u00FC");
    EXPECT_EQ(TString("text", -1), u"text");
    EXPECT_EQ(TString(u'x', 3), u"xxx");
    EXPECT_EQ(TString('x', 3), u"xxx");
    EXPECT_EQ(TString('\xFC', 1), u"\u00FC");
    EXPECT_EQ(TString(u'x', 0), u"");
    EXPECT_EQ(TString(u'x', -1), u"");
    EXPECT_EQ(TString(QStringLiteral("text")), u"text");
    EXPECT_EQ(TString(TStringCore(u"text")), u"text");
    EXPECT_EQ(TString(u"a\0b", 3).length(), 3);
    EXPECT_EQ(TString(static_cast<char16_t const *>(nullptr)), u"");
}

// Texts without a leading U+FEFF take a shorter way.
TEST(TStringMake, FromUtf8IsTheSameOnBothWays)
{
    static constexpr char const * kPieces[] = {
        "a",    "\xC3\xBC", "\xE2\x82\xAC", "\xF0\x9F\x98\x80", "\xEF\xBB\xBF", "\xEF", "\xBB",
        "\xBF", "\xC0",     "\xED\xA0\x80", "\xF4\x90",         "\x7F",         "\xFF"};
    std::mt19937 random(11);
    for (int draw = 0; draw < 10'000; ++draw) {
        std::string bytes;
        for (auto pieces = random() % 12; pieces > 0; --pieces)
            bytes += random() % 20 == 0 ? std::string(1, '\0') : kPieces[random() % std::size(kPieces)];
        QStringDecoder decoder(QStringDecoder::Utf8,
                               QStringDecoder::Flag::Stateless | QStringDecoder::Flag::ConvertInitialBom);
        QString const expected = decoder.decode(QByteArrayView(bytes.data(), static_cast<qsizetype>(bytes.size())));
        ASSERT_EQ(TString::fromStdString(bytes).toQString(), expected) << draw;
        ASSERT_EQ(TString::fromUtf8(bytes.data(), static_cast<int>(bytes.size())).toQString(), expected) << draw;
    }
}

TEST(TStringMake, FromEncodedText)
{
    EXPECT_EQ(TString::fromUtf8("\xF0\x9F\x98\x80"), u"\U0001F600");
    EXPECT_EQ(TString::fromUtf8("\xEF\xBB\xBFx"), u"\uFEFFx");
    EXPECT_EQ(TString::fromStdString("\xEF\xBB\xBFx"), u"\uFEFFx");
    EXPECT_EQ(TString::fromUtf8("text", 2), u"te");
    EXPECT_EQ(TString::fromUtf8("\xFF"), u"\uFFFD");
    EXPECT_EQ(TString::fromUtf16(u"text"), u"text");
    EXPECT_EQ(TString::fromUtf16(u"text", 3), u"tex");
    EXPECT_EQ(TString::fromLatin1("\xFC"), u"\u00FC");
    EXPECT_EQ(TString::fromLatin1("text", 1), u"t");
    EXPECT_EQ(TString::fromLocal8Bit("\xC3\xBC"), u"\u00FC");
    EXPECT_EQ(TString::fromLocal8Bit("text", 1), u"t");
    EXPECT_EQ(TString::fromWChar(L"\U0001F600"), u"\U0001F600");
    EXPECT_EQ(TString::fromWChar(L"text", 3), u"tex");
    EXPECT_EQ(TString::fromStdString("\xC3\xBC"), u"\u00FC");
    EXPECT_EQ(TString::fromStdWString(L"\U0001F600"), u"\U0001F600");
    EXPECT_EQ(TString::fromStdU16String(std::u16string(u"a\0b", 3)), TString(u"a\0b", 3));
    EXPECT_EQ(TString::fromUtf8(nullptr), u"");
    EXPECT_EQ(TString::fromLatin1(nullptr, 3), u"");
    EXPECT_EQ(TString::fromWChar(nullptr), u"");
    EXPECT_EQ(TString::fromUtf16(nullptr, 3), u"");
}

TEST(TStringMake, CopiesAndMovesShareTheStorageWithoutAllocating)
{
    TString const text(u"a text that is long enough to live on the heap");
    AllocationCounter allocations;
    TString copy(text);
    TString moved(std::move(copy));
    TString assigned;
    assigned = moved;
    TString const empty;
    EXPECT_EQ(empty.constData()[0], u'\0');
    EXPECT_EQ(allocations.Count(), 0u);
    EXPECT_EQ(assigned.constData(), text.constData());
}

TEST(TStringMake, ACopyIsChangedOnItsOwn)
{
    TString const text(u"text");
    TString copy(text);
    copy += u'x';
    copy[0] = u'T';
    EXPECT_EQ(text, u"text");
    EXPECT_EQ(copy, u"Textx");
}

TEST(TStringMake, Assignment)
{
    TString text;
    text = u"literal";
    EXPECT_EQ(text, u"literal");
    text = u'c';
    EXPECT_EQ(text, u"c");
    text = TString(u"string");
    EXPECT_EQ(text, u"string");
    TString & same = text;
    text = same;
    EXPECT_EQ(text, u"string");
    text = {};
    EXPECT_EQ(text, u"");
}

TEST(TStringOut, GivesTerminatedText)
{
    TString text(u"text");
    EXPECT_EQ(std::u16string(text.GetString()), u"text");
    EXPECT_EQ(std::u16string(text.constData()), u"text");
    EXPECT_EQ(std::u16string(text.data()), u"text");
    char16_t const * const pointer = text;
    EXPECT_EQ(std::u16string(pointer), u"text");
    TStringCore const & core = text;
    EXPECT_EQ(core, u"text");
    TStringCore const copy = text;
    EXPECT_EQ(copy, u"text");
    EXPECT_EQ(text.toQString(), QStringLiteral("text"));
    EXPECT_EQ(text.toStdU16String(), u"text");
    EXPECT_EQ(text.View(), u"text");
    EXPECT_EQ(std::u16string(text.begin(), text.end()), u"text");
    EXPECT_EQ(std::u16string(text.cbegin(), text.cend()), u"text");
    text.resize(2);
    EXPECT_EQ(text.constData()[2], u'\0');
}

TEST(TStringOut, EncodesToUtf8)
{
    EXPECT_EQ(TString(u"\u00FC\U0001F600").toStdString(), "\xC3\xBC\xF0\x9F\x98\x80");
    bool ok = false;
    EXPECT_EQ(TString(u"\u00FC").toLocal8Bit(&ok), "\xC3\xBC");
    EXPECT_TRUE(ok);
    EXPECT_EQ(TString(u"text").toLocal8Bit(), "text");
}

TEST(TStringOut, ALoneSurrogateBecomesTheReplacementCharacterAndIsReported)
{
    for (TString const & text : {TString(u'\xD800', 1), TString(u'\xDC00', 1)}) {
        bool ok = true;
        EXPECT_EQ(text.toLocal8Bit(&ok), "\xEF\xBF\xBD");
        EXPECT_FALSE(ok);
    }
}

TEST(TStringSize, CountsCodeUnits)
{
    TString const text(u"a\U0001F600");
    EXPECT_EQ(text.length(), 3);
    EXPECT_EQ(text.GetLength(), 3);
    EXPECT_EQ(text.lengthInBytes(), 6u);
    EXPECT_EQ(TString::length(u"abc"), 3);
    EXPECT_EQ(TString::length(nullptr), 0);
    for (TString const & empty : {TString(), TString(u""), TString(u'x', 0)}) {
        EXPECT_TRUE(empty.IsEmpty());
        EXPECT_TRUE(empty.isEmpty());
        EXPECT_TRUE(empty.empty());
        EXPECT_EQ(empty.lengthInBytes(), 0u);
    }
    EXPECT_FALSE(text.IsEmpty());
}

TEST(TStringSize, ResizeTruncateReserveAndClear)
{
    TString text(u"text");
    text.reserve(100);
    text.reserve(-1);
    EXPECT_EQ(text, u"text");
    text.truncate(10);
    EXPECT_EQ(text, u"text");
    text.truncate(2);
    EXPECT_EQ(text, u"te");
    text.resize(4);
    EXPECT_EQ(text, TString(u"te\0\0", 4));
    text.resize(1);
    EXPECT_EQ(text, u"t");
    text.truncate(-1);
    EXPECT_EQ(text, u"");
    text.resize(-1);
    EXPECT_EQ(text, u"");
    text = u"text";
    text.clear();
    EXPECT_TRUE(text.isEmpty());
}

TEST(TStringCompare, OrdersByCodeUnits)
{
    struct Row
    {
        char16_t const * a;
        char16_t const * b;
        int order;
    };
    Row const rows[] = {
        {u"", u"", 0},       {u"", u"a", -1},  {u"a", u"b", -1},
        {u"a", u"aa", -1},   {u"B", u"a", -1}, {u"\U0001F600", u"\uFFFD", -1},
        {u"abc", u"abc", 0},
    };
    for (Row const & row : rows) {
        TString const a(row.a);
        TString const b(row.b);
        int const order = a.Compare(b);
        EXPECT_EQ((order > 0) - (order < 0), row.order) << a << " " << b;
        EXPECT_EQ(a.compare(b, kCase) < 0, row.order < 0) << a << " " << b;
        EXPECT_EQ(TString::compare(a, b, kCase) == 0, row.order == 0) << a << " " << b;
        EXPECT_EQ(a == b, row.order == 0);
        EXPECT_EQ(a != b, row.order != 0);
        EXPECT_EQ(a < b, row.order < 0);
        EXPECT_EQ(b < a, false);
        EXPECT_EQ(a == row.b, row.order == 0);
        EXPECT_EQ(row.a == b, row.order == 0);
        EXPECT_EQ(a != row.b, row.order != 0);
        EXPECT_EQ(a < row.b, row.order < 0);
        EXPECT_EQ(row.a < b, row.order < 0);
        EXPECT_EQ(a <= b, true);
        EXPECT_EQ(b > a, row.order < 0);
        EXPECT_EQ(b >= a, true);
    }
}

TEST(TStringCompare, ATextWithATerminatorInsideIsNotItsFirstPart)
{
    EXPECT_FALSE(TString(u"a\0b", 3) == u"a");
    EXPECT_FALSE(TString(u"a\0b", 3) == TString(u"a\0c", 3));
    EXPECT_TRUE(TString(u"a\0b", 3) == TString(u"a\0b", 3));
    EXPECT_TRUE(TString() == static_cast<char16_t const *>(nullptr));
}

TEST(TStringCompare, IgnoresCaseWhenAsked)
{
    EXPECT_EQ(static_cast<int>(kNoCase), 0);
    EXPECT_EQ(static_cast<int>(kCase), 1);
    EXPECT_EQ(TString(u"TEXT").compare(u"text", kNoCase), 0);
    EXPECT_NE(TString(u"TEXT").compare(u"text", kCase), 0);
    EXPECT_EQ(TString::compare(u"\u00DC", u"\u00FC", kNoCase), 0);
    EXPECT_EQ(TString(u"Text").CollateNoCase(u"tEXT"), 0);
    EXPECT_LT(TString(u"Text").CollateNoCase(u"texu"), 0);
    EXPECT_EQ(TString().CollateNoCase(nullptr), 0);
}

TEST(TStringCompare, ComparesTheFirstUnitsOfBoth)
{
    EXPECT_EQ(TString::compareN(u"text", u"texu", 3, kCase), 0);
    EXPECT_LT(TString::compareN(u"text", u"texu", 4, kCase), 0);
    EXPECT_EQ(TString::compareN(u"TEXT", u"texu", 3, kNoCase), 0);
    EXPECT_NE(TString::compareN(u"TEXT", u"texu", 3, kCase), 0);
    EXPECT_LT(TString::compareN(u"te", u"text", 3, kCase), 0);
    EXPECT_EQ(TString::compareN(u"a", u"b", 0, kCase), 0);
    EXPECT_EQ(TString::compareN(u"a", u"b", -1, kCase), 0);
    EXPECT_EQ(TString::compareN(u"a", u"a", 99, kCase), 0);
}

TEST(TStringCompare, StartsEndsAndContains)
{
    TString const text(u"Text");
    EXPECT_TRUE(text.startsWith(u"Te", kCase));
    EXPECT_FALSE(text.startsWith(u"te", kCase));
    EXPECT_TRUE(text.startsWith(u"te", kNoCase));
    EXPECT_TRUE(text.startsWith(u""));
    EXPECT_FALSE(text.startsWith(u"Texts"));
    EXPECT_TRUE(text.endsWith(TString(u"xt"), kCase));
    EXPECT_FALSE(text.endsWith(u"XT", kCase));
    EXPECT_TRUE(text.endsWith(u"XT", kNoCase));
    EXPECT_TRUE(text.contains(u"ex", kCase));
    EXPECT_FALSE(text.contains(u"EX", kCase));
    EXPECT_TRUE(text.contains(u"EX", kNoCase));
    EXPECT_TRUE(text.contains(u'x'));
    EXPECT_FALSE(text.contains(u'X'));
    EXPECT_FALSE(TString().contains(u'x'));
}

TEST(TStringSearch, FindsFromTheFront)
{
    TString const text(u"abcABCabc");
    EXPECT_EQ(text.indexOf(u'c', 0), 2);
    EXPECT_EQ(text.indexOf(u'c', 3), 8);
    EXPECT_EQ(text.indexOf(u'z', 0), -1);
    EXPECT_EQ(text.indexOf(u'a', 9), -1);
    EXPECT_EQ(text.indexOf(u'a', 99), -1);
    EXPECT_EQ(text.indexOf(u'c', -3), 8);
    EXPECT_EQ(text.indexOf(u'a', -99), 0);
    EXPECT_EQ(text.indexOf(u"bc", 0, kCase), 1);
    EXPECT_EQ(text.indexOf(u"bc", 2, kCase), 7);
    EXPECT_EQ(text.indexOf(u"bc", 2, kNoCase), 4);
    EXPECT_EQ(text.indexOf(TString(u"zz"), 0, kCase), -1);
    EXPECT_EQ(text.indexOf(u"bc", -99), 1);
    EXPECT_EQ(text.indexOf(u"", 4), 4);
    EXPECT_EQ(text.indexOf(u"", 99), -1);
    EXPECT_EQ(TString::findStr(text, u"BC", 0, kCase), 4);
    EXPECT_EQ(TString::findStr(text, u"BC", 0, kNoCase), 1);
    EXPECT_EQ(TString::findStr(text, u"zz", 0, kNoCase), -1);
}

TEST(TStringSearch, FindsFromTheBack)
{
    TString const text(u"abcab");
    EXPECT_EQ(text.lastIndexOf(u'a', -1), 3);
    EXPECT_EQ(text.lastIndexOf(u'a', 2), 0);
    EXPECT_EQ(text.lastIndexOf(u'b', -2), 1);
    EXPECT_EQ(text.lastIndexOf(u'b', 5), 4);
    EXPECT_EQ(text.lastIndexOf(u'b', 99), 4);
    EXPECT_EQ(text.lastIndexOf(u'\0', 5), -1);
    EXPECT_EQ(text.lastIndexOf(u'a', -6), -1);
    EXPECT_EQ(text.lastIndexOf(u'z'), -1);
    EXPECT_EQ(text.ReverseFind(u'b'), 4);
    EXPECT_EQ(text.ReverseFind(u'z'), -1);
    EXPECT_EQ(TString().ReverseFind(u'z'), -1);
    EXPECT_EQ(TString().lastIndexOf(u'\0', 0), -1);
}

TEST(TStringSearch, CountsAndFindsCharactersOfASet)
{
    TString const text(u"a,b;c");
    EXPECT_EQ(text.count(u','), 1);
    EXPECT_EQ(TString(u"aaa").count(u'a'), 3);
    EXPECT_EQ(TString().count(u'a'), 0);
    EXPECT_EQ(text.findOneOf(u",;", 0), 1);
    EXPECT_EQ(text.findOneOf(TString(u",;"), 2), 3);
    EXPECT_EQ(text.findOneOf(u",;", 4), -1);
    EXPECT_EQ(text.findOneOf(u",;", 99), -1);
    EXPECT_EQ(text.findOneOf(u"", 0), -1);
    EXPECT_EQ(text.findOneOf(u",;", -2), 3);
    EXPECT_EQ(text.findOneNotOf(u"abc", 0), 1);
    EXPECT_EQ(text.findOneNotOf(u"a,b;c", 0), -1);
    EXPECT_EQ(text.findOneNotOf(u"", 2), 2);
    EXPECT_EQ(text.findOneNotOf(u"", 5), -1);
}

TEST(TStringHash, IsTheHashOfTheBytesWithTheOneSeed)
{
    for (char16_t const * literal :
         {u"", u"a", u"text", u"a much longer text, of more than sixty-four bytes altogether"}) {
        TString const text(literal);
        unsigned const expected = THash32(text.constData(), text.lengthInBytes(), 0xdeadbeef);
        EXPECT_EQ(HashOf(text), expected);
        EXPECT_EQ(std::hash<TString>()(text), expected);
    }
    EXPECT_EQ(std::hash<TString>()(TString(u'x', 3)), std::hash<TString>()(TString(u"xxx")));
    EXPECT_NE(std::hash<TString>()(TString(u"a\0b", 3)), std::hash<TString>()(TString(u"a")));
}

TEST(TStringHash, IsAKeyOfHashedAndOrderedSets)
{
    std::unordered_set<TString> hashed{u"b", u"a", u"a"};
    std::set<TString> ordered{u"b", u"a", u"a"};
    EXPECT_EQ(hashed.size(), 2u);
    EXPECT_EQ(hashed.count(u"a"), 1u);
    EXPECT_EQ(ordered.size(), 2u);
    EXPECT_EQ(*ordered.begin(), u"a");
    EXPECT_TRUE(std::equal_to<TString>()(u"a", TString(u"a")));
}

TEST(TStringThreads, MayBeReadFromSeveralThreads)
{
    TString const text(u"text");
    TString const empty;
    std::vector<std::thread> threads;
    std::vector<int> sums(8);
    for (int & sum : sums) {
        threads.emplace_back([&] {
            for (int round = 0; round < 1000; ++round) {
                TString copy = text;
                TString const none = empty;
                copy += u'x';
                TString assigned;
                assigned = text;
                sum += copy.length() + assigned.length() + static_cast<int>(none.constData()[0]);
            }
        });
    }
    for (std::thread & thread : threads)
        thread.join();
    EXPECT_EQ(sums, std::vector<int>(8, 9000));
}

}  // namespace
