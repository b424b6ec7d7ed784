// The table path against ICU itself: whatever it decides, ICU decides alike.

#include "main/data/CollationTable.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <string>
#include <vector>

#include "main/data/ICUCollator.h"
#include "tests/data/CollationSamples.h"
#include "tests/support/RandomCollationText.h"
#include "velcoredata/data/Collation.h"

using detail::CollationFastPath;

namespace {

using Text = std::u16string;

ICUCollator const & IcuOf(Collation const & collation)
{
    return dynamic_cast<ICUCollator const &>(*collation.GetCollator());
}

// Counts over many comparisons: how many the table decided, how many of those wrongly.
struct Tally
{
    long compared = 0;
    long decided = 0;
    long wrong = 0;
    std::string example;

    void Compare(ICUCollator const & collator, Text const & a, Text const & b)
    {
        ++compared;
        int const expected = VelICU::t_ucol_strcoll(collator.GetHandle(), a.c_str(), static_cast<int>(a.size()),
                                                    b.c_str(), static_cast<int>(b.size()));
        CollationFastPath const & fast = collator.GetFastPath();
        int const byLength = fast.Compare(a.data(), a.data() + a.size(), b.data(), b.data() + b.size());
        int const terminated =
            a.find(u'\0') == Text::npos && b.find(u'\0') == Text::npos ? fast.Compare(a.c_str(), b.c_str()) : byLength;
        decided += byLength != CollationFastPath::undecided;
        if ((byLength != CollationFastPath::undecided && byLength != expected) || byLength != terminated) {
            ++wrong;
            example = '"' + TString::fromStdU16String(a).toStdString() + "\" \"" +
                      TString::fromStdU16String(b).toStdString() + '"';
        }
    }
};

// Sort keys that the table writes against ICU's, byte for byte.
bool SameKey(ICUCollator const & collator, Text const & text, long & written)
{
    std::uint8_t ours[CollationFastPath::maxKeySize], theirs[CollationFastPath::maxKeySize];
    std::size_t const size = collator.GetFastPath().WriteSortKey(text.c_str(), ours);
    if (size == 0)
        return true;
    ++written;
    int const expected = VelICU::t_ucol_getSortKey(collator.GetHandle(), text.c_str(), -1, theirs, sizeof theirs);
    return static_cast<int>(size) == expected && std::memcmp(ours, theirs, size) == 0;
}

Collation OfLocale(char const * locale, int strength)
{
    return Collation(locale, false, strength == 1 ? Collation::CaseInsensitive : Collation::CaseDefault,
                     strength == 0 ? Collation::AccentInsensitive : Collation::AccentDefault, Collation::SortDefault,
                     Collation::PunctDefault, 0);
}

}  // namespace

TEST(CollationTable, AgreesOnEveryPairOfTwoCharacterTexts)
{
    static constexpr char16_t alphabet[] = u"aAcChHdDzZsSlLnoOeyY\u00E9\u00F6\u00D6\u00DF\u0131- '17\u0001\u0301";
    std::vector<Text> texts{Text()};
    for (char16_t const * a = alphabet; *a != 0; ++a) {
        texts.emplace_back(1, *a);
        for (char16_t const * b = alphabet; *b != 0; ++b)
            texts.push_back(Text{*a, *b});
    }
    char16_t const * const names[] = {u"LEN_RUS", u"LDA_RDK", u"LCS_RCZ",    u"LHU_RHU_S2", u"LES_S1",
                                      u"LCY",     u"LSK_S2",  u"LEN_RUS_WO", u"AS_LEN_RUS", u"LEN_XO_S2",
                                      u"LTR",     u"LFR_RCA", u"EO_LEN_S1",  u"LEN_SI"};
    for (char16_t const * name : names) {
        Collation const collation(name, 0);
        ICUCollator const & collator = IcuOf(collation);
        Tally tally;
        for (Text const & a : texts)
            for (Text const & b : texts)
                tally.Compare(collator, a, b);
        EXPECT_EQ(tally.wrong, 0) << collation.GetName() << tally.example;
        EXPECT_GT(tally.decided, tally.compared / 3) << collation.GetName();
    }
}

TEST(CollationTable, AgreesWithEveryHeldCharacterNextToEveryKindOfNeighbour)
{
    // Each character of the basic plane alone, after and before a letter that contracts somewhere.
    for (char16_t const * name : {u"LROOT", u"LCS_RCZ", u"LJA_RJP", u"LZH_RCN", u"LKO_RKR", u"LRU_RRU", u"LTH_RTH"}) {
        Collation const collation(name, 0);
        ICUCollator const & collator = IcuOf(collation);
        Tally tally;
        for (unsigned c = 1; c < 0x10000; c += c < 0x3100 ? 1 : 7) {
            auto const unit = static_cast<char16_t>(c);
            tally.Compare(collator, Text(1, unit), u"m");
            tally.Compare(collator, Text(1, unit), Text(1, static_cast<char16_t>(unit + 1)));
            tally.Compare(collator, Text{u'c', unit}, Text{u'c', u'h'});
            tally.Compare(collator, Text{u'\u30AB', unit, u'a'}, Text{u'\u30AB', u'a', unit});
            tally.Compare(collator, Text{u'\uFDD1', unit}, Text{u'\uFDD1', u'm'});
            tally.Compare(collator, Text{u'\uFDD0', unit}, Text{u'\uFDD0', u'\u00E9'});
            tally.Compare(collator, Text{u'e', u'\u0301', unit}, Text{u'\u00E9', unit});
        }
        EXPECT_EQ(tally.wrong, 0) << collation.GetName() << tally.example;
    }
}

