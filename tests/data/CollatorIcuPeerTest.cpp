// Outside evidence: the collators against plain ICU, opened and called here without this library, on random texts.

#include <gtest/gtest.h>

#include <unicode/coll.h>
#include <unicode/sortkey.h>
#include <unicode/tblcoll.h>
#include <unicode/uchar.h>
#include <unicode/ucol.h>
#include <unicode/unistr.h>
#include <unicode/usearch.h>

#include <memory>
#include <string>
#include <vector>

#include "tests/support/RandomCollationText.h"
#include "velcoredata/data/Collation.h"

namespace {

using Text = std::u16string;

struct PeerRow
{
    char16_t const * name;
    char const * locale;
    std::vector<std::pair<UColAttribute, UColAttributeValue>> attributes = {};
    char16_t const * rules = nullptr;  // appended to the locale's own
};

char16_t const wordSort[] = u"&\\u0000=''='-'";
char16_t const noDigits[] = u"&[last tertiary ignorable]='0'='1'='2'='3'='4'='5'='6'='7'='8'='9'";

std::vector<PeerRow> const & Rows()
{
    static std::vector<PeerRow> const rows = {
        {u"LROOT", "root"},
        {u"LEN_RUS", "en_US"},
        {u"LSV_RSE", "sv_SE"},
        {u"LDA_RDK", "da_DK"},
        {u"LCS_RCZ", "cs_CZ"},
        {u"LHU_RHU", "hu_HU"},
        {u"LES_RES", "es_ES"},
        {u"LFR_RFR", "fr_FR"},
        {u"LFR_RCA", "fr_CA"},
        {u"LDE_RDE", "de_DE"},
        {u"LTR_RTR", "tr_TR"},
        {u"LPL_RPL", "pl_PL"},
        {u"LSK_RSK", "sk_SK"},
        {u"LHR_RHR", "hr_HR"},
        {u"LLT_RLT", "lt_LT"},
        {u"LLV_RLV", "lv_LV"},
        {u"LET_REE", "et_EE"},
        {u"LVI_RVN", "vi_VN"},
        {u"LRU_RRU", "ru_RU"},
        {u"LUK_RUA", "uk_UA"},
        {u"LEL_RGR", "el_GR"},
        {u"LAR_REG", "ar_EG"},
        {u"LHE_RIL", "he_IL"},
        {u"LHI_RIN", "hi_IN"},
        {u"LTH_RTH", "th_TH"},
        {u"LJA_RJP", "ja_JP"},
        {u"LKO_RKR", "ko_KR"},
        {u"LZH_RCN", "zh_CN"},
        {u"LCY_RGB", "cy_GB"},
        {u"LIS_RIS", "is_IS"},
        {u"LEN_RUS_S1", "en_US", {{UCOL_STRENGTH, UCOL_PRIMARY}}},
        {u"LEN_RUS_S2", "en_US", {{UCOL_STRENGTH, UCOL_SECONDARY}}},
        {u"LSV_RSE_S2", "sv_SE", {{UCOL_STRENGTH, UCOL_SECONDARY}}},
        {u"LDE_RDE_S1", "de_DE", {{UCOL_STRENGTH, UCOL_PRIMARY}}},
        {u"EO_LEN_S1", "en", {{UCOL_CASE_LEVEL, UCOL_ON}, {UCOL_STRENGTH, UCOL_PRIMARY}}},
        {u"LEN_S4", "en", {{UCOL_STRENGTH, UCOL_QUATERNARY}}},
        {u"LEN_SI", "en", {{UCOL_STRENGTH, UCOL_IDENTICAL}}},
        {u"AS_LEN_RUS", "en_US", {{UCOL_ALTERNATE_HANDLING, UCOL_SHIFTED}}},
        {u"LEN_RUS_WO", "en_US", {}, wordSort},
        {u"LDA_RDK_S2_XO", "da_DK", {{UCOL_STRENGTH, UCOL_SECONDARY}}, noDigits},
        {u"AS_LJA_S2", "ja", {{UCOL_ALTERNATE_HANDLING, UCOL_SHIFTED}, {UCOL_STRENGTH, UCOL_SECONDARY}}},
        {u"LSV_RSE_S2_WO", "sv_SE", {{UCOL_STRENGTH, UCOL_SECONDARY}}, wordSort},
    };
    return rows;
}

std::unique_ptr<icu::Collator> Open(PeerRow const & row)
{
    UErrorCode status = U_ZERO_ERROR;
    std::unique_ptr<icu::Collator> collator(icu::Collator::createInstance(icu::Locale(row.locale), status));
    if (row.rules != nullptr) {
        icu::UnicodeString rules = static_cast<icu::RuleBasedCollator &>(*collator).getRules();
        rules.append(icu::UnicodeString(row.rules).unescape());
        collator = std::make_unique<icu::RuleBasedCollator>(rules, status);
    }
    for (auto const & [attribute, value] : row.attributes)
        collator->setAttribute(attribute, value, status);
    EXPECT_TRUE(U_SUCCESS(status)) << row.locale << u_errorName(status);
    return collator;
}

// Words of one script with a shared beginning, which table-driven comparing must get right, beside the random mix.
std::vector<Text> MakeTexts(unsigned seed)
{
    static constexpr char16_t const * latin[] = {u"a", u"b", u"c", u"h", u"l", u"A", u"C", u"H", u"é", u"É",  u"ö",
                                                 u"ß", u"ñ", u"å", u"ž", u" ", u"-", u"'", u"1", u"9", u"ll", u"dz"};
    test_support::RandomCollationText random(seed);
    std::vector<Text> texts;
    for (int i = 0; i < 2000; ++i) {
        Text text;
        switch (i % 4) {
        case 0: text = random.Text(10); break;
        case 1: text = random.Word(0, 12); break;
        case 2:
            for (int n = random.Below(10); n > 0; --n)
                text += latin[random.Below(std::size(latin))];
            break;
        default:
            for (int n = random.Below(6); n > 0; --n)
                text +=
                    static_cast<char16_t>(random.OneIn(6) ? 0x3041 + random.Below(0xB0) : 0x4E00 + random.Below(300));
        }
        texts.push_back(text);
        texts.push_back(random.Near(text));
    }
    return texts;
}

Text ToText(icu::UnicodeString const & text)
{
    return Text(text.getBuffer(), static_cast<std::size_t>(text.length()));
}

}  // namespace

