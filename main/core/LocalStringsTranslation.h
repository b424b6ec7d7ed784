// The seam between the string table and the languages of sessions: the table lies below the rooms that know locales,
// so what it needs of them is this one declared function.
#pragma once

#include "velcoreplatform/TString.h"

namespace CoreData::detail {

// The text of a key in the language of the calling thread's session. Called only inside a session. `key` is the context
// and `english` the source text of the message, both UTF-8 and terminated. Empty: the language has no such message.
TString TranslateForSession(char const * key, char const * english);

}  // namespace CoreData::detail
