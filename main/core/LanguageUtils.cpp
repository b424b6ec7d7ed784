#include "velcoredata/core/LanguageUtils.h"

#include <algorithm>

#include "main/core/LanguageTables.h"
#include "velcoredata/string/ICUUtils.h"
#include "velicu/LocaleNames.h"
#include "velnls/LocaleInfo.h"
#include "velsys/NoDestructor.h"

namespace LanguageUtils {

namespace {

// Longer than any published name, terminator included.
constexpr int NAME_CAPACITY = 157;

// Codes of fewer code units are never taken apart.
constexpr int SHORTEST_CODE_WITH_PARTS = 6;

std::string WithIcuLanguage(std::string name)
{
    std::replace(name.begin(), name.end(), '-', '_');
    if (name.compare(0, 3, "prs") == 0)
        name.replace(0, 3, "fa");
    else if (name.compare(0, 3, "quz") == 0)
        name.erase(2, 1);
    return name;
}

}  // namespace

std::string GetLocaleNarrowStr(LCID lcid)
{
    constexpr char const * root = "root";
    LCID const real = ::ConvertDefaultLocale(lcid);
    if (real == 0 || real == 1024)
        return root;

    char name[NAME_CAPACITY] = {};
    if (GetLocaleInfoA(real, LOCALE_SNAME, name, NAME_CAPACITY) > 1)
        return WithIcuLanguage(name);

    VelICU::ICUErrorCode status = VelICU::U_ZERO_ERROR;
    VelICU::t_uloc_getLocaleForLCID(real, name, NAME_CAPACITY - 1, status);
    return VelICU::ICU_SUCCESS(status) ? name : root;
}

TString GetLocaleStr(LCID lcid)
{
    return lcid == detail::BIDI_PSEUDO_LCID ? TString(detail::BIDI_PSEUDO_LOCALE)
                                            : TString::fromStdString(GetLocaleNarrowStr(lcid));
}

LCID GetLCID(TString const & locale)
{
    return ICUUtils::GetLCID(locale);
}

LCID ConvertDefaultLocale(LCID lcid)
{
    return ::ConvertDefaultLocale(lcid);
}

bool IsLocaleSupported(TString const & locale)
{
    return GetLCID(locale) != 0;
}

TString GetISOString(TString const & code)
{
    int const hyphen = code.indexOf(u'-');
    return hyphen > 0 ? code.left(hyphen) : code;
}

TString GetLanguageName(TString const & locale)
{
    return ICUUtils::GetLanguageName(locale);
}

LanguageScript GetLanguageScript(TString const & isoString)
{
    for (detail::ScriptRow const & row : detail::Scripts()) {
        if (isoString == row.isoString)
            return row.script;
    }
    return ScriptNone;
}

TString RemoveMarketStringFromLanguageCode(TString const & code)
{
    if (code.length() < SHORTEST_CODE_WITH_PARTS)
        return code;
    std::vector<TString> const parts = code.split(u"-");
    return parts.size() == 2 ? parts[0] : code;
}

TString RemoveScriptFromLanguageCode(TString const & code)
{
    if (code.length() < SHORTEST_CODE_WITH_PARTS)
        return code;
    std::vector<TString> const parts = code.split(u"_");
    return parts.size() == 3 ? parts[0] + u'_' + parts[2] : code;
}

TString GetDefaultISOString()
{
    return detail::DEFAULT_ISO_STRING;
}

TString GetDefaultLanguage()
{
    static ::detail::NoDestructor<TString> s_language(GetLanguageName(GetDefaultISOString()));
    return *s_language;
}

std::map<TString, MapCode> const & GetMapCodeLocales()
{
    static ::detail::NoDestructor<std::map<TString, MapCode>> s_codes([] {
        std::map<TString, MapCode> codes;
        for (detail::MapRow const & row : detail::MapCodes())
            codes.emplace(TString(row.isoString), row.code);
        return codes;
    }());
    return *s_codes;
}

TString GetMapCodeString(MapCode code)
{
    switch (code) {
    case MapCodeCN: return u"CN";
    case MapCodeIN: return u"IN";
    case MapCodeUS: break;
    }
    return u"US";
}

bool UsesImperialDistanceUnits(TString const & country)
{
    return country == u"US" || country == u"GB" || country == u"LR" || country == u"MM";
}

}  // namespace LanguageUtils
