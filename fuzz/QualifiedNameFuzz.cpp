#include <algorithm>

#include "fuzz/support/FuzzText.h"
#include "tests/support/QualifiedNameModel.h"
#include "velcoredata/data/MakeQualifiedName.h"
#include "velcoredata/data/QualifiedName.h"
#include "velcoredata/data/QualifiedNameException.h"

namespace {

bool SameComponents(QualifiedName const & name, std::vector<std::u16string> const & components)
{
    auto const & actual = name.GetComponents();
    return std::equal(actual.begin(), actual.end(), components.begin(), components.end(),
                      [](TString const & a, std::u16string const & b) { return a.View() == b; });
}

void CheckParsing(TString const & text)
{
    TString const trimmed = TString(text).trim();
    test_support::QualifiedNameModel const model = test_support::ReadQualifiedName(trimmed.View());
    bool const parses = model.error.empty();
    fuzz_support::Require(QualifiedName::CanParseQualifiedName(text) == parses, "what can be parsed is what parses");
    auto const tried = QualifiedName::TryParseQualifiedName(text, false);
    fuzz_support::Require((tried != nullptr) == parses, "null is for what does not parse");
    try {
        QualifiedName const name = QualifiedName::ParseGlobal(text);
        fuzz_support::Require(parses && SameComponents(name, model.components), "the model has the same components");
        fuzz_support::Require(name == *tried && name.Hash() == tried->Hash(), "both parse alike");
        fuzz_support::Require(name.GetFullValue() == trimmed, "a text that parses is canonical");
    } catch (QualifiedNameException const & e) {
        std::string const error = e.GetErrorInfo().GetError().GetName().toQString().toStdString();
        fuzz_support::Require(!parses && error.ends_with("_0x" + model.error), "the model has the same error");
        fuzz_support::Require(e.GetInput() == trimmed, "the input is kept");
    }
}

// Any components make a name that parses back.
void CheckWriting(std::vector<TString> const & components)
{
    QualifiedName const name(boost::container::small_vector<TString, 2>(components.begin(), components.end()));
    fuzz_support::Require(QualifiedName::ParseGlobal(name.GetFullValue()) == name, "the full value parses back");
    fuzz_support::Require(MakeLocalName(MakeGlobalName(u"s", name)) == name || name.GetNumberOfComponents() == 0,
                          "local undoes global");
    QualifiedName changed(name);
    TString const leaf = changed.PopValue();
    changed.PushValue(leaf);
    fuzz_support::Require(changed == name && changed.Compare(name) == 0, "push undoes pop");
}

}  // namespace

// The input as a text, and its lines as components.
extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const * data, std::size_t size)
{
    CheckParsing(fuzz_support::Text(data, size));
    CheckWriting(fuzz_support::Lines(data, size, 5));
    return 0;
}
