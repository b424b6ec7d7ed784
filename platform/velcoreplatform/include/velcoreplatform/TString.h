// TString: the library's string everywhere, a sequence of UTF-16 code units with a terminator.
//
// Lengths, indices and order count code units; searches give -1 for "not found". A length argument of -1 means up to
// the terminator. Wide literals (u"...") and TString are interchangeable as arguments. The storage is Qt's implicitly
// shared QString: copying costs one atomic increment and a TString may be passed by value. Several threads may read one
// object; a writer needs it alone.
#pragma once

#include <compare>
#include <functional>
#include <iosfwd>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>
#include <vector>

#include "velcoreplatform/Export.h"
#include "velsys/Hash.h"
#include "velsys/TStringCore.h"

class VELCOREPLATFORM_API TString
{
public:
    using value_type = char16_t;

    enum CaseSensitivity : int
    {
        CaseInsensitive = 0,  // by simple case folding, without a locale
        CaseSensitive = 1
    };
    enum SplitBehavior : int
    {
        KeepEmptyParts = 0,
        SkipEmptyParts = 1
    };

    // Make.
    TString() noexcept = default;
    TString(TString const &) = default;
    TString(TString &&) noexcept = default;
    TString(TStringCore text) noexcept : m_core(std::move(text)) {}
    TString(char16_t const * text, int length = -1) : m_core(text, length) {}
    // 32-bit wide text of the platform, converted to UTF-16.
    TString(wchar_t const * text, int length);
    // UTF-8.
    TString(char const * text, int length);
    // `count` times the character.
    TString(char16_t character, int count) : TString(QString(count < 0 ? 0 : count, QChar(character))) {}
    TString(char character, int count) : TString(static_cast<char16_t>(static_cast<unsigned char>(character)), count) {}
    TString(QString text) : m_core(std::move(text)) {}

    static TString fromUtf8(char const * text, int length = -1);
    static TString fromUtf16(char16_t const * text, int length = -1) { return TString(text, length); }
    static TString fromLatin1(char const * text, int length = -1);
    // The local 8-bit encoding is UTF-8.
    static TString fromLocal8Bit(char const * text, int length = -1) { return fromUtf8(text, length); }
    static TString fromWChar(wchar_t const * text, int length = -1);
    static TString fromStdString(std::string const & text);
    static TString fromStdWString(std::wstring const & text);
    static TString fromStdU16String(std::u16string const & text);
    static TString fromView(std::u16string_view text);

    TString & operator=(TString const &) = default;
    TString & operator=(TString &&) noexcept = default;
    TString & operator=(char16_t const * text) { return *this = TString(text); }
    // A template, so that `text = {}` clears.
    template <class Character, std::enable_if_t<std::is_same_v<Character, char16_t>, int> = 0>
    TString & operator=(Character character)
    {
        return *this = TString(character, 1);
    }

    // Numbers to text. A width above 0 pads on the left with `fill`, below 0 on the right. Base 2 to 36, lower-case
    // digits. Example: number(7, 2, 10, u'0') is "07".
    static TString number(int value, int fieldWidth = 0, int base = 10, char16_t fill = u' ');
    static TString number(unsigned value, int fieldWidth = 0, int base = 10, char16_t fill = u' ');
    static TString number(long value, int fieldWidth = 0, int base = 10, char16_t fill = u' ');
    static TString number(unsigned long value, int fieldWidth = 0, int base = 10, char16_t fill = u' ');
    static TString number(long long value, int fieldWidth = 0, int base = 10, char16_t fill = u' ');
    static TString number(unsigned long long value, int fieldWidth = 0, int base = 10, char16_t fill = u' ');
    // `format` is 'e', 'f' or 'g' as in printf, always with a point; but halves round away from zero, and negative zero
    // reads "0". With stripPoint false, a text that would be a whole number without exponent keeps its point:
    // number(3.0, 'g', 17, true) is "3", number(3.0, 'g', 17, false) is "3.".
    static TString number(double value, char format, int precision, bool stripPoint = true);
    TString & setNum(double value, char format, int precision, bool stripPoint = true);
    TString & setNum(long long value, int base = 10);
    TString & setNum(unsigned long long value, int base = 10);

    // Text to numbers. Leading and trailing white space and a sign are accepted, group separators are not; on failure
    // the result is 0 and *ok false. Base 0 reads the prefixes 0x and 0.
    int toInt(bool * ok = nullptr, int base = 10) const { return toQString().toInt(ok, base); }
    unsigned toUInt(bool * ok = nullptr, int base = 10) const { return toQString().toUInt(ok, base); }
    long long toLongLong(bool * ok = nullptr, int base = 10) const { return toQString().toLongLong(ok, base); }
    // Accepts "inf" with a sign and "nan" without one, in any case. A number that is too large gives infinity and *ok
    // false.
    double toDouble(bool * ok = nullptr) const { return toQString().toDouble(ok); }

