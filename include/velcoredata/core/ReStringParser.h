// ReStringParser: the one front end for regular expressions.
#pragma once

#include <cstdint>
#include <memory>
#include <vector>

#include "velcoredata/core/Export.h"
#include "velcoreplatform/TString.h"
#include "velsys/RefCntObject.h"
#include "velsys/RefCntPtr.h"

/// The dialects. Any number but 1 is the dialect of ICU.
enum RegExParserDefs : std::uint32_t
{
    RegExParserICU = 0,
    RegExParserXpressive = 1
};

/// One match of searchAll: the first code unit of the match, counted from 0, and the texts of groups 1 and up. A group
/// that took no part in the match is an empty text.
struct ReStringParserMatches
{
    std::int32_t position = -1;
    std::vector<TString> groups;
};

namespace detail {
class RegExBackEnd;
}

/// A compiled regular expression, reference-counted and used through RefCntPtr. One object is for one thread at a time:
/// searches keep their state in it. Objects of the same pattern may be used by several threads at once; compiled ICU
/// patterns are shared between them in a process-wide cache of 4096.
///
/// Texts, patterns and replacements are terminated: nothing after a U+0000 is seen. Positions count UTF-16 code units.
///
/// The two dialects differ:
///
///                       Boost.Xpressive (1)                       ICU (all others)
///   syntax              ECMAScript                                ICU, "." matches line ends (UREGEX_DOTALL)
///   unit of matching    UTF-16 code unit                          code point
///   match, empty text   false, whatever the pattern               what the pattern says
///   replaceAll          Xpressive's default format: $1, $&        the empty text, whatever the arguments
///   bad pattern         the constructor throws                    every use raises a logic assertion
///                       boost::xpressive::regex_error             "LogicException_LogicAssert_0x9F2C6E14"
///   too much work       regex_error (error_stack when the         no match
///                       thread's stack or 3 MB of it run
///                       out, else error_complexity)
///
/// "Too much work" bounds catastrophic patterns, such as (a+)+$ on a long row of a's. ICU gives up an attempt at
/// 8,000,000 bytes of backtracking states (about a million open choices) or 20 million saved states; Xpressive at
/// 20 million steps plus 64 for each code unit of the text. Xpressive refuses patterns over 2048 code units or 128 open
/// groups with error_complexity. Character classes, blanks and case follow Unicode in both.
///
/// Example:
///   RefCntPtr<ReStringParser> const p(new ReStringParser(u"(\\d+)-(\\d+)", true, RegExParserICU));
///   std::vector<TString> groups;
///   p->search(u"on 10-15", groups);  // true, groups are "10" and "15"
class VELCOREDATA_API ReStringParser : public RefCntObject
{
public:
    /// Without a back end, for subclasses. Using it raises the logic assertion "m_backEnd",
    /// "LogicException_LogicAssert_0x4B7D13A8".
    ReStringParser();

    /// Compiles the pattern.
    ReStringParser(char16_t const * pattern, bool caseSensitive, RegExParserDefs dialect);

    ReStringParser(ReStringParser const &) = delete;
    ReStringParser & operator=(ReStringParser const &) = delete;

    /// Whether the whole text matches.
    bool match(char16_t const * text);
    /// Whether a part of the text matches. The second form replaces `groups` by the texts of groups 1 and up of the
    /// first match; `groups` is cleared even when nothing matches.
    bool search(char16_t const * text);
    bool search(char16_t const * text, std::vector<TString> & groups);
    /// Replaces `matches` by all matches, left to right, none overlapping.
    void searchAll(char16_t const * text, std::vector<ReStringParserMatches> & matches);
    /// The text with every match replaced. The empty text stays empty.
    TString replaceAll(char16_t const * text, char16_t const * replacement);

    /// The same with a temporary case-sensitive parser of the Xpressive dialect; compiles the pattern on each call.
    ///   ReplaceAll(u"a1b22", u"\\d+", u"<$&>")  // "a<1>b<22>"
    static TString ReplaceAll(TString const & text, TString const & pattern, TString const & replacement);

protected:
    ~ReStringParser() override;

private:
    detail::RegExBackEnd & BackEnd() const;

    std::unique_ptr<detail::RegExBackEnd> m_backEnd;
};
