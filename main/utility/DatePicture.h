// The platform's pictures of dates and times ("dddd, MMMM d, yyyy h:mm tt") in the notation of others.
//
// Letters: d M y g day, month, year, era; H h m s t hour, minute, second, half of the day. A picture is read as runs of
// one character; what stands between single quotes is text. Pure, from any thread.
#pragma once

#include "velcoredata/core/Export.h"
#include "velcoreplatform/TString.h"

namespace detail {

VELCOREDATA_API TString PictureToIcu(TString const & picture);     // "EEEE, MMMM d, yyyy h:mm a"
VELCOREDATA_API TString PictureToCustom(TString const & picture);  // "dddd, MMMM d, yyyy h:nn AM/PM"; no eras
VELCOREDATA_API TString PictureToQt(TString const & picture);      // "dddd, MMMM d, yyyy h:mm AP"; no eras

}  // namespace detail
