// A pattern and a text through every operation of a ReStringParser. First line: pattern; rest: text.
#pragma once

#include <exception>

#include "fuzz/support/FuzzText.h"
#include "velcoredata/core/ReStringParser.h"
#include "velsys/VeltriaException.h"

namespace fuzz_support {

inline void RunRegEx(std::uint8_t const * data, std::size_t size, RegExParserDefs dialect)
{
    auto const lines = Lines(data, size, 2);
    bool const caseSensitive = size % 2 == 0;
    try {
        RefCntPtr<ReStringParser> const parser(new ReStringParser(lines[0], caseSensitive, dialect));
        std::vector<TString> groups;
        std::vector<ReStringParserMatches> matches;
        bool const found = parser->search(lines[1]);
        Require(parser->search(lines[1], groups) == found, "both searches agree");
        Require(!parser->match(lines[1]) || found, "what matches whole is found");
        parser->searchAll(lines[1], matches);
        Require(matches.empty() == !found, "a search of all finds what a search finds");
        for (auto const & match : matches) {
            Require(match.position >= 0 && match.position <= lines[1].length(), "a match stands in the text");
            Require(match.groups.size() == groups.size(), "all matches have the groups of the pattern");
        }
        parser->replaceAll(lines[1], u"<$&$1>");
    } catch (VeltriaException const &) {
        Require(dialect != RegExParserXpressive, "Xpressive raises its own exception");
    } catch (std::exception const &) {
        Require(dialect == RegExParserXpressive, "a bad pattern of ICU is an assertion on use");
    }
}

}  // namespace fuzz_support
