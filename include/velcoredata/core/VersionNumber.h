#pragma once

#include <compare>
#include <vector>

#include "velcoredata/core/Export.h"
#include "velcoreplatform/TString.h"

/// A dotted version such as a file's: numbers, text descriptors, and a text form made at construction. Only the numbers
/// are compared.
///
///   VersionNumber version(u"1.10-beta-3");
///   version.GetNumbers();                  // 1 10
///   version.GetDescriptors();              // "beta" "3"
///   version > VersionNumber(u"1.9");       // true
///
///   a.compare(b) == -b.compare(a)
///   a.compare(b) <= 0 and b.compare(c) <= 0 imply a.compare(c) <= 0
///   1.2 == 1.2.0 == 1.2.0.0: zeros at the end do not count
///   v.Truncate(n) leaves v.GetAsString() as it was
///
/// A value: several threads may read one object, a writer needs it alone.
class VELCOREDATA_API VersionNumber
{
public:
    /// Cuts the text into pieces at the descriptor separator. The piece number `numberIndex`, from 0, holds the
    /// numbers, and the others are the descriptors; without such a piece all are, and there is one number, 0. A number
    /// is a piece of digits that fits 32 bits, with white space around it or anything behind it: "3beta" is 3. Every
    /// other piece, "beta3" or "" or "4294967296", counts as 0. No text is refused, and any two separators do.
    explicit VersionNumber(TString const & text, char16_t numberSeparator = u'.', char16_t descriptorSeparator = u'-',
                           unsigned long long numberIndex = 0);
    VersionNumber(unsigned first, unsigned second, unsigned third);
    VersionNumber(unsigned first, unsigned second, unsigned third, unsigned fourth);

    /// Four numbers, the high and the low half of each: (0x00010002, 0x00030004) is 1.2.3.4.
    static VersionNumber FromFileVersion(unsigned ms, unsigned ls);

    /// 1 if this version is the later one, -1 if the other, 0 if neither. Missing numbers count as 0.
    long compare(VersionNumber const & other) const;

    friend bool operator==(VersionNumber const & a, VersionNumber const & b) { return a.compare(b) == 0; }
    friend std::weak_ordering operator<=>(VersionNumber const & a, VersionNumber const & b)
    {
        return a.compare(b) <=> 0;
    }

    /// The text form of construction: the numbers between number separators, then each descriptor behind a descriptor
    /// separator. "1.10-beta-3", and "1.2.3" for VersionNumber(1, 2, 3).
    TString GetAsString() const { return m_text; }
    TString GetNumbersAsString(char16_t separator) const;        ///< "1:10"
    TString GetMajorAndMinorAsString(char16_t separator) const;  ///< two numbers always: "1:0" for version 1
    std::vector<unsigned> const & GetNumbers() const { return m_numbers; }
    std::vector<TString> const & GetDescriptors() const { return m_descriptors; }

    /// Keeps the first `count` numbers at most. GetAsString goes on showing all that were there at construction.
    void Truncate(unsigned long long count);

private:
    explicit VersionNumber(std::vector<unsigned> numbers);
    TString AsString(char16_t numberSeparator, char16_t descriptorSeparator) const;

    std::vector<unsigned> m_numbers;
    std::vector<TString> m_descriptors;
    TString m_text;
};
