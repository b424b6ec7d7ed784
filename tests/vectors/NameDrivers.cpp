// Drivers of the tables names_*.

#include <algorithm>
#include <functional>
#include <map>
#include <memory>
#include <set>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "tests/vectors/VectorDriver.h"
#include "velcoredata/data/Collation.h"
#include "velcoredata/data/DataSourceTypes.h"
#include "velcoredata/data/GlobalFieldName.h"
#include "velcoredata/data/IndexedFieldName.h"
#include "velcoredata/data/MakeQualifiedName.h"
#include "velcoredata/data/QualifiedName.h"
#include "velcoredata/data/QualifiedNameException.h"
#include "velcoredata/formalism/OMeasures.h"

namespace {

using velcoredata::vectors::DecodeText;
using velcoredata::vectors::EscapeText;
using velcoredata::vectors::Row;

using Texts = std::vector<TString>;

TString TextOf(Row const & row, std::string_view column)
{
    return TString::fromStdU16String(row.Text(column));
}

// The items of a cell, with a bar between neighbours; an empty cell is one empty item.
Texts Items(std::string_view cell)
{
    Texts items;
    for (;;) {
        std::size_t const bar = cell.find('|');
        items.push_back(TString::fromStdU16String(DecodeText(cell.substr(0, bar))));
        if (bar == cell.npos)
            return items;
        cell.remove_prefix(bar + 1);
    }
}

Texts Items(Row const & row, std::string_view countColumn, std::string_view column)
{
    return row.Int(countColumn) == 0 ? Texts() : Items(row.Cell(column));
}

QualifiedName NameOf(Texts const & components)
{
    return QualifiedName(boost::container::small_vector<TString, 2>(components.begin(), components.end()));
}

QualifiedName NameIn(Row const & row, std::string_view countColumn, std::string_view column)
{
    return NameOf(Items(row, countColumn, column));
}

Texts ComponentsOf(QualifiedName const & name)
{
    return {name.GetComponents().begin(), name.GetComponents().end()};
}

template <class Names>
Texts FullValues(Names const & names)
{
    Texts texts;
    for (auto const & name : names)
        texts.push_back(name.GetFullValue());
    return texts;
}

void ExpectItems(Row & row, std::string_view countColumn, std::string_view column, Texts const & actual)
{
    row.ExpectInt(countColumn, static_cast<long long>(actual.size()));
    auto const described = [](Texts const & items) {
        std::string all;
        for (TString const & item : items)
            all += "<" + EscapeText(item.View()) + ">";
        return all;
    };
    row.Expect(column, described(Items(row, countColumn, column)), described(actual));
}

// What an operation gives: components, or the full values of a list of names, and the text that it returns or stores.
struct Result
{
    Texts items;
    TString text;
};

// Compares the result, or the error that is raised, with the outcome columns.
void ExpectResult(Row & row, std::string_view itemsColumn, std::string_view textColumn,
                  std::function<Result()> const & call)
{
    std::string outcome = "ok";
    Result result;
    try {
        result = call();
    } catch (VeltriaException const & e) {
        outcome = e.GetErrorInfo().GetError().GetName().toQString().toStdString();
    }
    row.ExpectCell("outcome", outcome);
    if (outcome != "ok")
        return;
    ExpectItems(row, "out_count", itemsColumn, result.items);
    row.ExpectText(textColumn, result.text.View());
}

int Sign(int value)
{
    return (value > 0) - (value < 0);
}

}  // namespace

VECTOR_DRIVER("names_parse")
{
    TString const input = TextOf(row, "input");
    std::string outcome = "ok";
    try {
        QualifiedName const name = QualifiedName::ParseGlobal(input);
        ExpectItems(row, "count", "components", ComponentsOf(name));
        row.ExpectText("full_value_or_message", name.GetFullValue().View());
    } catch (QualifiedNameException const & e) {
        outcome = e.GetErrorInfo().GetError().GetName().toQString().toStdString();
        row.ExpectText("full_value_or_message", TString(e.GetConcatenatedMessages()).View());
        row.Expect("the input of the exception", EscapeText(TString(input).trim().View()),
                   EscapeText(e.GetInput().View()));
    }
    row.ExpectCell("outcome", outcome);
    row.Expect("CanParseQualifiedName", row.Cell("outcome") == "ok" ? "true" : "false",
               QualifiedName::CanParseQualifiedName(input) ? "true" : "false");
}

