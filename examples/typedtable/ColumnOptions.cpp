#include "typedtable/ColumnOptions.h"

#include <algorithm>

#include "typedtable/DateChoice.h"
#include "typedtable/Texts.h"
#include "typedtable/UserError.h"

namespace typedtable {

bool ColumnOptions::IsOption(std::string const & name) noexcept
{
    return name == "--cast" || name == "--format" || name == "--as";
}

void ColumnOptions::Add(std::string const & name, std::string const & value)
{
    if (value.empty())
        throw UserError(Text("%1: the value is empty", name));
    if (name == "--cast") {
        m_casts.push_back(ReadCastChoice(value));
    } else if (name == "--as") {
        if (m_form)
            throw UserError(Text("%1 is given twice", name));
        m_form = ReadRowForm(value);
    } else {
        // A column whose name holds the sign stands in brackets.
        std::size_t const equals =
            value.starts_with('[') ? LengthOfQualifiedName(value, "=") : std::min(value.find('='), value.size());
        if (equals == 0 || equals == value.size())
            throw UserError(Text("--format: \"%1\" is not COLUMN=FORMAT", value.substr(0, NumberFormat::kLongest)));
        m_formats.push_back({ReadColumnName(name, value.substr(0, equals)), value.substr(equals + 1)});
    }
}

std::vector<FormatChoice> ColumnOptions::MakeFormats(std::optional<std::string> const & locale) const
{
    static constexpr LCID kEnglish = 0x409;
    std::vector<FormatChoice> formats;
    if (m_formats.empty())
        return formats;
    LCID const lcid = locale ? MakeLocale("--locale", *locale).GetLCID() : kEnglish;
    for (Format const & format : m_formats)
        formats.push_back({format.column, std::make_shared<NumberFormat>(format.encoded, lcid)});
    return formats;
}

void ApplyFormats(Schema & schema, std::vector<FormatChoice> const & formats)
{
    for (FormatChoice const & choice : formats) {
        std::size_t const i = schema.Find(choice.column);
        Schema::Column & column = schema.columns[i];
        if (!IsNumeric(column.type))
            throw TableError(Text("--%1: column \"%2\" is %3, not a number", "format", choice.column.name,
                                  DataValue::DataTypeToString(column.type).toStdString()));
        if (column.format)
            throw TableError(Text("%1: column \"%2\" is given twice", "--format", choice.column.name));
        column.format = choice.format;
        schema.firstRows.columns[i].format = choice.format;
    }
}

}  // namespace typedtable