TEST(CollationTable, AgreesOnRandomTextsOfEveryLocale)
{
    for (int strength : {0, 1, 2})
        for (char const * locale : sampleLocales) {
            Collation const collation = OfLocale(locale, strength);
            ICUCollator const & collator = IcuOf(collation);
            test_support::RandomCollationText random(static_cast<unsigned>(strength));
            Tally tally;
            for (int i = 0; i < 3000; ++i) {
                Text const a = i % 2 == 0 ? random.Word(0, 10) : random.Text(8, true);
                tally.Compare(collator, a, random.OneIn(2) ? random.Near(a) : random.Word(0, 10));
            }
            EXPECT_EQ(tally.wrong, 0) << collation.GetName() << tally.example;
        }
}

TEST(CollationTable, DecidesNearlyAllAsciiLatinAndHan)
{
    struct
    {
        char16_t const * name;
        int kind;  // 0 ASCII words, 1 Latin with accents, 2 Han
        double share;
    } const rows[] = {{u"LROOT", 0, 1.0},    {u"LEN_RUS", 0, 1.0},  {u"LEN_RUS_S2", 0, 1.0},
                      {u"LSV_RSE", 0, 0.98}, {u"LEN_RUS", 1, 0.95}, {u"LDE_RDE", 1, 0.95},
                      {u"LROOT", 2, 1.0},    {u"LZH_RCN", 2, 0.95}, {u"LJA_RJP", 2, 0.9}};
    for (auto const & row : rows) {
        Collation const collation(row.name, 0);
        test_support::RandomCollationText random(7);
        auto const draw = [&] {
            Text text;
            for (int n = 3 + random.Below(8); n > 0; --n)
                text += row.kind == 2                      ? static_cast<char16_t>(0x4E00 + random.Below(0x51A5))
                        : row.kind == 1 && random.OneIn(5) ? u"éèöäüñçåßø"[random.Below(10)]
                                                           : random.Word(1, 1)[0];
            return text;
        };
        Tally tally;
        for (int i = 0; i < 20000; ++i)
            tally.Compare(IcuOf(collation), draw(), draw());
        EXPECT_EQ(tally.wrong, 0) << collation.GetName() << tally.example;
        EXPECT_GE(static_cast<double>(tally.decided), row.share * static_cast<double>(tally.compared))
            << collation.GetName() << row.kind;
    }
}

TEST(CollationTable, WritesSortKeysByteForByte)
{
    for (int strength : {0, 1, 2})
        for (char const * locale : sampleLocales) {
            Collation const collation = OfLocale(locale, strength);
            ICUCollator const & collator = IcuOf(collation);
            test_support::RandomCollationText random(static_cast<unsigned>(strength) + 40);
            long written = 0, wrong = 0;
            for (int i = 0; i < 2000; ++i) {
                Text text = random.OneIn(4) ? random.Text(12) : random.Word(0, random.OneIn(10) ? 220 : 12);
                if (random.OneIn(3))
                    text += u" - " + random.Word(0, 6) + u"\u4E2D";
                wrong += !SameKey(collator, text, written);
            }
            EXPECT_EQ(wrong, 0) << collation.GetName();
        }
    // Long runs of common weights, at and around the places where ICU opens a new count.
    Collation const english(u"LEN_RUS", 0);
    long written = 0;
    for (std::size_t n = 0; n <= 200; ++n) {
        EXPECT_TRUE(SameKey(IcuOf(english), Text(n, u'a'), written));
        EXPECT_TRUE(SameKey(IcuOf(english), Text(n, u'a') + u"B", written));
        EXPECT_TRUE(SameKey(IcuOf(english), Text(n, u'a') + u"B" + Text(n / 2, u' ') + u"\u0001c", written));
    }
    EXPECT_GT(written, 500);
}

TEST(CollationTable, PrimaryPrefixesAreThoseOfTheSortKey)
{
    for (char16_t const * name : {u"LROOT", u"LEN_RUS_S2", u"LSV_RSE", u"LZH_RCN", u"LRU_RRU"}) {
        Collation const collation(name, 0);
        ICUCollator const & collator = IcuOf(collation);
        test_support::RandomCollationText random(50);
        long written = 0;
        for (int i = 0; i < 5000; ++i) {
            Text const text = i % 2 == 0 ? random.Text(8) : random.Word(0, 12);
            std::uint64_t prefix = 0;
            if (!collator.GetFastPath().PrimaryPrefix(text.c_str(), prefix))
                continue;
            ++written;
            std::uint8_t key[CollationFastPath::maxKeySize];
            VelICU::t_ucol_getSortKey(collator.GetHandle(), text.c_str(), -1, key, sizeof key);
            std::uint64_t expected = 0;
            bool ended = false;
            for (int k = 0; k < 8; ++k) {
                ended = ended || key[k] <= 1;
                expected = expected << 8 | (ended ? 0u : key[k]);
            }
            ASSERT_EQ(prefix, expected) << collation.GetName() << TString::fromStdU16String(text);
        }
        EXPECT_GT(written, 2500);
    }
}

TEST(CollationTable, WithoutATableNothingIsDecided)
{
    CollationFastPath const none;
    std::uint8_t key[CollationFastPath::maxKeySize];
    std::uint64_t prefix = 0;
    Text const text = u"a";
    EXPECT_EQ(none.Compare(u"a", u"b"), CollationFastPath::undecided);
    EXPECT_EQ(none.Compare(text.data(), text.data() + 1, text.data(), text.data()), CollationFastPath::undecided);
    EXPECT_EQ(none.WriteSortKey(u"a", key), 0u);
    EXPECT_FALSE(none.PrimaryPrefix(u"a", prefix));
}