namespace {

// Operations on one name; `X` is QualifiedName or FieldName.
template <class X>
Result Derive(std::string const & op, X name, Texts const & arguments)
{
    TString const & argument = arguments.front();
    TString text;
    auto const components = [&text](QualifiedName const & result) { return Result{ComponentsOf(result), text}; };
    auto const reading = [&name](TString const & read) { return Result{ComponentsOf(name), read}; };
    std::map<std::string_view, std::function<Result()>> const operations = {
        {"GetFullValue", [&] { return reading(name.GetFullValue()); }},
        {"GetComponent", [&] { return reading(name.GetComponent(argument.toUInt())); }},
        {"GetRootValue", [&] { return reading(name.GetRootValue()); }},
        {"GetLeafValue", [&] { return reading(name.GetLeafValue()); }},
        {"TryGetRootValue", [&] { return reading(name.TryGetRootValue()); }},
        {"TryGetLeafValue", [&] { return reading(name.TryGetLeafValue()); }},
        {"IsEmpty", [&] { return reading(name.IsEmpty() ? u"true" : u"false"); }},
        {"PopLeafValue", [&] { return components(name.PopLeafValue()); }},
        {"PopRootValue", [&] { return components(name.PopRootValue()); }},
        {"PopLeafValue_out",
         [&] {
             text = u"zzz";
             X const popped = name.PopLeafValue(text);
             return components(popped);
         }},
        {"PopRootValue_out",
         [&] {
             text = u"zzz";
             X const popped = name.PopRootValue(text);
             return components(popped);
         }},
        {"PushLeafValue", [&] { return components(name.PushLeafValue(argument)); }},
        {"PushRootValue", [&] { return components(name.PushRootValue(argument)); }},
        {"ReplaceLeafValue", [&] { return components(name.ReplaceLeafValue(argument)); }},
        {"ReplaceRootValue", [&] { return components(name.ReplaceRootValue(argument)); }},
        {"PopValue", [&] { return text = name.PopValue(), components(name); }},
        {"PopRoot", [&] { return text = name.PopRoot(), components(name); }},
        {"PushValue", [&] { return name.PushValue(argument), components(name); }},
        {"PushRoot", [&] { return name.PushRoot(argument), components(name); }},
        {"ReplaceValue", [&] { return name.ReplaceValue(argument), components(name); }},
        {"ReplaceRoot", [&] { return name.ReplaceRoot(argument), components(name); }},
        {"SetRootValue", [&] { return name.SetRootValue(argument), components(name); }},
        {"Clear", [&] { return name.Clear(), components(name); }},
        {"free_PushValue", [&] { return components(::PushValue(std::as_const(name), argument)); }},
        {"free_ReplaceRoot", [&] { return components(::ReplaceRoot(std::as_const(name), argument)); }},
        {"free_ReplaceValue", [&] { return components(::ReplaceValue(std::as_const(name), argument)); }},
        {"MakeGlobalName_copy", [&] { return components(MakeGlobalName(argument, std::as_const(name))); }},
        {"MakeGlobalName_move", [&] { return components(MakeGlobalName(argument, std::move(name))); }},
        {"MakeLocalName_copy", [&] { return components(MakeLocalName(std::as_const(name))); }},
        {"MakeLocalName_move", [&] { return components(MakeLocalName(std::move(name))); }},
        {"MakeLocalName_out",
         [&] {
             text = u"zzz";
             X const local = MakeLocalName(std::as_const(name), text);
             return components(local);
         }},
        {"GlobalFieldName_MakeLocalName_QualifiedName_copy",
         [&] { return components(GlobalFieldName(FieldName(name)).GetLocalFieldName().AsFieldName()); }},
    };
    auto const found = operations.find(op);
    if (found == operations.end())
        throw std::runtime_error("unknown operation " + op);
    return found->second();
}

// Names made out of texts.
bool IsFactory(std::string const & op)
{
    static std::set<std::string> const ops = {"ctor_one_string", "ctor_two_strings",
                                              "ParseUnquoted",   "MakeGlobalName_two_texts",
                                              "constant",        "LocalFieldName_from_text"};
    return ops.count(op) == 1;
}

QualifiedName Constant(TString const & name)
{
    static std::map<TString, FieldName> const constants = {
        {u"s_lnmOMeasures", DataSourceTypes::s_lnmOMeasures},
        {u"s_lnmQMeasures", DataSourceTypes::s_lnmQMeasures},
        {u"s_lnmNumberOfRecords", DataSourceTypes::s_lnmNumberOfRecords},
        {u"s_lnmForecastIndicator", DataSourceTypes::s_lnmForecastIndicator},
    };
    return constants.at(name);
}

Result Make(std::string const & op, Texts const & arguments)
{
    TString const & first = arguments.front();
    QualifiedName name;
    if (op == "ctor_one_string")
        name = QualifiedName(first);
    else if (op == "ctor_two_strings")
        name = QualifiedName(first, arguments.at(1));
    else if (op == "ParseUnquoted")
        name = QualifiedName::ParseUnquoted(first);
    else if (op == "MakeGlobalName_two_texts")
        name = MakeGlobalName(first, arguments.at(1));
    else if (op == "constant")
        name = Constant(first);
    else
        name = LocalFieldName(first).AsFieldName();
    return {ComponentsOf(name), name.GetFullValue()};
}

// Lists of names, given by their full values.
Result DeriveList(std::string const & op, Texts const & items, TString const & argument)
{
    std::vector<FieldName> names;
    for (TString const & item : items)
        names.push_back(FieldName::ParseGlobal(item));
    if (op == "MakeLocalNames_vector")
        return {FullValues(MakeLocalNames(names)), {}};
    if (op == "MakeLocalFieldNameSetFromGlobalVec")
        return {FullValues(MakeLocalFieldNameSetFromGlobalVec(argument, names)), {}};
    std::set<FieldName> const set(names.begin(), names.end());
    if (op == "MakeLocalNames_set")
        return {FullValues(MakeLocalNames(set)), {}};
    if (op == "MakeLocalFieldNameSetFromLocalSet")
        return {FullValues(MakeLocalFieldNameSetFromLocalSet(set)), {}};
    throw std::runtime_error("unknown operation " + op);
}

}  // namespace

