#include "velicu/ICUCollator.h"

#include <unicode/ucol.h>
#include <unicode/usearch.h>
#include <unicode/ustring.h>

#include "StatusScope.h"

namespace VelICU_V2 {

namespace {

UCollator * Raw(ICU_Collator * collator)
{
    return reinterpret_cast<UCollator *>(collator);
}

UCollator const * Raw(ICU_Collator const * collator)
{
    return reinterpret_cast<UCollator const *>(collator);
}

UStringSearch * Raw(ICUStringSearch * search)
{
    return reinterpret_cast<UStringSearch *>(search);
}

UStringSearch const * Raw(ICUStringSearch const * search)
{
    return reinterpret_cast<UStringSearch const *>(search);
}

}  // namespace

ICU_Collator * t_ucol_open(char const * locale, ICUErrorCode & status)
{
    StatusScope scope(status);
    return reinterpret_cast<ICU_Collator *>(ucol_open(locale, &scope));
}

ICU_Collator * t_ucol_openRules(char16_t const * rules,
                                int length,
                                int normalization,
                                int strength,
                                ICUParseError & parseError,
                                ICUErrorCode & status)
{
    StatusScope scope(status);
    UParseError error{};
    UCollator * const collator =
        ucol_openRules(rules, length, static_cast<UColAttributeValue>(normalization),
                       static_cast<UCollationStrength>(strength), &error, &scope);
    parseError = {error.line, error.offset};
    return reinterpret_cast<ICU_Collator *>(collator);
}

void t_ucol_close(ICU_Collator * collator)
{
    ucol_close(Raw(collator));
}

char16_t const * t_ucol_getRules(ICU_Collator const * collator, int & length)
{
    std::int32_t size = 0;
    char16_t const * const rules = ucol_getRules(Raw(collator), &size);
    length = size;
    return rules;
}

int t_ucol_strcoll(ICU_Collator const * collator, char16_t const * a, int aLength, char16_t const * b, int bLength)
{
    return ucol_strcoll(Raw(collator), a, aLength, b, bLength);
}

int t_ucol_getSortKey(ICU_Collator const * collator, char16_t const * text, int length, std::uint8_t * key, int capacity)
{
    return ucol_getSortKey(Raw(collator), text, length, key, capacity);
}

int t_ucol_getAttribute(ICU_Collator const * collator, int attribute, ICUErrorCode & status)
{
    StatusScope scope(status);
    return ucol_getAttribute(Raw(collator), static_cast<UColAttribute>(attribute), &scope);
}

void t_ucol_setAttribute(ICU_Collator * collator, int attribute, int value, ICUErrorCode & status)
{
    StatusScope scope(status);
    ucol_setAttribute(Raw(collator), static_cast<UColAttribute>(attribute), static_cast<UColAttributeValue>(value),
                      &scope);
}

char16_t const * t_getIgnoreDigitsRule() noexcept
{
    return u"&[last tertiary ignorable]='0'='1'='2'='3'='4'='5'='6'='7'='8'='9'";
}

int t_u_unescape(char const * text, char16_t * out, int size)
{
    return u_unescape(text, out, size);
}

ICUStringSearch * t_usearch_openFromCollator(char16_t const * pattern,
                                             int patternLength,
                                             char16_t const * text,
                                             int textLength,
                                             ICU_Collator const * collator,
                                             ICUErrorCode & status)
{
    StatusScope scope(status);
    return reinterpret_cast<ICUStringSearch *>(
        usearch_openFromCollator(pattern, patternLength, text, textLength, Raw(collator), nullptr, &scope));
}

void t_usearch_close(ICUStringSearch * search)
{
    usearch_close(Raw(search));
}

void t_usearch_setText(ICUStringSearch * search, char16_t const * text, int length, ICUErrorCode & status)
{
    StatusScope scope(status);
    usearch_setText(Raw(search), text, length, &scope);
}

int t_usearch_first(ICUStringSearch * search, ICUErrorCode & status)
{
    StatusScope scope(status);
    return usearch_first(Raw(search), &scope);
}

int t_usearch_next(ICUStringSearch * search, ICUErrorCode & status)
{
    StatusScope scope(status);
    return usearch_next(Raw(search), &scope);
}

int t_usearch_following(ICUStringSearch * search, int position, ICUErrorCode & status)
{
    StatusScope scope(status);
    return usearch_following(Raw(search), position, &scope);
}

int t_usearch_preceding(ICUStringSearch * search, int position, ICUErrorCode & status)
{
    StatusScope scope(status);
    return usearch_preceding(Raw(search), position, &scope);
}

int t_usearch_getMatchedLength(ICUStringSearch const * search)
{
    return usearch_getMatchedLength(Raw(search));
}

}  // namespace VelICU_V2