TEST(CollatorIcuPeer, ComparesAsIcuOnTwoHundredThousandPairsEach)
{
    ASSERT_GE(Rows().size(), 40u);
    std::vector<Text> const texts = MakeTexts(31);
    for (PeerRow const & row : Rows()) {
        std::unique_ptr<icu::Collator> const peer = Open(row);
        Collation const collation(row.name, 0);
        Collator const & ours = *collation.GetCollator();
        test_support::RandomCollationText random(32);
        int wrong = 0;
        for (int i = 0; i < 200'000; ++i) {
            auto const at = static_cast<std::size_t>(random.Below(static_cast<int>(texts.size())));
            Text const & a = texts[at];
            // Every other pair is a text and its near relative.
            Text const & b = i % 2 == 0 ? texts[at ^ 1]
                                        : texts[static_cast<std::size_t>(random.Below(static_cast<int>(texts.size())))];
            UErrorCode status = U_ZERO_ERROR;
            int const expected =
                peer->compare(a.c_str(), static_cast<int>(a.size()), b.c_str(), static_cast<int>(b.size()), status);
            int const actual =
                i % 4 < 2 ? ours.Compare(a.c_str(), b.c_str())
                          : ours.Compare(a.c_str(), static_cast<int>(a.size()), b.c_str(), static_cast<int>(b.size()));
            if (actual != expected && ++wrong < 5) {
                ADD_FAILURE() << row.locale << ' ' << TString(row.name) << TString::fromStdU16String(a)
                              << TString::fromStdU16String(b) << actual;
            }
        }
        EXPECT_EQ(wrong, 0) << TString(row.name);
    }
}

