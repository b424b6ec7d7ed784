// What the provider asks of the system, query by query, and what it makes of the answers: the system is a scripted one.

#include "main/utility/WinApiLocaleInfoProvider.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <map>
#include <string>
#include <vector>

#include "velcoredata/string/NumberFormatOptions.h"

namespace {

constexpr LCID SOME_LCID = 0x407;

// A system that knows the answers it was given, for every LCID, and notes what it is asked.
class ScriptedSystem
{
public:
    struct Question
    {
        LCID lcid;
        LCTYPE type;
        int size;
        bool operator==(Question const &) const = default;
        friend void PrintTo(Question const & question, std::ostream * out)
        {
            *out << std::hex << question.lcid << ' ' << question.type << ' ' << std::dec << question.size;
        }
    };

    explicit ScriptedSystem(std::map<LCTYPE, std::u16string> answers = {}) : m_answers(std::move(answers))
    {
        s_current = this;
    }
    ~ScriptedSystem() { s_current = nullptr; }
    ScriptedSystem(ScriptedSystem const &) = delete;
    ScriptedSystem & operator=(ScriptedSystem const &) = delete;

    WinApiLocaleInfoProvider MakeProvider() const { return WinApiLocaleInfoProvider(&Answer); }
    std::vector<Question> const & GetQuestions() const { return m_questions; }
    // The room that a query was given; -1 if it was not asked.
    int RoomOf(LCTYPE type) const
    {
        auto const found = std::find_if(m_questions.begin(), m_questions.end(),
                                        [type](Question const & question) { return question.type == type; });
        return found == m_questions.end() ? -1 : found->size;
    }
    // It tells sizes, and then gives nothing.
    void TellOnlySizes() { m_onlySizes = true; }

private:
    static int Answer(LCID lcid, LCTYPE type, char16_t * buffer, int size)
    {
        ScriptedSystem & system = *s_current;
        system.m_questions.push_back({lcid, type, size});
        auto const found = system.m_answers.find(type);
        if (found == system.m_answers.end())
            return 0;
        int const needed = static_cast<int>(found->second.size()) + 1;
        if (size == 0)
            return needed;
        if (size < needed || system.m_onlySizes)
            return 0;
        std::copy_n(found->second.c_str(), needed, buffer);
        return needed;
    }

    static inline ScriptedSystem * s_current = nullptr;

    std::map<LCTYPE, std::u16string> m_answers;
    std::vector<Question> m_questions;
    bool m_onlySizes = false;
};

using Provider = WinApiLocaleInfoProvider;

struct QueryRow
{
    char const * name;
    std::function<TString(Provider &, LCID)> call;
    LCTYPE type;
    int room;
    char16_t const * onFailure;
    LCID zeroCountsAs;
};

TString Digits(int number)
{
    return TString::number(number);
}

std::vector<QueryRow> const & TextRows()
{
    static std::vector<QueryRow> const rows = {
        {"currency", [](Provider & p, LCID lcid) { return p.GetCurrencyString(lcid); }, LOCALE_SCURRENCY, 100, u"", 0},
        {"thousand", [](Provider & p, LCID lcid) { return p.GetThousandSeparator(lcid); }, LOCALE_STHOUSAND, 10, u"",
         0},
        {"decimal", [](Provider & p, LCID lcid) { return p.GetDecimalPoint(lcid); }, LOCALE_SDECIMAL, 10, u".", 0},
        {"list", [](Provider & p, LCID lcid) { return p.GetListSeparator(lcid); }, LOCALE_SLIST, 4, u",", 0},
    };
    return rows;
}

std::vector<QueryRow> const & NumberRows()
{
    static std::vector<QueryRow> const rows = {
        {"currency decimals", [](Provider & p, LCID lcid) { return Digits(p.GetCurrencyDecimalPlaces(lcid)); },
         LOCALE_ICURRDIGITS, 2, u"2", 1024},
        {"number decimals", [](Provider & p, LCID lcid) { return Digits(p.GetNumberDecimalPlaces(lcid)); },
         LOCALE_IDIGITS, 2, u"2", 1024},
        {"measure", [](Provider & p, LCID lcid) { return Digits(p.GetMeasureSystem(lcid)); }, LOCALE_IMEASURE, 2, u"0",
         0},
        {"first week", [](Provider & p, LCID lcid) { return Digits(p.GetFirstWeekBehaviour(lcid)); },
         LOCALE_IFIRSTWEEKOFYEAR, 2, u"1", 0},
    };
    return rows;
}

}  // namespace

