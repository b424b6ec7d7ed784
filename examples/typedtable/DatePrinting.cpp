#include "typedtable/DatePrinting.h"

#include "typedtable/DateChoice.h"
#include "typedtable/Texts.h"
#include "typedtable/UserError.h"
#include "typedtable/ValueText.h"

namespace typedtable {

DatePrinting const * DatePrinting::s_current = nullptr;

DatePrinting::DatePrinting(DateChoice const & choice)
    : m_locale(choice.datesAs && choice.locale ? MakeLocale("--locale", *choice.locale)
                                               : TLocale::GetUserDefaultLocale())
{
    if (!choice.datesAs)
        return;
    m_pattern = TString::fromStdString(*choice.datesAs);
    if (TextOf(DateTime::UnixEpoch).empty())
        throw UserError(Text("--dates-as: \"%1\" is not a pattern of dates, as \"d. MMMM yyyy\" is", *choice.datesAs));
    s_current = this;
}

DatePrinting::~DatePrinting()
{
    if (s_current == this)
        s_current = nullptr;
}

std::string DatePrinting::TextOf(DateTime const & value) const
{
    return OnOneLine(m_locale.Format(value, m_pattern.GetString()).toStdString());
}

}  // namespace typedtable
