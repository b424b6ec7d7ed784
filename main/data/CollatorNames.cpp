#include "velcoredata/data/CollatorNames.h"

#include <algorithm>
#include <iterator>

#include "main/data/CollatorAttributes.h"
#include "main/data/CollatorSpec.h"
#include "velcoredata/string/CoreICUUtils.h"
#include "velcoreplatform/TFormatString.h"
#include "velcoreplatform/TLog.h"
#include "velicu/ICUVersion.h"
#include "velicu/LocaleNames.h"
#include "velsys/ThrowSite.h"

using namespace detail;

namespace
{

constexpr unsigned ignoreCase = 0x1;
constexpr unsigned ignoreAccents = 0x2;
constexpr unsigned ignoreSymbols = 0x4;
constexpr unsigned windowsSpecific = 0x80000000u;
constexpr int localePartSize = 31;

char16_t const * const cmpStrength[] = {u"S1", u"S2", u"S3", u"S4"};

using LocalePartReader = int (*)(char const *, char *, int, VelICU_V2::ICUErrorCode &) noexcept;

// Empty when the locale has no such part.
TString LocalePart(LocalePartReader read, char const * locale)
{
    char part[localePartSize + 1] = {};
    VelICU_V2::ICUErrorCode status = VelICU_V2::U_ZERO_ERROR;
    read(locale, part, localePartSize, status);
    if (VelICU_V2::ICU_FAILURE(status))
        CoreICUUtils::ThrowICUException(status, TString::fromLatin1(locale, -1));
    return TString::fromLatin1(part, -1);
}

void AppendToken(TString & name, char16_t letter, TString const & text)
{
    if (!name.isEmpty())
        name += u"_";
    if (letter != 0)
        name += letter;
    name += text;
}

void LogUnhandledSort(int sortOpt)
{
    LogMessage(TFormatString(u"Collation sort option not handled: %1").arg(sortOpt, 0, 10, u' '));
}

// The five attributes that the options settle, all default at the start.
struct OptionValues
{
    int alternate = VALUE_DEFAULT;
    int strength = VALUE_DEFAULT;
    int wordSort = VALUE_DEFAULT;
    int caseFirst = VALUE_DEFAULT;
    int caseLevel = VALUE_DEFAULT;

    void Apply(CollationOptions::PunctOpt punctOpt)
    {
        if (punctOpt == CollationOptions::PunctQuaternary)
            strength = QUATERNARY;
        else if (punctOpt == CollationOptions::PunctIgnore)
        {
            alternate = SHIFTED;
            strength = TERTIARY;
        }
    }
    void Apply(CollationOptions::CaseOpt caseOpt)
    {
        switch (caseOpt)
        {
        case CollationOptions::CaseInsensitive: strength = SECONDARY; break;
        case CollationOptions::CaseUpperFirst: caseFirst = UPPER_FIRST; break;
        case CollationOptions::CaseLowerFirst: caseFirst = LOWER_FIRST; break;
        default: break;
        }
    }
    void Apply(CollationOptions::AccentOpt accentOpt, CollationOptions::CaseOpt caseOpt)
    {
        if (accentOpt != CollationOptions::AccentInsensitive)
            return;
        strength = PRIMARY;
        if (caseOpt != CollationOptions::CaseInsensitive)
            caseLevel = ON;
    }
    ColAttributeList List() const
    {
        return {{ALTERNATE_HANDLING, alternate},
                {STRENGTH, strength},
                {WORDSORT, wordSort},
                {CASE_FIRST, caseFirst},
                {CASE_LEVEL, caseLevel}};
    }
};

}  // namespace

