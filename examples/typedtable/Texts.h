// Texts: what the program says, in the language that its user chose.
#pragma once

#include <initializer_list>
#include <string>

#include "velcoreplatform/CoreThreadContext.h"

namespace typedtable {

namespace detail {

inline std::string const & AsText(std::string const & text)
{
    return text;
}
inline std::string AsText(char const * text)
{
    return text;
}
template <class Number>
std::string AsText(Number number)
{
    return std::to_string(number);
}

std::string Translated(char const * english);
std::string Fill(std::string const & pattern, std::initializer_list<std::string> values);

}  // namespace detail

/// The text in the language in force, UTF-8, with its places %1, %2, ... filled: Text("line %1: %2", 17, what). English
/// where there is no translation. The English text is a literal: it is the key of its translations.
template <class... Values>
std::string Text(char const * english, Values const &... values)
{
    std::string const pattern = detail::Translated(english);
    if constexpr (sizeof...(values) == 0)
        return pattern;
    else
        return detail::Fill(pattern, {detail::AsText(values)...});
}

/// Puts a language in force while it lives: for the program's own texts, by the language archive beside the program,
/// and for those of the library, by a session. One at a time, on the thread that prints.
class LanguageScope
{
public:
    /// A language ("de") or a locale ("de_AT"). Throws UserError for one that is not known.
    explicit LanguageScope(std::string const & name);
    ~LanguageScope();
    LanguageScope(LanguageScope const &) = delete;
    LanguageScope & operator=(LanguageScope const &) = delete;

    /// The language's name in English, "Swedish (Sweden)", if it is not English and the program has no texts in it, nor
    /// in a language that stands for it; else empty.
    std::string const & GetMissing() const noexcept { return m_missing; }

    /// The LCID of the language in force, that of American English without one.
    static unsigned GetLcid();

private:
    ScopedSession m_session;
    std::string m_missing;
};

}  // namespace typedtable
