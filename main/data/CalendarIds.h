#pragma once

class TString;

namespace detail {

// The text identifiers of the calendars. They may be read at any time, also by initialisers of statics and at exit.
TString const & GregorianCalendarId();
TString const & ISO8601CalendarId();

}  // namespace detail
