// The locale that a piece of work runs in. One process serves many sessions, and the workbook of a session may carry a
// locale of its own.
//
// A session has two named objects for it, filled by the host (CoreThreadContext::SetGenericObject), each a
// std::shared_ptr<TLocale>: "workbook-locale" and "default-locale". The walk through them:
//
//   1. "workbook-locale", unless it is not there or its language has no ISO string;
//   2. else, if CoreDataOptions::GetUseNonSessionSpecificLocale() is off, the user's default locale;
//   3. else "default-locale", which has to be there, unless its LCID is 0;
//   4. else CoreDataOptions::GetDefaultLocaleObject(), unless its LCID is 0;
//   5. else the user's default locale.
//
// Any thread of the session may call. Outside a session every function raises the logic assertion
// "CoreThreadContext::HasSessionId()"; a missing "default-locale" raises "sessionLocale". An object of another type
// raises boost::bad_any_cast, and an empty CoreThreadContext::HasSessionId std::bad_function_call.
#pragma once

#include "velcoredata/core/Export.h"
#include "velcoredata/core/LanguageCode.h"
#include "velcoreplatform/TString.h"
#include "velsys/Lcid.h"

class TLocale;

namespace LocaleHelper {

/// Stays good while the session holds the object, and CoreDataOptions its default locale. Raises
/// LogicException_LogicAssert_0x34F99351 outside a session, LogicException_LogicAssert_0x3B14929B without a
/// "default-locale".
VELCOREDATA_API TLocale const & GetSessionLocaleObject();

/// The same walk over language codes. The code of a default locale is made anew from its ISO string, that of the user's
/// default has the LCID 1024. Raises LogicException_LogicAssert_0x74B5639B outside a session,
/// LogicException_LogicAssert_0x57DB634A without a "default-locale".
VELCOREDATA_API LanguageCode GetSessionLanguageCode();

// Parts of GetSessionLanguageCode, which they raise as.

VELCOREDATA_API LCID GetSessionLCID();         ///< 0x407
VELCOREDATA_API TString GetSessionLanguage();  ///< "de"
VELCOREDATA_API TString GetSessionLocale();    ///< the ISO string, "de_DE"

}  // namespace LocaleHelper
