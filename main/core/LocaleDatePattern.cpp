#include "main/core/LocaleDatePattern.h"

#include <optional>

#include "velcoredata/core/LanguageCode.h"
#include "velcoredata/string/ICUUtils.h"
#include "velcoreplatform/TLog.h"
#include "velsys/TError.h"
#include "velsys/VeltriaError.h"

namespace {

using ICUUtils::DefaultDateTimeFormatSpec;

std::optional<DefaultDateTimeFormatSpec> SpecOf(int code)
{
    switch (code) {
    case 4:
    case 14:
    case 19: return ICUUtils::SpecShortDate;
    case 9: return ICUUtils::SpecLongDate;
    case 20:
    case 21:
    case 22: return ICUUtils::SpecTime;
    case 23: return ICUUtils::SpecShortTime;
    default:
        if (code < 0 || code > static_cast<int>(DateTimeFormatCodes::Last))
            return std::nullopt;
        return ICUUtils::SpecDateTime;
    }
}

}  // namespace

TString detail::GetFormatString(DateTimeFormatCodes code, LanguageCode const & languageCode)
{
    int const number = static_cast<int>(code);
    if (auto const spec = SpecOf(number))
        return ICUUtils::GetLocaleFormatAsICU(*spec, languageCode.GetLCID());
    LogMessage(TLog::AnySeverity(TLog::Severity::Error),
               TFormatString(u"Invalid format identifier %1 passed to GetFormatString").arg(number),
               TError::ErrorInfo(VeltriaError::MakeError(0xCA83AC02, u"LogSite_AutoGen_0xCA83AC02"),
                                 TError::ErrorSource::General, grpc::StatusCode::UNKNOWN));
    return TString();
}
