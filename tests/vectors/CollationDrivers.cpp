// Drivers of the tables on collator names and collation conflicts.

#include <array>
#include <optional>
#include <sstream>
#include <string>
#include <vector>

#include "main/data/CollatorSpec.h"
#include "tests/support/RecordingLogger.h"
#include "tests/vectors/VectorDriver.h"
#include "velcoredata/data/CollationConflictResolver.h"
#include "velcoredata/data/CollatorNames.h"
#include "velsys/LogicException.h"

using namespace velcoredata::vectors;

namespace {

std::vector<std::string> Split(std::string const & cell, char separator)
{
    std::vector<std::string> parts;
    std::istringstream in(cell);
    for (std::string part; std::getline(in, part, separator);)
        parts.push_back(part);
    return parts;
}

// A name argument; `<null>` is the null pointer.
class NameArgument
{
public:
    NameArgument(Row const & row, char const * column)
    {
        if (row.Cell(column) != "<null>")
            m_text = row.Text(column);
    }
    char16_t const * Get() const { return m_text ? m_text->c_str() : nullptr; }

private:
    std::optional<std::u16string> m_text;
};

struct Options
{
    Collation::CaseOpt caseOpt;
    Collation::AccentOpt accentOpt;
    Collation::SortOpt sortOpt;
    Collation::PunctOpt punctOpt;

    Options(Row const & row, char const * c, char const * a, char const * s, char const * p)
        : caseOpt(static_cast<Collation::CaseOpt>(row.Int(c))),
          accentOpt(static_cast<Collation::AccentOpt>(row.Int(a))),
          sortOpt(static_cast<Collation::SortOpt>(row.Int(s))),
          punctOpt(static_cast<Collation::PunctOpt>(row.Int(p)))
    {}
};

detail::ColAttributeList AttributesOf(std::string const & cell)
{
    detail::ColAttributeList list;
    for (std::string const & pair : Split(cell, ',')) {
        std::size_t const colon = pair.find(':');
        list.emplace_back(std::stoi(pair.substr(0, colon)), std::stoi(pair.substr(colon + 1)));
    }
    return list;
}

TString DescribeSpec(detail::CollatorSpec const & spec)
{
    std::string text = spec.locale + "|";
    for (std::size_t i = 0; i < spec.attributes.size(); ++i)
        text += (i == 0 ? "" : ",") + std::to_string(spec.attributes[i].first) + ":" +
                std::to_string(spec.attributes[i].second);
    return TString::fromStdString(text);
}

TString Normalized(Row const & row)
{
    std::vector<TString> tokens = detail::SplitCollatorName(row.Text("a2").c_str());
    detail::NormalizeCollatorTokens(AttributesOf(row.Cell("a1")), tokens);
    return detail::JoinCollatorTokens(tokens);
}

TString Call(Row const & row)
{
    std::string const & fn = row.Cell("fn");
    if (fn == "MakeCollatorName_name") {
        Options const o(row, "a2", "a3", "a4", "a5");
        return MakeCollatorName(NameArgument(row, "a1").Get(), o.caseOpt, o.accentOpt, o.sortOpt, o.punctOpt);
    }
    if (fn == "MakeCollatorName_lcid")
        return MakeCollatorName(static_cast<LCID>(row.UInt("a1")), static_cast<unsigned>(row.UInt("a2")),
                                row.Bool("a3"));
    if (fn == "MakeICUCollatorName") {
        Options const o(row, "a3", "a4", "a5", "a6");
        return MakeICUCollatorName(row.Cell("a1"), row.Bool("a2"), o.caseOpt, o.accentOpt, o.sortOpt, o.punctOpt);
    }
    if (fn == "CollatorNameFromLocaleName") {
        Options const o(row, "a3", "a4", "a5", "a6");
        bool const isNull = row.Cell("a1") == "<null>";
        return CollatorNameFromLocaleName(isNull ? nullptr : row.Cell("a1").c_str(), row.Bool("a2"), o.caseOpt,
                                          o.accentOpt, o.sortOpt, o.punctOpt);
    }
    if (fn == "WithCollatorAttribute")
        return detail::WithCollatorAttribute(row.Text("a1").c_str(), static_cast<int>(row.Int("a2")),
                                             static_cast<int>(row.Int("a3")));
    if (fn == "NormalizeCollatorTokens")
        return Normalized(row);
    if (fn == "ParseCollatorName")
        return DescribeSpec(detail::ParseCollatorName(row.Text("a1").c_str()));
    throw std::runtime_error("unknown function " + fn);
}

// The published names of these have no script, where ICU's have: zh-TW against zh_Hant_TW.
bool HasPublishedNameWithoutScript(Row const & row)
{
    if (row.Cell("fn") != "MakeCollatorName_lcid")
        return false;
    long long const lcid = row.Int("a1");
    return lcid == 0x404 || lcid == 0xC04 || lcid == 0x1404 || lcid == 0x1004;
}

std::string WithoutScript(std::string name)
{
    std::size_t const script = name.rfind("_Z");
    return name.substr(0, script);
}

}  // namespace

