// One TLocale in the hands of several threads that print and read dates.

#include <gtest/gtest.h>

#include <atomic>
#include <thread>
#include <vector>

#include "tests/support/ValuePrinters.h"
#include "velcoredata/core/TLocale.h"
#include "velcoredata/data/DateTime.h"

namespace {

constexpr int ROUNDS = 300;
constexpr char16_t const * PATTERNS[] = {u"yyyy-MM-dd HH:mm:ss.SSS", u"EEEE, d. MMMM yyyy", u"h:mm a", u"D/w/Q"};

DateTime Value(int i)
{
    return DateTime(2000, 1, 1, 0, 0, 0, 0.0) + DateTimeSpan(i, i % 24, i % 60, i % 60, 0.25);
}

}  // namespace

TEST(TLocaleDateThreads, PrintingGivesTheSameWhileOthersRead)
{
    TLocale const alone(u"de_DE");
    std::vector<TString> expected;
    for (int i = 0; i < ROUNDS; ++i)
        expected.push_back(alone.Format(Value(i), PATTERNS[i % 4]));

    TLocale const shared(u"de_DE");
    std::atomic<int> wrong = 0;
    std::vector<std::thread> threads;
    for (int t = 0; t < 4; ++t) {
        threads.emplace_back([&, t] {
            for (int i = 0; i < ROUNDS; ++i) {
                int const at = (i + t * 37) % ROUNDS;
                if (shared.Format(Value(at), PATTERNS[at % 4]) != expected[static_cast<std::size_t>(at)])
                    ++wrong;
            }
        });
        threads.emplace_back([&, t] {
            for (int i = 0; i < ROUNDS; ++i) {
                DateTime out;
                switch ((i + t) % 4) {
                case 0:
                    if (!shared.ParseDateTime(u"3. M\u00E4rz 2020", u"d. MMMM yyyy", out, ParseDateAndTime) ||
                        out != DateTime(2020, 3, 3, 0, 0, 0, 0.0))
                        ++wrong;
                    break;
                case 1:
                    if (!shared.ParseDateTimeTryAllFormats(u"02.01.2020 03:04:05", out, ParseDateAndTime) ||
                        out != DateTime(2020, 1, 2, 3, 4, 5, 0.0))
                        ++wrong;
                    break;
                case 2:
                    if (shared.ParseTimeTryAllFormats(u"19:05") !=
                        std::tuple(true, DateTime(1899, 12, 30, 19, 5, 0, 0.0)))
                        ++wrong;
                    break;
                default:
                    if (!shared.ParseDateTimeUsingNativeAPIs(u"02.01.2020", out, ParseDateAndTime) ||
                        out != DateTime(2020, 1, 2, 0, 0, 0, 0.0))
                        ++wrong;
                }
            }
        });
    }
    for (std::thread & thread : threads)
        thread.join();
    EXPECT_EQ(wrong, 0);
}

// The operation that asks the platform alone takes no lock and leaves its mark while others look at it in a search.
TEST(TLocaleDateThreads, TheMarkOfThePlatformsParserMayChangeDuringASearch)
{
    TLocale const shared(u"en_US");
    std::atomic<int> wrong = 0;
    std::vector<std::thread> threads;
    for (int t = 0; t < 2; ++t) {
        threads.emplace_back([&] {
            for (int i = 0; i < ROUNDS; ++i) {
                DateTime out;
                if (!shared.ParseDateTimeUsingNativeAPIs(u"Jan 2, 2020 3:04:05 PM", out, ParseDateAndTime) ||
                    out != DateTime(2020, 1, 2, 15, 4, 5, 0.0))
                    ++wrong;
            }
        });
        threads.emplace_back([&] {
            for (int i = 0; i < ROUNDS; ++i) {
                // Read by the platform, by a pattern, and by nothing, whatever the mark says.
                DateTime out;
                if (!shared.ParseDateTimeTryAllFormats(u"Jan 3, 2020 3:04:05 PM", out, ParseDateAndTime) ||
                    out != DateTime(2020, 1, 3, 15, 4, 5, 0.0))
                    ++wrong;
                if (!shared.ParseDateTimeTryAllFormats(u"2020-01-04", out, ParseDateAndTime) ||
                    out != DateTime(2020, 1, 4, 0, 0, 0, 0.0))
                    ++wrong;
                if (shared.ParseDateTimeTryAllFormats(u"never", out, ParseDateAndTime))
                    ++wrong;
            }
        });
    }
    for (std::thread & thread : threads)
        thread.join();
    EXPECT_EQ(wrong, 0);
}
