#include "main/data/CollatorSpec.h"

#include <algorithm>
#include <cstring>
#include <map>

#include "main/data/CollatorAttributes.h"
#include "velcoredata/string/CoreICUUtils.h"
#include "velicu/LocaleNames.h"
#include "velnls/LocaleNames.h"
#include "velsys/ThrowSite.h"

namespace detail
{

namespace
{

int OnOr(char16_t letter, int otherwise)
{
    return letter == u'O' ? int(ON) : otherwise;
}

int StrengthOf(TString const & token)
{
    char16_t const digit = token.constData()[1];
    if (digit == u'D')
        return VALUE_DEFAULT;
    if (digit == u'I')
        return IDENTICAL;
    VELTRIA_ASSERT_TEXT(digit >= u'1' && digit <= u'4', "(*i)[1] >= (L'1') && (*i)[1] <= (L'4')", 0xEC4A8574);
    return digit - u'1';
}

}  // namespace

std::vector<TString> SplitCollatorName(char16_t const * name)
{
    if (name == nullptr || *name == 0)
        return {};
    return TString(name, -1).split(u"_", TString::KeepEmptyParts, TString::CaseSensitive);
}

TString JoinCollatorTokens(std::vector<TString> const & tokens)
{
    TString name;
    for (TString const & token : tokens)
    {
        if (!name.isEmpty())
            name += u"_";
        name += token;
    }
    return name;
}

CollatorSpec ParseCollatorName(char16_t const * name)
{
    CollatorSpec spec;
    TString language, region, script, variant;
    std::vector<TString> const tokens = SplitCollatorName(name);
    for (auto i = tokens.begin(); i != tokens.end(); ++i)
    {
        if (i->isEmpty())
            continue;
        char16_t const * const text = i->constData();
        switch (text[0])
        {
        case u'L': language = i->toLower().mid(1, -1); break;
        case u'R': region = i->mid(1, -1); break;
        case u'Z': script = i->mid(1, -1); break;
        case u'V': variant = i->mid(1, -1); break;
        case u'H':
            VELTRIA_ASSERT(i->length() == 2, 0x49944190);
            spec.attributes.emplace_back(HIRAGANA_QUATERNARY, OnOr(text[1], VALUE_DEFAULT));
            break;
        case u'A':
            VELTRIA_ASSERT(i->length() == 2, 0xE687D8D8);
            spec.attributes.emplace_back(ALTERNATE_HANDLING, text[1] == u'S' ? int(SHIFTED) : int(VALUE_DEFAULT));
            break;
        case u'E':
            VELTRIA_ASSERT(i->length() == 2, 0xADB2FEC6);
            spec.attributes.emplace_back(CASE_LEVEL, OnOr(text[1], text[1] == u'X' ? int(OFF) : int(VALUE_DEFAULT)));
            break;
        case u'S':
            VELTRIA_ASSERT(i->length() == 2, 0xB25D7AEC);
            spec.attributes.emplace_back(STRENGTH, StrengthOf(*i));
            break;
        case u'W':
            VELTRIA_ASSERT(i->length() == 2, 0x5578E62F);
            spec.attributes.emplace_back(WORDSORT, OnOr(text[1], OFF));
            break;
        case u'X':
            VELTRIA_ASSERT(i->length() == 2, 0x3CCC1F54);
            spec.attributes.emplace_back(IGNORE_DIGITS, OnOr(text[1], OFF));
            break;
        default: CoreICUUtils::ThrowICUException(u"Unhandled specifier", *i);
        }
    }

    TString locale = language;
    if (!region.isEmpty())
    {
        VELTRIA_ASSERT(!locale.isEmpty(), 0xCDB3EB65);
        locale += u"_";
        locale += region;
    }
    // Script after region, against ICU's own order: stored names depend on it.
    if (!script.isEmpty())
    {
        VELTRIA_ASSERT(!locale.isEmpty(), 0x9DDD9F39);
        locale += u"_";
        locale += script;
    }
    if (!variant.isEmpty())
    {
        VELTRIA_ASSERT(!locale.isEmpty(), 0x54A0A9A9);
        locale += u"_";
        locale += variant;
    }
    spec.locale = locale.toStdString();
    return spec;
}

void NormalizeCollatorTokens(ColAttributeList const & attributes, std::vector<TString> & tokens)
{
    std::map<char16_t, TString> byLetter;
    for (auto i = tokens.begin(); i != tokens.end(); ++i)
    {
        VELTRIA_ASSERT(!i->isEmpty(), 0x930903CF);
        byLetter[i->constData()[0]] = *i;
    }

    ColAttributeTable const & table = ColAttributeTable::Get();
    for (auto const & [number, value] : attributes)
    {
        ColAttributeEntry const & attr = table.Attribute(number);
        VELTRIA_ASSERT_TEXT(attr.enumVal == number, "a.attr.enumVal == i->first.enumVal", 0x1E0FC030);
        if (value == attr.defaultValue || value == VALUE_DEFAULT)
        {
            byLetter.erase(attr.letter);
            continue;
        }
        ColValueEntry const & entry = table.Value(value);
        VELTRIA_ASSERT_TEXT(entry.value == value && entry.letter != 0, "v.value == i->second", 0x7FDA70DD);
        char16_t const token[] = {attr.letter, entry.letter, 0};
        byLetter[attr.letter] = TString(token, 2);
    }

    tokens.clear();
    for (auto & [letter, token] : byLetter)
        tokens.push_back(token);
}

TString WithCollatorAttribute(char16_t const * name, int attribute, int value)
{
    VELTRIA_ASSERT_TEXT(TString::compare(name, u"binary", TString::CaseInsensitive) != 0,
                        "TString(name).compare(CollationType::s_binary, TString::CaseInsensitive) != 0",
                        0x9B62A87D);
    std::vector<TString> tokens = SplitCollatorName(name);
    NormalizeCollatorTokens({{attribute, value}}, tokens);
    return JoinCollatorTokens(tokens);
}

void LocaleNameFromLCID(LCID lcid, char * buffer, int size)
{
    auto const set = [&](char const * text) { std::snprintf(buffer, static_cast<std::size_t>(size), "%s", text); };
    if ((lcid & ~LCID(0x400)) == 0)
        return set("root");

    char const * const published = VelNLS::FindPublishedLocaleName(lcid);
    if (published != nullptr && *published != 0)
    {
        std::string text(published);
        std::replace(text.begin(), text.end(), '-', '_');
        if (text.compare(0, 3, "prs") == 0)
            text.replace(0, 3, "fa");
        else if (text.compare(0, 3, "quz") == 0)
            text.replace(0, 3, "qu");
        return set(text.c_str());
    }

    VelICU_V2::ICUErrorCode status = VelICU_V2::U_ZERO_ERROR;
    std::memset(buffer, 0, static_cast<std::size_t>(size));
    VelICU_V2::t_uloc_getLocaleForLCID(lcid, buffer, size - 1, status);
    if (VelICU_V2::ICU_FAILURE(status))
        set("root");
}

LCID LCIDFromLocaleName(std::string text, LCID defaultLcid)
{
    std::replace(text.begin(), text.end(), '-', '_');
    LCID const lcid = VelICU_V2::t_uloc_getLCID(text.c_str());
    return lcid == 0 ? defaultLcid : lcid;
}

}  // namespace detail