VECTOR_DRIVER("collation_names")
{
    std::string outcome, result, detail;
    test_support::RecordingLogger log;
    try {
        result = EscapeText(Call(row).View());
        outcome = "ok";
    } catch (LogicException const & e) {
        outcome = "assert";
        result = e.GetErrorInfo().GetError().GetName().toQString().toStdString();
        detail = e.GetExpression().toQString().toStdString();
    } catch (VeltriaException const & e) {
        outcome = "exception";
        result = e.GetErrorInfo().GetError().GetName().toQString().toStdString();
        std::string const wanted = row.Cell("detail");
        for (auto const & record : log.GetRecords())
            if (record.text.find("Error: " + wanted) != std::string::npos)
                detail = wanted;
    }
    row.Expect("outcome", row.Cell("outcome"), outcome);
    std::string expected = row.Cell("expected");
    if (HasPublishedNameWithoutScript(row))
        expected = WithoutScript(expected);
    row.Expect("expected", expected, result);
    row.Expect("detail", row.Cell("detail"), detail);
}

namespace {

SourcedCollation ParseSourced(std::string const & item)
{
    std::size_t const first = item.find(';');
    std::size_t const second = item.find(';', first + 1);
    TString const name = TString::fromStdString(item.substr(first + 1, second - first - 1));
    auto const charset = static_cast<unsigned short>(std::stoi(item.substr(second + 1)));
    return SourcedCollation(TString::fromStdString(item.substr(0, first)), Collation(name, charset));
}

std::string Describe(SourcedCollation const & sourced)
{
    return sourced.source.toStdString() + ";" + sourced.collation.GetName().toStdString() + ";" +
           std::to_string(sourced.collation.GetCharsetID());
}

class RecordingCallback : public CollationConflictResolver::Callback
{
public:
    explicit RecordingCallback(std::string const & kind) : m_kind(kind) {}

    bool PreferSecond(Collation const & first, Collation const & second, TString const & source) const override
    {
        std::string const a = Describe(SourcedCollation(source, first));
        std::string const b = Describe(SourcedCollation(source, second));
        m_calls += (m_calls.empty() ? "" : "|") + a + ">" + b;
        return m_kind == "second_name_less" ? second.GetName() < first.GetName() : m_kind == "true";
    }
    std::string const & GetCalls() const { return m_calls; }

private:
    std::string m_kind;
    mutable std::string m_calls;
};

}  // namespace

VECTOR_DRIVER("collation_conflicts")
{
    std::vector<SourcedCollation> items;
    for (std::string const & item : Split(row.Cell("candidates"), '|'))
        items.push_back(ParseSourced(item));
    std::vector<SourcedCollation const *> candidates;
    for (SourcedCollation const & item : items)
        candidates.push_back(&item);

    std::string const & kind = row.Cell("callback");
    RecordingCallback const callback(kind);
    CollationConflictResolver const resolver(kind == "none" ? nullptr : &callback);
    auto const winner = resolver.ResolveSourcedCollation(candidates);
    if (winner == nullptr)
        row.Expect("winner_index", row.Cell("winner_index"), "null");
    else {
        row.Expect("winner", row.Cell("winner"), Describe(*winner));
        row.Expect("the candidate at winner_index",
                   Describe(items.at(static_cast<std::size_t>(row.Int("winner_index")))), Describe(*winner));
    }
    row.Expect("callback_calls", row.Cell("callback_calls"), callback.GetCalls());
}
