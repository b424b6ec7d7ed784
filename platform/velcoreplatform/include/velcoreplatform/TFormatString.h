// TFormatString: a message template with numbered places %1, %2, ... and typed values.
//
// Each arg call fills the lowest-numbered place that is left; all places with the same number take the same value. Text
// that was put in is never looked at again. Example: TFormatString(u"%1 of %2").arg(1).arg(2) reads "1 of 2".
#pragma once

#include "velcoreplatform/Export.h"
#include "velcoreplatform/TString.h"
#include "velsys/TFormatStringCore.h"

class VELCOREPLATFORM_API TFormatString
{
public:
    TFormatString() = default;
    TFormatString(TString const & pattern);
    TFormatString(char16_t const * pattern);

    // Width, base and fill as for TString::number; a text is padded likewise.
    TFormatString & arg(TString const & value, int fieldWidth = 0, char16_t fill = u' ');
    TFormatString & arg(char16_t const * value) { return arg(TString(value)); }
    // Several at once: the first value goes to the lowest place left, the next to the next.
    TFormatString & arg(TString const & v1, TString const & v2);
    TFormatString & arg(TString const & v1, TString const & v2, TString const & v3);
    TFormatString & arg(TString const & v1, TString const & v2, TString const & v3, TString const & v4);
    TFormatString & arg(TString const & v1, TString const & v2, TString const & v3, TString const & v4,
                        TString const & v5);
    // A character would be written as its number.
    TFormatString & arg(char16_t) = delete;
    TFormatString & arg(int value, int fieldWidth = 0, int base = 10, char16_t fill = u' ');
    TFormatString & arg(unsigned short value, int fieldWidth = 0, int base = 10, char16_t fill = u' ');
    TFormatString & arg(long long value, int fieldWidth = 0, int base = 10, char16_t fill = u' ');
    TFormatString & arg(double value, int fieldWidth = 0, char format = 'g', int precision = -1, char16_t fill = u' ',
                        bool stripPoint = true);

    operator TString() const { return TString(m_core.Text()); }
    operator TFormatStringCore const &() const noexcept { return m_core; }

private:
    TFormatStringCore m_core;
};
