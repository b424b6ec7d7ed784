// Laws of qualified names, on seeded random names.

#include <gtest/gtest.h>

#include <functional>
#include <map>
#include <string>

#include "tests/data/NameSamples.h"
#include "tests/support/QualifiedNameModel.h"
#include "velcoredata/data/QualifiedName.h"
#include "velcoredata/data/QualifiedNameException.h"

namespace {

using test_support::RandomNames;

constexpr int draws = 10000;

int Sign(int value)
{
    return (value > 0) - (value < 0);
}

bool Raises(std::function<void()> const & call)
{
    try {
        call();
        return false;
    } catch (QualifiedNameException const &) {
        return true;
    }
}

}  // namespace

// ParseGlobal(q.GetFullValue()) == q
TEST(QualifiedNameLaws, TheFullValueParsesBack)
{
    RandomNames random(19);
    for (int i = 0; i < draws; ++i) {
        QualifiedName const name = random.Name();
        ASSERT_EQ(QualifiedName::ParseGlobal(name.GetFullValue()), name) << name;
        ASSERT_EQ(QualifiedName::ParseLocal(u" \n" + name.GetFullValue() + u"\t"), name) << name;
    }
}

// CanParse(t) == (TryParse(t, false) != nullptr) == (ParseGlobal(t) raises nothing) == !(TryParse(t, true) raises)
TEST(QualifiedNameLaws, TheParsingOperationsAgree)
{
    RandomNames random(20);
    int good = 0;
    for (int i = 0; i < draws; ++i) {
        TString const text = i % 4 == 0 ? random.Text() : random.BrokenText();
        bool const can = QualifiedName::CanParseQualifiedName(text);
        good += can ? 1 : 0;
        ASSERT_EQ(QualifiedName::TryParseQualifiedName(text, false) != nullptr, can) << text;
        ASSERT_EQ(Raises([&] { QualifiedName::ParseGlobal(text); }), !can) << text;
        ASSERT_EQ(Raises([&] { QualifiedName::TryParseQualifiedName(text, true); }), !can) << text;
        if (can) {
            ASSERT_EQ(QualifiedName::ParseGlobal(text).GetFullValue(), TString(text).trim());
        }
    }
    EXPECT_GT(good, draws / 20);
    EXPECT_LT(good, draws - draws / 20);
}

// Components and errors are those of a reader that goes by one code unit at a time.
TEST(QualifiedNameLaws, ParsingAgreesWithTheModel)
{
    RandomNames random(120);
    std::map<std::string, int> outcomes;
    for (int i = 0; i < 10 * draws; ++i) {
        TString const text = i % 8 == 0 ? random.Text() : random.BrokenText();
        auto const model = test_support::ReadQualifiedName(TString(text).trim().View());
        ++outcomes[model.error];
        try {
            QualifiedName const name = QualifiedName::ParseGlobal(text);
            ASSERT_EQ(model.error, "") << text;
            ASSERT_EQ(name.GetNumberOfComponents(), model.components.size()) << text;
            for (std::size_t c = 0; c < model.components.size(); ++c)
                ASSERT_EQ(name.GetComponent(c).View(), model.components[c]) << text;
        } catch (QualifiedNameException const & e) {
            std::string const error = e.GetErrorInfo().GetError().GetName().toQString().toStdString();
            ASSERT_EQ(error, "VeltriaException_QualifiedNameParseException_0x" + model.error) << text;
        }
    }
    ASSERT_EQ(outcomes.size(), 7u) << "success and each of the six errors";
    for (auto const & [error, count] : outcomes)
        EXPECT_GT(count, draws / 100) << error;
}

