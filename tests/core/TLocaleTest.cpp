#include "velcoredata/core/TLocale.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QtCore/QLocale>

#include <chrono>
#include <functional>
#include <future>
#include <initializer_list>
#include <string>
#include <thread>
#include <type_traits>
#include <vector>

#include "tests/core/TLocalePeer.h"
#include "tests/support/ErrorMatchers.h"
#include "velcoredata/core/LanguageUtils.h"
#include "velcoredata/data/DateTime.h"
#include "velicu/ScopedStatusFault.h"

using namespace test_support;
using std::string;

namespace {

string IcuName(TLocale const & locale)
{
    return locale.getICULocale().getName();
}

string IsoString(TLocale const & locale)
{
    return locale.getLanguageCode().GetISOString().toStdString();
}

constexpr char16_t DAY_PATTERN[] = u"yyyy-MM-dd";
constexpr char16_t NAMED_DAY_PATTERN[] = u"EEE yyyy-MM-dd";  // takes a format of ICU's
constexpr double FIRST_DAY_OF_2020 = 1577836800000.0;

string PrintDay(VelICU::ICUDateFormat const & format)
{
    VelICU::ICUErrorCode status = VelICU::U_ZERO_ERROR;
    return format.format(FIRST_DAY_OF_2020, status).toStdString();
}

}  // namespace

static_assert(!std::has_virtual_destructor_v<TLocale>);
static_assert(std::is_same_v<decltype(std::declval<TLocale &>() = std::declval<TLocale const &>()), TLocale const &>);

TEST(TLocale, ANameGoesToIcuAsItStandsAndIsResolvedAsALanguage)
{
    struct
    {
        char16_t const * name;
        char const * icuName;
        char const * isoString;
        char const * market;
        LCID lcid;
    } const rows[] = {
        {u"de_DE", "de_DE", "de_DE", "EU", 0x407},
        {u"de", "de", "de_DE", "EU", 0x407},
        {u"sv_SE", "sv_SE", "sv_SE", "", 0x41D},
        {u"zh_Hant_TW", "zh_Hant_TW", "zh_TW", "China", 0x404},
        {u"xx_YY", "xx_YY", "root", "", 0},
        {u"", "", "", "", 0},
        {u"en_US-APAC", "en_US_APAC", "en_US", "APAC", 0x409},  // ICU takes the market for a variant
    };
    for (auto const & row : rows) {
        TLocale const locale{TString(row.name)};
        EXPECT_EQ(IcuName(locale), row.icuName);
        EXPECT_EQ(IsoString(locale), row.isoString);
        EXPECT_EQ(locale.getLanguageCode().GetMarketString().toStdString(), row.market) << row.icuName;
        EXPECT_EQ(locale.GetLCID(), row.lcid);
        EXPECT_EQ(locale.getLanguageCode().GetLCID(), row.lcid);
    }
}

TEST(TLocale, AnLcidIsKeptAsItIsGiven)
{
    struct
    {
        LCID lcid;
        char const * name;
    } const rows[] = {
        {0x407, "de_DE"}, {0x404, "zh_TW"}, {1024, "en_US"},  {2048, "en_US"},
        {4096, "ar_YE"},  {0, "root"},      {0xFFFF, "root"}, {0xFFFFFFFF, "root"},
    };
    for (auto const & row : rows) {
        TLocale const locale(row.lcid);
        EXPECT_EQ(locale.GetLCID(), row.lcid);
        EXPECT_EQ(IsoString(locale), row.name) << row.lcid;
        EXPECT_TRUE(locale.getICULocale() == *VelICU::ICULocale::createInstance(row.name)) << row.lcid;
    }
    EXPECT_TRUE(TLocale(0).getICULocale() == *VelICU::ICULocale::getRoot());
}

TEST(TLocale, EveryLcidOf16BitsMakesALocale)
{
    for (LCID lcid = 0; lcid <= 0xFFFF; ++lcid) {
        TLocale const locale(lcid);
        ASSERT_EQ(locale.GetLCID(), lcid);
        ASSERT_NE(IsoString(locale), "") << lcid;
        ASSERT_TRUE(TLocale(locale).GetLCID() != lcid || IsoString(TLocale(locale)) == IsoString(locale)) << lcid;
    }
}