    // Out. The pointers are terminated and live until the string changes.
    char16_t const * GetString() const noexcept { return constData(); }
    char16_t const * constData() const noexcept { return m_core.constData(); }
    char16_t * data() { return reinterpret_cast<char16_t *>(Q().data()); }
    operator char16_t const *() const noexcept { return constData(); }
    operator TStringCore const &() const noexcept { return m_core; }
    std::u16string_view View() const noexcept { return m_core.View(); }
    QString const & toQString() const noexcept { return m_core.toQString(); }
    // UTF-8; a lone surrogate becomes "?".
    std::string toStdString() const { return toQString().toStdString(); }
    std::u16string toStdU16String() const { return std::u16string(View()); }
    // UTF-8; *ok is false if a lone surrogate could not be written.
    std::string toLocal8Bit(bool * ok = nullptr) const;
    char16_t * begin() { return data(); }
    char16_t * end() { return data() + length(); }
    char16_t const * begin() const noexcept { return cbegin(); }
    char16_t const * end() const noexcept { return cend(); }
    char16_t const * cbegin() const noexcept { return View().data(); }
    char16_t const * cend() const noexcept { return View().data() + length(); }

    // Size.
    int GetLength() const noexcept { return length(); }
    int length() const noexcept { return m_core.length(); }
    static int length(char16_t const * text) noexcept;
    std::size_t lengthInBytes() const noexcept { return 2 * static_cast<std::size_t>(length()); }
    bool IsEmpty() const noexcept { return isEmpty(); }
    bool isEmpty() const noexcept { return length() == 0; }
    bool empty() const noexcept { return isEmpty(); }
    void reserve(int codeUnits) { Q().reserve(codeUnits); }
    // New code units are U+0000.
    void resize(int codeUnits);
    void clear() { Q().clear(); }
    // Cuts to `codeUnits`; longer than the text changes nothing.
    void truncate(int codeUnits) { Q().truncate(codeUnits < 0 ? 0 : codeUnits); }

    // Compare, by code units unless a case sensitivity is given. The sign of the result counts.
    friend bool operator==(TString const & a, TString const & b) noexcept { return EqualViews(a.View(), b.View()); }
    friend bool operator==(TString const & a, char16_t const * b) noexcept { return a.View() == Literal(b); }
    friend std::strong_ordering operator<=>(TString const & a, TString const & b) noexcept
    {
        return a.Compare(b) <=> 0;
    }
    friend std::strong_ordering operator<=>(TString const & a, char16_t const * b) { return a.Compare(b) <=> 0; }
    int Compare(TString const & other) const noexcept;
    int compare(TString const & other, CaseSensitivity cs = CaseSensitive) const noexcept;
    static int compare(TString const & a, TString const & b, CaseSensitivity cs = CaseSensitive) noexcept;
    // The first n code units of both; a negative n counts as 0.
    static int compareN(TString const & a, TString const & b, int n, CaseSensitivity cs = CaseSensitive) noexcept;
    int CollateNoCase(char16_t const * other) const noexcept { return compare(TString(other), CaseInsensitive); }
    bool startsWith(TString const & text, CaseSensitivity cs = CaseSensitive) const noexcept;
    bool endsWith(TString const & text, CaseSensitivity cs = CaseSensitive) const noexcept;
    bool contains(TString const & text, CaseSensitivity cs = CaseSensitive) const noexcept;
    bool contains(char16_t character) const noexcept { return indexOf(character) >= 0; }

    // Search. `from` is the first index looked at (lastIndexOf goes down from it). A negative one counts from the end;
    // before the start it means the start, and nothing for lastIndexOf.
    int indexOf(char16_t character, int from = 0) const noexcept;
    int indexOf(TString const & text, int from = 0, CaseSensitivity cs = CaseSensitive) const noexcept;
    int lastIndexOf(char16_t character, int from = -1) const noexcept;
    int ReverseFind(char16_t character) const noexcept { return lastIndexOf(character); }
    int count(char16_t character) const noexcept;
    // The first index at or after `from` whose character is (not) one of `set`.
    int findOneOf(TString const & set, int from = 0) const noexcept;
    int findOneNotOf(TString const & set, int from = 0) const noexcept;
    // Where b stands in a.
    static int findStr(TString const & a, TString const & b, int from = 0, CaseSensitivity cs = CaseSensitive) noexcept;

