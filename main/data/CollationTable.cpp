#include "main/data/CollationTable.h"

#include <algorithm>
#include <cstring>
#include <string>

#include "main/data/CollatorAttributes.h"
#include "velicu/ICUCollationElements.h"
#include "velsys/NoDestructor.h"

namespace detail {

namespace {

// Pages of 256 characters: Latin, Greek, Cyrillic and marks; kana; Han.
bool IsHeldPage(unsigned page)
{
    return page <= 0x04 || page == 0x1E || page == 0x30 || (page >= 0x4E && page <= 0x9F);
}

constexpr char16_t firstHan = 0x4E00;

// Characters that mark the headings of indexes. They contract with letters, and only comparisons behind one of them
// are left to ICU for it.
bool IsIndexCharacter(char16_t c)
{
    return c == 0xFDD0 || c == 0xFDD1;
}

struct Closer
{
    void operator()(VelICU::ICU_Collator * collator) const { VelICU::t_ucol_close(collator); }
};
using OwnedCollator = std::unique_ptr<VelICU::ICU_Collator, Closer>;

}  // namespace

class CollationTable::Builder
{
public:
    explicit Builder(VelICU::ICU_Collator const * collator)
        : m_tertiary(Clone(collator, TERTIARY, NON_IGNORABLE)),
          m_primary(Clone(collator, PRIMARY, NON_IGNORABLE)),
          m_shifted(Clone(collator, TERTIARY, SHIFTED))
    {}

    std::shared_ptr<CollationTable const> Build()
    {
        if (m_tertiary == nullptr || m_primary == nullptr || m_shifted == nullptr)
            return nullptr;
        std::shared_ptr<CollationTable> table(new CollationTable);
        unsigned pages = 0;
        for (unsigned page = 0; page < 256; ++page)
            pages += IsHeldPage(page);
        table->m_weights.resize(std::size_t{256} * pages);
        CollationWeights * next = table->m_weights.data();
        for (unsigned page = 0; page < 256; ++page) {
            if (!IsHeldPage(page))
                continue;
            for (unsigned i = 0; i < 256; ++i)
                next[i] = WeightsOf(static_cast<char16_t>(page << 8 | i));
            table->m_pages[page] = next;
            next += 256;
        }
        if (!MarkContractions(*table))
            return nullptr;
        FindRuns(*table);
        FindSimpleBytes(*table);
        return table;
    }

private:
    static OwnedCollator Clone(VelICU::ICU_Collator const * collator, int strength, int alternate)
    {
        OwnedCollator clone(VelICU::t_ucol_clone(collator));
        bool set = clone != nullptr;
        for (auto const & [attribute, value] : {std::pair<int, int>(FRENCH_COLLATION, OFF),
                                                {ALTERNATE_HANDLING, alternate},
                                                {CASE_FIRST, OFF},
                                                {CASE_LEVEL, OFF},
                                                {STRENGTH, strength},
                                                {NUMERIC_COLLATION, OFF}})
            set = set && VelICU::t_ucol_trySetAttribute(clone.get(), attribute, value);
        return set ? std::move(clone) : nullptr;
    }

    // The sort key without its final zero.
    static std::string KeyOf(OwnedCollator const & collator, char16_t const * text, int length)
    {
        std::uint8_t key[64];
        int const size = VelICU::t_ucol_getSortKey(collator.get(), text, length, key, sizeof key);
        return size > 0 && size <= static_cast<int>(sizeof key)
                   ? std::string(reinterpret_cast<char const *>(key), static_cast<std::size_t>(size) - 1)
                   : std::string(sizeof key, '\xFF');
    }