TEST(TLocale, ACalendarReachesIcusLocaleOnlyAndDoesNotSurviveACopy)
{
    TLocale const thai(0x41E, u"buddhist");
    EXPECT_EQ(IcuName(thai), "th_TH@calendar=buddhist");
    EXPECT_EQ(thai.getICULocale().getKeywordValue("calendar"), "buddhist");
    EXPECT_EQ(IsoString(thai), "th_TH");
    EXPECT_EQ(thai.GetLCID(), 0x41Eu);
    EXPECT_EQ(IcuName(TLocale(thai)), "th_TH");
    TLocale assigned(u"de_DE");
    assigned = thai;
    EXPECT_EQ(IcuName(assigned), "th_TH");

    EXPECT_EQ(IcuName(TLocale(0x41E, TString())), IcuName(TLocale(0x41E)));
    EXPECT_EQ(TLocale(0, u"roc").getICULocale().getKeywordValue("calendar"), "roc");
}

TEST(TLocale, ACopyIsMadeFromTheIsoStringAlone)
{
    struct
    {
        TLocale source;
        char const * icuName;
        char const * market;
        LCID lcid;
    } const rows[] = {
        {TLocale(u"en_US-APAC"), "en_US", "US", 0x409},  // the market is lost
        {TLocale(u"de"), "de_DE", "EU", 0x407},
        {TLocale(1024), "en_US", "US", 0x409},  // so is a default
        {TLocale(4096), "ar_YE", "", 0x2401},
        {TLocale(0), "", "", 0},
        {TLocale(u""), "", "", 0},
    };
    for (auto const & row : rows) {
        TLocale assigned(u"fr_FR");
        assigned = row.source;
        for (TLocale const & copy : {TLocale(row.source), assigned}) {
            EXPECT_EQ(IcuName(copy), row.icuName);
            EXPECT_EQ(IsoString(copy), IsoString(row.source));
            EXPECT_EQ(copy.getLanguageCode().GetMarketString().toStdString(), row.market) << row.icuName;
            EXPECT_EQ(copy.GetLCID(), row.lcid);
        }
    }
}

TEST(TLocale, ACopyHasTheFormatsAndTheSwitchesButNotTheStateOfReading)
{
    TLocale source(u"de_DE");
    source.setParseNative(false);
    source.setCacheFormatter(false);
    VelICU::ICUDateFormat const & format = TLocalePeer::GetFormat(source, DAY_PATTERN);
    TLocalePeer::GetFormat(source, u"HH:mm");
    TLocalePeer::PretendToHaveRead(source);

    TLocale const copy(source);
    TLocale assigned(u"fr_FR");
    TLocalePeer::PretendToHaveRead(assigned);
    TLocalePeer::GetFormat(assigned, u"d");
    assigned = source;
    for (TLocale const * const other : std::initializer_list<TLocale const *>{&copy, &assigned}) {
        EXPECT_EQ(TLocalePeer::CountFormats(*other), 2u);
        VelICU::ICUDateFormat const & copied = TLocalePeer::GetFormat(*other, DAY_PATTERN);
        EXPECT_EQ(TLocalePeer::CountFormats(*other), 2u);
        EXPECT_NE(&copied, &format);
        EXPECT_EQ(PrintDay(copied), "2020-01-01");
        EXPECT_FALSE(TLocalePeer::HasRead(*other));
        EXPECT_FALSE(TLocalePeer::ParsesNative(*other));
        EXPECT_FALSE(TLocalePeer::CachesFormatter(*other));
    }
    EXPECT_TRUE(TLocalePeer::HasRead(source));
}

TEST(TLocale, AssignmentToItselfIsAssignment)
{
    TLocale locale(0x41E, u"buddhist");
    locale.setParseNative(false);
    TLocalePeer::GetFormat(locale, DAY_PATTERN);
    TLocalePeer::PretendToHaveRead(locale);
    TLocale const & same = locale;
    locale = same;
    EXPECT_EQ(IcuName(locale), "th_TH");
    EXPECT_EQ(TLocalePeer::CountFormats(locale), 1u);
    EXPECT_FALSE(TLocalePeer::HasRead(locale));
    EXPECT_FALSE(TLocalePeer::ParsesNative(locale));
    EXPECT_TRUE(TLocalePeer::CachesFormatter(locale));
}

TEST(TLocale, SwitchesAreOnUntilTheyAreTurnedOff)
{
    TLocale locale(u"de_DE");
    EXPECT_TRUE(TLocalePeer::ParsesNative(locale));
    EXPECT_TRUE(TLocalePeer::CachesFormatter(locale));
    EXPECT_FALSE(TLocalePeer::HasRead(locale));
}

