// TStringCore: the string of the lowest layer, an immutable-by-convention sequence of UTF-16 code units with a
// terminator.
//
// Lengths count code units. The storage is Qt's implicitly shared QString, so a copy costs one atomic increment.
// Several threads may read one object; a writer needs it alone.
#pragma once

#include <QtCore/QString>

#include <cstring>
#include <string_view>
#include <utility>

#include "velsys/Export.h"

class TStringCore
{
public:
    TStringCore() noexcept = default;

    // `length` code units, or up to the terminator for -1. A null pointer gives the empty string.
    TStringCore(char16_t const * text, int length = -1)
        : m_text(text == nullptr ? QString() : QString(reinterpret_cast<QChar const *>(text), length))
    {}
    // A text that Qt does not own (a QStringLiteral, QString::fromRawData) is copied, so that it is always terminated.
    TStringCore(QString text) : m_text(std::move(text))
    {
        if (!m_text.data_ptr().isMutable() && !m_text.isEmpty()) [[unlikely]]
            m_text = QString(m_text.constData(), m_text.size());
    }

    TStringCore(TStringCore const &) = default;
    TStringCore(TStringCore &&) noexcept = default;
    // Copy and swap: QString's own assignment reads as a race to an uninstrumented thread checker.
    TStringCore & operator=(TStringCore const & other)
    {
        QString copy(other.m_text);
        m_text.swap(copy);
        return *this;
    }
    TStringCore & operator=(TStringCore && other) noexcept
    {
        QString moved(std::move(other.m_text));
        m_text.swap(moved);
        return *this;
    }

    int length() const noexcept { return static_cast<int>(m_text.size()); }
    // Never null; terminated by U+0000. Not QString::utf16, which gives an empty string storage of its own on the first
    // call: several threads may ask here.
    char16_t const * constData() const noexcept { return reinterpret_cast<char16_t const *>(m_text.constData()); }
    std::u16string_view View() const noexcept
    {
        return {reinterpret_cast<char16_t const *>(m_text.constData()), static_cast<std::size_t>(m_text.size())};
    }

    QString const & toQString() const noexcept { return m_text; }
    QString & MutableQString() noexcept { return m_text; }

    friend bool operator==(TStringCore const & a, TStringCore const & b) noexcept { return Equal(a.View(), b.View()); }
    // A null pointer compares as the empty string.
    friend bool operator==(TStringCore const & a, char16_t const * b) noexcept
    {
        return Equal(a.View(), std::u16string_view(b == nullptr ? u"" : b));
    }

private:
    // Neither view is null. memcmp: std::char_traits<char16_t>::compare goes unit by unit.
    static bool Equal(std::u16string_view a, std::u16string_view b) noexcept
    {
        return a.size() == b.size() &&
               (a.data() == b.data() || std::memcmp(a.data(), b.data(), sizeof(char16_t) * a.size()) == 0);
    }

    QString m_text;
};
