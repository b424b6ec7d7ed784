// Well-known names of fields and contexts. Ready once the library is loaded.
#pragma once

#include "velcoredata/core/Export.h"
#include "velcoredata/data/FieldName.h"
#include "velcoreplatform/TString.h"

namespace DataSourceTypes {

// Each is one component, colon and blanks included: the full value of s_lnmOMeasures is "[:Measure Names]".
extern VELCOREDATA_API FieldName const s_lnmOMeasures;          // ":Measure Names"
extern VELCOREDATA_API FieldName const s_lnmQMeasures;          // "Multiple Values"
extern VELCOREDATA_API FieldName const s_lnmNumberOfRecords;    // "Number of Records"
extern VELCOREDATA_API FieldName const s_lnmForecastIndicator;  // "Forecast Indicator"

extern VELCOREDATA_API TString const sRootContextName;     // ""
extern VELCOREDATA_API TString const sExtractContextName;  // "extract"

}  // namespace DataSourceTypes