// length(GetFullValue()) = sum of lengths + count of "]" + 3n - 1; equal names have equal hashes; copies share the text
TEST(QualifiedNameLaws, LengthHashAndAddressOfTheFullValue)
{
    RandomNames random(21);
    for (int i = 0; i < draws; ++i) {
        QualifiedName const name = random.Name();
        int length = name.GetNumberOfComponents() == 0 ? 0 : 3 * static_cast<int>(name.GetNumberOfComponents()) - 1;
        for (TString const & component : name.GetComponents())
            length += component.length() + component.count(u']');
        ASSERT_EQ(name.GetFullValue().length(), length) << name;
        QualifiedName const copy(name);
        ASSERT_EQ(&copy.GetFullValue(), &name.GetFullValue());
        QualifiedName const equal = QualifiedName::ParseGlobal(name.GetFullValue());
        ASSERT_EQ(equal.Hash(), name.Hash()) << name;
        ASSERT_EQ(std::hash<QualifiedName>()(equal), std::hash<QualifiedName>()(name));
    }
}

// q.Push(x).Pop() == q; a copy stays as it was
TEST(QualifiedNameLaws, PopUndoesPush)
{
    RandomNames random(22);
    for (int i = 0; i < draws; ++i) {
        QualifiedName const name = random.Name();
        QualifiedName const before = QualifiedName::ParseGlobal(name.GetFullValue());
        TString const text = random.Text();
        TString taken;
        ASSERT_EQ(name.PushLeafValue(text).PopLeafValue(), name);
        ASSERT_EQ(name.PushRootValue(text).PopRootValue(), name);
        ASSERT_EQ(name.PushLeafValue(text).PopLeafValue(taken), name);
        ASSERT_EQ(taken, text);
        ASSERT_EQ(name.PushRootValue(text).PopRootValue(taken), name);
        ASSERT_EQ(taken, text);

        QualifiedName changed(name);
        changed.PushValue(text);
        ASSERT_EQ(changed.GetLeafValue(), text);
        ASSERT_EQ(changed.PopValue(), text);
        ASSERT_EQ(changed, name);
        changed.PushRoot(text);
        ASSERT_EQ(changed.GetRootValue(), text);
        ASSERT_EQ(changed.PopRoot(), text);
        ASSERT_EQ(changed, name);
        if (name.GetNumberOfComponents() != 0) {
            changed.ReplaceValue(text);
            ASSERT_EQ(changed, name.PopLeafValue().PushLeafValue(text));
            changed.ReplaceRoot(text);
            changed.PopValue();
        }
        changed.Clear();
        ASSERT_EQ(name, before);
        ASSERT_EQ(name.GetFullValue(), before.GetFullValue());
    }
}

// sign of Compare(a, b) = that of the full values; a < b, b < a, Compare == 0 exclude one another; 0 <=> a == b
TEST(QualifiedNameLaws, OrderIsThatOfTheFullValuesAndAgreesWithEquality)
{
    RandomNames random(23);
    for (int i = 0; i < draws; ++i) {
        QualifiedName const a = random.Name(2);
        // Near neighbours: equal, with another case, or with a component more or less.
        QualifiedName b = random.Name(2);
        switch (i % 4) {
        case 0: b = QualifiedName::ParseGlobal(a.GetFullValue()); break;
        case 1: b = a.PushLeafValue(random.Text()); break;
        case 2: b = a.PopLeafValue(); break;
        default: break;
        }
        int const order = a.Compare(b);
        ASSERT_EQ(Sign(order), Sign(a.GetFullValue().compare(b.GetFullValue())));
        ASSERT_EQ(Sign(order), -Sign(b.Compare(a)));
        ASSERT_EQ((a < b) + (b < a) + (order == 0), 1) << a << b;
        ASSERT_EQ(a < b, order < 0);
        ASSERT_EQ(order == 0, a == b) << a << b;
        ASSERT_EQ(Sign(a.CompareNoCase(b)), Sign(a.GetFullValue().compare(b.GetFullValue(), TString::CaseInsensitive)));
        if (order == 0) {
            ASSERT_EQ(a.CompareNoCase(b), 0);
        }
    }
}