TEST(TLocale, TheCachedFormatterIsTakenOver)
{
    TLocale locale(u"de_DE");
    EXPECT_EQ(locale.GetFormatterCache(), nullptr);
    auto formatter = std::make_unique<LocaleFormatter const>(TString(DAY_PATTERN), locale.getICULocale());
    LocaleFormatter const * const made = formatter.get();
    locale.SetFormatterCache(formatter);
    EXPECT_EQ(formatter, nullptr);
    EXPECT_EQ(locale.GetFormatterCache().get(), made);

    auto & own = const_cast<std::unique_ptr<LocaleFormatter const> &>(locale.GetFormatterCache());
    locale.SetFormatterCache(own);
    EXPECT_EQ(locale.GetFormatterCache().get(), made);

    locale.SetFormatterCache(formatter);
    EXPECT_EQ(locale.GetFormatterCache(), nullptr);
}

TEST(TLocale, OneFormatIsBuiltForAPattern)
{
    TLocale const locale(u"de_DE");
    VelICU::ICUDateFormat const & format = TLocalePeer::GetFormat(locale, DAY_PATTERN);
    EXPECT_EQ(&TLocalePeer::GetFormat(locale, DAY_PATTERN), &format);
    EXPECT_NE(&TLocalePeer::GetFormat(locale, u"yyyy"), &format);
    EXPECT_EQ(TLocalePeer::CountFormats(locale), 2u);
}

TEST(TLocale, AFailureOfIcuIsNotKept)
{
    TLocale const locale(u"de_DE");
    VelICU::ScopedStatusFault const fault(VelICU::U_MEMORY_ALLOCATION_ERROR);
    EXPECT_THAT([&] { TLocalePeer::GetFormat(locale, DAY_PATTERN); },
                ThrowsAssert("VelICU::ICU_SUCCESS(success)", "LogicException_LogicAssert_0x75D2209A"));
    EXPECT_EQ(TLocalePeer::CountFormats(locale), 0u);
    EXPECT_EQ(PrintDay(TLocalePeer::GetFormat(locale, DAY_PATTERN)), "2020-01-01");
}

TEST(TLocale, LocalesOfTheProcess)
{
    EXPECT_EQ(&TLocale::GetISODefaultLocale(), &TLocale::GetISODefaultLocale());
    EXPECT_EQ(&TLocale::GetSystemInvariantLocale(), &TLocale::GetSystemInvariantLocale());
    EXPECT_EQ(&TLocale::GetUserDefaultLocale(), &TLocale::GetUserDefaultLocale());
    EXPECT_EQ(&TLocale::GetUserDefaultICULocale(), &TLocale::GetUserDefaultICULocale());
    EXPECT_EQ(IcuName(TLocale::GetISODefaultLocale()), "en_US");
    EXPECT_EQ(TLocale::GetISODefaultLocale().GetLCID(), 0x409u);
    EXPECT_EQ(TLocale::GetSystemInvariantLocale().GetLCID(), 2048u);
    EXPECT_EQ(TLocale::GetUserDefaultLocale().GetLCID(), 1024u);
    EXPECT_EQ(TLocale::GetUserDefaultICULocale(), TString(u"en_US"));
    EXPECT_EQ(TLocale::GetUserDefaultLCID(), 0x409u);
}

TEST(TLocale, PrimaryLanguageIsTheLowerTenBits)
{
    struct
    {
        LCID lcid;
        unsigned short language;
    } const rows[] = {{1031, 7}, {3084, 12}, {1033, 9}, {1024, 9}, {2048, 9}, {4096, 9}, {0, 0}, {0xFFFFFFFF, 0x3FF}};
    for (auto const & row : rows)
        EXPECT_EQ(TLocale::GetPrimaryLanguage(row.lcid), row.language) << row.lcid;
}

TEST(TLocale, LocalesOfQt)
{
    struct
    {
        LCID lcid;
        QLocale expected;
    } const rows[] = {
        {1031, QLocale(QLocale::German, QLocale::Germany)},
        {3084, QLocale(QLocale::French, QLocale::Canada)},
        {1024, QLocale::system()},
        {0, QLocale(QLocale::English, QLocale::AnyTerritory)},
        {0xFFFF, QLocale::c()},  // no such language
    };
    for (auto const & row : rows) {
        QLocale locale(QLocale::Welsh);
        TLocale::GetQLocale(row.lcid, locale);
        EXPECT_EQ(locale, row.expected) << row.lcid << ' ' << locale.name().toStdString();
    }
}

