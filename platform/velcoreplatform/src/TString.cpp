#include "velcoreplatform/TString.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstring>
#include <ostream>

#include <QtCore/QStringDecoder>
#include <QtCore/QStringEncoder>
#include <QtCore/QStringList>

#include "velcoreplatform/NumberText.h"
#include "velcoreplatform/RealText.h"
#include "velsys/Arithmetic.h"

namespace {

Qt::CaseSensitivity ToQt(TString::CaseSensitivity cs)
{
    return cs == TString::CaseInsensitive ? Qt::CaseInsensitive : Qt::CaseSensitive;
}

QStringView ToQt(std::u16string_view text)
{
    return QStringView(text.data(), static_cast<qsizetype>(text.size()));
}

int Narrow(qsizetype index)
{
    return static_cast<int>(index);
}

// Where a search begins: a negative index counts from the end, but not beyond the first code unit.
int Start(int from, int length)
{
    return from < 0 ? std::max(0, length + from) : from;
}

// Written in place: a copy from a buffer would take as long as the digits.
TString DecimalText(unsigned long long magnitude, bool negative)
{
    int const length = detail::DigitCount(magnitude) + (negative ? 1 : 0);
    QString text(length, Qt::Uninitialized);
    char16_t * const units = reinterpret_cast<char16_t *>(text.data());
    units[0] = u'-';
    detail::WriteInteger(units + length, magnitude);
    return text;
}

template <class Integer>
TString FormatInteger(Integer value, int fieldWidth, int base, char16_t fill)
{
    if (base < 2 || base > 36)
        base = 10;
    if (base == 10 && fieldWidth == 0)
        return DecimalText(detail::Magnitude(value), value < 0);
    char digits[72];
    auto const end = std::to_chars(digits, digits + sizeof digits, value, base).ptr;
    QString text = QString::fromLatin1(digits, end - digits);
    // Zeros go between the sign and the digits, as a reader of numbers expects.
    if (fill == u'0' && fieldWidth > text.size() && text.startsWith(u'-'))
        return QString(u'-') + text.mid(1).rightJustified(fieldWidth - 1, u'0');
    if (fieldWidth > 0)
        return text.rightJustified(fieldWidth, QChar(fill));
    return fieldWidth < 0 ? text.leftJustified(-fieldWidth, QChar(fill)) : text;
}

TString GeneralText(double value, int precision, bool stripPoint)
{
    char16_t text[detail::kRealTextRoom];
    char16_t const * const end = detail::WriteReal(text, value, precision, !stripPoint);
    return TString(text, Narrow(end - text));
}

// QString::fromUtf8 drops a leading U+FEFF; a text keeps every character that it has. Without one it is the same, and
// does not make a decoder first.
TString DecodeUtf8(QByteArrayView bytes)
{
    if (bytes.size() < 3 || bytes[0] != '\xEF' || bytes[1] != '\xBB' || bytes[2] != '\xBF')
        return TString(QString::fromUtf8(bytes));
    QStringDecoder decoder(QStringDecoder::Utf8,
                           QStringDecoder::Flag::Stateless | QStringDecoder::Flag::ConvertInitialBom);
    return TString(QString(decoder.decode(bytes)));
}

}  // namespace

TString::TString(wchar_t const * text, int length) : TString(fromWChar(text, length)) {}

TString::TString(char const * text, int length) : TString(fromUtf8(text, length)) {}

TString TString::fromUtf8(char const * text, int length)
{
    if (text == nullptr)
        return TString();
    return DecodeUtf8(QByteArrayView(text, length < 0 ? static_cast<qsizetype>(std::strlen(text)) : length));
}

TString TString::fromLatin1(char const * text, int length)
{
    return text == nullptr ? TString() : TString(QString::fromLatin1(text, length));
}

TString TString::fromWChar(wchar_t const * text, int length)
{
    return text == nullptr ? TString() : TString(QString::fromWCharArray(text, length));
}

TString TString::fromStdString(std::string const & text)
{
    return DecodeUtf8(QByteArrayView(text.data(), static_cast<qsizetype>(text.size())));
}

