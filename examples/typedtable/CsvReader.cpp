#include "typedtable/CsvReader.h"

#include <QByteArrayView>
#include <QString>
#include <QStringDecoder>

#include "typedtable/Texts.h"
#include "typedtable/UserError.h"

namespace typedtable {

namespace {

constexpr std::size_t kBufferSize = 65536;
constexpr int kEnd = -1;

bool IsUtf8(std::string_view text)
{
    QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
    QString const decoded = decoder.decode(QByteArrayView(text.data(), static_cast<qsizetype>(text.size())));
    return !decoder.hasError();
}

}  // namespace

CsvReader::CsvReader(ByteSource & source) : m_source(source), m_buffer(kBufferSize)
{
    // The mark is three bytes; a source may give them one at a time.
    while (m_end < 3) {
        std::size_t const count = m_source.Read(m_buffer.data() + m_end, m_buffer.size() - m_end);
        if (count == 0)
            break;
        m_end += count;
    }
    if (std::string_view(m_buffer.data(), m_end).starts_with("\xEF\xBB\xBF"))
        m_next = 3;
}

bool CsvReader::Next()
{
    while (ReadRecord()) {
        if (m_isBlank && m_width != 1)
            continue;
        if (m_width == 0)
            m_width = m_ends.size();
        else if (m_ends.size() != m_width)
            throw TableError(m_recordLine, m_ends.size() == 1
                                               ? Text("1 cell where the header has %1", m_width)
                                               : Text("%1 cells where the header has %2", m_ends.size(), m_width));
        m_cells.clear();
        std::size_t begin = 0;
        for (std::size_t const end : m_ends) {
            std::string_view const cell = std::string_view(m_bytes).substr(begin, end - begin);
            if (m_hasHighBytes && !IsUtf8(cell))
                throw TableError(m_recordLine, Text("text that is not UTF-8"));
            m_cells.push_back(cell);
            begin = end;
        }
        return true;
    }
    return false;
}

bool CsvReader::Fill()
{
    m_next = 0;
    m_end = m_source.Read(m_buffer.data(), m_buffer.size());
    return m_end != 0;
}

int CsvReader::Peek()
{
    if (m_next == m_end && !Fill())
        return kEnd;
    return static_cast<unsigned char>(m_buffer[m_next]);
}

int CsvReader::Get()
{
    int const byte = Peek();
    if (byte == kEnd)
        return kEnd;
    ++m_next;
    if (byte == '\n')
        ++m_line;
    return byte;
}

void CsvReader::Append(char byte)
{
    if (m_bytes.size() == kLongestRecord)
        throw TableError(m_recordLine, Text("a record of more than 16 MiB: is a quote not closed?"));
    if (byte == '\0')
        throw TableError(m_line, Text("a zero byte: this is not a text file"));
    m_hasHighBytes |= static_cast<unsigned char>(byte) >= 0x80;
    m_bytes.push_back(byte);
}

// Whether a line end, or the end of the text, stands here; it is skipped.
bool CsvReader::SkipLineEnd()
{
    int byte = Get();
    if (byte == '\r')
        byte = Get();
    return byte == '\n' || byte == kEnd;
}

bool CsvReader::ReadRecord()
{
    if (Peek() == kEnd)
        return false;
    m_recordLine = m_line;
    m_hasHighBytes = false;
    m_bytes.clear();
    m_ends.clear();
    m_isBlank = Peek() == '\n' || Peek() == '\r';
    for (;;) {
        if (Peek() == '"')
            ReadQuotedCell();
        else
            ReadPlainCell();
        m_ends.push_back(m_bytes.size());
        if (m_ends.size() > kLongestRecord)
            throw TableError(m_recordLine, Text("a record of more than 16 MiB"));
        if (Peek() != ',')
            break;
        Get();
    }
    // A plain cell ends at a line end; a quoted one may have anything behind it.
    long long const line = m_line;
    m_isBlank = m_isBlank && m_ends.size() == 1 && m_bytes.empty();
    if (!SkipLineEnd())
        throw TableError(line, Text("text behind a closing quote"));
    return true;
}

void CsvReader::ReadQuotedCell()
{
    long long const opened = m_line;
    Get();
    for (;;) {
        int const byte = Get();
        if (byte == kEnd)
            throw TableError(opened, Text("a quote is never closed"));
        if (byte == '"') {
            if (Peek() != '"')
                return;
            Get();
        }
        Append(static_cast<char>(byte));
    }
}

void CsvReader::ReadPlainCell()
{
    for (;;) {
        int const byte = Peek();
        if (byte == ',' || byte == '\n' || byte == kEnd)
            return;
        Get();
        if (byte == '\r') {
            int const after = Peek();
            if (after == '\n' || after == kEnd)
                return;
        }
        Append(static_cast<char>(byte));
    }
}

}  // namespace typedtable
