#include "velcoredata/core/LanguageUtils.h"

namespace LanguageUtils {

// Without the registry of resource archives no translation of a pseudo-locale can be installed.
bool PseudoLocFeatureShouldBeEnabled()
{
    return false;
}

}  // namespace LanguageUtils
