// The text form of qualified names.

#include <algorithm>
#include <limits>
#include <new>
#include <ostream>
#include <stdexcept>
#include <string_view>

#include "velcoredata/data/QualifiedName.h"
#include "velsys/NoDestructor.h"

namespace {

using Components = boost::container::small_vector<TString, 2>;

// The text and the TString object that hands it out are one heap block: the object stands in the spare room behind the
// terminator of its own buffer. So a text costs one allocation and is published whole by one pointer.
//
//   | header of the buffer | text, U+0000 | padding | the TString of this buffer |
//
// A copy of the text that outlives the object may grow into the room, which is then free.
constexpr int kSpareUnits = static_cast<int>((sizeof(TString) + alignof(TString)) / sizeof(char16_t));

std::size_t LengthOfFullValue(Components const & components)
{
    std::size_t length = 3 * components.size() - 1;
    for (TString const & component : components)
        length += static_cast<std::size_t>(component.length()) + static_cast<std::size_t>(component.count(u']'));
    if (length > static_cast<std::size_t>(std::numeric_limits<int>::max() - kSpareUnits))
        throw std::length_error("the text of a qualified name is too long");
    return length;
}

char16_t * AppendBody(char16_t * out, std::u16string_view body)
{
    // A plain copy up to each bracket; there is seldom one.
    for (std::size_t bracket; (bracket = body.find(u']')) != body.npos; body.remove_prefix(bracket + 1)) {
        out = std::copy_n(body.data(), bracket + 1, out);
        *out++ = u']';
    }
    return std::copy_n(body.data(), body.size(), out);
}

TString const * MakeText(Components const & components)
{
    std::size_t const length = LengthOfFullValue(components);
    QString text;
    text.reserve(static_cast<qsizetype>(length) + kSpareUnits);
    text.resize(static_cast<qsizetype>(length));
    auto * const begin = reinterpret_cast<char16_t *>(text.data());
    char16_t * out = begin;
    for (TString const & component : components) {
        if (out != begin)
            *out++ = u'.';
        *out++ = u'[';
        out = AppendBody(out, component.View());
        *out++ = u']';
    }
    void * room = out + 1;
    std::size_t spare = (kSpareUnits) * sizeof(char16_t);
    return ::new (std::align(alignof(TString), sizeof(TString), room, spare)) TString(std::move(text));
}

void FreeText(TString const * text)
{
    TString const last(*text);  // holds the buffer while the object in it dies
    text->~TString();
}

}  // namespace

QualifiedName::QNData::~QNData()
{
    if (TString const * const text = m_fullValue.load(std::memory_order_relaxed))
        FreeText(text);
}

TString const & QualifiedName::MakeFullValue() const
{
    if (m_data->m_components.empty()) {
        static detail::NoDestructor<TString> empty;
        return *empty;
    }
    TString const * const made = MakeText(m_data->m_components);
    TString const * current = nullptr;
    if (m_data->m_fullValue.compare_exchange_strong(current, made, std::memory_order_acq_rel,
                                                    std::memory_order_acquire))
        return *made;
    FreeText(made);
    return *current;
}

std::ostream & operator<<(std::ostream & out, QualifiedName const & name)
{
    return out << name.GetFullValue().toStdString();
}
