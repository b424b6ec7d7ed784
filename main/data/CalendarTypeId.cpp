#include "velcoredata/data/CalendarTypeId.h"

#include "main/data/CalendarIds.h"
#include "velsys/NoDestructor.h"

namespace detail {

TString const & GregorianCalendarId()
{
    static NoDestructor<TString> id(u"Gregorian");
    return id.Get();
}

TString const & ISO8601CalendarId()
{
    static NoDestructor<TString> id(u"ISO8601");
    return id.Get();
}

}  // namespace detail

namespace CalendarTypeId {

const TString ConvertCalendarTypeToId(CalendarType type)
{
    return type == CalendarType::ISO8601 ? detail::ISO8601CalendarId() : detail::GregorianCalendarId();
}

CalendarType ConvertIdToCalendarType(TString const & id)
{
    return id == detail::ISO8601CalendarId() ? CalendarType::ISO8601 : CalendarType::Gregorian;
}

}  // namespace CalendarTypeId