TString MakeCollatorName(LCID lcid, unsigned cmpFlags, bool wordSort)
{
    int strength = -1;
    bool caseLevel = false;
    if (cmpFlags & ignoreCase)
        strength = SECONDARY;
    else if (cmpFlags & ignoreSymbols)
        strength = TERTIARY;
    if (cmpFlags & ignoreAccents)
    {
        strength = PRIMARY;
        caseLevel = (cmpFlags & ignoreCase) == 0;
    }

    char buffer[157] = {};
    LocaleNameFromLCID(lcid, buffer, static_cast<int>(std::size(buffer)));
    std::string locale(buffer);
    if (cmpFlags & windowsSpecific)
        locale += "_VWIN";

    TString name;
    if (cmpFlags & ignoreSymbols)
        AppendToken(name, 0, u"AS");
    if (caseLevel)
        AppendToken(name, 0, u"EO");
    TString const language = LocalePart(VelICU_V2::t_uloc_getLanguage, locale.c_str());
    if (!language.isEmpty())
        AppendToken(name, u'L', language);
    else if (VelICU_V2::ICUVersion::Is_ICU_68() && (lcid == 0 || lcid == 0x400))
        AppendToken(name, u'L', TString::fromLatin1(locale.c_str(), -1));
    TString const country = LocalePart(VelICU_V2::t_uloc_getCountry, locale.c_str());
    if (!country.isEmpty())
        AppendToken(name, u'R', country);
    if (strength >= 0)
    {
        VELTRIA_ASSERT_TEXT(
            std::size_t(strength) < std::size(cmpStrength), "size_t(strength) < N", 0xCEB1BB08);
        AppendToken(name, 0, cmpStrength[strength]);
    }
    if (cmpFlags & windowsSpecific)
        name += u"_VWIN";
    if (wordSort)
        AppendToken(name, 0, u"WO");
    TString const script = LocalePart(VelICU_V2::t_uloc_getScript, locale.c_str());
    if (!script.isEmpty())
        AppendToken(name, u'Z', script);
    return name.toUpper();
}

TString MakeCollatorName(char16_t const * name,
                         CollationOptions::CaseOpt caseOpt,
                         CollationOptions::AccentOpt accentOpt,
                         CollationOptions::SortOpt sortOpt,
                         CollationOptions::PunctOpt punctOpt)
{
    std::vector<TString> tokens = SplitCollatorName(name);
    OptionValues values;
    values.Apply(punctOpt);
    values.Apply(caseOpt);
    values.Apply(accentOpt, caseOpt);
    switch (sortOpt)
    {
    case CollationOptions::SortWord: values.wordSort = ON; break;
    case CollationOptions::SortUnhandled2:
    case CollationOptions::SortUnhandled3:
        LogUnhandledSort(sortOpt);
        VELTRIA_FAIL("false", 0x8E052837);
    case CollationOptions::SortIdentical: values.strength = IDENTICAL; break;
    default: break;
    }
    NormalizeCollatorTokens(values.List(), tokens);
    return JoinCollatorTokens(tokens);
}

TString MakeICUCollatorName(std::string const & locale,
                            bool approximate,
                            CollationOptions::CaseOpt caseOpt,
                            CollationOptions::AccentOpt accentOpt,
                            CollationOptions::SortOpt sortOpt,
                            CollationOptions::PunctOpt punctOpt)
{
    std::vector<TString> tokens;
    auto const add = [&](char16_t const * letter, LocalePartReader read) {
        TString const part = LocalePart(read, locale.c_str());
        if (!part.isEmpty())
            tokens.push_back(letter + part.toUpper());
    };
    add(u"L", VelICU_V2::t_uloc_getLanguage);
    add(u"R", VelICU_V2::t_uloc_getCountry);
    add(u"Z", VelICU_V2::t_uloc_getScript);

    OptionValues values;
    if (!approximate)
        values.Apply(punctOpt);
    values.Apply(caseOpt);
    switch (sortOpt)
    {
    case CollationOptions::SortWord: values.wordSort = ON; break;
    case CollationOptions::SortUnhandled2:
    case CollationOptions::SortUnhandled3:
        LogUnhandledSort(sortOpt);
        VELTRIA_FAIL("false", 0xBC905FDE);
    default: break;
    }
    if (!approximate)
        values.Apply(accentOpt, caseOpt);

    ColAttributeList attributes = values.List();
    if (approximate)
        attributes.emplace_back(IGNORE_DIGITS, ON);
    NormalizeCollatorTokens(attributes, tokens);
    return JoinCollatorTokens(tokens);
}

TString CollatorNameFromLocaleName(char const * locale,
                                   bool approximate,
                                   CollationOptions::CaseOpt caseOpt,
                                   CollationOptions::AccentOpt accentOpt,
                                   CollationOptions::SortOpt sortOpt,
                                   CollationOptions::PunctOpt punctOpt)
{
    LCID const lcid = LCIDFromLocaleName(locale == nullptr ? "" : locale, 0x400);
    TString name = MakeCollatorName(lcid, 0, false);
    if (approximate)
    {
        accentOpt = CollationOptions::AccentInsensitive;
        punctOpt = CollationOptions::PunctIgnore;
        ColAttributeTable const & table = ColAttributeTable::Get();
        char16_t const token[] = {table.Attribute(IGNORE_DIGITS).letter, table.Value(ON).letter, 0};
        AppendToken(name, 0, token);
    }
    return MakeCollatorName(name.constData(), caseOpt, accentOpt, sortOpt, punctOpt);
}