TEST(CollatorIcuPeer, EqualHashesMeanEqualSortKeys)
{
    std::vector<Text> const texts = MakeTexts(33);
    for (PeerRow const & row : Rows()) {
        std::unique_ptr<icu::Collator> const peer = Open(row);
        Collation const collation(row.name, 0);
        for (std::size_t i = 0; i < texts.size(); i += 2) {
            UErrorCode status = U_ZERO_ERROR;
            icu::CollationKey a, b;
            peer->getCollationKey(texts[i].c_str(), static_cast<int>(texts[i].size()), a, status);
            peer->getCollationKey(texts[i + 1].c_str(), static_cast<int>(texts[i + 1].size()), b, status);
            EXPECT_EQ(collation.Hash(texts[i].c_str()) == collation.Hash(texts[i + 1].c_str()),
                      a.compareTo(b, status) == UCOL_EQUAL)
                << TString(row.name) << TString::fromStdU16String(texts[i]);
        }
    }
}

TEST(CollatorIcuPeer, SearchesAsIcu)
{
    std::vector<Text> const texts = MakeTexts(34);
    for (PeerRow const & row : Rows()) {
        std::unique_ptr<icu::Collator> const peer = Open(row);
        Collation const collation(row.name, 0);
        test_support::RandomCollationText random(35);
        for (int i = 0; i < 500; ++i) {
            Text const & text = texts[static_cast<std::size_t>(random.Below(static_cast<int>(texts.size())))];
            Text const & from = texts[static_cast<std::size_t>(random.Below(static_cast<int>(texts.size())))];
            Text const & source = random.OneIn(2) ? text : from;
            Text const pattern = source.substr(source.size() / 3, static_cast<std::size_t>(1 + random.Below(2)));
            if (text.empty() || pattern.empty())
                continue;
            UErrorCode status = U_ZERO_ERROR;
            UStringSearch * const search =
                usearch_openFromCollator(pattern.c_str(), -1, text.c_str(), -1, peer->toUCollator(), nullptr, &status);
            ASSERT_TRUE(U_SUCCESS(status));
            int const start = random.Below(static_cast<int>(text.size()));
            int const expected = start > 0 ? usearch_following(search, start, &status) : usearch_first(search, &status);
            int length = -1;
            EXPECT_EQ(collation.Search(text.c_str(), pattern.c_str(), start, &length),
                      U_FAILURE(status) ? -1 : expected)
                << row.locale << TString(row.name) << TString::fromStdU16String(text)
                << TString::fromStdU16String(pattern) << start << u_errorName(status);
            if (U_SUCCESS(status)) {
                EXPECT_EQ(length, usearch_getMatchedLength(search));
            }
            if (pattern.size() > text.size()) {
                usearch_close(search);
                continue;
            }
            status = U_ZERO_ERROR;
            int const before = usearch_preceding(search, static_cast<int>(pattern.size()), &status);
            EXPECT_EQ(collation.StartsWith(text.c_str(), pattern.c_str()), U_SUCCESS(status) && before == 0);
            status = U_ZERO_ERROR;
            int const after = usearch_following(search, static_cast<int>(text.size() - pattern.size()), &status);
            EXPECT_EQ(collation.EndsWith(text.c_str(), pattern.c_str()),
                      U_SUCCESS(status) && after + usearch_getMatchedLength(search) == static_cast<int>(text.size()));
            usearch_close(search);
        }
    }
}

TEST(CollatorIcuPeer, MapsCaseAndTrimsAsIcu)
{
    std::vector<Text> const texts = MakeTexts(36);
    for (PeerRow const & row : Rows()) {
        Collation const collation(row.name, 0);
        std::vector<char16_t> out;
        for (std::size_t i = 0; i < texts.size(); i += 7) {
            Text const text = u" \t" + texts[i] + u"\u3000";
            collation.Lower(out, text.c_str());
            EXPECT_EQ(Text(out.data()), ToText(icu::UnicodeString(text.c_str()).toLower(icu::Locale(row.locale))));
            collation.Upper(out, text.c_str());
            EXPECT_EQ(Text(out.data()), ToText(icu::UnicodeString(text.c_str()).toUpper(icu::Locale(row.locale))));
            std::size_t first = 0, last = text.size();
            while (first < last && u_isWhitespace(text[first]))
                ++first;
            while (first < last && u_isWhitespace(text[last - 1]))
                --last;
            collation.Trim(out, text.c_str());
            EXPECT_EQ(Text(out.data()), text.substr(first, last - first));
        }
    }
}
