// What stands behind a ReStringParser, one class per dialect.
#pragma once

#include <memory>
#include <vector>

#include "velcoredata/core/ReStringParser.h"

namespace detail {

class RegExBackEnd
{
public:
    virtual ~RegExBackEnd() = default;
    virtual bool match(char16_t const * text) = 0;
    virtual TString replaceAll(char16_t const * text, char16_t const * replacement) = 0;
    virtual bool search(char16_t const * text, std::vector<TString> & groups) = 0;
    virtual bool search(char16_t const * text) = 0;
    virtual void searchAll(char16_t const * text, std::vector<ReStringParserMatches> & matches) = 0;
};

// Flags: UREGEX_CASE_INSENSITIVE or 0. Throws boost::xpressive::regex_error on a bad pattern.
std::unique_ptr<RegExBackEnd> MakeBoostXpressive(char16_t const * pattern, unsigned flags);

// Flags of ICURegexFlags. Never throws on a bad pattern.
std::unique_ptr<RegExBackEnd> MakeICURegEx(char16_t const * pattern, unsigned flags);

}  // namespace detail