    CollationWeights WeightsOf(char16_t c)
    {
        CollationWeights weights;
        std::string const key = KeyOf(m_tertiary, &c, 1);
        if (key == "\x01\x01") {
            weights.primary = 0;
            weights.third = CollationWeights::starts;
            return weights;
        }
        std::size_t const primaryEnd = key.find('\x01');
        if (primaryEnd == 0 || primaryEnd > 4)
            return CollationWeights();
        std::uint32_t primary = 0;
        for (std::size_t i = 0; i < 4; ++i)
            primary = primary << 8 | (i < primaryEnd ? static_cast<std::uint8_t>(key[i]) : 0u);
        if (std::string_view(key).substr(primaryEnd) == "\x01\x05\x01\x05") {
            // One common weight on each level: a single element.
            weights.secondary = 0x0500;
            weights.third = 0x0500;
        } else {
            if (!VelICU::t_ucol_getElements(m_tertiary.get(), &c, 1, m_elements) || m_elements.empty() ||
                m_elements[0].primary == 0)
                return CollationWeights();
            for (std::size_t i = 1; i < m_elements.size(); ++i)
                if (m_elements[i].primary != 0)
                    return CollationWeights();
            weights.secondary = m_elements[0].secondary;
            weights.third = m_elements[0].tertiary & CollationWeights::weightMask;
            if (m_elements.size() > 1)
                weights.third |= CollationWeights::several;
        }
        weights.primary = primary;
        if (c < firstHan && KeyOf(m_shifted, &c, 1) == "\x01\x01")
            weights.third |= CollationWeights::variable;
        return weights;
    }

    bool MarkContractions(CollationTable & table)
    {
        std::vector<std::u16string> contractions;
        if (!VelICU::t_ucol_getContractions(m_tertiary.get(), contractions))
            return false;
        auto const mark = [&](char16_t c, std::uint16_t bit) {
            CollationWeights const * const page = table.m_pages[c >> 8];
            if (IsHeldPage(c >> 8))
                table.m_weights[static_cast<std::size_t>(page - table.m_weights.data()) + (c & 0xFF)].third |= bit;
        };
        for (std::u16string const & text : contractions) {
            if (IsIndexCharacter(text[0]))
                continue;
            mark(text[0], CollationWeights::starts);
            for (std::size_t i = 1; i < text.size(); ++i)
                mark(text[i], CollationWeights::continues);
        }
        return true;
    }

    // Twice the character: the first byte is written once or twice. All characters with one first byte must agree; of
    // the Han characters a sample is asked.
    void FindRuns(CollationTable & table) const
    {
        bool differ[256] = {};
        for (unsigned c = 0; c < 0x10000; c += c < firstHan ? 1 : 61) {
            CollationWeights const & weights = table.m_pages[c >> 8][c & 0xFF];
            if (weights.primary == CollationWeights::notHeld || weights.primary == 0 ||
                (weights.third & (CollationWeights::several | CollationWeights::starts)) != 0)
                continue;
            char16_t const twice[] = {static_cast<char16_t>(c), static_cast<char16_t>(c)};
            std::string const one = KeyOf(m_primary, twice, 1);
            std::string const two = KeyOf(m_primary, twice, 2);
            Runs const runs = one.size() > 1 && two == one + one.substr(1) ? Runs::once
                              : two == one + one                           ? Runs::eachTime
                                                                           : Runs::unknown;
            unsigned const first = weights.primary >> 24;
            if (runs == Runs::unknown || (table.m_runs[first] != Runs::unknown && table.m_runs[first] != runs))
                differ[first] = true;
            table.m_runs[first] = runs;
        }
        for (unsigned first = 0; first < 256; ++first)
            if (differ[first])
                table.m_runs[first] = Runs::unknown;
    }

    static void FindSimpleBytes(CollationTable & table)
    {
        for (unsigned c = 0; c < 128; ++c) {
            CollationWeights const & weights = table.m_pages[0][c];
            if (weights.third == 0x0500 && weights.secondary == 0x0500 && (weights.primary & 0x00FFFFFF) == 0 &&
                table.RunsOf(weights.primary) == Runs::eachTime)
                table.m_simpleBytes[c] = static_cast<std::uint8_t>(weights.primary >> 24);
        }
    }

