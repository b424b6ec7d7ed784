#include "velcoredata/string/CoreICUUtils.h"

#include "velcoredata/core/LocalStrings.h"
#include "velcoreplatform/StringException.h"
#include "velcoreplatform/TFormatString.h"
#include "velcoreplatform/TLog.h"
#include "velsys/ThrowSite.h"

namespace CoreICUUtils {

void ThrowICUException(TString const & errorName, TString const & detail)
{
    TFormatString report(u"\n--- String Compare Error ------------------------------------------------"
                         u"\nError: %1, %2"
                         u"\n-------------------------------------------------------------------------");
    LogMessage(TLog::Warn(), report.arg(errorName, detail));
    VELTRIA_THROW(StringException, 0x5EA10C35,
                  CoreData::LookupTStrExported(CoreData::StringId::IDS_STRING_COMPARISON_ERROR));
    __builtin_unreachable();
}

void ThrowICUException(VelICU_V2::ICUErrorCode status, TString const & detail)
{
    ThrowICUException(TString::fromLatin1(VelICU_V2::t_u_errorName(status)), detail);
}

}  // namespace CoreICUUtils
