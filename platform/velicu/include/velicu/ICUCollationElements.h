// What a collator makes of single characters: clones, collation elements and contractions.
//
// Made for building tables ahead of use; a failure is an empty answer, not a status.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "velicu/Export.h"
#include "velicu/ICUCollator.h"

namespace VelICU_V2 {

// A collator with the same rules and settings, to be closed by the caller; null on failure. Any thread may clone a
// collator that no thread changes.
VELICU_API ICU_Collator * t_ucol_clone(ICU_Collator const * collator);
// False on failure.
VELICU_API bool t_ucol_trySetAttribute(ICU_Collator * collator, int attribute, int value);

// One collation element. Weights are ICU's, before any reordering of scripts; the tertiary one is without case bits.
struct ICUCollationElement
{
    std::uint32_t primary;
    std::uint16_t secondary;
    std::uint16_t tertiary;
};

// The elements of a text, in order; `elements` is emptied first. False on failure.
VELICU_API bool
t_ucol_getElements(ICU_Collator const * collator, char16_t const * text, int length,
                   std::vector<ICUCollationElement> & elements);

// Every text of two and more code units that has weights of its own, or whose last character has other weights after
// the ones before it. False on failure.
VELICU_API bool t_ucol_getContractions(ICU_Collator const * collator, std::vector<std::u16string> & contractions);

}  // namespace VelICU_V2
