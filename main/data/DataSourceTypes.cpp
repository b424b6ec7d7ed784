#include "velcoredata/data/DataSourceTypes.h"

namespace DataSourceTypes {

FieldName const s_lnmOMeasures = FieldName::ParseUnquoted(u":Measure Names");
FieldName const s_lnmQMeasures = FieldName::ParseUnquoted(u"Multiple Values");
FieldName const s_lnmNumberOfRecords = FieldName::ParseUnquoted(u"Number of Records");
FieldName const s_lnmForecastIndicator = FieldName::ParseUnquoted(u"Forecast Indicator");

TString const sRootContextName;
TString const sExtractContextName(u"extract");

}  // namespace DataSourceTypes