    OwnedCollator m_tertiary;
    OwnedCollator m_primary;
    OwnedCollator m_shifted;
    std::vector<VelICU::ICUCollationElement> m_elements;
};

CollationTable::CollationTable()
{
    static CollationWeights const nothing[256];
    std::fill(std::begin(m_pages), std::end(m_pages), nothing);
}

CollationTable const & CollationTable::Empty()
{
    static NoDestructor<CollationTable> empty{CollationTable()};
    return *empty;
}

std::shared_ptr<CollationTable const> CollationTable::Make(VelICU::ICU_Collator const * collator)
{
    return Builder(collator).Build();
}

// Comparing.

enum class CollationFastPath::Step : std::uint8_t
{
    weights,
    end,
    undecided,
};

struct CollationFastPath::LengthCursor
{
    char16_t const * at;
    char16_t const * end;
    bool AtEnd() const { return at == end; }
};

struct CollationFastPath::TerminatedCursor
{
    char16_t const * at;
    bool AtEnd() const { return *at == 0; }
};

CollationFastPath::CollationFastPath(std::shared_ptr<CollationTable const> table, Settings settings)
    : m_owner(std::move(table)),
      m_table(m_owner.get()),
      m_settings(settings),
      m_stops(settings.shifted ? CollationWeights::variable : 0),
      m_slow(static_cast<std::uint16_t>(m_stops | CollationWeights::starts | CollationWeights::continues))
{}

template <class TextCursor>
inline CollationFastPath::Step CollationFastPath::Next(TextCursor & text, CollationWeights const *& weights) const
{
    for (;;) {
        if (text.AtEnd())
            return Step::end;
        CollationWeights const & found = Find(*text.at);
        if ((found.third & m_slow) != 0) {
            if (found.primary == CollationWeights::notHeld || (found.third & m_stops) != 0)
                return Step::undecided;
            ++text.at;
            // All bits are set where nothing is held, so that a contraction with such a follower counts as possible.
            if ((found.third & CollationWeights::starts) != 0 && !text.AtEnd() &&
                (Find(*text.at).third & CollationWeights::continues) != 0)
                return Step::undecided;
            if (found.primary == 0)
                continue;
        } else {
            ++text.at;
        }
        weights = &found;
        return Step::weights;
    }
}

inline int CollationFastPath::DecideTie(int secondary, int tertiary, bool several) const
{
    if (!m_settings.plainTies)
        return undecided;
    if (m_settings.strength == PRIMARY)
        return 0;
    if (several)
        return undecided;
    if (secondary != 0 || m_settings.strength == SECONDARY)
        return secondary;
    if (tertiary != 0 || m_settings.strength == TERTIARY)
        return tertiary;
    return undecided;
}

// Both texts from their first difference on; `before` is the character before it, null at the start of the texts.
template <class TextCursor>
inline int CollationFastPath::CompareFrom(TextCursor a, TextCursor b, char16_t const * before) const
{
    if (before != nullptr) {
        // The difference may lie inside a contraction that begins in the common part.
        if (IsIndexCharacter(*before))
            return undecided;
        auto const continues = [&](TextCursor const & text) {
            return !text.AtEnd() && (Find(*text.at).third & CollationWeights::continues) != 0;
        };
        if ((continues(a) || continues(b)) &&
            (Find(*before).third & (CollationWeights::starts | CollationWeights::continues)) != 0)
            return undecided;
    }
    int secondary = 0;
    int tertiary = 0;
    bool several = false;
    for (;;) {
        CollationWeights const * left = nullptr;
        CollationWeights const * right = nullptr;
        Step const aStep = Next(a, left);
        Step const bStep = Next(b, right);
        if (aStep == Step::undecided || bStep == Step::undecided)
            return undecided;
        if (aStep == Step::end || bStep == Step::end) {
            if (aStep != bStep)
                return aStep == Step::end ? -1 : 1;
            return DecideTie(secondary, tertiary, several);
        }
        if (left == right)
            continue;
        if (left->primary != right->primary)
            return Sign(left->primary, right->primary);
        several = several || ((left->third | right->third) & CollationWeights::several) != 0;
        if (secondary == 0)
            secondary = Sign(left->secondary, right->secondary);
        if (tertiary == 0)
            tertiary = Sign(left->third & CollationWeights::weightMask, right->third & CollationWeights::weightMask);
    }
}

int CollationFastPath::CompareTerminated(char16_t const * a, char16_t const * b) const
{
    char16_t const * const start = a;
    while (*a == *b) {
        if (*a == 0)
            return 0;
        ++a;
        ++b;
    }
    return CompareFrom(TerminatedCursor{a}, TerminatedCursor{b}, a == start ? nullptr : a - 1);
}

int CollationFastPath::CompareLengths(char16_t const * a, char16_t const * aEnd, char16_t const * b,
                                      char16_t const * bEnd) const
{
    char16_t const * const start = a;
    auto left = std::min(aEnd - a, bEnd - b);
    if (left > 0 && *a == *b) {
        for (; left >= 8 && std::memcmp(a, b, 16) == 0; left -= 8) {
            a += 8;
            b += 8;
        }
        for (; left > 0 && *a == *b; --left) {
            ++a;
            ++b;
        }
    }
    if (a == aEnd && b == bEnd)
        return 0;
    return CompareFrom(LengthCursor{a, aEnd}, LengthCursor{b, bEnd}, a == start ? nullptr : a - 1);
}

// Sort keys.

namespace {

constexpr std::uint8_t levelSeparator = 0x01;
constexpr std::uint8_t compressionLow = 0x03;
constexpr std::uint8_t compressionHigh = 0xFF;
constexpr std::uint16_t commonWeight = 0x0500;

// Where primary bytes go, with ICU's rule for runs of one first byte.
class PrimaryWriter
{
public:
    explicit PrimaryWriter(std::uint8_t * out) : m_out(out) {}

