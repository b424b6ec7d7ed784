// What LanguageUtils asks of a locale object.

#include "velcoredata/core/LanguageUtils.h"
#include "velcoredata/core/TLocale.h"

bool LanguageUtils::UsesImperialDistanceUnits(TLocale const & locale)
{
    return UsesImperialDistanceUnits(locale.getLanguageCode().GetCountryName());
}
