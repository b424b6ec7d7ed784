#include "typedtable/ColumnName.h"

#include "typedtable/Texts.h"
#include "typedtable/UserError.h"
#include "velcoredata/data/MakeQualifiedName.h"
#include "velcoredata/data/QualifiedNameException.h"

namespace typedtable {

ColumnName ReadColumnName(std::string const & option, std::string const & text)
{
    if (!text.starts_with('['))
        return {text, std::nullopt};
    try {
        FieldName const name = FieldName::ParseGlobal(TString::fromStdString(text));
        if (name.GetNumberOfComponents() > 2)
            throw UserError(Text("%1: \"%2\" has %3 parts; a column is [COLUMN] or [SOURCE].[COLUMN]", option, text,
                                 name.GetNumberOfComponents()));
        ColumnName column{name.FormatDisplay().toStdString(), std::nullopt};
        if (name.GetNumberOfComponents() == 2)
            column.source = name.GetDataSourceName().toStdString();
        return column;
    } catch (QualifiedNameException const & error) {
        throw UserError(option + ": " + TString(error.GetConcatenatedMessages()).toStdString());
    }
}

std::size_t LengthOfQualifiedName(std::string_view text, std::string_view ends) noexcept
{
    bool isInside = false;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (!isInside && ends.find(text[i]) != ends.npos)
            return i;
        if (!isInside)
            isInside = text[i] == '[';
        else if (text.substr(i).starts_with("]]"))
            ++i;
        else
            isInside = text[i] != ']';
    }
    return text.size();
}

}  // namespace typedtable
