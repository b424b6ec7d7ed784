// ColumnOptions: what --cast, --format and --as say.
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "typedtable/CastChoice.h"
#include "typedtable/ColumnName.h"
#include "typedtable/NumberFormat.h"
#include "typedtable/Schema.h"
#include "typedtable/WrittenRows.h"
#include "velsys/Lcid.h"

namespace typedtable {

struct FormatChoice
{
    ColumnName column;
    std::shared_ptr<NumberFormat const> format;
};

class ColumnOptions
{
public:
    /// Whether `name` is one of the options.
    static bool IsOption(std::string const & name) noexcept;

    /// Keeps the value of an option. Throws UserError for an empty one, and for a second --as.
    void Add(std::string const & name, std::string const & value);

    bool HasFormats() const noexcept { return !m_formats.empty(); }
    std::optional<RowForm> const & GetForm() const noexcept { return m_form; }

    std::vector<CastChoice> GetCasts() const { return m_casts; }

    /// The formats that name no locale get that of `locale`, a name, else English ones. Throws UserError for what is no
    /// format and for an unknown locale.
    std::vector<FormatChoice> MakeFormats(std::optional<std::string> const & locale) const;

private:
    struct Format
    {
        ColumnName column;
        std::string encoded;
    };

    std::vector<CastChoice> m_casts;
    std::vector<Format> m_formats;
    std::optional<RowForm> m_form;
};

/// Gives the columns their formats. Throws TableError for a column that is missing, is no number or is given twice.
void ApplyFormats(Schema & schema, std::vector<FormatChoice> const & formats);

}  // namespace typedtable
