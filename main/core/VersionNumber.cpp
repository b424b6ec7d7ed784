#include "velcoredata/core/VersionNumber.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "velcoredata/core/StringUtils.h"

namespace {

bool IsDigit(char16_t c) noexcept
{
    return c >= u'0' && c <= u'9';
}

unsigned NumberOf(TString const & piece)
{
    bool read = false;
    unsigned const whole = piece.toUInt(&read);
    if (read)
        return whole;
    char16_t const * const digit = std::find_if(piece.begin(), piece.end(), IsDigit);
    char16_t const * const end = std::find_if_not(digit, piece.end(), IsDigit);
    if (end == piece.end())
        return 0;
    return piece.left(static_cast<int>(end - piece.begin())).toUInt();
}

bool IsNonZero(unsigned number) noexcept
{
    return number != 0;
}

}  // namespace

VersionNumber::VersionNumber(TString const & text, char16_t numberSeparator, char16_t descriptorSeparator,
                             unsigned long long numberIndex)
    : m_descriptors(SplitString(text, descriptorSeparator, TString()))
{
    TString numbers;
    if (numberIndex < m_descriptors.size()) {
        auto const place = m_descriptors.begin() + static_cast<std::ptrdiff_t>(numberIndex);
        numbers = std::move(*place);
        m_descriptors.erase(place);
    }
    std::vector<TString> const pieces = SplitString(numbers, numberSeparator, TString());
    m_numbers.reserve(pieces.size());
    std::transform(pieces.begin(), pieces.end(), std::back_inserter(m_numbers), NumberOf);
    m_text = AsString(numberSeparator, descriptorSeparator);
}

VersionNumber::VersionNumber(unsigned first, unsigned second, unsigned third)
    : VersionNumber(std::vector<unsigned>{first, second, third})
{}

VersionNumber::VersionNumber(unsigned first, unsigned second, unsigned third, unsigned fourth)
    : VersionNumber(std::vector<unsigned>{first, second, third, fourth})
{}

VersionNumber::VersionNumber(std::vector<unsigned> numbers)
    : m_numbers(std::move(numbers)), m_text(AsString(u'.', u'-'))
{}

VersionNumber VersionNumber::FromFileVersion(unsigned ms, unsigned ls)
{
    return VersionNumber(ms >> 16, ms & 0xFFFFu, ls >> 16, ls & 0xFFFFu);
}

long VersionNumber::compare(VersionNumber const & other) const
{
    auto const [mine, theirs] =
        std::mismatch(m_numbers.begin(), m_numbers.end(), other.m_numbers.begin(), other.m_numbers.end());
    if (mine != m_numbers.end() && theirs != other.m_numbers.end())
        return *mine > *theirs ? 1 : -1;
    if (std::any_of(mine, m_numbers.end(), IsNonZero))
        return 1;
    return std::any_of(theirs, other.m_numbers.end(), IsNonZero) ? -1 : 0;
}

TString VersionNumber::GetNumbersAsString(char16_t separator) const
{
    TString text;
    for (std::size_t i = 0; i < m_numbers.size(); ++i) {
        if (i > 0)
            text += separator;
        text += TString::number(m_numbers[i]);
    }
    return text;
}

TString VersionNumber::GetMajorAndMinorAsString(char16_t separator) const
{
    auto const number = [this](std::size_t i) { return TString::number(i < m_numbers.size() ? m_numbers[i] : 0u); };
    return number(0) + separator + number(1);
}

void VersionNumber::Truncate(unsigned long long count)
{
    if (count < m_numbers.size())
        m_numbers.resize(static_cast<std::size_t>(count));
}

TString VersionNumber::AsString(char16_t numberSeparator, char16_t descriptorSeparator) const
{
    TString text = GetNumbersAsString(numberSeparator);
    for (TString const & descriptor : m_descriptors) {
        text += descriptorSeparator;
        text += descriptor;
    }
    return text;
}
