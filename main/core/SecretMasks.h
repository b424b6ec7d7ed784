// The masking of secrets by the regular expressions that define it.
#pragma once

#include "velcoredata/core/Export.h"
#include "velcoreplatform/TString.h"

namespace detail {

// Same answer as ObfuscateSecretsInString on every text, in some hundred times the time.
VELCOREDATA_API TString ObfuscateSecretsByPatterns(TString const & text);

}  // namespace detail
