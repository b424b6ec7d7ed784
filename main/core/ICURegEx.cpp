#include "main/core/RegExBackEnd.h"
#include "main/core/RegExPatternCache.h"
#include "velsys/ThrowSite.h"

namespace detail {

namespace {

SharedRegExPattern Compile(RegExPatternKey const & key)
{
    // The local 8-bit encoding is UTF-8: what a pattern loses on the way is a lone surrogate.
    std::string const narrow = key.first.toLocal8Bit();
    auto const text = VelICU_V2::ICUString::createInstance(narrow.data(), static_cast<int>(narrow.size()));
    VelICU_V2::ICUErrorCode status = VelICU_V2::U_ZERO_ERROR;
    return VelICU_V2::ICURegexPattern::createInstance(*text, key.second, status);
}

class ICURegEx final : public RegExBackEnd
{
public:
    ICURegEx(char16_t const * pattern, unsigned flags) : m_pattern(GetRegExPattern(RegExPatternKey(pattern, flags)))
    {
        VelICU_V2::ICUErrorCode status = VelICU_V2::U_ZERO_ERROR;
        if (m_pattern)
            m_matcher = m_pattern->matcher(status);
    }
    // The matcher points into the text and goes first.
    ~ICURegEx() override { m_matcher.reset(); }

    bool match(char16_t const * text) override
    {
        VelICU_V2::ICUErrorCode status = VelICU_V2::U_ZERO_ERROR;
        return ResetOn(text).matches(status) && status == VelICU_V2::U_ZERO_ERROR;
    }

    TString replaceAll(char16_t const *, char16_t const *) override { return TString(); }

    bool search(char16_t const * text, std::vector<TString> & groups) override
    {
        groups.clear();
        auto & matcher = ResetOn(text);
        if (!matcher.find())
            return false;
        AppendGroups(matcher, groups);
        return true;
    }

    bool search(char16_t const * text) override { return ResetOn(text).find(); }

    void searchAll(char16_t const * text, std::vector<ReStringParserMatches> & matches) override
    {
        matches.clear();
        auto & matcher = ResetOn(text);
        while (matcher.find()) {
            ReStringParserMatches & record = matches.emplace_back();
            VelICU_V2::ICUErrorCode status = VelICU_V2::U_ZERO_ERROR;
            record.position = matcher.start(status);
            AppendGroups(matcher, record.groups);
        }
    }

private:
    VelICU_V2::ICURegexMatcher & ResetOn(char16_t const * text)
    {
        VELTRIA_ASSERT(m_matcher, 0x9F2C6E14);
        // The matcher points into the old text until it is reset.
        auto next = VelICU_V2::ICUString::createInstance(text);
        m_matcher->reset(*next);
        m_text = std::move(next);
        return *m_matcher;
    }

    static void AppendGroups(VelICU_V2::ICURegexMatcher const & matcher, std::vector<TString> & groups)
    {
        int const count = matcher.groupCount();
        groups.reserve(static_cast<std::size_t>(count));
        for (int i = 1; i <= count; ++i) {
            VelICU_V2::ICUErrorCode status = VelICU_V2::U_ZERO_ERROR;
            groups.push_back(matcher.group(i, status));
        }
    }

    SharedRegExPattern m_pattern;
    std::unique_ptr<VelICU_V2::ICURegexMatcher> m_matcher;
    std::unique_ptr<VelICU_V2::ICUString> m_text;
};

}  // namespace

RegExPatternCache & GetRegExPatternCache()
{
    static RegExPatternCache cache(TStringCore(), 4096);
    return cache;
}

SharedRegExPattern GetRegExPattern(RegExPatternKey const & key)
{
    return GetRegExPatternCache().Get(key, Compile);
}

std::unique_ptr<RegExBackEnd> MakeICURegEx(char16_t const * pattern, unsigned flags)
{
    return std::make_unique<ICURegEx>(pattern, flags);
}

}  // namespace detail
