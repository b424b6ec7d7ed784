// The reader of well-known text, without a throw on bad text.
#pragma once

#include <string>

#include "ReadOutcome.h"

namespace velgeo::detail {

// Texts without "SRID=n;" in front, texts with it, or both.
ReadOutcome ReadWkt(std::string const & text, bool plain, bool withReference);

}  // namespace velgeo::detail
