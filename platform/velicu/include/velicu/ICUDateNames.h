#pragma once

#include <memory>

#include "velcoreplatform/TString.h"
#include "velicu/ErrorCode.h"

namespace VelICU_V2 {

// Names of days, months and quarters on the Gregorian calendar, as they stand inside a date in the language of `locale`
// (a name as "en_US"; Slavic month names are genitives). All numbers count from 1; one out of range gives an empty
// text.
class VELICU_API ICUDateFormatSymbols
{
public:
    static TString getWeekday(int day, char const * locale);      // 1 is "Sunday"
    static TString getMonth(int month, char const * locale);      // 1 is "January"
    static TString getQuarter(int quarter, char const * locale);  // short: 1 is "Q1"
};

// Finds the pattern in a locale's manner that shows the fields of a skeleton: "yMMMd" in en_US gives "MMM d, y".
// Building one costs about a thousand times a question. Belongs to one thread at a time.
class VELICU_API ICUDateTimePatternGenerator
{
public:
    struct Native;

    // For the Gregorian calendar unless the name has the keyword "calendar". Null on failure.
    static std::unique_ptr<ICUDateTimePatternGenerator> createInstance(char const * locale, ICUErrorCode & status);
    ~ICUDateTimePatternGenerator();

    // Empty on failure.
    TString getBestPattern(TString const & skeleton, ICUErrorCode & status);

    explicit ICUDateTimePatternGenerator(std::unique_ptr<Native> native);

private:
    std::unique_ptr<Native> m_native;
};

}  // namespace VelICU_V2
