#include "IcuLocale.h"

#include <algorithm>
#include <set>
#include <string_view>

#include "velsys/NoDestructor.h"

namespace VelNLS::detail {

namespace {

// Published names that ICU has under another name, or with the script in it, by a prefix of whole parts.
struct Renamed
{
    std::string_view published;
    char const * icu;
};

constexpr Renamed renamed[] = {
    {"ja-Ploc", "ja"}, {"ar-Ploc", "ar"}, {"ku-Arab", "ckb"}, {"ku", "ckb"},     {"plt", "mg"},
    {"prs", "fa"},     {"quz", "qu"},     {"tmz", "tzm"},     {"zh-yue", "yue"}, {"ff-NG", "ff_Latn_NG"},
};

bool BeginsWithPart(std::string_view name, std::string_view part)
{
    return name.substr(0, part.size()) == part && (name.size() == part.size() || name[part.size()] == '-');
}

std::string IcuName(std::string_view name)
{
    if (BeginsWithPart(name, "qps"))  // pseudo-locales
        return "en_US";
    if (BeginsWithPart(name, "x"))
        return "";
    std::string icu(name.substr(0, name.find('_')));  // without the alternate sort order
    for (Renamed const & row : renamed) {
        if (BeginsWithPart(icu, row.published)) {
            icu.replace(0, row.published.size(), row.icu);
            break;
        }
    }
    std::replace(icu.begin(), icu.end(), '-', '_');
    return icu;
}

// "en", and "sr_Latn" where ICU has the data of more than one script.
std::set<std::string> LanguagesWithData()
{
    std::set<std::string> languages;
    std::int32_t count = 0;
    icu::Locale const * const locales = icu::Locale::getAvailableLocales(count);
    for (std::int32_t i = 0; i < count; ++i) {
        languages.insert(locales[i].getLanguage());
        if (*locales[i].getScript() != 0)
            languages.insert(std::string(locales[i].getLanguage()) + '_' + locales[i].getScript());
    }
    return languages;
}

// ICU answers for a language or script that it does not know from the process's default locale.
bool HasData(icu::Locale const & locale)
{
    static ::detail::NoDestructor<std::set<std::string>> s_languages(LanguagesWithData());
    std::string const language = locale.getLanguage();
    if (s_languages->count(language) == 0)
        return false;
    if (*locale.getScript() == 0 || s_languages->count(language + '_' + locale.getScript()) != 0)
        return true;
    icu::Locale likely(language.c_str());
    UErrorCode status = U_ZERO_ERROR;
    likely.addLikelySubtags(status);
    return U_SUCCESS(status) && std::string_view(likely.getScript()) == locale.getScript();
}

}  // namespace

IcuLocale IcuLocaleOf(char const * publishedName)
{
    icu::Locale const locale(IcuName(publishedName).c_str());
    icu::Locale likely(locale);
    UErrorCode status = U_ZERO_ERROR;
    if (*likely.getCountry() == 0)
        likely.addLikelySubtags(status);
    return {HasData(locale) ? locale : icu::Locale::getRoot(),
            std::string("und_") + (U_FAILURE(status) ? "" : likely.getCountry())};
}

}  // namespace VelNLS::detail
