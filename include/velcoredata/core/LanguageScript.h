// How the text of a language is written.
#pragma once

namespace LanguageUtils {

/// How the Chinese of a locale is written.
enum LanguageScript : int
{
    ScriptNone = 0,  ///< not Chinese, or not said
    ScriptSimplified = 1,
    ScriptTraditional = 2,
};

}  // namespace LanguageUtils