    // False if the runs of this first byte are not known.
    bool Append(std::uint32_t primary, CollationTable::Runs runs)
    {
        if (runs == CollationTable::Runs::unknown)
            return false;
        if (m_last == 0 && (primary & 0x00FFFFFF) == 0) {
            // A single byte, as the letters of the root have.
            *m_out++ = static_cast<std::uint8_t>(primary >> 24);
            m_last = runs == CollationTable::Runs::once ? primary : 0;
            return true;
        }
        bool const compressible = runs == CollationTable::Runs::once;
        auto const first = static_cast<std::uint8_t>(primary >> 24);
        if (!compressible || first != m_last >> 24) {
            if (m_last != 0) {
                if (primary >= m_last)
                    *m_out++ = compressionHigh;
                else if (first > 0x02)
                    *m_out++ = compressionLow;
            }
            *m_out++ = first;
            m_last = compressible ? primary : 0;
        }
        for (int shift = 16; shift >= 0; shift -= 8) {
            auto const byte = static_cast<std::uint8_t>(primary >> shift);
            if (byte == 0)
                break;
            *m_out++ = byte;
        }
        return true;
    }
    // A weight of one byte that is written each time, where no run is open.
    bool HasOpenRun() const { return m_last != 0; }
    void AppendByte(std::uint8_t byte) { *m_out++ = byte; }
    std::uint8_t * End() const { return m_out; }

private:
    std::uint8_t * m_out;
    std::uint32_t m_last = 0;
};

// A run of `count` common weights, then a lower one: the level's end.
std::uint8_t * AppendCommonToEnd(std::uint8_t * out, unsigned count, unsigned maxCount, std::uint8_t middle)
{
    if (count == 0)
        return out;
    --count;
    for (; count >= maxCount; count -= maxCount)
        *out++ = middle;
    *out++ = static_cast<std::uint8_t>(0x05 + count);
    return out;
}

// The same before a higher weight.
std::uint8_t * AppendCommonBeforeHigher(std::uint8_t * out, unsigned count)
{
    if (count == 0)
        return out;
    --count;
    for (; count >= 0x61; count -= 0x61)
        *out++ = 0x65;
    *out++ = static_cast<std::uint8_t>(0xC5 - count);
    return out;
}

}  // namespace

std::size_t CollationFastPath::WriteSortKey(char16_t const * text, std::uint8_t (&key)[maxKeySize]) const
{
    // Six bytes of primaries and three of tertiaries for each character at most.
    constexpr int maxLength = 200;
    if (m_owner == nullptr || !m_settings.plainTies || m_settings.strength > TERTIARY)
        return 0;
    std::uint8_t tertiaries[3 * maxLength + 16];
    std::memset(tertiaries, 0, 16);
    std::uint8_t * tertiaryEnd = tertiaries;
    unsigned common = 0;
    int count = 0;
    PrimaryWriter primaries(key);
    for (TerminatedCursor cursor{text};; ++count) {
        if (count == maxLength)
            return 0;
        std::uint8_t const byte = m_table->SimpleByte(*cursor.at);
        if (byte != 0 && !primaries.HasOpenRun()) {
            primaries.AppendByte(byte);
            ++common;
            ++cursor.at;
            continue;
        }
        CollationWeights const * weights = nullptr;
        Step const step = Next(cursor, weights);
        if (step == Step::end)
            break;
        if (step == Step::undecided)
            return 0;
        unsigned const tertiary = weights->third & CollationWeights::weightMask;
        if ((weights->third & CollationWeights::several) != 0 || weights->secondary != commonWeight ||
            tertiary < commonWeight || !primaries.Append(weights->primary, m_table->RunsOf(weights->primary)))
            return 0;
        if (tertiary == commonWeight) {
            ++common;
            continue;
        }
        tertiaryEnd = AppendCommonBeforeHigher(tertiaryEnd, common);
        common = 0;
        *tertiaryEnd++ = static_cast<std::uint8_t>((tertiary + 0xC000u) >> 8);
        if ((tertiary & 0xFF) != 0)
            *tertiaryEnd++ = static_cast<std::uint8_t>(tertiary);
    }
    std::uint8_t * out = primaries.End();
    if (m_settings.strength >= SECONDARY) {
        *out++ = levelSeparator;
        out = AppendCommonToEnd(out, static_cast<unsigned>(count), 0x21, 0x25);
    }
    if (m_settings.strength >= TERTIARY) {
        *out++ = levelSeparator;
        tertiaryEnd = AppendCommonToEnd(tertiaryEnd, common, 0x61, 0x65);
        // Mostly a byte or two; a copy of fixed size is no call.
        auto const size = static_cast<std::size_t>(tertiaryEnd - tertiaries);
        if (size <= 16)
            std::memcpy(out, tertiaries, 16);
        else
            std::memcpy(out, tertiaries, size);
        out += size;
    }
    *out++ = 0;
    return static_cast<std::size_t>(out - key);
}

bool CollationFastPath::PrimaryPrefix(char16_t const * text, std::uint64_t & prefix) const
{
    std::uint8_t bytes[16] = {};
    PrimaryWriter primaries(bytes);
    TerminatedCursor cursor{text};
    for (;;) {
        CollationWeights const * weights = nullptr;
        Step const step = Next(cursor, weights);
        if (step == Step::undecided)
            return false;
        if (step == Step::end)
            break;
        if (!primaries.Append(weights->primary, m_table->RunsOf(weights->primary)))
            return false;
        if (primaries.End() - bytes >= 8)
            break;
    }
    prefix = 0;
    for (int i = 0; i < 8; ++i)
        prefix = prefix << 8 | bytes[i];
    return true;
}

}  // namespace detail
