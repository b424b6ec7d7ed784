#include "typedtable/CollationChoice.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <exception>
#include <ostream>
#include <utility>
#include <vector>

#include "typedtable/TextTable.h"
#include "typedtable/Texts.h"
#include "typedtable/UserError.h"
#include "velcoreplatform/TString.h"
#include "velsys/VeltriaException.h"

namespace typedtable {

namespace {

// Case, accents, hyphens, apostrophes, numbers, and letters that some languages keep apart. Not in any order.
constexpr std::array kSamples = {
    "Zebra", "r\u00E9sum\u00E9", "co-op",      "\u00D6l", "item 10",   "cote",      "we'll",
    "Coop",  "\u00E5ka",         "resume",     "item 2",  "zebra",     "c\u00F4te", "apple",
    "coop",  "Resume",           "\u00C4rger", "well",    "cot\u00E9", "oil",
};

struct FlagName
{
    unsigned flag;
    std::string (*name)();
};

constexpr std::array kFlags = {
    FlagName{0x1, [] { return Text("ignore case"); }},
    FlagName{0x2, [] { return Text("ignore accents"); }},
    FlagName{0x4, [] { return Text("ignore symbols"); }},
    FlagName{0x80000000, [] { return Text("Windows-specific"); }},
};

// Binary has no language, and the root none either. A language that the library knows has an LCID or a name.
bool HasKnownLanguage(Collation const & collation)
{
    static constexpr LCID kNoLcid = 0x400;
    if (collation.GetLocale() != kNoLcid)
        return true;
    if (collation.GetLanguage().isEmpty())
        return ("_" + collation.GetName().toStdString() + "_").find("_LROOT_") != std::string::npos;
    return collation.GetDisplayLanguage() != collation.GetLanguage();
}

template <class Make>
Collation MakeOrRefuse(Make make, std::string const & refusal)
{
    try {
        Collation const collation = make();
        if (HasKnownLanguage(collation))
            return collation;
    } catch (std::exception const &) {
    } catch (VeltriaException const &) {
    }
    throw UserError(refusal);
}

std::string WithName(TString const & code, TString const & name)
{
    if (code.isEmpty())
        return Text("none");
    return name.isEmpty() || name == code ? code.toStdString() : name.toStdString() + " (" + code.toStdString() + ")";
}

std::string DescribeFlags(unsigned flags)
{
    char number[16];
    std::snprintf(number, sizeof number, "0x%x", flags);
    std::string text = number;
    char const * separator = ": ";
    for (FlagName const & flag : kFlags) {
        if ((flags & flag.flag) != 0) {
            text += separator;
            text += flag.name();
            separator = ", ";
        }
    }
    return text;
}

void PrintSampleOrder(std::ostream & out, Collation const & collation)
{
    std::vector<TString> words;
    for (char const * const sample : kSamples)
        words.push_back(TString::fromUtf8(sample));
    std::stable_sort(words.begin(), words.end(), [&](TString const & a, TString const & b) {
        return collation.Compare(a.GetString(), b.GetString()) < 0;
    });
    for (std::size_t i = 0; i < words.size(); ++i) {
        bool const isEqual = i != 0 && collation.Compare(words[i - 1].GetString(), words[i].GetString()) == 0;
        out << (isEqual ? " = " : (i == 0 ? "  " : "\n  ")) << words[i].toStdString();
    }
    out << '\n';
}

}  // namespace

Collation MakeCollation(CollationChoice const & choice)
{
    if (choice.name) {
        return MakeOrRefuse([&] { return Collation(TString::fromStdString(*choice.name).GetString(), 0); },
                            Text("\"%1\" is not the name of a collation, as LEN_RUS_S2 is", *choice.name));
    }
    if (choice.locale) {
        return MakeOrRefuse(
            [&] {
                return Collation(*choice.locale, false,
                                 choice.ignoreCase ? Collation::CaseInsensitive : Collation::CaseDefault,
                                 choice.ignoreAccents ? Collation::AccentInsensitive : Collation::AccentDefault,
                                 choice.wordSort ? Collation::SortWord : Collation::SortDefault,
                                 Collation::PunctDefault, CollationType::s_unknownCharset);
            },
            Text("--locale: \"%1\" is not a known locale, as sv_SE is", *choice.locale));
    }
    return GetUnknownCollation();
}

void ExplainCollation(std::ostream & out, std::string const & name)
{
    CollationChoice choice;
    choice.name = name;
    Collation const collation = MakeCollation(choice);
    TString const & region = collation.GetDisplayCountry();
    std::pair<std::string, std::string> const lines[] = {
        {Text("collation"), collation.GetName().toStdString()},
        {Text("language"), WithName(collation.GetLanguage(), collation.GetDisplayLanguage())},
        {Text("region"), region.isEmpty() ? Text("none") : region.toStdString()},
        {Text("flags"), DescribeFlags(collation.GetCmpFlags())},
        {Text("word sort"), collation.HasWordSort() ? Text("yes") : Text("no")},
        {Text("description"), collation.GetDescription().toStdString()},
    };
    std::size_t width = 0;
    for (auto const & [label, value] : lines)
        width = std::max(width, TextTable::WidthOf(label));
    for (auto const & [label, value] : lines)
        out << label << std::string(width + 2 - TextTable::WidthOf(label), ' ') << value << '\n';
    out << Text("sample order, equal words on one line:") << '\n';
    PrintSampleOrder(out, collation);
}

}  // namespace typedtable
