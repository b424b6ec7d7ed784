#pragma once

#include <memory>

#include "velcoredata/core/Export.h"
#include "velcoreplatform/TString.h"
#include "velicu/ErrorCode.h"
#include "velicu/ICULocale.h"
#include "velsys/Lcid.h"

/// What the ICU helpers and the collators share. Safe from any thread.
namespace CoreICUUtils {

/// The ICU locale of an LCID: the root locale for 0, ICU's default locale for 1024, else that of
/// LanguageUtils::GetLocaleNarrowStr, "de_DE" for 0x407.
VELCOREDATA_API std::unique_ptr<VelICU_V2::ICULocale> GetLocale(LCID lcid);

/// Turns a failure of ICU into an exception: logs a warning that shows `errorName` and `detail` ("LEN_XYZ", the object
/// that failed), then throws a StringException with the error "StringException_AutoGen_0x5EA10C35" and the message
/// "String comparison error.".
[[noreturn]] VELCOREDATA_API void ThrowICUException(TString const & errorName, TString const & detail);

/// The same with the name of the status, "U_ILLEGAL_ARGUMENT_ERROR" for 1.
[[noreturn]] VELCOREDATA_API void ThrowICUException(VelICU_V2::ICUErrorCode status, TString const & detail);

}  // namespace CoreICUUtils
