#include "main/data/CollatorAttributes.h"

#include <iterator>
#include <limits>

#include "velsys/NoDestructor.h"
#include "velsys/ThrowSite.h"

namespace detail
{

ColAttributeCounter & ColAttributeCounter::operator++()
{
    ++enumVal;
    VELTRIA_ASSERT(enumVal <= WORDSORT, 0x09163940);
    return *this;
}

ColAttributeTable const & ColAttributeTable::Get()
{
    static NoDestructor<ColAttributeTable> table;
    return *table;
}

ColAttributeTable::ColAttributeTable()
{
    m_noAttribute.enumVal = std::numeric_limits<int>::min();
    m_noValue.value = std::numeric_limits<int>::min();

    SetAttribute({FRENCH_COLLATION, u'F', VALUE_DEFAULT});
    SetAttribute({ALTERNATE_HANDLING, u'A', VALUE_DEFAULT});
    SetAttribute({CASE_FIRST, u'C', VALUE_DEFAULT});
    SetAttribute({CASE_LEVEL, u'E', VALUE_DEFAULT});
    SetAttribute({NORMALIZATION_MODE, u'N', VALUE_DEFAULT});
    SetAttribute({STRENGTH, u'S', TERTIARY});
    SetAttribute({HIRAGANA_QUATERNARY, u'H', VALUE_DEFAULT});
    SetAttribute({NUMERIC_COLLATION, u'I', VALUE_DEFAULT});
    SetAttribute({WORDSORT, u'W', OFF});
    SetAttribute({IGNORE_DIGITS, u'X', OFF});

    SetValue({VALUE_DEFAULT, u'D'});
    SetValue({PRIMARY, u'1'});
    SetValue({SECONDARY, u'2'});
    SetValue({TERTIARY, u'3'});
    SetValue({QUATERNARY, u'4'});
    SetValue({IDENTICAL, u'I'});
    SetValue({OFF, u'X'});
    SetValue({ON, u'O'});
    SetValue({SHIFTED, u'S'});
    SetValue({NON_IGNORABLE, u'N'});
    SetValue({LOWER_FIRST, u'L'});
    SetValue({UPPER_FIRST, u'U'});
}

void ColAttributeTable::SetAttribute(ColAttributeEntry const & attr)
{
    VELTRIA_ASSERT(attr.enumVal >= 0, 0x2A61D0F4);
    VELTRIA_ASSERT_TEXT(std::size_t(attr.enumVal) < std::size(m_attributes), "size_t(attr.enumVal) < N", 0x71C98E3B);
    m_attributes[attr.enumVal] = attr;
}

void ColAttributeTable::SetValue(ColValueEntry const & entry)
{
    long long const i = static_cast<long long>(entry.value) + 1;
    VELTRIA_ASSERT(i >= 0, 0x5D07B1A6);
    VELTRIA_ASSERT_TEXT(std::size_t(i) < std::size(m_values), "size_t(i) < N", 0xE4389C52);
    m_values[i] = entry;
}

ColAttributeEntry const & ColAttributeTable::Attribute(int number) const
{
    return number >= 0 && std::size_t(number) < std::size(m_attributes) ? m_attributes[number] : m_noAttribute;
}

ColValueEntry const & ColAttributeTable::Value(int value) const
{
    return value >= VALUE_DEFAULT && value <= UPPER_FIRST ? m_values[value + 1] : m_noValue;
}

}  // namespace detail
