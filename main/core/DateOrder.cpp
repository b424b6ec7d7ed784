#include "main/core/DateOrder.h"

namespace detail {

TLocale::DateOrder DateOrderOf(TString const & pattern)
{
    int const day = pattern.indexOf(u'd');
    int const month = pattern.indexOf(u'M');
    int const year = pattern.indexOf(u'y');
    if (day < 0 || month < 0 || year < 0)
        return TLocale::DateOrderUnknown;
    if (day < month && month < year)
        return TLocale::DateOrderDMY;
    if (month < day && day < year)
        return TLocale::DateOrderMDY;
    if (year < month && month < day)
        return TLocale::DateOrderYMD;
    if (year < day && day < month)
        return TLocale::DateOrderYDM;
    return TLocale::DateOrderUnknown;
}

}  // namespace detail