TEST(WinApiLocaleInfoProvider, EachOperationIsOneQueryWithItsRoom)
{
    for (auto const * const rows : {&TextRows(), &NumberRows()}) {
        for (QueryRow const & row : *rows) {
            SCOPED_TRACE(row.name);
            for (LCID const lcid : {SOME_LCID, LCID(0)}) {
                ScriptedSystem const system({{row.type, u"1"}});
                Provider provider = system.MakeProvider();
                row.call(provider, lcid);
                LCID const asked = lcid == 0 ? row.zeroCountsAs : lcid;
                EXPECT_EQ(system.GetQuestions(), (std::vector{ScriptedSystem::Question{asked, row.type, row.room}}));
            }
        }
    }
}

TEST(WinApiLocaleInfoProvider, AnAnswerThatFitsIsTakenAndALongerOneIsAFailure)
{
    for (QueryRow const & row : TextRows()) {
        SCOPED_TRACE(row.name);
        std::u16string const longest(static_cast<std::size_t>(row.room) - 1, u'x');
        {
            ScriptedSystem const system({{row.type, longest}});
            Provider provider = system.MakeProvider();
            EXPECT_EQ(row.call(provider, SOME_LCID), TString::fromStdU16String(longest));
        }
        ScriptedSystem const system({{row.type, longest + u'x'}});
        Provider provider = system.MakeProvider();
        EXPECT_EQ(row.call(provider, SOME_LCID), TString(row.onFailure));
    }
    for (QueryRow const & row : NumberRows()) {
        ScriptedSystem const system({{row.type, u"10"}});
        Provider provider = system.MakeProvider();
        EXPECT_EQ(row.call(provider, SOME_LCID), TString(row.onFailure)) << row.name;
    }
}

TEST(WinApiLocaleInfoProvider, WithoutAnAnswerEachHasItsOwn)
{
    for (auto const * const rows : {&TextRows(), &NumberRows()}) {
        for (QueryRow const & row : *rows) {
            ScriptedSystem const system;
            Provider provider = system.MakeProvider();
            EXPECT_EQ(row.call(provider, SOME_LCID), TString(row.onFailure)) << row.name;
        }
    }
}

TEST(WinApiLocaleInfoProvider, NumbersOfTheSystem)
{
    struct
    {
        std::size_t row;
        char16_t const *answer, *result;
    } const rows[] = {
        {0, u"0", u"0"}, {0, u"9", u"9"}, {1, u"0", u"0"}, {1, u"3", u"3"}, {2, u"0", u"1"}, {2, u"1", u"0"},
        {2, u"2", u"0"}, {3, u"0", u"1"}, {3, u"1", u"3"}, {3, u"2", u"2"}, {3, u"3", u"1"},
    };
    for (auto const & row : rows) {
        QueryRow const & query = NumberRows()[row.row];
        ScriptedSystem const system({{query.type, row.answer}});
        Provider provider = system.MakeProvider();
        EXPECT_EQ(query.call(provider, SOME_LCID), TString(row.result)) << query.name;
    }
}