    // Edit.
    TString & operator+=(TString const & text) { return append(text); }
    TString & operator+=(char16_t const * text) { return append(text); }
    TString & operator+=(char16_t character) { return append(character); }
    TString & append(TString const & text)
    {
        Q().append(text.toQString());
        return *this;
    }
    TString & append(char16_t const * text)
    {
        Q().append(AsQChars(text), text == nullptr ? 0 : static_cast<qsizetype>(Literal(text).size()));
        return *this;
    }
    TString & append(char16_t const * text, int length)
    {
        if (length < 0)
            return append(text);
        Q().append(AsQChars(text), length);
        return *this;
    }
    TString & append(char16_t character)
    {
        Q().append(QChar(character));
        return *this;
    }
    // The first n code units of the text; a negative n appends nothing.
    TString & Append(TString const & text, int n)
    {
        int const most = n < text.length() ? n : text.length();
        return append(text.constData(), most < 0 ? 0 : most);
    }
    TString & prepend(char16_t character)
    {
        Q().prepend(QChar(character));
        return *this;
    }
    void push_back(char16_t character) { append(character); }
    void push_back(TString const & text) { append(text); }
    void push_front(char16_t character) { prepend(character); }
    void push_front(TString const & text) { Q().prepend(text.toQString()); }
    // The index must be below the length. Templates, so that every integer type finds them before the pointer.
    template <class Index, std::enable_if_t<std::is_integral_v<Index>, int> = 0>
    char16_t & operator[](Index index)
    {
        return data()[index];
    }
    template <class Index, std::enable_if_t<std::is_integral_v<Index>, int> = 0>
    char16_t operator[](Index index) const noexcept
    {
        return View()[static_cast<std::size_t>(index)];
    }

    // n below 0 or above the length gives the whole text.
    TString left(int n) const { return toQString().left(n); }
    TString right(int n) const { return toQString().right(n); }
    // From index `from`; n of -1 means to the end.
    TString mid(int from, int n = -1) const { return toQString().mid(from, n); }
    // Friends, so that they are candidates only where a TString takes part.
    friend TString operator+(TString a, TString const & b) { return std::move(a.append(b)); }
    friend TString operator+(TString a, char16_t const * b) { return std::move(a.append(b)); }
    friend TString operator+(char16_t const * a, TString const & b) { return std::move(TString(a).append(b)); }
    friend TString operator+(TString a, char16_t b) { return std::move(a.append(b)); }
    friend TString operator+(char16_t a, TString const & b) { return std::move(TString(a, 1).append(b)); }
    TString & removeAt(int from, int n = 1);
    TString & removeAll(char16_t character);
    // Every occurrence of the text of `length` code units.
    TString & removeAll(char16_t const * text, int length = -1, CaseSensitivity cs = CaseSensitive);
    TString & replace(char16_t before, char16_t after);
    TString & replace(char16_t before, TString const & after);
    TString & replace(TString const & before, TString const & after, CaseSensitivity cs = CaseSensitive);
    // White space as Unicode has it, in place.
    TString & trim();
    TString & trimLeft();
    TString & trimRight();
    TString & trimRight(char16_t character);
    // Copies, by the rules of Unicode without a locale.
    TString toLower() const { return toQString().toLower(); }
    TString toUpper() const { return toQString().toUpper(); }
    std::vector<TString> split(char16_t const * separator, SplitBehavior behavior = KeepEmptyParts,
                               CaseSensitivity cs = CaseSensitive) const;

private:
    static std::u16string_view Literal(char16_t const * text) noexcept
    {
        return std::u16string_view(text == nullptr ? u"" : text);
    }
    static QChar const * AsQChars(char16_t const * text) noexcept { return reinterpret_cast<QChar const *>(text); }
    // memcmp: std::char_traits<char16_t>::compare goes unit by unit.
    static bool EqualViews(std::u16string_view a, std::u16string_view b) noexcept
    {
        return a.size() == b.size() &&
               (a.data() == b.data() || __builtin_memcmp(a.data(), b.data(), 2 * a.size()) == 0);
    }
    QString & Q() noexcept { return m_core.MutableQString(); }

    TStringCore m_core;
};

// UTF-8.
VELCOREPLATFORM_API std::ostream & operator<<(std::ostream & out, TString const & text);

// THash32 over constData() and lengthInBytes() with the seed 0xdeadbeef.
inline unsigned HashOf(TString const & text) noexcept
{
    return THash32(text.View().data(), text.lengthInBytes(), 0xdeadbeefu);
}

template <>
struct std::hash<TString>
{
    std::size_t operator()(TString const & text) const noexcept { return HashOf(text); }
};
