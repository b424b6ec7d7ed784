#include "velicu/ICUCollationElements.h"

#include <memory>

#include <unicode/ucol.h>
#include <unicode/ucoleitr.h>
#include <unicode/uniset.h>
#include <unicode/usetiter.h>

namespace VelICU_V2 {

namespace {

UCollator const * Raw(ICU_Collator const * collator)
{
    return reinterpret_cast<UCollator const *>(collator);
}

// An element with a weight of more than its first bytes comes in two halves; the second bears this mark.
bool IsSecondHalf(std::uint32_t order)
{
    return (order & 0xC0) == 0xC0;
}

}  // namespace

ICU_Collator * t_ucol_clone(ICU_Collator const * collator)
{
    UErrorCode status = ::U_ZERO_ERROR;
    UCollator * const clone = ucol_clone(Raw(collator), &status);
    return U_FAILURE(status) ? nullptr : reinterpret_cast<ICU_Collator *>(clone);
}

bool t_ucol_trySetAttribute(ICU_Collator * collator, int attribute, int value)
{
    UErrorCode status = ::U_ZERO_ERROR;
    ucol_setAttribute(reinterpret_cast<UCollator *>(collator), static_cast<UColAttribute>(attribute),
                      static_cast<UColAttributeValue>(value), &status);
    return U_SUCCESS(status);
}

bool t_ucol_getElements(ICU_Collator const * collator, char16_t const * text, int length,
                        std::vector<ICUCollationElement> & elements)
{
    elements.clear();
    UErrorCode status = ::U_ZERO_ERROR;
    std::unique_ptr<UCollationElements, decltype(&ucol_closeElements)> const iterator(
        ucol_openElements(Raw(collator), text, length, &status), ucol_closeElements);
    if (U_FAILURE(status))
        return false;
    for (;;) {
        std::int32_t const next = ucol_next(iterator.get(), &status);
        if (U_FAILURE(status))
            return false;
        if (next == UCOL_NULLORDER)
            return true;
        auto const order = static_cast<std::uint32_t>(next);
        if (IsSecondHalf(order) && !elements.empty()) {
            ICUCollationElement & element = elements.back();
            element.primary |= order >> 16;
            element.secondary = static_cast<std::uint16_t>(element.secondary | (order >> 8 & 0xFF));
            element.tertiary = static_cast<std::uint16_t>(element.tertiary | (order & 0x3F));
        } else {
            elements.push_back({order & 0xFFFF0000u, static_cast<std::uint16_t>(order & 0xFF00),
                                static_cast<std::uint16_t>((order & 0x3F) << 8)});
        }
    }
}

bool t_ucol_getContractions(ICU_Collator const * collator, std::vector<std::u16string> & contractions)
{
    contractions.clear();
    UErrorCode status = ::U_ZERO_ERROR;
    icu::UnicodeSet set;
    ucol_getContractionsAndExpansions(Raw(collator), set.toUSet(), nullptr, true, &status);
    if (U_FAILURE(status))
        return false;
    icu::UnicodeSetIterator item(set);
    while (item.next()) {
        icu::UnicodeString const & text = item.getString();
        if (text.countChar32() > 1)
            contractions.emplace_back(text.getBuffer(), static_cast<std::size_t>(text.length()));
    }
    return true;
}

}  // namespace VelICU_V2
