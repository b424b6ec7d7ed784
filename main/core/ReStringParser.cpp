#include "velcoredata/core/ReStringParser.h"

#include "main/core/RegExBackEnd.h"
#include "velicu/ICURegex.h"
#include "velsys/ThrowSite.h"

namespace {

std::unique_ptr<detail::RegExBackEnd> MakeBackEnd(char16_t const * pattern, bool caseSensitive, RegExParserDefs dialect)
{
    unsigned const caseFlag = caseSensitive ? 0u : VelICU_V2::UREGEX_CASE_INSENSITIVE;
    return dialect == RegExParserXpressive ? detail::MakeBoostXpressive(pattern, caseFlag)
                                           : detail::MakeICURegEx(pattern, VelICU_V2::UREGEX_DOTALL | caseFlag);
}

}  // namespace

ReStringParser::ReStringParser() = default;

ReStringParser::ReStringParser(char16_t const * pattern, bool caseSensitive, RegExParserDefs dialect)
    : m_backEnd(MakeBackEnd(pattern, caseSensitive, dialect))
{}

ReStringParser::~ReStringParser() = default;

detail::RegExBackEnd & ReStringParser::BackEnd() const
{
    VELTRIA_ASSERT(m_backEnd, 0x4B7D13A8);
    return *m_backEnd;
}

bool ReStringParser::match(char16_t const * text)
{
    return BackEnd().match(text);
}

bool ReStringParser::search(char16_t const * text)
{
    return BackEnd().search(text);
}

bool ReStringParser::search(char16_t const * text, std::vector<TString> & groups)
{
    return BackEnd().search(text, groups);
}

void ReStringParser::searchAll(char16_t const * text, std::vector<ReStringParserMatches> & matches)
{
    BackEnd().searchAll(text, matches);
}

TString ReStringParser::replaceAll(char16_t const * text, char16_t const * replacement)
{
    return BackEnd().replaceAll(text, replacement);
}

TString ReStringParser::ReplaceAll(TString const & text, TString const & pattern, TString const & replacement)
{
    RefCntPtr<ReStringParser> const parser(new ReStringParser(pattern, true, RegExParserXpressive));
    return parser->replaceAll(text, replacement);
}
