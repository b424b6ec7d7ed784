#include "velicu/ICURegex.h"

#include <unicode/regex.h>

#include "NativeString.h"
#include "StatusScope.h"

namespace VelICU_V2 {

struct ICURegexPattern::Native
{
    std::unique_ptr<icu::RegexPattern> pattern;
};

struct ICURegexMatcher::Native
{
    std::unique_ptr<icu::RegexMatcher> matcher;
};

ICURegexPattern::ICURegexPattern(std::unique_ptr<Native> native) : m_native(std::move(native)) {}

ICURegexPattern::~ICURegexPattern() = default;

std::unique_ptr<ICURegexPattern> ICURegexPattern::createInstance(ICUString const & pattern, unsigned flags,
                                                                 ICUErrorCode & status)
{
    StatusScope scope(status);
    UParseError where;
    std::unique_ptr<icu::RegexPattern> compiled(
        icu::RegexPattern::compile(pattern.GetNative().text, flags, where, scope));
    if (scope.Failed() || !compiled)
        return nullptr;
    return std::make_unique<ICURegexPattern>(std::unique_ptr<Native>(new Native{std::move(compiled)}));
}

std::unique_ptr<ICURegexMatcher> ICURegexPattern::matcher(ICUErrorCode & status) const
{
    StatusScope scope(status);
    std::unique_ptr<icu::RegexMatcher> made(m_native->pattern->matcher(scope));
    if (scope.Failed() || !made)
        return nullptr;
    made->setTimeLimit(ICURegexMatcher::timeLimit, scope);
    if (scope.Failed())
        return nullptr;
    return std::make_unique<ICURegexMatcher>(
        std::unique_ptr<ICURegexMatcher::Native>(new ICURegexMatcher::Native{std::move(made)}));
}

TString ICURegexPattern::pattern() const
{
    return ToTString(m_native->pattern->pattern());
}

unsigned ICURegexPattern::flags() const noexcept
{
    return m_native->pattern->flags();
}

ICURegexMatcher::ICURegexMatcher(std::unique_ptr<Native> native) : m_native(std::move(native)) {}

ICURegexMatcher::~ICURegexMatcher() = default;

void ICURegexMatcher::reset(ICUString const & text)
{
    m_native->matcher->reset(text.GetNative().text);
}

bool ICURegexMatcher::matches(ICUErrorCode & status)
{
    StatusScope scope(status);
    return m_native->matcher->matches(scope) && !scope.Failed();
}

bool ICURegexMatcher::find()
{
    ICUErrorCode status = U_ZERO_ERROR;
    return find(status);
}

bool ICURegexMatcher::find(ICUErrorCode & status)
{
    StatusScope scope(status);
    return !scope.Failed() && m_native->matcher->find(scope) && !scope.Failed();
}

int ICURegexMatcher::groupCount() const noexcept
{
    return m_native->matcher->groupCount();
}

TString ICURegexMatcher::group(int number, ICUErrorCode & status) const
{
    StatusScope scope(status);
    icu::UnicodeString const text = m_native->matcher->group(number, scope);
    return scope.Failed() ? TString() : ToTString(text);
}

int ICURegexMatcher::start(ICUErrorCode & status) const
{
    StatusScope scope(status);
    return m_native->matcher->start(scope);
}

}  // namespace VelICU_V2
