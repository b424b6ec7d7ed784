#include "typedtable/Texts.h"

#include <boost/any.hpp>

#include <memory>

#include <QTranslator>

#include "typedtable/UserError.h"
#include "velcoredata/core/LanguageUtils.h"
#include "velcoredata/core/StringTableCache.h"
#include "velcoredata/core/TLocale.h"

namespace typedtable {

namespace {

constexpr char const * kContext = "typedtable";
constexpr LCID kEnglish = 0x409;

QTranslator const * s_translator = nullptr;
LCID s_lcid = kEnglish;

QTranslator const * FindTranslator(TString const & language)
{
    QTranslator const * const translator = StringTableCache::GetInstance().GetTranslator(language);
    return translator == nullptr || translator->isEmpty() ? nullptr : translator;
}

}  // namespace

std::string detail::Translated(char const * english)
{
    if (s_translator == nullptr)
        return english;
    QString const text = s_translator->translate(kContext, english);
    return text.isEmpty() ? english : text.toStdString();
}

// On bytes: names of files need not be UTF-8. What was put in is never looked at again.
std::string detail::Fill(std::string const & pattern, std::initializer_list<std::string> values)
{
    std::string filled;
    for (std::size_t i = 0; i < pattern.size(); ++i) {
        int const place = pattern[i] == '%' && i + 1 < pattern.size() ? pattern[i + 1] - '1' : -1;
        if (place < 0 || place >= static_cast<int>(values.size())) {
            filled += pattern[i];
        } else {
            filled += values.begin()[place];
            ++i;
        }
    }
    return filled;
}

LanguageScope::LanguageScope(std::string const & name)
{
    TString const text = TString::fromStdString(name);
    if (!LanguageUtils::IsLocaleSupported(text))
        throw UserError(Text("--language: \"%1\" is not a known language, as de_DE is", name));
    auto const locale = std::make_shared<TLocale>(text);
    CoreThreadContext::SetGenericObject(TString(u"locale"), std::make_shared<boost::any>(locale));

    LanguageCode const & code = locale->getLanguageCode();
    s_translator = FindTranslator(code.GetISOString());
    // Canadian French falls back to French.
    if (s_translator == nullptr)
        s_translator = FindTranslator(LanguageUtils::GetLanguageName(code.GetISOString()));
    if (s_translator == nullptr && !code.GetISOString().startsWith(LanguageUtils::GetDefaultLanguage()))
        m_missing = code.GetDisplayName(kEnglish).toStdString();
    s_lcid = code.GetLCID();
}

LanguageScope::~LanguageScope()
{
    s_translator = nullptr;
    s_lcid = kEnglish;
}

unsigned LanguageScope::GetLcid()
{
    return s_lcid;
}

}  // namespace typedtable
