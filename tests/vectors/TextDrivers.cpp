// Drivers of the tables text_*.

#include <map>
#include <sstream>
#include <string>
#include <vector>

#include "tests/support/DataValueFormatterPeer.h"
#include "tests/vectors/VectorDriver.h"
#include "velcoredata/core/RandomCache.h"
#include "velcoredata/core/StringUtils.h"
#include "velcoredata/data/Collation.h"
#include "velcoredata/data/DataValue.h"
#include "velcoredata/data/PrintableString.h"
#include "velcoredata/data/StringWithCollation.h"
#include "velsys/VeltriaException.h"

namespace {

using velcoredata::vectors::DecodeText;
using velcoredata::vectors::Row;

TString TextOf(Row const & row, char const * column)
{
    return TString::fromStdU16String(row.Text(column));
}

// Tokens or items, with a bar between neighbours.
std::string Joined(std::vector<TString> const & items)
{
    std::u16string all;
    for (std::size_t i = 0; i < items.size(); ++i)
        (i == 0 ? all : all += u'|') += items[i].View();
    return velcoredata::vectors::EscapeText(all);
}

std::vector<TString> Items(Row const & row, char const * column, std::size_t count)
{
    std::vector<TString> items;
    std::u16string rest = row.Text(column);
    while (items.size() < count) {
        std::size_t const bar = rest.find(u'|');
        items.push_back(TString::fromStdU16String(rest.substr(0, bar)));
        rest = bar == rest.npos ? std::u16string() : rest.substr(bar + 1);
    }
    return items;
}

std::string Hexadecimal(std::string const & bytes)
{
    static char const digits[] = "0123456789abcdef";
    std::string out;
    for (char const c : bytes) {
        out += digits[static_cast<unsigned char>(c) >> 4];
        out += digits[static_cast<unsigned char>(c) & 15];
    }
    return out;
}

char const * const untouched = "<unchanged>";

void CheckDecoding(Row & row, bool (*decode)(TString const &, TString &))
{
    TString result(u"<unchanged>");
    row.ExpectBool("returns", decode(TextOf(row, "text"), result));
    if (row.Cell("result") == untouched)
        row.Expect("result", untouched, result.toStdString());
    else
        row.ExpectText("result", result.View());
}

// A cache of one scenario goes on from row to row.
struct Scenario
{
    explicit Scenario(unsigned capacity) : cache(TStringCore(), capacity) {}
    RandomCache<TString, int> cache;
    std::vector<TString> present;
};

}  // namespace

VECTOR_DRIVER("text_split")
{
    TString const text = TextOf(row, "text");
    TString const separator = TextOf(row, "separator");
    TString const quote = TextOf(row, "quote");
    std::string outcome = "ok";
    std::string message;
    std::vector<TString> tokens;
    try {
        tokens = SplitString(text, separator, quote);
        if (separator.length() == 1 && SplitString(text, separator[0], quote) != tokens)
            row.Fail("the form with one code unit differs");
    } catch (VeltriaException const & e) {
        outcome = TString(e.GetErrorInfo().GetError().GetName()).toStdString();
        message = velcoredata::vectors::EscapeText(e.GetConcatenatedMessages().View());
    }
    row.ExpectCell("outcome", outcome);
    row.Expect("message", velcoredata::vectors::EscapeText(row.Text("message")), message);
    if (outcome == "ok") {
        row.ExpectUInt("count", tokens.size());
        row.Expect("tokens", velcoredata::vectors::EscapeText(row.Text("tokens")), Joined(tokens));
    }
}

VECTOR_DRIVER("text_join")
{
    auto const items = Items(row, "items", static_cast<std::size_t>(row.UInt("count")));
    TString const separator = TextOf(row, "separator");
    row.ExpectText("expected", JoinString(items, separator).View());
    if (separator.length() == 1)
        row.ExpectText("expected", JoinString(items, separator[0]).View());
}

