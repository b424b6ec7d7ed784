// The library's search for dates and the plain one side by side.
#pragma once

#include <memory>
#include <optional>
#include <string>

#include "tests/core/TLocalePeer.h"
#include "tests/support/DateSearchModel.h"
#include "velcoredata/core/TLocale.h"
#include "velcoredata/data/DateTime.h"

namespace test_support {

// One object of the library and one of the model, which are told the same.
class DateSearchPair
{
public:
    explicit DateSearchPair(char16_t const * name)
        : m_made(TString(name)),
          m_locale(std::make_unique<TLocale>(m_made)),
          m_model(TString(name).toStdString(), m_made.getLanguageCode().GetISOString(), m_made.GetLCID())
    {}

    DateSearchModel & Model() { return m_model; }

    // Both forget what they read.
    void StartAnew(bool parseNative, bool cacheFormatter)
    {
        *m_locale = m_made;
        m_model.Reset();
        m_model.parseNative = parseNative;
        m_model.cacheFormatter = cacheFormatter;
        m_locale->setParseNative(parseNative);
        m_locale->setCacheFormatter(cacheFormatter);
    }

    enum class Step
    {
        DateTime,
        DateTimeFrom,
        Date,
        DateFrom,
        Time,
        Pattern,
        Native
    };

    // Empty if both answered the same and stand the same afterwards; else how they differ.
    std::string Take(Step step, std::u16string const & text, std::u16string const & pattern, DateTime const & reference,
                     DateTimeParseOptions options)
    {
        DateTime out = Sentinel();
        bool read = false;
        Result expected;
        switch (step) {
        case Step::DateTime:
            read = m_locale->ParseDateTimeTryAllFormats(text.c_str(), out, options);
            expected = m_model.SearchDateTime(text, DateTime(), options);
            break;
        case Step::DateTimeFrom:
            read = m_locale->ParseDateTimeTryAllFormats(text.c_str(), reference, out, options);
            expected = m_model.SearchDateTime(text, reference, options);
            break;
        case Step::Date:
            read = m_locale->ParseDateTryAllFormats(text.c_str(), out, options);
            expected = m_model.SearchDate(text, DateTime(), options);
            break;
        case Step::DateFrom:
            read = m_locale->ParseDateTryAllFormats(text.c_str(), reference, out, options);
            expected = m_model.SearchDate(text, reference, options);
            break;
        case Step::Time: {
            auto const [success, value] = m_locale->ParseTimeTryAllFormats(TString::fromView(text));
            read = success;
            expected = m_model.SearchTime(text);
            if (!success && value != DateTime())
                return "a time that is none has the value " + Show(value);
            if (success)
                out = value;
            break;
        }
        case Step::Pattern:
            read = m_locale->ParseDateTime(text.c_str(), pattern.c_str(), out, options);
            expected = m_model.ParseWithPattern(text, pattern, options);
            break;
        case Step::Native:
            read = m_locale->ParseDateTimeUsingNativeAPIs(text.c_str(), out, options);
            expected = m_model.ParseNative(text, DateTime(), options);
            break;
        }
        m_read = read;
        return Compare(read, out, expected);
    }

    // Whether the last text was read.
    bool Read() const { return m_read; }

private:
    using Result = DateSearchModel::Result;

    static DateTime Sentinel() { return DateTime::FromValue(2118134448005000); }

    static std::string Show(Result const & result) { return result ? result->Format(false).toStdString() : "nothing"; }

    std::string Compare(bool read, DateTime const & out, Result const & expected) const
    {
        if (read != expected.has_value() || (read && out != *expected))
            return (read ? Show(out) : "nothing") + " for " + Show(expected);
        if (!read && out != Sentinel())
            return "a refused text left " + Show(out);
        TString const pattern = TString::fromView(m_model.Pattern().value_or(u""));
        TString const left = TLocalePeer::GetPattern(*m_locale);
        if (left != pattern)
            return "the pattern \"" + left.toStdString() + "\" is left for \"" + pattern.toStdString() + '"';
        auto const & formatter = m_locale->GetFormatterCache();
        if (formatter != nullptr && formatter->GetICUDateFormatter().isLenient() != m_model.IsLenient())
            return "the formatter's leniency differs";
        if (TLocalePeer::ReadNativeLast(*m_locale) != m_model.LastParseNative())
            return "the memory of the platform's parser differs";
        if (TLocalePeer::CountReadings(*m_locale) != m_model.ParseCount())
            return "the count of readings differs";
        return {};
    }

    bool m_read = false;
    TLocale m_made;
    std::unique_ptr<TLocale> m_locale;
    DateSearchModel m_model;
};

}  // namespace test_support
