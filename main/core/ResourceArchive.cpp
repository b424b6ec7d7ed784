#include "main/core/ResourceArchive.h"

#include <cstdint>
#include <limits>
#include <vector>

#include <QtCore/QFile>
#include <QtCore/QFileInfo>

#include "main/core/ByteReader.h"

namespace detail {

namespace {

// An archive is a header, then in any order three tables: nodes of one size, names (length in units, hash, UTF-16) and
// data (length, bytes). Node 0 is the root; the children of a directory are neighbours.
constexpr std::uint32_t magic = 0x71726573;  // "qres"
constexpr std::uint32_t directoryFlag = 2;
// As file systems have it. Nodes may share a name: the limit keeps the time of all checks linear.
constexpr std::uint32_t longestName = 255;

class Archive
{
public:
    Archive(unsigned char const * bytes, std::size_t size) noexcept : m_bytes(bytes, size) {}

    bool IsSound()
    {
        auto const version = m_bytes.U32(4);
        auto const tree = m_bytes.U32(8);
        auto const data = m_bytes.U32(12);
        auto const names = m_bytes.U32(16);
        if (m_bytes.U32(0) != magic || !version || *version < 1 || *version > 3 || !tree || !data || !names)
            return false;
        if (*version == 3 && !m_bytes.Has(20, 4))
            return false;
        m_nodeSize = *version == 1 ? 14 : 22;
        m_tree = *tree;
        m_data = *data;
        m_names = *names;
        if (!m_bytes.Has(m_tree, m_nodeSize) || !m_bytes.Has(m_data, 1) || !m_bytes.Has(m_names, 1))
            return false;
        m_seen.resize((m_bytes.Size() - m_tree) / m_nodeSize);
        m_seen[0] = true;
        m_waiting.push_back(0);
        while (!m_waiting.empty()) {
            std::size_t const node = m_waiting.back();
            m_waiting.pop_back();
            if (!IsSoundNode(node))
                return false;
        }
        return true;
    }

private:
    bool IsSoundNode(std::size_t node)
    {
        std::size_t const at = m_tree + node * m_nodeSize;
        // The root has no name.
        if (node != 0 && !IsSoundName(*m_bytes.U32(at)))
            return false;
        if ((*m_bytes.U16(at + 4) & directoryFlag) != 0)
            return VisitChildren(*m_bytes.U32(at + 6), *m_bytes.U32(at + 10));
        std::size_t const data = m_data + std::size_t{*m_bytes.U32(at + 10)};
        auto const length = m_bytes.U32(data);
        return node != 0 && length && *length <= std::numeric_limits<std::int32_t>::max() &&
               m_bytes.Has(data + 4, *length);
    }

    // One step of a path: an empty one, "." and ".." would lead back, and one with a slash two steps at once.
    bool IsSoundName(std::uint32_t offset) const
    {
        std::size_t const at = m_names + std::size_t{offset};
        auto const units = m_bytes.U16(at);
        if (!units || *units == 0 || *units > longestName || !m_bytes.Has(at + 6, 2 * std::size_t{*units}))
            return false;
        bool onlyDots = true;
        for (std::size_t unit = 0; unit < *units; ++unit) {
            auto const code = *m_bytes.U16(at + 6 + 2 * unit);
            if (code == '/')
                return false;
            onlyDots = onlyDots && code == '.';
        }
        return !onlyDots || *units > 2;
    }

    // A node that is reached twice is a circle or a shared branch: neither is a tree.
    bool VisitChildren(std::size_t count, std::size_t first)
    {
        if (count == 0)
            return true;
        if (first > m_seen.size() || count > m_seen.size() - first)
            return false;
        for (std::size_t node = first; node < first + count; ++node) {
            if (m_seen[node])
                return false;
            m_seen[node] = true;
            m_waiting.push_back(node);
        }
        return true;
    }

    ByteReader m_bytes;
    std::size_t m_nodeSize = 0;
    std::size_t m_tree = 0;
    std::size_t m_data = 0;
    std::size_t m_names = 0;
    std::vector<bool> m_seen;
    std::vector<std::size_t> m_waiting;
};

}  // namespace

bool IsSoundArchive(unsigned char const * bytes, std::size_t size)
{
    return Archive(bytes, size).IsSound();
}

bool IsSoundArchiveFile(TString const & path)
{
    QFile file(path.toQString());
    if (!QFileInfo(file).isFile() || !file.open(QIODevice::ReadOnly))
        return false;
    if (file.size() > std::numeric_limits<std::int32_t>::max())
        return false;
    QByteArray const bytes = file.readAll();
    return IsSoundArchive(reinterpret_cast<unsigned char const *>(bytes.constData()),
                          static_cast<std::size_t>(bytes.size()));
}

}  // namespace detail
