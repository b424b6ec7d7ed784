// Texts of the library by key: messages, list texts, colour and palette names.
#pragma once

#include "velcoredata/core/Export.h"
#include "velcoredata/core/StringIds.h"
#include "velcoreplatform/TFormatString.h"
#include "velcoreplatform/TString.h"

namespace CoreData {

/// The text of a key in the language of the calling thread's session, or in English: outside a session, and wherever
/// the session's language has no translation of the key. A number that is no key gives the empty text.
///
/// Whether the thread runs in a session is asked of CoreThreadContext::HasSessionId; when that function is empty,
/// std::bad_function_call leaves this one. Any thread may call. Outside a session a call takes no lock.
///
///   LookupTStrExported(StringId::IDS_VALUE_LIST_NO_VALUES)  // "None"
VELCOREDATA_API TString LookupTStrExported(StringId id);

/// The same text as a template, for keys with the places %1, %2, ...:
///
///   LookupTFormatStrExported(StringId::IDP_VALUE_LIST_MANY_VALUES).arg(u"a").arg(3)  // "a and 3 more"
VELCOREDATA_API TFormatString LookupTFormatStrExported(StringId id);

}  // namespace CoreData
