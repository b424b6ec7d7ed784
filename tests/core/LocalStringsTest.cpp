#include "velcoredata/core/LocalStrings.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <cstdint>
#include <functional>
#include <iterator>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <thread>
#include <utility>
#include <vector>

#include "main/core/StringTable.h"
#include "tests/core/StringTableRows.h"
#include "tests/support/AllocationCounter.h"
#include "velcoreplatform/CoreThreadContext.h"

namespace {

using CoreData::LookupTFormatStrExported;
using CoreData::LookupTStrExported;
using CoreData::StringId;
using string_table_rows::AllRows;
using string_table_rows::kPalettes;
using string_table_rows::Row;

std::string English(StringId id)
{
    return LookupTStrExported(id).toStdString();
}

// CRC-32 (IEEE 802.3, reflected), bit by bit.
std::uint32_t Crc32(std::string_view text)
{
    std::uint32_t crc = 0xFFFFFFFFu;
    for (char const c : text) {
        crc ^= static_cast<unsigned char>(c);
        for (int bit = 0; bit < 8; ++bit)
            crc = (crc >> 1) ^ ((crc & 1u) != 0 ? 0xEDB88320u : 0u);
    }
    return ~crc;
}

// The ten numbers that stored data or other tables fix.
struct FixedId
{
    StringId id;
    std::uint32_t number;
    char const * english;
};

constexpr FixedId kFixedIds[] = {
    {StringId::IDS_DEFAULT_NEG_FMT, 0x12C45CA4, "Automatic"},
    {StringId::IDS_PALETTE_TOOLTIP_LIGHT_GRAY, 0xA15591B9, "Light Gray"},
    {StringId::IDS_PALETTE_TOOLTIP_VERY_LIGHT_RED, 0xC36CA448, "Very Light Red"},
    {StringId::IDS_PALETTE_TOOLTIP_VERY_DARK_ORANGE, 0x37C26950, "Very Dark Orange"},
    {StringId::IDS_PALETTE_TOOLTIP_DARK_GREEN, 0xCDF4ACC5, "Dark Green"},
    {StringId::IDS_PALETTE_TOOLTIP_BLUE, 0xADA12D80, "Blue"},
    {StringId::IDS_PALETTE_TOOLTIP_LIGHT_BLUE, 0x9071C701, "Light Blue"},
    {StringId::IDS_PALETTE_TOOLTIP_PURPLE, 0x92EA1040, "Purple"},
    {StringId::IDS_PALETTE_TOOLTIP_LIGHT_PINK, 0xD249D299, "Light Pink"},
    {StringId::IDS_PALETTE_TOOLTIP_DARK_BROWN, 0x29B3A099, "Dark Brown"},
};

// Puts CoreThreadContext::HasSessionId back at the end of a test.
class SessionQuestion
{
public:
    explicit SessionQuestion(std::function<bool()> question)
        : m_before(std::exchange(CoreThreadContext::HasSessionId, std::move(question)))
    {}
    ~SessionQuestion() { CoreThreadContext::HasSessionId = std::move(m_before); }
    SessionQuestion(SessionQuestion const &) = delete;
    SessionQuestion & operator=(SessionQuestion const &) = delete;

private:
    std::function<bool()> m_before;
};

TEST(StringIds, EveryKeyHasItsKeyTextAndItsEnglishText)
{
    for (Row const & row : AllRows()) {
        EXPECT_STREQ(CoreData::detail::StringTableKey(row.id), row.key);
        EXPECT_EQ(CoreData::detail::StringTableEnglish(row.id), row.english) << row.key;
        EXPECT_STREQ(CoreData::detail::StringTableEnglish(row.id).data(), row.english) << row.key;
        EXPECT_EQ(English(row.id), row.english) << row.key;
    }
}

TEST(StringIds, KeysAndNumbersAreUnique)
{
    std::set<StringId> numbers;
    std::set<std::string> keys;
    for (Row const & row : AllRows()) {
        EXPECT_TRUE(numbers.insert(row.id).second) << row.key;
        EXPECT_TRUE(keys.insert(row.key).second) << row.key;
        EXPECT_NE(row.id, StringId{}) << row.key;
    }
    EXPECT_EQ(numbers.size(), 224u);
}

TEST(StringIds, TenNumbersAreFixed)
{
    for (FixedId const & row : kFixedIds) {
        EXPECT_EQ(static_cast<std::uint32_t>(row.id), row.number) << row.english;
        EXPECT_EQ(English(static_cast<StringId>(row.number)), row.english);
    }
}

TEST(StringIds, OtherNumbersAreTheCrc32OfTheKey)
{
    std::set<StringId> fixed;
    for (FixedId const & row : kFixedIds)
        fixed.insert(row.id);
    for (Row const & row : AllRows()) {
        if (fixed.count(row.id) == 0) {
            EXPECT_EQ(static_cast<std::uint32_t>(row.id), Crc32(row.key)) << row.key;
        }
    }
}

TEST(StringIds, FamiliesOfPalettesAreComplete)
{
    std::pair<char const *, int> const kFamilies[] = {
        {"IDS_PALETTE_TOOLTIP_", 57}, {"IDS_PALETTE_BAND_", 18},     {"IDS_PALETTE_BOXPLOT_", 15},
        {"IDS_PALETTE_DENSITY_", 10}, {"IDS_PALETTE_LIGHTNING_", 8}, {"IDS_PALETTE_MAP_", 7},
    };
    for (auto const & [prefix, count] : kFamilies) {
        int found = 0;
        for (Row const & row : kPalettes)
            found += std::string_view(row.key).substr(0, std::string_view(prefix).size()) == prefix ? 1 : 0;
        EXPECT_EQ(found, count) << prefix;
    }
}

TEST(StringIds, PalettesThatAUserPicksFromAListHaveDifferentNames)
{
    std::set<std::string> names;
    for (Row const & row : kPalettes) {
        if (std::string_view(row.key).find("TOOLTIP_") == std::string_view::npos) {
            EXPECT_TRUE(names.insert(row.english).second) << row.key;
        }
    }
}

TEST(LookupTStrExported, GivesTheEmptyTextForANumberThatIsNoKey)
{
    for (std::uint32_t const number : {0u, 1u, 0x12C45CA3u, 0x12C45CA5u, 0x7FFFFFFFu, 0x80000000u, 0xFFFFFFFFu}) {
        auto const id = static_cast<StringId>(number);
        EXPECT_STREQ(CoreData::detail::StringTableKey(id), "") << number;
        EXPECT_STREQ(CoreData::detail::StringTableEnglish(id).data(), "") << number;
        EXPECT_TRUE(LookupTStrExported(id).isEmpty()) << number;
        EXPECT_TRUE(TString(LookupTFormatStrExported(id)).isEmpty()) << number;
        ScopedSession const session;
        EXPECT_TRUE(LookupTStrExported(id).isEmpty()) << number;
    }
}

TEST(LookupTStrExported, GivesEnglishInASessionWhoseLanguageHasNoTranslator)
{
    ScopedSession const session;
    ASSERT_TRUE(CoreThreadContext::HasSessionId());
    for (Row const & row : AllRows())
        EXPECT_EQ(English(row.id), row.english) << row.key;
}

TEST(LookupTStrExported, AsksOnceWhetherTheThreadRunsInASession)
{
    int asked = 0;
    SessionQuestion const question([&asked] {
        ++asked;
        return false;
    });
    EXPECT_EQ(English(StringId::IDS_AGG_DAY), "Day");
    EXPECT_EQ(asked, 1);
}

TEST(LookupTStrExported, AllocatesNothingButTheTextOutsideASession)
{
    for (Row const & row : AllRows()) {
        AllocationCounter const allocations;
        TString const text = LookupTStrExported(row.id);
        EXPECT_LE(allocations.Count(), 1u) << row.key;
        EXPECT_FALSE(text.isEmpty());
    }
}

TEST(LookupTStrExported, RaisesBadFunctionCallWhereTheSessionQuestionIsEmpty)
{
    SessionQuestion const question(nullptr);
    EXPECT_THROW(LookupTStrExported(StringId::IDS_AGG_DAY), std::bad_function_call);
    EXPECT_THROW(LookupTFormatStrExported(StringId::IDS_AGG_DAY), std::bad_function_call);
}

TEST(LookupTStrExported, AnswersManyThreadsInAndOutOfSessions)
{
    std::vector<Row> const rows = AllRows();
    std::array<int, 4> wrong{};
    std::vector<std::thread> threads;
    for (std::size_t i = 0; i < wrong.size(); ++i) {
        threads.emplace_back([&rows, &count = wrong[i], i] {
            std::optional<ScopedSession> session;
            if (i % 2 == 1)
                session.emplace();
            for (int round = 0; round < 50; ++round) {
                for (std::size_t r = i; r < rows.size(); ++r)
                    count += English(rows[r].id) == rows[r].english ? 0 : 1;
            }
        });
    }
    for (std::thread & thread : threads)
        thread.join();
    EXPECT_THAT(wrong, testing::Each(0));
}

TEST(LookupTFormatStrExported, FillsThePlacesOfTheText)
{
    EXPECT_EQ(TString(LookupTFormatStrExported(StringId::IDP_VALUE_LIST_FEW_VALUES).arg(u"a", u"b")), u"a & b");
    EXPECT_EQ(TString(LookupTFormatStrExported(StringId::IDS_ERR_INCORRECT_DATA_TYPE_GET).arg(u"date", u"real")),
              u"Incorrect data type real, getting expected date type.");
    EXPECT_EQ(
        TString(LookupTFormatStrExported(StringId::IDS_DASH_LAYOUT_SPACING_COLOR_RGBA).arg(1).arg(2).arg(3).arg(4)),
        u"rgba (1,2,3,4)");
}

TEST(LookupTFormatStrExported, HasThePlacesThatItsCallersFill)
{
    std::pair<StringId, int> const kPlaces[] = {
        {StringId::IDP_DATE_PARSE_ERROR, 1},
        {StringId::IDP_STRINGUTILS_MISMATCH_QUOTE, 1},
        {StringId::IDP_VALUE_LIST_FEW_VALUES, 2},
        {StringId::IDP_VALUE_LIST_MANY_VALUES, 2},
        {StringId::IDS_DASH_LAYOUT_SPACING_COLOR_RGB, 3},
        {StringId::IDS_DASH_LAYOUT_SPACING_COLOR_RGBA, 4},
        {StringId::IDS_ERR_INCORRECT_DATA_TYPE_GET, 2},
        {StringId::IDS_ERR_INCORRECT_DATA_TYPE_SET, 2},
    };
    for (Row const & row : AllRows()) {
        int expected = 0;
        for (auto const & [id, places] : kPlaces)
            expected = id == row.id ? places : expected;
        std::string const text = English(row.id);
        for (int place = 1; place <= 9; ++place)
            EXPECT_EQ(text.find("%" + std::to_string(place)) != std::string::npos, place <= expected) << row.key;
    }
}

// Rows: gray, red, orange, yellow, yellow-green, green, teal, blue, purple, pink, brown.
// Columns: plain, very light, light, dark, very dark.
TEST(TooltipColours, HaveTheNamesOfHuesAndShades)
{
    char const * const kHues[] = {"GRAY", "RED",  "ORANGE", "YELLOW", "YELLOW_GREEN", "GREEN",
                                  "TEAL", "BLUE", "PURPLE", "PINK",   "BROWN"};
    char const * const kShades[] = {"", "VERY_LIGHT_", "LIGHT_", "DARK_", "VERY_DARK_"};
    char const * const kNames[11][5] = {
        {"Gray", "Very Light Gray", "Light Gray", "Dark Gray", "Very Dark Gray"},
        {"Red", "Very Light Red", "Pink", "Dark Red", "Brown"},
        {"Orange", "Beige", "Light Orange", "Brown", "Very Dark Orange"},
        {"Yellow", "Very Light Yellow", "Light Yellow", "Olive Green", "Dark Gray"},
        {"Yellow-Green", "Very Light Yellow-Green", "Light Yellow-Green", "Dark Yellow-Green", "Dark Gray"},
        {"Green", "Very Light Green", "Light Green", "Dark Green", "Very Dark Green"},
        {"Teal", "Very Light Teal", "Light Teal", "Dark Teal", "Very Dark Teal"},
        {"Blue", "Very Light Blue", "Light Blue", "Dark Blue", "Very Dark Blue"},
        {"Purple", "Very Light Purple", "Light Purple", "Dark Purple", "Very Dark Purple"},
        {"Pink", "Very Light Pink", "Light Pink", "Dark Pink", "Very Dark Pink"},
        {"Brown", "Very Light Brown", "Light Brown", "Dark Brown", "Very Dark Brown"},
    };
    for (std::size_t hue = 0; hue < 11; ++hue) {
        for (std::size_t shade = 0; shade < 5; ++shade) {
            std::string const key = std::string("IDS_PALETTE_TOOLTIP_") + kShades[shade] + kHues[hue];
            int found = 0;
            for (Row const & row : kPalettes) {
                if (row.key == key) {
                    ++found;
                    EXPECT_EQ(English(row.id), kNames[hue][shade]) << key;
                }
            }
            EXPECT_EQ(found, 1) << key;
        }
    }
    EXPECT_EQ(English(StringId::IDS_PALETTE_TOOLTIP_WHITE), "White");
    EXPECT_EQ(English(StringId::IDS_PALETTE_TOOLTIP_BLACK), "Black");
    EXPECT_EQ(English(StringId::IDS_PALETTE_AREA_RED_GREEN), "Area Red-Green Diverging");
}

}  // namespace
