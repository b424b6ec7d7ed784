// The members of DateTime that need TLocale.

#include "main/data/DateTimeFixedText.h"
#include "velcoredata/core/LocalStrings.h"
#include "velcoredata/core/TLocale.h"
#include "velcoredata/data/DateTime.h"
#include "velcoreplatform/TFormatString.h"
#include "velsys/ThrowSite.h"

namespace {

TLocale const & UserLocale()
{
    return TLocale::GetUserDefaultLocale();
}

TString ParseErrorText(char16_t const * text)
{
    return TFormatString(CoreData::LookupTStrExported(CoreData::StringId::IDP_DATE_PARSE_ERROR)).arg(text);
}

}  // namespace

DateTime::DateTime(char16_t const * text, char16_t const * format) : m_value(0)
{
    if (!UserLocale().ParseDateTime(text, format, *this, ParseDateAndTime))
        VELTRIA_THROW(VeltriaException, 0x2CE8742C, ParseErrorText(text));
}

DateTime::DateTime(char16_t const * text, char16_t const * format, TLocale const & locale) : m_value(0)
{
    if (!locale.ParseDateTime(text, format, *this, ParseDateAndTime))
        VELTRIA_THROW(VeltriaException, 0x8E8A7D12, ParseErrorText(text));
}

DateTime::DateTime(char16_t const * text) : DateTime(text, ParseDateAndTime) {}

DateTime::DateTime(char16_t const * text, DateTimeParseOptions options) : DateTime(text, options, UserLocale()) {}

DateTime::DateTime(char16_t const * text, DateTimeParseOptions options, TLocale const & locale) : m_value(0)
{
    locale.ParseDateTimeTryAllFormats(text, *this, options);
}

TString DateTime::Format(bool useLocale) const
{
    return useLocale ? Format(ParseDateAndTime) : detail::FormatFixed(*this);
}

TString DateTime::Format(char16_t const * format) const
{
    return UserLocale().Format(*this, format);
}

TString DateTime::Format(char16_t const * format, TLocale const & locale) const
{
    return locale.Format(*this, format);
}

TString DateTime::Format(DateTimeParseOptions options) const
{
    return UserLocale().Format(*this, options);
}

TString DateTime::Format(DateTimeParseOptions options, TLocale const & locale) const
{
    return locale.Format(*this, options);
}

bool DateTime::ParseDateTime(char16_t const * text, char16_t const * format)
{
    return ParseDateTime(text, format, UserLocale());
}

bool DateTime::ParseDateTime(char16_t const * text, char16_t const * format, TLocale const & locale)
{
    return locale.ParseDateTime(text, format, *this, ParseDateAndTime);
}

bool DateTime::ParseDateTime(char16_t const * text, char16_t const * format, DateTime & out)
{
    return out.ParseDateTime(text, format);
}

bool DateTime::ParseDateTime(char16_t const * text, char16_t const * format, DateTime & out, TLocale const & locale)
{
    return out.ParseDateTime(text, format, locale);
}

bool DateTime::ParseDateTime(char16_t const * text, char16_t const * format, DateTime & out, TLocale const & locale,
                             char16_t const **)
{
    return out.ParseDateTime(text, format, locale);
}

bool DateTime::ParseDateTime(char16_t const * text, char16_t const * format, unsigned long long * out)
{
    DateTime value;
    if (!value.ParseDateTime(text, format))
        return false;
    *out = value.GetRepresentation();
    return true;
}

bool DateTime::ParseDateTimeNative(char16_t const * text, TLocale const & locale)
{
    return locale.ParseDateTimeUsingNativeAPIs(text, *this, ParseDateAndTime);
}

bool DateTime::ParseDateNative(char16_t const * text, TLocale const & locale)
{
    return locale.ParseDateTimeUsingNativeAPIs(text, *this, ParseDateOnly);
}

bool DateTime::ParseDateTimeTryAllFormats(char16_t const * text)
{
    return ParseDateTimeTryAllFormats(text, UserLocale());
}

bool DateTime::ParseDateTimeTryAllFormats(char16_t const * text, TLocale const & locale)
{
    return locale.ParseDateTimeTryAllFormats(text, *this, ParseDateAndTime);
}

bool DateTime::ParseDateTimeTryAllFormats(char16_t const * text, TLocale const & locale, DateTime const & reference)
{
    return locale.ParseDateTimeTryAllFormats(text, reference, *this, ParseDateAndTime);
}

bool DateTime::ParseDateTryAllFormats(char16_t const * text, TLocale const & locale)
{
    return locale.ParseDateTryAllFormats(text, *this, ParseDateOnly);
}

bool DateTime::ParseTimeTryAllFormats(TString const & text, TLocale const & locale)
{
    auto const [read, value] = locale.ParseTimeTryAllFormats(text);
    if (read)
        *this = value;
    return read;
}
