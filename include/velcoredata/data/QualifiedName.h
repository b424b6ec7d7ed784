// QualifiedName: a path of text components, such as a data source and a field inside it, with one text form in which
// each component stands in square brackets: [sales].[Order Date].
//
// The first component is the root, the last the leaf; a name of one component has the same root and leaf. The
// components live in a shared block that never changes: copying a name is one atomic increment, and whatever "changes"
// a name gives it a new block, so that its copies stay as they were. The text form and the hash are made on demand and
// kept in the block. The empty name costs no allocation.
//
//   name --> | hash | full value | component 0 | component 1 | more on the heap |
//
// Text form: a list of components joined by ".", each one "[", its body, "]"; in the body every "]" is written twice
// and every other character stands for itself. No blanks between components. Parsing removes white space around the
// whole text first; what is left empty is the name without components. docs/formats/qualified-names.md has the grammar
// as a picture.
//
//   text           components           text           raises "VeltriaException_QualifiedNameParseException_..."
//   (empty)        none                 a, ., a.[b]    0x5F1F5407  "Invalid input: expected '['"
//   []             one, empty           [a].b          0x5F1F5408  the same, behind a "."
//   [a].[b]        a, b                 [              0x5F1F5409  "Invalid input: dangling '['"
//   [a]]b]         a]b                  [a, [a]]       0x5F1F540A  "Invalid input: mismatched brackets"
//   [a.b]          a.b                  [a]b, [a] .[b] 0x5F1F540B  "Invalid input: expected '.'"
//   [a[b]          a[b                  [a].           0x5F1F540C  "Invalid input: dangling '.'"
//
// The error is a QualifiedNameException with the message "Qualified Name Parse Error --- (text) --- Input: (input)",
// the text in the language of the thread's session.
//
// Laws, for names q, a, b and texts t, x:
//   ParseGlobal(q.GetFullValue()) == q
//   CanParseQualifiedName(t) == (TryParseQualifiedName(t, false) != nullptr) == (ParseGlobal(t) raises nothing)
//   TryParseQualifiedName(t, true) raises  <=>  TryParseQualifiedName(t, false) == nullptr
//   length of the full value = sum of the lengths + number of "]" in them + 3n - 1, for n > 0 components
//   a == b implies a.Hash() == b.Hash();  all copies of q share one address of q.GetFullValue()
//   q.PushLeafValue(x).PopLeafValue() == q;  q.PushRootValue(x).PopRootValue() == q
//   a < b, b < a and a.Compare(b) == 0 exclude one another;  a.Compare(b) == 0  <=>  a == b
//
// Threads: any number of threads may use copies of one name, and may read one object. Changing an object that another
// thread reads is the caller's to prevent, as with std::shared_ptr. Threads that ask first at the same time get the
// same address of the full value.
#pragma once

#include <atomic>
#include <cstddef>
#include <functional>
#include <iosfwd>
#include <memory>
#include <unordered_map>
#include <utility>

#include <boost/container/small_vector.hpp>

#include "velcoredata/core/Export.h"
#include "velcoreplatform/TString.h"

class VELCOREDATA_API QualifiedName
{
public:
    QualifiedName() noexcept : m_data(EmptyBlock()) {}
    // One component, as it stands: nothing is trimmed or parsed.
    QualifiedName(TString const & value);
    // Two components, as they stand.
    QualifiedName(TString const & root, TString const & leaf);
    QualifiedName(boost::container::small_vector<TString, 2> && components);
    QualifiedName(QualifiedName const & other) noexcept : m_data(other.m_data) {}
    // What was moved from is the empty name.
    QualifiedName(QualifiedName && other) noexcept : m_data(std::move(other.m_data)) { other.Clear(); }
    virtual ~QualifiedName();
    QualifiedName & operator=(QualifiedName const & other) noexcept
    {
        m_data = other.m_data;
        return *this;
    }
    QualifiedName & operator=(QualifiedName && other) noexcept
    {
        if (this != &other) {
            m_data = std::move(other.m_data);
            other.Clear();
        }
        return *this;
    }

    void Swap(QualifiedName & other) noexcept { m_data.swap(other.m_data); }
    // Makes it the empty name.
    void Clear() noexcept { m_data = EmptyBlock(); }

    // Parse. Raise QualifiedNameException, see above. The two names tell what the caller expects; they do the same.
    static QualifiedName ParseGlobal(TString const & text);
    static QualifiedName ParseLocal(TString const & text);
    // Looks the text up in the caller's map as it stands, blanks included; a text that is not there is parsed and, if
    // it parses, put in. The map is not locked.
    static QualifiedName ParseGlobal(TString const & text, std::unordered_map<TString, QualifiedName> & cache);
    static QualifiedName ParseLocal(TString const & text, std::unordered_map<TString, QualifiedName> & cache);
    // One component, as it stands: ParseUnquoted(u"[a]") has the full value "[[a]]]".
    static QualifiedName ParseUnquoted(TString const & text);
    // Null for a text that does not parse, unless throwOnError is true: then it raises.
    static std::unique_ptr<QualifiedName> TryParseQualifiedName(TString const & text, bool throwOnError);
    // Raises nothing.
    static bool CanParseQualifiedName(TString const & text);

    // Read. The references live as long as the name or a copy of it.