TEST(WinApiLocaleInfoProvider, PicturesAreAskedForTwiceAndComeWhole)
{
    std::u16string const longPicture(500, u'y');
    std::map<LCTYPE, std::u16string> const pictures = {{LOCALE_SLONGDATE, longPicture},
                                                       {LOCALE_SSHORTDATE, u"M/d"},
                                                       {LOCALE_STIMEFORMAT, u"H:mm:ss"},
                                                       {LOCALE_SSHORTTIME, u"H:mm"}};
    struct
    {
        int spec;
        std::vector<ScriptedSystem::Question> questions;
        std::u16string picture;
    } const rows[] = {
        {1, {{SOME_LCID, LOCALE_SLONGDATE, 0}, {SOME_LCID, LOCALE_SLONGDATE, 501}}, longPicture},
        {2, {{SOME_LCID, LOCALE_SSHORTDATE, 0}, {SOME_LCID, LOCALE_SSHORTDATE, 4}}, u"M/d"},
        {3, {{SOME_LCID, LOCALE_STIMEFORMAT, 0}, {SOME_LCID, LOCALE_STIMEFORMAT, 8}}, u"H:mm:ss"},
        {5, {{SOME_LCID, LOCALE_SSHORTTIME, 0}, {SOME_LCID, LOCALE_SSHORTTIME, 5}}, u"H:mm"},
    };
    for (auto const & row : rows) {
        ScriptedSystem const system(pictures);
        Provider provider = system.MakeProvider();
        auto const spec = static_cast<ICUUtils::DefaultDateTimeFormatSpec>(row.spec);
        EXPECT_EQ(provider.GetLocaleFormatAsWindows(spec, SOME_LCID), TString::fromStdU16String(row.picture));
        EXPECT_EQ(system.GetQuestions(), row.questions) << row.spec;
    }
    ScriptedSystem system(pictures);
    Provider provider = system.MakeProvider();
    EXPECT_EQ(provider.GetLocaleFormatAsWindows(ICUUtils::SpecDateTime, SOME_LCID), TString(u"M/d H:mm:ss"));
    system.TellOnlySizes();
    EXPECT_EQ(provider.GetLocaleFormatAsWindows(ICUUtils::SpecShortDate, SOME_LCID), TString());
    EXPECT_EQ(provider.GetLocaleFormatAsICU(ICUUtils::SpecShortDate, SOME_LCID), TString());
}

TEST(WinApiLocaleInfoProvider, NumberSettingsAreTheSystemsForNumbers)
{
    ScriptedSystem const system({{LOCALE_IDIGITS, u"3"},
                                 {LOCALE_SDECIMAL, u"<decimal point>"},
                                 {LOCALE_SGROUPING, u"3;2;0"},
                                 {LOCALE_STHOUSAND, u"<thousand sign>"},
                                 {LOCALE_INEGNUMBER, u"4"}});
    Provider provider = system.MakeProvider();
    NumberFormatOptions options(9, u"x", false, u"x", u"x", u"pre", u"suf", UnitsFormatEnum::K,
                                NegativeFormatEnum::Automatic);
    provider.GetSystemNumberSettings(SOME_LCID, &options);
    EXPECT_EQ(options.decimals, 3);
    EXPECT_EQ(options.decimalSeparator, TString(u"<decimal point>"));
    EXPECT_TRUE(options.useGrouping);
    EXPECT_EQ(options.grouping, TString(u"3;2;0"));
    EXPECT_EQ(options.thousandSeparator, TString(u"<thousand sign>"));
    EXPECT_EQ(options.prefix, TString());
    EXPECT_EQ(options.suffix, TString());
    EXPECT_EQ(options.units, UnitsFormatEnum::None);
    EXPECT_EQ(options.negative, NegativeFormatEnum::MinusLast);
    for (LCTYPE const type : {LOCALE_SDECIMAL, LOCALE_SGROUPING, LOCALE_STHOUSAND})
        EXPECT_EQ(system.RoomOf(type), 100) << std::hex << type;
}

