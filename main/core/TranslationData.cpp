#include "main/core/TranslationData.h"

#include <cstdint>
#include <cstring>
#include <limits>
#include <optional>
#include <set>
#include <vector>

#include "main/core/ByteReader.h"

namespace detail {

namespace {

constexpr unsigned char magic[16] = {0x3c, 0xb8, 0x64, 0x18, 0xca, 0xef, 0x9c, 0x95,
                                     0xcd, 0x21, 0x1c, 0xbf, 0x60, 0xa1, 0xbd, 0xdd};

// Sections of the file: a tag, a length, the bytes.
enum Section : std::uint32_t
{
    Contexts = 0x2f,
    Hashes = 0x42,
    Messages = 0x69,
    NumerusRules = 0x88,
    Dependencies = 0x96,
    Language = 0xa7,
};

// Parts of a message: a tag and, for most, a length and the bytes.
enum Part : std::uint32_t
{
    End = 1,
    Translation = 3,
    Obsolete1 = 5,
    SourceText = 6,
    Context = 7,
    Comment = 8,
};

// The message that begins at `at` ends inside the section. `good` marks where parts of sound messages begin, so that
// messages which overlap are not walked twice.
bool IsSoundMessage(ByteReader messages, std::size_t at, std::vector<bool> & good)
{
    for (;;) {
        auto const tag = messages.U8(at);
        if (!tag)
            return false;
        if (good[at])
            return true;
        good[at] = true;
        ++at;
        switch (*tag) {
        case End: return true;
        case Obsolete1: at += 4; break;
        case Translation:
        case SourceText:
        case Context:
        case Comment: {
            auto const length = messages.U32(at);
            if (!length || !messages.Has(at + 4, *length) || (*tag == Translation && *length % 2 != 0))
                return false;
            at += 4 + std::size_t{*length};
            break;
        }
        default: return false;
        }
    }
}

// Pairs of a hash and the offset of a message.
bool AreSoundMessages(ByteReader hashes, ByteReader messages)
{
    if (hashes.Size() % 8 != 0)
        return false;
    std::vector<bool> good(messages.Size());
    for (std::size_t at = 4; at < hashes.Size(); at += 8) {
        if (!IsSoundMessage(messages, *hashes.U32(at), good))
            return false;
    }
    return true;
}

// A hash table: the number of slots, a 16-bit offset a slot (in units of two bytes, 0 for an empty one), then chains of
// names, each with its length before it, that end with length 0.
bool AreSoundContexts(ByteReader contexts)
{
    if (contexts.Size() == 0)
        return true;
    auto const slots = contexts.U16(0);
    if (!slots || *slots == 0 || !contexts.Has(2, 2 * std::size_t{*slots}))
        return false;
    std::size_t const names = 2 + 2 * std::size_t{*slots};
    std::vector<bool> good(contexts.Size());
    for (std::size_t slot = 0; slot < *slots; ++slot) {
        std::uint32_t const offset = *contexts.U16(2 + 2 * slot);
        if (offset == 0)
            continue;
        for (std::size_t at = names + 2 * std::size_t{offset};;) {
            auto const length = contexts.U8(at);
            if (!length || !contexts.Has(at + 1, *length))
                return false;
            if (*length == 0 || good[at])
                break;
            good[at] = true;
            at += 1 + std::size_t{*length};
        }
    }
    return true;
}

}  // namespace

bool IsSoundTranslation(unsigned char const * bytes, std::size_t size)
{
    ByteReader const file(bytes, size);
    if (size > std::numeric_limits<std::int32_t>::max() || !file.Has(0, sizeof magic) ||
        std::memcmp(bytes, magic, sizeof magic) != 0)
        return false;
    ByteReader contexts(bytes, 0);
    ByteReader hashes(bytes, 0);
    ByteReader messages(bytes, 0);
    std::set<std::uint32_t> seen;
    for (std::size_t at = sizeof magic; at < size;) {
        auto const tag = file.U8(at);
        auto const length = file.U32(at + 1);
        // Qt stops at an empty section. Which of two of one kind counts, is not left to it either.
        if (!tag || !length || *length == 0 || !file.Has(at + 5, *length) || !seen.insert(*tag).second)
            return false;
        ByteReader const section(bytes + at + 5, *length);
        switch (*tag) {
        case Contexts: contexts = section; break;
        case Hashes: hashes = section; break;
        case Messages: messages = section; break;
        case NumerusRules: break;  // QTranslator checks these itself
        case Language: break;
        default: return false;
        }
        at += 5 + std::size_t{*length};
    }
    return AreSoundContexts(contexts) && AreSoundMessages(hashes, messages);
}

}  // namespace detail
