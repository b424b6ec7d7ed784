// The escapes of value text, which are private to the formatter.
#pragma once

#include "velcoredata/parser/DataValueFormatter.h"

struct DataValueFormatterPeer
{
    static TString EscapeString(TString const & text, bool escapeDelimiters)
    {
        return DataValueFormatter::EscapeString(text, escapeDelimiters);
    }
    static bool StringRequiresEscape(TString const & text, bool escapeDelimiters)
    {
        return DataValueFormatter::StringRequiresEscape(text, escapeDelimiters);
    }
    static bool IsEscapeOrDelimiterChar(char16_t ch) { return DataValueFormatter::IsEscapeOrDelimiterChar(ch); }
    static void InspectCharsetID(DataValueFormatter & formatter, unsigned short id) { formatter.InspectCharsetID(id); }
    static void InspectPrecision(DataValueFormatter & formatter, signed char precision)
    {
        formatter.InspectPrecision(precision);
    }
    static void InspectScale(DataValueFormatter & formatter, signed char scale) { formatter.InspectScale(scale); }
};
