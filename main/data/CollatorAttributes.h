#pragma once

// The attributes and attribute values that collator names encode, and the letters behind them. Numbers 0 to 7 and all
// values are ICU's; word sort and ignore digits are this library's own.

#include <cstddef>

#include "velcoredata/core/Export.h"

namespace detail
{

enum ColAttribute : int
{
    FRENCH_COLLATION = 0,
    ALTERNATE_HANDLING = 1,
    CASE_FIRST = 2,
    CASE_LEVEL = 3,
    NORMALIZATION_MODE = 4,
    STRENGTH = 5,
    HIRAGANA_QUATERNARY = 6,
    NUMERIC_COLLATION = 7,
    ICU_ATTRIBUTE_COUNT = 8,
    WORDSORT = 9,
    IGNORE_DIGITS = 10,
};

enum ColValue : int
{
    VALUE_DEFAULT = -1,
    PRIMARY = 0,
    SECONDARY = 1,
    TERTIARY = 2,
    QUATERNARY = 3,
    IDENTICAL = 15,
    OFF = 16,
    ON = 17,
    SHIFTED = 20,
    NON_IGNORABLE = 21,
    LOWER_FIRST = 24,
    UPPER_FIRST = 25,
};

// Counts over attributes. Stepping beyond WORDSORT is the assertion "enumVal <= WORDSORT".
struct VELCOREDATA_API ColAttributeCounter
{
    int enumVal = FRENCH_COLLATION;

    ColAttributeCounter & operator++();
};

struct ColAttributeEntry
{
    int enumVal = 0;
    char16_t letter = 0;
    int defaultValue = VALUE_DEFAULT;
};

struct ColValueEntry
{
    int value = 0;
    char16_t letter = 0;
};

// Filled once and read-only afterwards; unused entries are zero and so never bear their own number.
class VELCOREDATA_API ColAttributeTable
{
public:
    static ColAttributeTable const & Get();

    ColAttributeTable();

    // Asserts "attr.enumVal >= 0" and "size_t(attr.enumVal) < N".
    void SetAttribute(ColAttributeEntry const & attr);
    // Asserts "i >= 0" and "size_t(i) < N", i being the value plus one.
    void SetValue(ColValueEntry const & entry);

    // The entry of a number, or an entry that does not bear it when the table has none.
    ColAttributeEntry const & Attribute(int number) const;
    ColValueEntry const & Value(int value) const;

private:
    ColAttributeEntry m_attributes[IGNORE_DIGITS + 1];
    ColValueEntry m_values[UPPER_FIRST + 2];
    ColAttributeEntry m_noAttribute;
    ColValueEntry m_noValue;
};

}  // namespace detail