TString TString::fromStdWString(std::wstring const & text)
{
    return TString(QString::fromStdWString(text));
}

TString TString::fromStdU16String(std::u16string const & text)
{
    return fromView(text);
}

TString TString::fromView(std::u16string_view text)
{
    return TString(QString(AsQChars(text.data()), static_cast<qsizetype>(text.size())));
}

TString TString::number(int value, int fieldWidth, int base, char16_t fill)
{
    return FormatInteger(value, fieldWidth, base, fill);
}

TString TString::number(unsigned value, int fieldWidth, int base, char16_t fill)
{
    return FormatInteger(value, fieldWidth, base, fill);
}

TString TString::number(long value, int fieldWidth, int base, char16_t fill)
{
    return FormatInteger(value, fieldWidth, base, fill);
}

TString TString::number(unsigned long value, int fieldWidth, int base, char16_t fill)
{
    return FormatInteger(value, fieldWidth, base, fill);
}

TString TString::number(long long value, int fieldWidth, int base, char16_t fill)
{
    return FormatInteger(value, fieldWidth, base, fill);
}

TString TString::number(unsigned long long value, int fieldWidth, int base, char16_t fill)
{
    return FormatInteger(value, fieldWidth, base, fill);
}

TString TString::number(double value, char format, int precision, bool stripPoint)
{
    if (format == 'g' && precision >= 1 && precision <= 17)
        return GeneralText(value, precision, stripPoint);
    QString text = QString::number(value, format, precision);
    // Qt drops the sign of zero, and with it a bit of the number.
    if (value == 0.0 && std::signbit(value) && !text.startsWith(u'-'))
        text.prepend(u'-');
    bool const whole =
        std::all_of(text.cbegin(), text.cend(), [](QChar c) { return c == u'-' || (c >= u'0' && c <= u'9'); });
    if (!stripPoint && whole)
        text += u'.';
    return TString(std::move(text));
}

TString & TString::setNum(double value, char format, int precision, bool stripPoint)
{
    return *this = number(value, format, precision, stripPoint);
}

TString & TString::setNum(long long value, int base)
{
    return *this = number(value, 0, base);
}

TString & TString::setNum(unsigned long long value, int base)
{
    return *this = number(value, 0, base);
}

std::string TString::toLocal8Bit(bool * ok) const
{
    QStringEncoder encoder(QStringEncoder::Utf8, QStringConverter::Flag::Stateless);
    QByteArray const bytes = encoder.encode(toQString());
    if (ok != nullptr)
        *ok = !encoder.hasError();
    return bytes.toStdString();
}

int TString::length(char16_t const * text) noexcept
{
    return static_cast<int>(Literal(text).size());
}

void TString::resize(int codeUnits)
{
    int const before = length();
    Q().resize(codeUnits < 0 ? 0 : codeUnits);
    if (codeUnits > before)
        std::fill(begin() + before, end(), u'\0');
}

int TString::Compare(TString const & other) const noexcept
{
    return QtPrivate::compareStrings(ToQt(View()), ToQt(other.View()), Qt::CaseSensitive);
}

int TString::compare(TString const & other, CaseSensitivity cs) const noexcept
{
    return QtPrivate::compareStrings(ToQt(View()), ToQt(other.View()), ToQt(cs));
}

int TString::compare(TString const & a, TString const & b, CaseSensitivity cs) noexcept
{
    return a.compare(b, cs);
}

int TString::compareN(TString const & a, TString const & b, int n, CaseSensitivity cs) noexcept
{
    std::size_t const units = n < 0 ? 0 : static_cast<std::size_t>(n);
    return QtPrivate::compareStrings(ToQt(a.View().substr(0, units)), ToQt(b.View().substr(0, units)), ToQt(cs));
}

bool TString::startsWith(TString const & text, CaseSensitivity cs) const noexcept
{
    return ToQt(View()).startsWith(ToQt(text.View()), ToQt(cs));
}

