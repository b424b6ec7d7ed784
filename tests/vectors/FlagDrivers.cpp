// Drivers of the tables flags_*.

#include <algorithm>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include <boost/any.hpp>

#include "tests/vectors/VectorDriver.h"
#include "velcoredata/utility/FeatureCatalogue.h"
#include "velcoredata/utility/FeatureFlags.h"
#include "velcoredata/utility/FeatureOverrides.h"
#include "velcoreplatform/CoreThreadContext.h"

namespace {

using velcoredata::vectors::DecodeUInt;
using velcoredata::vectors::Row;

FeatureFlagId Id(std::string const & text)
{
    return FeatureFlagId(static_cast<std::uint32_t>(DecodeUInt(text)));
}

std::vector<std::string> Split(std::string const & text, std::string const & separator)
{
    std::vector<std::string> parts;
    std::size_t start = 0;
    for (std::size_t end; (end = text.find(separator, start)) != text.npos; start = end + separator.size())
        parts.push_back(text.substr(start, end - start));
    parts.push_back(text.substr(start));
    return parts;
}

bool IsKnown(FeatureFlagId id)
{
    auto const & ids = GetAllFeatureFlagIds();
    return std::find(ids.begin(), ids.end(), id) != ids.end();
}

// The catalogue's ids among these, as numbers in rising order.
template <class Ids>
std::string Known(Ids const & ids)
{
    std::vector<std::uint32_t> numbers;
    for (FeatureFlagId const id : ids)
        if (IsKnown(id))
            numbers.push_back(static_cast<std::uint32_t>(id));
    std::sort(numbers.begin(), numbers.end());
    std::string text;
    for (std::uint32_t const number : numbers)
        text += (text.empty() ? "" : ",") + std::to_string(number);
    return text;
}

void Install(std::shared_ptr<boost::any> object)
{
    CoreThreadContext::SetGenericUnsynchronizedObject(u"fflags-ctx", std::move(object));
}

void Run(std::string const & operation, Row & row)
{
    std::size_t const colon = operation.find(':');
    std::string const verb = operation.substr(0, colon);
    std::string const argument = colon == operation.npos ? std::string() : operation.substr(colon + 1);
    if (verb == "enable") {
        FeatureFlags::GetMutable().Enable(Id(argument));
    } else if (verb == "disable") {
        FeatureFlags::GetMutable().Disable(Id(argument));
    } else if (verb == "clear") {
        FeatureFlags::GetMutable().Clear();
    } else if (verb == "session_default" || verb == "session_cleared") {
        auto flags = std::make_unique<FeatureFlags>();
        if (verb == "session_cleared")
            flags->Clear();
        CoreThreadContext::SetSessionFeatureFlags(std::move(flags));
    } else if (verb == "session_none") {
        Install(nullptr);
    } else if (verb == "slot_other_type") {
        Install(std::make_shared<boost::any>(1));
    } else {
        row.Fail("no such operation: " + operation);
    }
}

}  // namespace

VECTOR_DRIVER("flags_rows")
{
    FeatureFlagId const id = Id(row.Cell("id"));
    auto const & defaults = GetDefaultEnabledFeatureIds();
    row.ExpectInt("maturity", static_cast<int>(GetFeatureMaturity(id)));
    row.ExpectBool("enabled_by_default", std::find(defaults.begin(), defaults.end(), id) != defaults.end());
    row.ExpectText("team", GetFeatureTeam(id).View());
    row.ExpectText("scrum_alias", GetFeatureScrumAlias(id).View());
    row.ExpectText("tfs_id", GetTFSId(id).View());
    row.ExpectText("removal_date", GetFeatureFlagRemovalDate(id).View());
    row.ExpectText("toggle_requirement", GetFeatureToggleRequirement(id).View());
    row.ExpectText("name", GetFeatureFlagName(id).View());
    row.ExpectText("description", GetFeatureFlagDescription(id).View());
}

VECTOR_DRIVER("flags_lookup")
{
    TString const name = TString::fromStdU16String(row.Text("name"));
    row.ExpectUInt("id", static_cast<std::uint32_t>(GetDefaultFeatureIdLookup().GetId(name)));
}

// As from a fresh process: the defaults, and a session of the row's own.
VECTOR_DRIVER("flags_scenarios")
{
    FeatureFlags::GetMutable() = FeatureFlags();
    {
        ScopedSession const session;
        if (!row.Cell("operations").empty())
            for (std::string const & operation : Split(row.Cell("operations"), " ; "))
                Run(operation, row);
        FeatureOverrides const overrides = GetFeatureFlagOverrides();
        row.Expect("on_known", row.Cell("on_known"), Known(FeatureFlags::GetEnabled()));
        row.Expect("enabled", row.Cell("enabled_overrides_known"), Known(overrides.enabledOverrides));
        row.Expect("disabled", row.Cell("disabled_overrides_known"), Known(overrides.disabledOverrides));
        if (!row.Cell("extra_is_on").empty())
            for (std::string const & extra : Split(row.Cell("extra_is_on"), ",")) {
                auto const sides = Split(extra, "=");
                row.Expect("extra_is_on " + sides[0], sides.at(1), FeatureFlags::IsOn(Id(sides[0])) ? "true" : "false");
            }
    }
    FeatureFlags::GetMutable() = FeatureFlags();
}
