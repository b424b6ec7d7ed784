// DatePrinting: dates in the words of a locale instead of 2012-01-31.
#pragma once

#include <string>

#include "velcoredata/core/TLocale.h"
#include "velcoredata/data/DateTime.h"
#include "velcoreplatform/TString.h"

namespace typedtable {

struct DateChoice;

/// While an object lives, ValueText prints every date and date-time by its pattern. One lives at a time, in the one
/// thread of the program.
class DatePrinting
{
public:
    /// Throws UserError for an unknown locale and for a pattern that ICU cannot print. Does nothing without a pattern.
    explicit DatePrinting(DateChoice const & choice);
    ~DatePrinting();
    DatePrinting(DatePrinting const &) = delete;
    DatePrinting & operator=(DatePrinting const &) = delete;

    /// The one that lives and has a pattern, or null.
    static DatePrinting const * Current() noexcept { return s_current; }

    std::string TextOf(DateTime const & value) const;

private:
    static DatePrinting const * s_current;

    TLocale m_locale;
    TString m_pattern;
};

}  // namespace typedtable