VECTOR_DRIVER("names_derive")
{
    std::string const & op = row.Cell("op");
    Texts const items = Items(row, "count", "components");
    Texts const arguments = Items(row.Cell("arg"));
    if (IsFactory(op)) {
        ExpectResult(row, "out_components", "out_text", [&] { return Make(op, arguments); });
    } else if (op.starts_with("MakeLocalNames") || op.starts_with("MakeLocalFieldNameSet")) {
        ExpectResult(row, "out_components", "out_text", [&] { return DeriveList(op, items, arguments.front()); });
    } else {
        QualifiedName const name = NameOf(items);
        ExpectResult(row, "out_components", "out_text", [&] { return Derive(op, name, arguments); });
        ExpectResult(row, "out_components", "out_text", [&] { return Derive(op, FieldName(name), arguments); });
        row.Expect("the copy that was kept", EscapeText(NameOf(items).GetFullValue().View()),
                   EscapeText(name.GetFullValue().View()));
    }
}

VECTOR_DRIVER("names_order")
{
    QualifiedName const a = NameIn(row, "a_count", "a");
    QualifiedName const b = NameIn(row, "b_count", "b");
    row.ExpectBool("equal", a == b);
    row.ExpectBool("less", a < b);
    row.ExpectInt("compare_sign", Sign(a.Compare(b)));
    row.ExpectInt("compare_nocase_sign", Sign(a.CompareNoCase(b)));
    if (!row.Cell("leaf_nocase_less").empty())
        row.ExpectBool("leaf_nocase_less", QualifiedNameCompareLeafValueNoCase()(a, b));
}

VECTOR_DRIVER("names_indexed")
{
    std::string const & op = row.Cell("op");
    FieldName const a = NameIn(row, "a_count", "a");
    std::size_t const index = row.UInt("a_index");
    if (op == "ctor_lvalue_index")
        row.ExpectUInt("expected", IndexedFieldName(a, index).GetIndex());
    else if (op == "ctor_rvalue_index")
        row.ExpectUInt("expected", IndexedFieldName(FieldName(a), index).GetIndex());
    else if (op == "IsEmpty")
        row.ExpectBool("expected", IndexedFieldName(FieldName(a), index).IsEmpty());
    else {
        IndexedFieldName const left(FieldName(a), index);
        IndexedFieldName const right(FieldName(NameIn(row, "b_count", "b")), row.UInt("b_index"));
        if (op == "equal")
            row.ExpectBool("expected", left == right);
        else if (op == "less")
            row.ExpectBool("expected", left < right);
        else
            row.Fail("unknown operation " + op);
    }
}

VECTOR_DRIVER("names_omeasures")
{
    std::string const & op = row.Cell("op");
    if (op == "Decode") {
        DataValue const value(GetUnknownCollation(), TextOf(row, "text_or_components"));
        IndexedFieldName decoded;
        std::string outcome = "ok";
        try {
            decoded = OMeasures::DecodeWithIndex(value);
        } catch (QualifiedNameException const & e) {
            outcome = e.GetErrorInfo().GetError().GetName().toQString().toStdString();
        }
        row.ExpectCell("outcome", outcome);
        if (outcome != "ok")
            return;
        ExpectItems(row, "out_count", "out_components_or_text", ComponentsOf(decoded.GetFieldName()));
        if (row.Cell("out_index") != "?")
            row.ExpectUInt("out_index", decoded.GetIndex());
        return;
    }
    FieldName const name = NameIn(row, "count", "text_or_components");
    DataValue const value =
        op == "Encode" ? OMeasures::Encode(name) : OMeasures::Encode(IndexedFieldName(name, row.UInt("index")));
    row.ExpectCell("outcome", "ok");
    row.ExpectText("out_components_or_text", value.GetString().View());
}
