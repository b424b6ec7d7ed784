// Parsing of qualified names.

#include <string_view>

#include "main/data/BracketScan.h"
#include "velcoredata/core/LocalStrings.h"
#include "velcoredata/data/QualifiedName.h"
#include "velcoredata/data/QualifiedNameException.h"
#include "velcoreplatform/TFormatString.h"
#include "velsys/ThrowSite.h"

namespace {

using CoreData::StringId;

// What callers catch is the base; this class tells a debugger where it came from.
class QualifiedFieldNameParseException : public QualifiedNameException
{
public:
    using QualifiedNameException::QualifiedNameException;
    ~QualifiedFieldNameParseException() override = default;
    QualifiedFieldNameParseException * Clone() const override { return new QualifiedFieldNameParseException(*this); }
    [[noreturn]] void Throw() const override
    {
        QualifiedFieldNameParseException copy(*this);
        throw copy;
    }
};

struct ParseError
{
    unsigned code;
    char16_t const * name;
    StringId message;
};

#define PARSE_ERROR(code, message)                                                                                     \
    {                                                                                                                  \
        code, u"VeltriaException_QualifiedNameParseException_" #code, StringId::message                                \
    }
constexpr ParseError kNoBracketAtStart PARSE_ERROR(0x5F1F5407, IDS_ERR_EXPECT_LBRACKET);
constexpr ParseError kNoBracketAfterDot PARSE_ERROR(0x5F1F5408, IDS_ERR_EXPECT_LBRACKET);
constexpr ParseError kEndAfterBracket PARSE_ERROR(0x5F1F5409, IDS_ERR_DANGLING_LBRACKET);
constexpr ParseError kNoClosingBracket PARSE_ERROR(0x5F1F540A, IDS_ERR_BRACKET_MISMATCH);
constexpr ParseError kNoDot PARSE_ERROR(0x5F1F540B, IDS_ERR_EXPECT_DOT);
constexpr ParseError kEndAfterDot PARSE_ERROR(0x5F1F540C, IDS_ERR_DANGLING_DOT);
#undef PARSE_ERROR

[[noreturn, gnu::cold]] void Raise(ParseError const & error, std::u16string_view text)
{
    TString const input = TString::fromView(text);
    throw QualifiedFieldNameParseException(TFormatString(u"Qualified Name Parse Error --- %1 --- Input: %2")
                                               .arg(CoreData::LookupTStrExported(error.message), input),
                                           input, VeltriaError::MakeError(error.code, error.name));
}

// White space as TString::trim has it.
std::u16string_view Trimmed(TString const & text)
{
    std::u16string_view const whole = text.View();
    if (!whole.empty() && whole.front() == u'[' && whole.back() == u']')
        return whole;
    QStringView const trimmed = QStringView(text.toQString()).trimmed();
    return {trimmed.utf16(), static_cast<std::size_t>(trimmed.size())};
}

// Walks the components of a trimmed text; onBody gets the text between the brackets and whether it has pairs. Returns
// null, or the error that ends the walk.
template <class OnBody>
ParseError const * WalkComponents(std::u16string_view text, OnBody onBody)
{
    if (text.empty())
        return nullptr;
    if (text.front() != u'[')
        return &kNoBracketAtStart;
    detail::BracketScan brackets(text);
    for (std::size_t open = 0;;) {
        std::size_t const bodyStart = open + 1;
        if (bodyStart >= text.size())
            return &kEndAfterBracket;
        bool hasPair = false;
        std::size_t close = brackets.Next(bodyStart);
        for (; close != text.npos; close = brackets.Next(close + 2)) {
            if (close + 1 == text.size() || text[close + 1] != u']')
                break;
            hasPair = true;
        }
        if (close == text.npos)
            return &kNoClosingBracket;
        onBody(text.substr(bodyStart, close - bodyStart), hasPair);
        if (close + 1 == text.size())
            return nullptr;
        if (text[close + 1] != u'.')
            return &kNoDot;
        open = close + 2;
        if (open == text.size())
            return &kEndAfterDot;
        if (text[open] != u'[')
            return &kNoBracketAfterDot;
    }
}

TString WithoutPairs(std::u16string_view body)
{
    TString component;
    component.reserve(static_cast<int>(body.size()));
    for (std::size_t bracket; (bracket = body.find(u']')) != body.npos; body.remove_prefix(bracket + 2))
        component.append(body.data(), static_cast<int>(bracket) + 1);
    component.append(body.data(), static_cast<int>(body.size()));
    return component;
}

}  // namespace

// Null if the text does not parse and throwOnError is false.
std::shared_ptr<QualifiedName::QNData> QualifiedName::Parse(TString const & text, bool throwOnError)
{
    std::u16string_view const trimmed = Trimmed(text);
    if (trimmed.empty())
        return EmptyBlock();
    auto block = std::make_shared<QNData>();
    ParseError const * const error = WalkComponents(trimmed, [&](std::u16string_view body, bool hasPair) {
        if (hasPair)
            block->m_components.push_back(WithoutPairs(body));
        else
            block->m_components.emplace_back(body.data(), static_cast<int>(body.size()));
    });
    if (error == nullptr)
        return block;
    if (throwOnError)
        Raise(*error, trimmed);
    return nullptr;
}

QualifiedName QualifiedName::ParseGlobal(TString const & text)
{
    return QualifiedName(Parse(text, true));
}

QualifiedName QualifiedName::ParseLocal(TString const & text)
{
    return ParseGlobal(text);
}

QualifiedName QualifiedName::ParseGlobal(TString const & text, std::unordered_map<TString, QualifiedName> & cache)
{
    auto found = cache.find(text);
    if (found == cache.end())
        found = cache.emplace(text, ParseGlobal(text)).first;
    return found->second;
}

QualifiedName QualifiedName::ParseLocal(TString const & text, std::unordered_map<TString, QualifiedName> & cache)
{
    return ParseGlobal(text, cache);
}

QualifiedName QualifiedName::ParseUnquoted(TString const & text)
{
    return QualifiedName(text);
}

std::unique_ptr<QualifiedName> QualifiedName::TryParseQualifiedName(TString const & text, bool throwOnError)
{
    std::shared_ptr<QNData> block = Parse(text, throwOnError);
    if (block == nullptr)
        return nullptr;
    return std::unique_ptr<QualifiedName>(new QualifiedName(std::move(block)));
}

bool QualifiedName::CanParseQualifiedName(TString const & text)
{
    return WalkComponents(Trimmed(text), [](std::u16string_view, bool) {}) == nullptr;
}

inline namespace K_qn {

QualifiedName operator""_qn(char16_t const * text, std::size_t length)
{
    return QualifiedName::ParseGlobal(TString(text, static_cast<int>(length)));
}

QualifiedName operator""_qn(wchar_t const * text, std::size_t length)
{
    return QualifiedName::ParseGlobal(TString(text, static_cast<int>(length)));
}

}  // namespace K_qn
