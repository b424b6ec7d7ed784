// Parsing qualified names: ours against a grammar in Boost.Spirit Qi.

#include <benchmark/benchmark.h>

#define BOOST_SPIRIT_UNICODE
#include <boost/spirit/include/qi.hpp>

#include <array>
#include <random>
#include <string>
#include <vector>

#include "velcoredata/data/QualifiedName.h"

namespace {

constexpr std::size_t textCount = 32'768;

// Names as they are found: a source and a field, now and then one component or three; one in sixteen components holds a
// bracket.
std::vector<std::u16string> const & Texts()
{
    static std::vector<std::u16string> const texts = [] {
        static constexpr std::array<char16_t const *, 16> words{
            u"Order",   u"Date", u"Sales", u"Profit", u"Customer", u"Name",   u"Region",   u"federated",
            u"Weather", u"temp", u"max",   u"Id",     u"Category", u"Number", u"Discount", u"Records"};
        std::mt19937 random(1);
        std::vector<std::u16string> made;
        for (std::size_t i = 0; i < textCount; ++i) {
            std::size_t const shape = random() % 8;
            std::size_t const components = shape == 0 ? 1 : (shape == 1 ? 3 : 2);
            std::u16string text;
            for (std::size_t c = 0; c < components; ++c) {
                text += c == 0 ? u"[" : u".[";
                for (std::size_t w = 1 + random() % 3; w > 0; --w) {
                    text += words[random() % words.size()];
                    if (w > 1)
                        text += u' ';
                }
                if (random() % 4 == 0)
                    for (char const digit : std::to_string(random() % 100'000))
                        text += static_cast<char16_t>(digit);
                if (random() % 16 == 0)
                    text += u"]]";
                text += u']';
            }
            made.push_back(std::move(text));
        }
        return made;
    }();
    return texts;
}

void Ours(benchmark::State & state)
{
    std::vector<TString> texts;
    for (auto const & text : Texts())
        texts.push_back(TString::fromStdU16String(text));
    std::size_t i = 0;
    for (auto _ : state)
        benchmark::DoNotOptimize(QualifiedName::ParseGlobal(texts[i++ % textCount]));
}

namespace qi = boost::spirit::qi;
using Iterator = std::u16string::const_iterator;

// The same grammar, white space around it included.
struct NameGrammar : qi::grammar<Iterator, std::vector<std::u16string>()>
{
    NameGrammar() : NameGrammar::base_type(name)
    {
        using boost::spirit::unicode::char_;
        using boost::spirit::unicode::space;
        component = '[' >> *((char_ - ']') | (qi::lit(']') >> char_(U']'))) >> ']';
        name = qi::omit[*space] >> -(component % '.') >> qi::omit[*space];
    }
    qi::rule<Iterator, std::u16string()> component;
    qi::rule<Iterator, std::vector<std::u16string>()> name;
};

void Qi(benchmark::State & state)
{
    auto const & texts = Texts();
    NameGrammar const grammar;
    std::size_t i = 0;
    for (auto _ : state) {
        std::u16string const & text = texts[i++ % textCount];
        std::vector<std::u16string> components;
        auto from = text.begin();
        if (!qi::parse(from, text.end(), grammar, components) || from != text.end())
            state.SkipWithError("does not parse");
        benchmark::DoNotOptimize(components);
    }
}

BENCHMARK(Ours)->Name("qualified name parse/ours");
BENCHMARK(Qi)->Name("qualified name parse/peer:Boost.Spirit Qi");

}  // namespace