bool TString::endsWith(TString const & text, CaseSensitivity cs) const noexcept
{
    return ToQt(View()).endsWith(ToQt(text.View()), ToQt(cs));
}

bool TString::contains(TString const & text, CaseSensitivity cs) const noexcept
{
    return indexOf(text, 0, cs) >= 0;
}

int TString::indexOf(char16_t character, int from) const noexcept
{
    return Narrow(ToQt(View()).indexOf(QChar(character), Start(from, length())));
}

int TString::indexOf(TString const & text, int from, CaseSensitivity cs) const noexcept
{
    return Narrow(ToQt(View()).indexOf(ToQt(text.View()), Start(from, length()), ToQt(cs)));
}

int TString::lastIndexOf(char16_t character, int from) const noexcept
{
    // Qt would look at the terminator for `from` equal to the length.
    int const last = std::min(from < 0 ? length() + from : from, length() - 1);
    return last < 0 ? -1 : Narrow(ToQt(View()).lastIndexOf(QChar(character), last));
}

int TString::count(char16_t character) const noexcept
{
    return Narrow(std::count(cbegin(), cend(), character));
}

int TString::findOneOf(TString const & set, int from) const noexcept
{
    std::size_t const start = static_cast<std::size_t>(Start(from, length()));
    std::size_t const found = View().find_first_of(set.View(), start);
    return found == std::u16string_view::npos ? -1 : static_cast<int>(found);
}

int TString::findOneNotOf(TString const & set, int from) const noexcept
{
    std::size_t const start = static_cast<std::size_t>(Start(from, length()));
    std::size_t const found = View().find_first_not_of(set.View(), start);
    return found == std::u16string_view::npos ? -1 : static_cast<int>(found);
}

int TString::findStr(TString const & a, TString const & b, int from, CaseSensitivity cs) noexcept
{
    return a.indexOf(b, from, cs);
}

TString & TString::removeAt(int from, int n)
{
    if (from >= 0 && n > 0)
        Q().remove(from, n);
    return *this;
}

TString & TString::removeAll(char16_t character)
{
    Q().remove(QChar(character));
    return *this;
}

TString & TString::removeAll(char16_t const * text, int length, CaseSensitivity cs)
{
    QString const pattern = TString(text, length).toQString();
    if (!pattern.isEmpty())
        Q().remove(pattern, ToQt(cs));
    return *this;
}

TString & TString::replace(char16_t before, char16_t after)
{
    Q().replace(QChar(before), QChar(after));
    return *this;
}

TString & TString::replace(char16_t before, TString const & after)
{
    Q().replace(QChar(before), after.toQString());
    return *this;
}

TString & TString::replace(TString const & before, TString const & after, CaseSensitivity cs)
{
    if (!before.isEmpty())
        Q().replace(before.toQString(), after.toQString(), ToQt(cs));
    return *this;
}

TString & TString::trim()
{
    return *this = TString(toQString().trimmed());
}

TString & TString::trimLeft()
{
    int first = 0;
    while (first < length() && QChar(View()[static_cast<std::size_t>(first)]).isSpace())
        ++first;
    return removeAt(0, first);
}

TString & TString::trimRight()
{
    int last = length();
    while (last > 0 && QChar(View()[static_cast<std::size_t>(last - 1)]).isSpace())
        --last;
    truncate(last);
    return *this;
}

TString & TString::trimRight(char16_t character)
{
    int last = length();
    while (last > 0 && View()[static_cast<std::size_t>(last - 1)] == character)
        --last;
    truncate(last);
    return *this;
}

std::vector<TString> TString::split(char16_t const * separator, SplitBehavior behavior, CaseSensitivity cs) const
{
    QStringList const parts = toQString().split(
        TString(separator).toQString(), behavior == SkipEmptyParts ? Qt::SkipEmptyParts : Qt::KeepEmptyParts, ToQt(cs));
    return std::vector<TString>(parts.begin(), parts.end());
}

std::ostream & operator<<(std::ostream & out, TString const & text)
{
    return out << text.toStdString();
}
