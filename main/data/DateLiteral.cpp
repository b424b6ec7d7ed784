#include "main/data/DateLiteral.h"

#include "velcoredata/core/DateTimeParsingFormats.h"

namespace {

using Formats = DateTimeParsingFormats;

TString Format(DateTime const & value, Formats format)
{
    return value.Format(LookupDateTimeParsingFormatString(format));
}

}  // namespace

TString detail::DateLiteral(DateTime const & value)
{
    return Format(value, Formats::DateFormat_19);
}

TString detail::DateTimeLiteral(DateTime const & value)
{
    return Format(value, value.GetMilliseconds() > 0 ? Formats::DateFormat_5 : Formats::DateFormat_11);
}
