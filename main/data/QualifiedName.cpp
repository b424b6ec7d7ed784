#include "velcoredata/data/QualifiedName.h"

#include <algorithm>

#include "velsys/Hash.h"
#include "velsys/NoDestructor.h"
#include "velsys/ThrowSite.h"

QualifiedName::QualifiedName(TString const & value) : m_data(std::make_shared<QNData>())
{
    m_data->m_components.push_back(value);
}

QualifiedName::QualifiedName(TString const & root, TString const & leaf) : m_data(std::make_shared<QNData>())
{
    m_data->m_components.push_back(root);
    m_data->m_components.push_back(leaf);
}

QualifiedName::QualifiedName(boost::container::small_vector<TString, 2> && components)
    : m_data(std::make_shared<QNData>(std::move(components)))
{}

QualifiedName::~QualifiedName() = default;

// A pointer that owns nothing: empty names count no references, and may be made and dropped at process exit.
std::shared_ptr<QualifiedName::QNData> QualifiedName::EmptyBlock() noexcept
{
    static detail::NoDestructor<QNData> empty;
    return std::shared_ptr<QNData>(std::shared_ptr<QNData>(), &*empty);
}

TString const & QualifiedName::GetComponent(std::size_t i) const
{
    VELTRIA_ASSERT(i <= m_data->m_components.size(), 0x71586053);
    return m_data->m_components.data()[i];
}

TString const & QualifiedName::GetRootValue() const
{
    VELTRIA_ASSERT(!m_data->m_components.empty(), 0x018B7D29);
    return m_data->m_components.front();
}

TString const & QualifiedName::GetLeafValue() const
{
    VELTRIA_ASSERT(!m_data->m_components.empty(), 0x995B56B5);
    return m_data->m_components.back();
}

TString const & QualifiedName::TryGetRootValue() const
{
    static detail::NoDestructor<TString> none;
    return m_data->m_components.empty() ? *none : m_data->m_components.front();
}

TString const & QualifiedName::TryGetLeafValue() const
{
    static detail::NoDestructor<TString> none;
    return m_data->m_components.empty() ? *none : m_data->m_components.back();
}

bool QualifiedName::IsEmpty() const noexcept
{
    Components const & components = m_data->m_components;
    return components.empty() || (components.size() == 1 && components.front().isEmpty());
}

unsigned QualifiedName::Hash() const
{
    unsigned hash = m_data->m_hash.load(std::memory_order_relaxed);
    if (hash != 0)
        return hash;
    hash = 0xDEADBEEFu;
    for (TString const & component : m_data->m_components)
        hash = THash32(component.constData(), component.lengthInBytes(), hash);
    m_data->m_hash.store(hash, std::memory_order_relaxed);
    return hash;
}

QualifiedName QualifiedName::PopLeafValue() const
{
    Components const & components = m_data->m_components;
    if (components.size() <= 1)
        return QualifiedName();
    return QualifiedName(Components(components.begin(), components.end() - 1));
}

QualifiedName QualifiedName::PopLeafValue(TString & leaf) const
{
    leaf = TryGetLeafValue();
    return PopLeafValue();
}

QualifiedName QualifiedName::PopRootValue() const
{
    Components const & components = m_data->m_components;
    if (components.size() <= 1)
        return QualifiedName();
    return QualifiedName(Components(components.begin() + 1, components.end()));
}

QualifiedName QualifiedName::PopRootValue(TString & root) const
{
    root = TryGetRootValue();
    return PopRootValue();
}

QualifiedName QualifiedName::PushLeafValue(TString const & value) const
{
    Components components;
    components.reserve(m_data->m_components.size() + 1);
    components.assign(m_data->m_components.begin(), m_data->m_components.end());
    components.push_back(value);
    return QualifiedName(std::move(components));
}

QualifiedName QualifiedName::PushRootValue(TString const & value) const
{
    Components components;
    components.reserve(m_data->m_components.size() + 1);
    components.push_back(value);
    components.insert(components.end(), m_data->m_components.begin(), m_data->m_components.end());
    return QualifiedName(std::move(components));
}

QualifiedName QualifiedName::ReplaceLeafValue(TString const & value) const
{
    VELTRIA_ASSERT(!m_data->m_components.empty(), 0x1A407BE2);
    Components components(m_data->m_components);
    components.back() = value;
    return QualifiedName(std::move(components));
}

QualifiedName QualifiedName::ReplaceRootValue(TString const & value) const
{
    VELTRIA_ASSERT(!m_data->m_components.empty(), 0xE7D6FD7C);
    Components components(m_data->m_components);
    components.front() = value;
    return QualifiedName(std::move(components));
}

TString QualifiedName::PopValue()
{
    TString leaf;
    *this = PopLeafValue(leaf);
    return leaf;
}

TString QualifiedName::PopRoot()
{
    TString root;
    *this = PopRootValue(root);
    return root;
}

void QualifiedName::PushValue(TString const & value)
{
    *this = PushLeafValue(value);
}

void QualifiedName::PushRoot(TString const & value)
{
    *this = PushRootValue(value);
}

void QualifiedName::ReplaceValue(TString const & value)
{
    VELTRIA_ASSERT(!m_data->m_components.empty(), 0xA8C5A1E9);
    *this = ReplaceLeafValue(value);
}

void QualifiedName::ReplaceRoot(TString const & value)
{
    VELTRIA_ASSERT(!m_data->m_components.empty(), 0x4181ADF3);
    *this = ReplaceRootValue(value);
}

bool operator==(QualifiedName const & a, QualifiedName const & b)
{
    auto const & left = a.m_data->m_components;
    auto const & right = b.m_data->m_components;
    return &left == &right || std::equal(left.begin(), left.end(), right.begin(), right.end());
}

int QualifiedName::Compare(QualifiedName const & other) const
{
    return GetFullValue().compare(other.GetFullValue());
}

int QualifiedName::CompareNoCase(QualifiedName const & other) const
{
    return GetFullValue().compare(other.GetFullValue(), TString::CaseInsensitive);
}

QualifiedNameCompareLeafValueNoCase::~QualifiedNameCompareLeafValueNoCase() = default;

bool QualifiedNameCompareLeafValueNoCase::operator()(QualifiedName const & a, QualifiedName const & b) const
{
    return a.GetLeafValue().toLower() < b.GetLeafValue().toLower();
}