TEST(WinApiLocaleInfoProvider, CurrencySettingsAreTheSystemsForMoney)
{
    struct
    {
        char16_t const *layout, *prefix, *suffix;
    } const rows[] = {{u"0", u"kr.", u"suf"},  {u"1", u"pre", u"kr."}, {u"2", u"kr. ", u"suf"},
                      {u"3", u"pre", u" kr."}, {u"4", u"kr.", u"suf"}, {u"9", u"kr.", u"suf"}};
    for (auto const & row : rows) {
        ScriptedSystem const system({{LOCALE_ICURRDIGITS, u"0"},
                                     {LOCALE_SMONDECIMALSEP, u"<money's point>"},
                                     {LOCALE_SCURRENCY, u"kr."},
                                     {LOCALE_ICURRENCY, row.layout},
                                     {LOCALE_SMONGROUPING, u"4;0"},
                                     {LOCALE_SMONTHOUSANDSEP, u"<money's sign>"},
                                     {LOCALE_INEGCURR, u"6"}});
        Provider provider = system.MakeProvider();
        NumberFormatOptions options(9, u"x", false, u"x", u"x", u"pre", u"suf", UnitsFormatEnum::K,
                                    NegativeFormatEnum::Automatic);
        provider.GetSystemCurrencySettings(SOME_LCID, &options);
        EXPECT_EQ(options.decimals, 0);
        EXPECT_EQ(options.decimalSeparator, TString(u"<money's point>"));
        EXPECT_TRUE(options.useGrouping);
        EXPECT_EQ(options.grouping, TString(u"4;0"));
        EXPECT_EQ(options.thousandSeparator, TString(u"<money's sign>"));
        EXPECT_EQ(options.prefix, TString(row.prefix)) << TString(row.layout);
        EXPECT_EQ(options.suffix, TString(row.suffix)) << TString(row.layout);
        EXPECT_EQ(options.units, UnitsFormatEnum::None);
        EXPECT_EQ(options.negative, NegativeFormatEnum::MinusAfterNumber);
        for (LCTYPE const type : {LOCALE_SMONDECIMALSEP, LOCALE_SCURRENCY, LOCALE_SMONGROUPING, LOCALE_SMONTHOUSANDSEP})
            EXPECT_EQ(system.RoomOf(type), 100) << std::hex << type;
    }
}

TEST(WinApiLocaleInfoProvider, GroupsAreUsedIfTheFirstIsNotEmpty)
{
    struct
    {
        char16_t const * grouping;
        bool used;
    } const rows[] = {{u"3;0", true}, {u"3", true},    {u"3;2;0", true}, {u"12;0", true},
                      {u"0", false},  {u"0;3", false}, {u"", false}};
    for (auto const & row : rows) {
        ScriptedSystem const system({{LOCALE_SGROUPING, row.grouping}, {LOCALE_SMONGROUPING, row.grouping}});
        Provider provider = system.MakeProvider();
        NumberFormatOptions numbers;
        provider.GetSystemNumberSettings(SOME_LCID, &numbers);
        EXPECT_EQ(numbers.useGrouping, row.used) << TString(row.grouping);
        EXPECT_EQ(numbers.grouping, TString(row.grouping));
        NumberFormatOptions money;
        provider.GetSystemCurrencySettings(SOME_LCID, &money);
        EXPECT_EQ(money.useGrouping, row.used) << TString(row.grouping);
        EXPECT_EQ(money.grouping, TString(row.grouping));
    }
}

TEST(WinApiLocaleInfoProvider, NegativeLayoutsReachTheOptions)
{
    int const ofMoney[] = {1, 2, 4, 3, 1, 2, 5, 3, 2, 2, 3, 3, 4, 5, 1, 1, 0};
    int const ofNumbers[] = {1, 2, 2, 3, 3, 0};
    for (int layout = 0; layout < 17; ++layout) {
        std::u16string const answer = TString::number(layout).toStdU16String();
        ScriptedSystem const system({{LOCALE_INEGCURR, answer}, {LOCALE_INEGNUMBER, answer}});
        Provider provider = system.MakeProvider();
        NumberFormatOptions options;
        provider.GetSystemCurrencySettings(SOME_LCID, &options);
        EXPECT_EQ(static_cast<int>(options.negative), ofMoney[layout]) << layout;
        provider.GetSystemNumberSettings(SOME_LCID, &options);
        EXPECT_EQ(static_cast<int>(options.negative), ofNumbers[std::min(layout, 5)]) << layout;
    }
}
