#include "typedtable/DateChoice.h"

#include <ostream>

#include "typedtable/Texts.h"
#include "typedtable/UserError.h"
#include "velcoredata/core/LanguageUtils.h"

namespace typedtable {

namespace {

std::string OrderText(TLocale::DateOrder order)
{
    switch (order) {
    case TLocale::DateOrderDMY: return Text("day, month, year");
    case TLocale::DateOrderMDY: return Text("month, day, year");
    case TLocale::DateOrderYMD: return Text("year, month, day");
    case TLocale::DateOrderYDM: return Text("year, day, month");
    default: return Text("no order");
    }
}

}  // namespace

TLocale MakeLocale(std::string const & option, std::string const & name)
{
    TString const text = TString::fromStdString(name);
    if (!LanguageUtils::IsLocaleSupported(text))
        throw UserError(Text("%1: \"%2\" is not a known locale, as de_DE is", option, name));
    return TLocale(text);
}

void PrintDateOrder(std::ostream & out, DateOrderRequest const & request)
{
    LCID const lcid = MakeLocale("--date-order", request.locale).GetLCID();
    out << request.locale << ": " << OrderText(TLocale::GetDateOrder(lcid)) << " ("
        << TLocale::GetLocaleFormatAsWindows(ICUUtils::SpecShortDate, lcid).toStdString() << ")\n";
}

}  // namespace typedtable
