// Names for tests: from lists of components, and random ones.
#pragma once

#include <boost/container/small_vector.hpp>

#include <initializer_list>
#include <string>
#include <vector>

#include "tests/support/RandomText.h"
#include "velcoredata/data/QualifiedName.h"

namespace test_support {

inline QualifiedName NameOf(std::initializer_list<TString> components)
{
    return QualifiedName(boost::container::small_vector<TString, 2>(components.begin(), components.end()));
}

inline std::vector<TString> ComponentsOf(QualifiedName const & name)
{
    return {name.GetComponents().begin(), name.GetComponents().end()};
}

// Up to `most` components, empty ones among them; what RandomText::Any mixes.
class RandomNames
{
public:
    explicit RandomNames(unsigned seed) : m_random(seed) {}

    RandomText & Texts() { return m_random; }
    TString Text() { return TString::fromStdU16String(m_random.Any(m_random.Below(4) == 0 ? 40 : 5)); }
    QualifiedName Name(std::size_t most = 5)
    {
        boost::container::small_vector<TString, 2> components;
        for (std::size_t n = m_random.Below(most + 1); n > 0; --n)
            components.push_back(Text());
        return QualifiedName(std::move(components));
    }
    QualifiedName NonEmptyName(std::size_t most = 5)
    {
        for (;;) {
            QualifiedName name = Name(most);
            if (!name.IsEmpty())
                return name;
        }
    }
    // A full value with one to three marks put in, taken out or changed: now and then it still parses.
    TString BrokenText()
    {
        std::u16string text(Name(3).GetFullValue().View());
        static constexpr std::u16string_view marks = u"[].a ";
        for (std::size_t n = 1 + m_random.Below(3); n > 0; --n) {
            std::size_t const at = m_random.Below(text.size() + 1);
            char16_t const mark = marks[m_random.Below(marks.size())];
            switch (m_random.Below(3)) {
            case 0: text.insert(at, 1, mark); break;
            case 1: text.erase(at, 1); break;
            default:
                if (at < text.size())
                    text[at] = mark;
            }
        }
        return TString::fromStdU16String(text);
    }

private:
    RandomText m_random;
};

}  // namespace test_support
