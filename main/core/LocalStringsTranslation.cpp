#include "main/core/LocalStringsTranslation.h"

namespace CoreData::detail {

// Answers as for a language without a translator: the English text. With the compiled-in translations this takes the
// ISO string of the session's TLocale (the session object "locale"), asks that language's translator for the message
// with the context `key` and the source text `english`, and gives what the translator gives.
TString TranslateForSession(char const * /*key*/, char const * english)
{
    return TString::fromUtf8(english);
}

}  // namespace CoreData::detail
