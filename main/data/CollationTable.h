#pragma once

// Weights of common characters, asked of ICU once for each language, so that most comparisons and hashes need no call.
//
// The table holds characters of the planes' lowest blocks and the Han block that have exactly one element with a
// primary weight, or none at all. Comparing by it answers what ICU answers or steps aside: it decides by the first
// differing primary weight, and by secondary and tertiary weights where each character has a single element. It steps
// aside at characters that it does not hold, at those that may contract with their neighbour, and for ties that case
// level, case first, backwards secondaries or a strength above tertiary would decide.

#include <cstddef>
#include <cstdint>
#include <memory>
#include <vector>

#include "velcoredata/core/Export.h"
#include "velicu/ICUCollator.h"

namespace detail {

struct CollationWeights
{
    static constexpr std::uint32_t notHeld = 0xFFFFFFFFu;

    // Bits of `third` that are no weight.
    enum : std::uint16_t
    {
        starts = 0x8000,     // a contraction may begin here, or the character is ignored
        continues = 0x4000,  // a contraction may go on here
        several = 0x0080,    // more elements follow, without primary weights
        variable = 0x0040,   // punctuation, which shifted collators ignore
        weightMask = 0x3F3F,
    };

    std::uint32_t primary = notHeld;  // as in a sort key, left-aligned; 0: ignored altogether
    std::uint16_t secondary = 0;
    std::uint16_t third = 0xFFFF;  // tertiary weight and bits; all bits where no weight is held
};

// The weights of one set of rules, whatever the strength. Immutable; shared by pools and threads.
class VELCOREDATA_API CollationTable
{
public:
    // Holds nothing: every character is left to ICU.
    static CollationTable const & Empty();
    // Null when ICU gives no answer. Takes some milliseconds.
    static std::shared_ptr<CollationTable const> Make(VelICU::ICU_Collator const * collator);

    CollationWeights const * Page(unsigned number) const { return m_pages[number]; }
    // How sort keys write a run of characters whose primary weights have this first byte: the byte once or each time.
    enum class Runs : std::uint8_t
    {
        unknown,
        once,
        eachTime
    };
    Runs RunsOf(std::uint32_t primary) const { return m_runs[primary >> 24]; }

    // The sort key's primary byte of an ASCII character that has a single one, written each time, and common weights
    // otherwise; 0 for all others.
    std::uint8_t SimpleByte(char16_t c) const { return c < 128 ? m_simpleBytes[c] : std::uint8_t{0}; }

private:
    class Builder;

    CollationTable();

    CollationWeights const * m_pages[256];  // never null
    std::vector<CollationWeights> m_weights;
    Runs m_runs[256] = {};
    std::uint8_t m_simpleBytes[128] = {};
};

// What a collator does with a table: its strength and settings.
class VELCOREDATA_API CollationFastPath
{
public:
    static constexpr int undecided = 2;

    struct Settings
    {
        int strength;  // ICU's: 0 primary, 1 secondary, 2 tertiary, above: ties are not decided here
        bool shifted;
        bool plainTies;  // neither case level nor case first nor backwards secondaries
    };

    // Without a table nothing is decided.
    CollationFastPath() = default;
    CollationFastPath(std::shared_ptr<CollationTable const> table, Settings settings);

    // Without a branch: which text is the lower one cannot be foretold.
    template <class Weight>
    static int Sign(Weight a, Weight b)
    {
        return static_cast<int>(a > b) - static_cast<int>(a < b);
    }
    // Most texts are settled by their first characters, which need no look at their neighbours.
    bool DecideByFirst(char16_t a, char16_t b, int & order) const
    {
        CollationWeights const & left = Find(a);
        CollationWeights const & right = Find(b);
        order = Sign(left.primary, right.primary);
        return (((left.third | right.third) & m_slow) == 0) & (order != 0);
    }

    // -1, 0, 1 or undecided.
    int Compare(char16_t const * a, char16_t const * b) const
    {
        int order = undecided;
        return DecideByFirst(*a, *b, order) ? order : CompareTerminated(a, b);
    }
    int Compare(char16_t const * a, char16_t const * aEnd, char16_t const * b, char16_t const * bEnd) const
    {
        int order = undecided;
        if (a != aEnd && b != bEnd && DecideByFirst(*a, *b, order))
            return order;
        return CompareLengths(a, aEnd, b, bEnd);
    }

    // The sort key of a short text, byte for byte ICU's with the terminating zero, or 0 if ICU must write it.
    static constexpr std::size_t maxKeySize = 2048;
    std::size_t WriteSortKey(char16_t const * text, std::uint8_t (&key)[maxKeySize]) const;

    // The first eight bytes of the primary level of the sort key as a big-endian number, zeros behind its end. False if
    // ICU must write the key.
    bool PrimaryPrefix(char16_t const * text, std::uint64_t & prefix) const;

private:
    struct Cursor;
    struct LengthCursor;
    struct TerminatedCursor;
    enum class Step : std::uint8_t;

    int CompareTerminated(char16_t const * a, char16_t const * b) const;
    int CompareLengths(char16_t const * a, char16_t const * aEnd, char16_t const * b, char16_t const * bEnd) const;
    template <class TextCursor>
    int CompareFrom(TextCursor a, TextCursor b, char16_t const * before) const;
    template <class TextCursor>
    Step Next(TextCursor & text, CollationWeights const *& weights) const;
    CollationWeights const & Find(char16_t c) const { return m_table->Page(c >> 8)[c & 0xFF]; }
    int DecideTie(int secondary, int tertiary, bool several) const;

    std::shared_ptr<CollationTable const> m_owner;
    CollationTable const * m_table = &CollationTable::Empty();
    Settings m_settings{};
    std::uint16_t m_stops = 0;      // bits of characters that are left to ICU
    std::uint16_t m_slow = 0xC000;  // bits of characters that need a look at their neighbours, or are left to ICU
};

}  // namespace detail
