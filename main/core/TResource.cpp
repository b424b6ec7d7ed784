#include "velcoredata/core/TResource.h"

#include <utility>

#include <QtCore/QLocale>
#include <QtCore/QResource>

#include "velcoredata/core/ResourceRegistrationCache.h"

// Qt takes the empty path for the root of all resources.
TResource::TResource(TString const & path)
    : m_resource(path.isEmpty() ? nullptr : std::make_unique<QResource>(path.toQString(), QLocale()))
{}

TResource::TResource(TString const & relativePath, TString const & language)
    : TResource(ResourceRegistrationCache::GetInstance().GetResourcePath(relativePath, language))
{}

TResource::TResource(TResource &&) noexcept = default;
TResource & TResource::operator=(TResource &&) noexcept = default;
TResource::~TResource() = default;

bool TResource::isValid() const
{
    return m_resource != nullptr && m_resource->isValid();
}

unsigned char const * TResource::GetPtr() const
{
    return m_resource == nullptr ? nullptr : m_resource->data();
}

int TResource::size() const
{
    return m_resource == nullptr ? 0 : static_cast<int>(m_resource->size());
}

UTF8StringTResource::UTF8StringTResource(TString const & path) : TResource(path)
{
    InitBuffer();
}

UTF8StringTResource::UTF8StringTResource(TString const & relativePath, TString const & language)
    : TResource(relativePath, language)
{
    InitBuffer();
}

UTF8StringTResource::UTF8StringTResource(UTF8StringTResource &&) noexcept = default;
UTF8StringTResource & UTF8StringTResource::operator=(UTF8StringTResource &&) noexcept = default;
UTF8StringTResource::~UTF8StringTResource() = default;

void UTF8StringTResource::InitBuffer()
{
    unsigned char const * const bytes = isValid() ? GetPtr() : nullptr;
    if (bytes != nullptr)
        m_buffer.assign(bytes, bytes + TResource::size());
    m_buffer.push_back('\0');
}

TString UTF8StringTResource::GetString() const
{
    return m_buffer.empty() ? TString() : TString::fromUtf8(m_buffer.data());
}

int UTF8StringTResource::size() const
{
    return static_cast<int>(m_buffer.size());
}