TEST(TLocale, ImperialDistancesGoByTheCountry)
{
    struct
    {
        char16_t const * name;
        bool imperial;
    } const rows[] = {{u"en_US", true}, {u"en_GB", true}, {u"my_MM", true},  {u"de_DE", false},
                      {u"de", false},   {u"", false},     {u"fr_CA", false}, {u"es_US", true}};
    for (auto const & row : rows)
        EXPECT_EQ(LanguageUtils::UsesImperialDistanceUnits(TLocale(TString(row.name))), row.imperial)
            << TString(row.name).toStdString();
}

namespace {

DateTime const SOME_DAY(2020, 2, 29, 0, 0, 0, 0.0);

// Whether an operation ends on another thread while this one keeps a lock. Lets the lock go before it waits for good.
template <class Unlock>
bool EndsUnderTheLock(std::function<void()> const & operation, Unlock unlock)
{
    auto const ending = std::async(std::launch::async, operation);
    bool const ended = ending.wait_for(std::chrono::seconds(20)) == std::future_status::ready;
    unlock();
    return ended;
}

void ReadSomeDay(TLocale const & locale)
{
    DateTime read;
    EXPECT_TRUE(locale.ParseDateTimeTryAllFormats(u"2020-02-29", read, ParseDateAndTime));
    EXPECT_TRUE(read == SOME_DAY);
}

}  // namespace

TEST(TLocale, PrintingDoesNotWaitForReading)
{
    TLocale const locale(u"en_US");
    TRecursiveMutex & mutex = TLocalePeer::GetReadingMutex(locale);
    mutex.Lock();
    EXPECT_TRUE(EndsUnderTheLock([&] { EXPECT_EQ(locale.Format(SOME_DAY, DAY_PATTERN), TString(u"2020-02-29")); },
                                 [&] { mutex.Unlock(); }));
    EXPECT_FALSE(TLocalePeer::HasRead(locale));
}

TEST(TLocale, ReadingDoesNotWaitForPrinting)
{
    TLocale const locale(u"en_US");
    TReadWriteLock & lock = TLocalePeer::GetFormatLock(locale);
    lock.Lock();
    EXPECT_TRUE(EndsUnderTheLock([&] { ReadSomeDay(locale); }, [&] { lock.Unlock(); }));
    EXPECT_EQ(TLocalePeer::CountFormats(locale), 0u);
}

TEST(TLocale, CopyingAndPrintingAgainShareTheFormats)
{
    TLocale const locale(u"en_US");
    locale.Format(SOME_DAY, NAMED_DAY_PATTERN);
    TReadWriteLock & lock = TLocalePeer::GetFormatLock(locale);
    lock.LockRead();
    EXPECT_TRUE(EndsUnderTheLock(
        [&] {
            EXPECT_EQ(locale.Format(SOME_DAY, NAMED_DAY_PATTERN), TString(u"Sat 2020-02-29"));
            EXPECT_EQ(TLocalePeer::CountFormats(TLocale(locale)), 1u);
            TLocale assigned(u"de_DE");
            assigned = locale;
            EXPECT_EQ(TLocalePeer::CountFormats(assigned), 1u);
        },
        [&] { lock.UnlockRead(); }));
}

TEST(TLocale, ConstOperationsMayRunOnManyThreads)
{
    TLocale const shared(u"de_DE");
    constexpr int threads = 4;
    constexpr int rounds = 200;
    std::vector<int> faults(threads);
    std::vector<std::thread> running;
    for (int thread = 0; thread < threads; ++thread) {
        running.emplace_back([&, thread] {
            int & fault = faults[static_cast<std::size_t>(thread)];
            for (int round = 0; round < rounds; ++round) {
                TString const pattern = u"yyyy-MM-dd'" + TString::number(round % 20) + u'\'';
                VelICU::ICUDateFormat const & format = TLocalePeer::GetFormat(shared, pattern);
                fault += &TLocalePeer::GetFormat(shared, pattern) != &format;
                fault += shared.GetLCID() != 0x407 || IcuName(shared) != "de_DE";
                fault += IcuName(TLocale::GetISODefaultLocale()) != "en_US";
                fault += TLocale::GetUserDefaultLocale().GetLCID() != 1024;
                if (round % 20 == thread) {
                    TLocale const copy(shared);
                    fault += PrintDay(TLocalePeer::GetFormat(copy, pattern)).substr(0, 10) != "2020-01-01";
                    fault += TLocale::GetDecimalPoint(1031) != u",";
                    fault += TLocale::GetMinimalDaysInFirstWeek(1031) != 4;
                }
            }
        });
    }
    for (std::thread & thread : running)
        thread.join();
    EXPECT_THAT(faults, testing::Each(0));
    EXPECT_EQ(TLocalePeer::CountFormats(shared), 20u);
}