VECTOR_DRIVER("text_escape")
{
    std::string const fn = row.Cell("fn");
    TString const text = TextOf(row, "text");
    if (fn == "Escape")
        row.ExpectText("expected", Escape(text, TextOf(row, "characters"), row.Text("escape").at(0)).View());
    else if (fn == "CEscape_char")
        row.ExpectText("expected", CEscape(row.Text("text").at(0)).View());
    else if (fn == "CEscape")
        row.ExpectText("expected", CEscape(text).View());
    else if (fn == "CUnescape")
        row.ExpectText("expected", CUnescape(text).View());
    else
        row.Fail("unknown function");
}

VECTOR_DRIVER("text_hex")
{
    std::string const fn = row.Cell("fn");
    if (fn == "HexEncode")
        row.ExpectText("result", HexEncode(TextOf(row, "text")).View());
    else if (fn == "HexDecode")
        CheckDecoding(row, &HexDecode);
    else if (fn == "DecodeHexEncodedString")
        CheckDecoding(row, &DecodeHexEncodedString);
    else
        row.Fail("unknown function");
}

VECTOR_DRIVER("text_delete_between")
{
    TString text = TextOf(row, "text");
    DeleteBetween(text, TextOf(row, "open"), TextOf(row, "close"));
    row.ExpectText("expected", text.View());
}

VECTOR_DRIVER("text_obfuscate")
{
    row.ExpectText("expected", ObfuscateSecretsInString(TextOf(row, "text")).View());
}

VECTOR_DRIVER("text_small")
{
    std::string const fn = row.Cell("fn");
    TString const text = TextOf(row, "text");
    if (fn == "ReplaceLineFeedWithWhiteSpace")
        row.ExpectText("expected", ReplaceLineFeedWithWhiteSpace(text).View());
    else if (fn == "RemoveBytePadding_hex")
        row.ExpectCell("expected", Hexadecimal(RemoveBytePadding(text)));
    else if (fn == "HasAllAsciiCharacters")
        row.ExpectBool("expected", HasAllAsciiCharacters(text));
    else if (fn == "BooleanToString")
        row.ExpectText("expected", BooleanToString(row.Bool("text")).View());
    else
        row.Fail("unknown function");
}

// The index drawn and the key evicted are those of libstdc++ 12.
VECTOR_DRIVER("text_random_cache")
{
    static std::map<std::string, Scenario> scenarios;
    auto const [it, first] = scenarios.try_emplace(row.Cell("scenario"), static_cast<unsigned>(row.UInt("capacity")));
    if (first != (row.Int("step") == 0)) {
        row.Fail("rows of a scenario out of order");
        return;
    }
    Scenario & scenario = it->second;
    TString const key = TextOf(row, "key");
    bool hit = true;
    scenario.cache.Get(key, [&hit](TString const &) {
        hit = false;
        return 0;
    });
    row.ExpectCell("outcome", hit ? "hit" : "miss");
    row.ExpectUInt("size_after", scenario.cache.Size());
    if (!scenario.cache.Contains(TextOf(row, "never_evicted_key")))
        row.Fail("the newest key is gone");
    if (!hit)
        scenario.present.push_back(key);
    std::string evicted;
    for (auto present = scenario.present.begin(); present != scenario.present.end();) {
        if (scenario.cache.Contains(*present)) {
            ++present;
            continue;
        }
        evicted += present->toStdString();
        present = scenario.present.erase(present);
    }
    row.ExpectCell("evicted_libstdcxx12", evicted);
}

VECTOR_DRIVER("text_escape_string")
{
    std::string const fn = row.Cell("fn");
    if (fn == "toPrintableString") {
        row.ExpectCell("expected", velcoredata::vectors::EscapeText(
                                       TString::fromStdString(toPrintableString(TextOf(row, "text"))).View()));
    } else if (fn == "string_literal_stream") {
        std::ostringstream out;
        out << DataValue(StringWithCollation(TextOf(row, "text"), GetBinaryCollation()));
        row.ExpectCell("expected", velcoredata::vectors::EscapeText(TString::fromStdString(out.str()).View()));
    } else if (fn == "EscapeString") {
        row.ExpectText("expected",
                       DataValueFormatterPeer::EscapeString(TextOf(row, "text"), row.Bool("escape_delimiters")).View());
    } else {
        row.Fail("unknown function");
    }
}
