// Regular expressions of ICU.
//
// A pattern is compiled once and is immutable: any number of threads may make matchers of it. A matcher belongs to one
// thread at a time, keeps pointing into the pattern and into the text it was reset on, and both must outlive it.
// Positions and lengths count UTF-16 code units.
//
// A match attempt is bounded, so that no pattern can hang its caller: 8,000,000 bytes of backtracking states and
// `timeLimit` units of 10,000 saved states. An attempt beyond either fails with U_REGEX_STACK_OVERFLOW (66321) or
// U_REGEX_TIME_OUT (66322). Example: "(a+)+$" on thirty letters "a" and a "b" runs into the time limit.
#pragma once

#include <memory>

#include "velcoreplatform/TString.h"
#include "velicu/ErrorCode.h"
#include "velicu/Export.h"
#include "velicu/ICUString.h"

namespace VelICU_V2 {

class ICURegexMatcher;

// Flags of a pattern, ICU's numbers.
enum ICURegexFlags : unsigned
{
    UREGEX_CASE_INSENSITIVE = 2,
    UREGEX_DOTALL = 32  // "." matches line ends too
};

class VELICU_API ICURegexPattern
{
public:
    struct Native;  // ICU's pattern, known to this layer's sources

    // The compiled pattern, or null with a failure in `status` for a text that is no pattern: 66304 and up are the
    // failures of regular expressions, U_REGEX_MISMATCHED_PAREN 66310 for "(".
    static std::unique_ptr<ICURegexPattern> createInstance(ICUString const & pattern, unsigned flags,
                                                           ICUErrorCode & status);
    ~ICURegexPattern();
    ICURegexPattern(ICURegexPattern const &) = delete;
    ICURegexPattern & operator=(ICURegexPattern const &) = delete;

    // A matcher without a text: reset it before its first use. Null with a failure.
    std::unique_ptr<ICURegexMatcher> matcher(ICUErrorCode & status) const;

    TString pattern() const;
    unsigned flags() const noexcept;

    explicit ICURegexPattern(std::unique_ptr<Native> native);

private:
    std::unique_ptr<Native> m_native;
};

class VELICU_API ICURegexMatcher
{
public:
    struct Native;

    // See above; about 200 ms to 2 s of work.
    static constexpr int timeLimit = 2000;

    ~ICURegexMatcher();
    ICURegexMatcher(ICURegexMatcher const &) = delete;
    ICURegexMatcher & operator=(ICURegexMatcher const &) = delete;

    // Forgets the last match and starts at the beginning of `text`, which must outlive its use here.
    void reset(ICUString const & text);

    // Whether the whole text matches.
    bool matches(ICUErrorCode & status);

    // The next match after the last one. False also on a failure; the second form tells which.
    bool find();
    bool find(ICUErrorCode & status);

    // Capturing groups of the pattern, group 0 not counted.
    int groupCount() const noexcept;
    // Text of a group of the last match, 0 for the whole match; empty for a group that took no part. Without a match
    // the failure is U_REGEX_INVALID_STATE (66306), for a group that does not exist U_INDEX_OUTOFBOUNDS_ERROR.
    TString group(int number, ICUErrorCode & status) const;
    // First code unit of the last match, -1 with a failure.
    int start(ICUErrorCode & status) const;

    explicit ICURegexMatcher(std::unique_ptr<Native> native);

private:
    std::unique_ptr<Native> m_native;
};

}  // namespace VelICU_V2
