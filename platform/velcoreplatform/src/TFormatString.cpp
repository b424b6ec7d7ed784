#include "velcoreplatform/TFormatString.h"

#include <array>

TFormatString::TFormatString(TString const & pattern) : m_core(static_cast<TStringCore const &>(pattern)) {}

TFormatString::TFormatString(char16_t const * pattern) : m_core(pattern) {}

TFormatString & TFormatString::arg(TString const & value, int fieldWidth, char16_t fill)
{
    QString text = value.toQString();
    if (fieldWidth > 0)
        text = text.rightJustified(fieldWidth, QChar(fill));
    else if (fieldWidth < 0)
        text = text.leftJustified(-fieldWidth, QChar(fill));
    m_core.arg(TStringCore(std::move(text)));
    return *this;
}

TFormatString & TFormatString::arg(TString const & v1, TString const & v2)
{
    std::array<TStringCore const *, 2> const values{&static_cast<TStringCore const &>(v1),
                                                    &static_cast<TStringCore const &>(v2)};
    m_core.args(values.data(), values.size());
    return *this;
}

TFormatString & TFormatString::arg(TString const & v1, TString const & v2, TString const & v3)
{
    std::array<TStringCore const *, 3> const values{&static_cast<TStringCore const &>(v1),
                                                    &static_cast<TStringCore const &>(v2),
                                                    &static_cast<TStringCore const &>(v3)};
    m_core.args(values.data(), values.size());
    return *this;
}

TFormatString & TFormatString::arg(TString const & v1, TString const & v2, TString const & v3, TString const & v4)
{
    std::array<TStringCore const *, 4> const values{
        &static_cast<TStringCore const &>(v1), &static_cast<TStringCore const &>(v2),
        &static_cast<TStringCore const &>(v3), &static_cast<TStringCore const &>(v4)};
    m_core.args(values.data(), values.size());
    return *this;
}

TFormatString & TFormatString::arg(TString const & v1, TString const & v2, TString const & v3, TString const & v4,
                                   TString const & v5)
{
    std::array<TStringCore const *, 5> const values{
        &static_cast<TStringCore const &>(v1), &static_cast<TStringCore const &>(v2),
        &static_cast<TStringCore const &>(v3), &static_cast<TStringCore const &>(v4),
        &static_cast<TStringCore const &>(v5)};
    m_core.args(values.data(), values.size());
    return *this;
}

TFormatString & TFormatString::arg(int value, int fieldWidth, int base, char16_t fill)
{
    m_core.arg(TString::number(value, fieldWidth, base, fill));
    return *this;
}

TFormatString & TFormatString::arg(unsigned short value, int fieldWidth, int base, char16_t fill)
{
    m_core.arg(TString::number(static_cast<unsigned>(value), fieldWidth, base, fill));
    return *this;
}

TFormatString & TFormatString::arg(long long value, int fieldWidth, int base, char16_t fill)
{
    m_core.arg(TString::number(value, fieldWidth, base, fill));
    return *this;
}

TFormatString & TFormatString::arg(double value, int fieldWidth, char format, int precision, char16_t fill,
                                   bool stripPoint)
{
    TString const text = TString::number(value, format, precision, stripPoint);
    if (fill == u'0' && fieldWidth > text.length() && text.startsWith(u"-")) {
        m_core.arg(TString(u'-', 1) + TString(u'0', fieldWidth - text.length()) + text.mid(1));
        return *this;
    }
    return arg(text, fieldWidth, fill);
}