    // The text form, made on the first call by one allocation. A text of 2^31 - 16 code units or more raises
    // std::length_error.
    TString const & GetFullValue() const
    {
        TString const * const text = m_data->m_fullValue.load(std::memory_order_acquire);
        return text != nullptr ? *text : MakeFullValue();
    }
    std::size_t GetNumberOfComponents() const noexcept { return m_data->m_components.size(); }
    boost::container::small_vector<TString, 2> const & GetComponents() const noexcept { return m_data->m_components; }
    // `i` counts from 0 at the root and must be below the number of components. Raises
    // "i <= m_data->m_components.size()", "LogicException_LogicAssert_0x71586053", for an index above that number; the
    // number itself passes unseen.
    TString const & GetComponent(std::size_t i) const;
    // Raise "!m_data->m_components.empty()", "LogicException_LogicAssert_0x018B7D29" and
    // "LogicException_LogicAssert_0x995B56B5", for a name without components.
    TString const & GetRootValue() const;
    TString const & GetLeafValue() const;
    // A name without components gives an empty text, one object for all roots and another for all leaves.
    TString const & TryGetRootValue() const;
    TString const & TryGetLeafValue() const;
    // Without components, or with a single one that is the empty text: "" and "[]" are both empty, and differ.
    bool IsEmpty() const noexcept;
    // THash32 of the components' code units one after the other, each seeded with the hash so far, from 0xDEADBEEF. No
    // separator takes part. A name whose hash is 0 is hashed on every call.
    unsigned Hash() const;

    // Derive a new name. With one component or none, a pop gives the empty name.
    QualifiedName PopLeafValue() const;
    // Stores the leaf too; a name without components clears `leaf`.
    QualifiedName PopLeafValue(TString & leaf) const;
    QualifiedName PopRootValue() const;
    QualifiedName PopRootValue(TString & root) const;
    QualifiedName PushLeafValue(TString const & value) const;
    QualifiedName PushRootValue(TString const & value) const;
    // Raise "!m_data->m_components.empty()", "LogicException_LogicAssert_0x1A407BE2" and
    // "LogicException_LogicAssert_0xE7D6FD7C", for a name without components.
    QualifiedName ReplaceLeafValue(TString const & value) const;
    QualifiedName ReplaceRootValue(TString const & value) const;

    // Change this object; its copies keep their components.

    // Removes and returns the leaf; a name without components stays and gives the empty text.
    TString PopValue();
    // The same for the root.
    TString PopRoot();
    // Appends.
    void PushValue(TString const & value);
    // Inserts at the front.
    void PushRoot(TString const & value);
    // Raises "!m_data->m_components.empty()", "LogicException_LogicAssert_0xA8C5A1E9", for a name without components.
    void ReplaceValue(TString const & value);
    // The same with "LogicException_LogicAssert_0x4181ADF3".
    void ReplaceRoot(TString const & value);
    void SetRootValue(TString const & value) { ReplaceRoot(value); }

    // Equality looks at the components, by code units, and makes no full value. Order is that of the full values, by
    // code units: the brackets take part.
    friend VELCOREDATA_API bool operator==(QualifiedName const & a, QualifiedName const & b);
    friend bool operator<(QualifiedName const & a, QualifiedName const & b)
    {
        return a.GetFullValue() < b.GetFullValue();
    }
    // The sign counts.
    int Compare(QualifiedName const & other) const;
    // Ignoring case, by simple case folding.
    int CompareNoCase(QualifiedName const & other) const;

private:
    using Components = boost::container::small_vector<TString, 2>;

    struct QNData
    {
        QNData() noexcept {}  // not defaulted: value initialisation would clear the whole block first
        explicit QNData(Components && components) : m_components(std::move(components)) {}
        QNData(QNData const &) = delete;
        QNData & operator=(QNData const &) = delete;
        ~QNData();

        std::atomic<unsigned> m_hash{0};                    // 0: not computed
        std::atomic<TString const *> m_fullValue{nullptr};  // null: not made; owned
        Components m_components;
    };

    explicit QualifiedName(std::shared_ptr<QNData> && data) noexcept : m_data(std::move(data)) {}

    static std::shared_ptr<QNData> EmptyBlock() noexcept;
    static std::shared_ptr<QNData> Parse(TString const & text, bool throwOnError);
    TString const & MakeFullValue() const;

    std::shared_ptr<QNData> m_data;  // never null
};

// The full value in UTF-8.
VELCOREDATA_API std::ostream & operator<<(std::ostream & out, QualifiedName const & name);

// Order of leaf values in lower case, by code units. Raises as GetLeafValue for a name without components.
class VELCOREDATA_API QualifiedNameCompareLeafValueNoCase
{
public:
    virtual ~QualifiedNameCompareLeafValueNoCase();
    bool operator()(QualifiedName const & a, QualifiedName const & b) const;
};

template <>
struct std::hash<QualifiedName>
{
    std::size_t operator()(QualifiedName const & name) const { return name.Hash(); }
};

// u"[a].[b]"_qn is ParseGlobal of the text.
inline namespace K_qn {
VELCOREDATA_API QualifiedName operator""_qn(char16_t const * text, std::size_t length);
VELCOREDATA_API QualifiedName operator""_qn(wchar_t const * text, std::size_t length);
}  // namespace K_qn
