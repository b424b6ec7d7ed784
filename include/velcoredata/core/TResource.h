// One resource of the registered archives, and one that is read as text.
#pragma once

#include <memory>
#include <vector>

#include "velcoredata/core/Export.h"
#include "velcoreplatform/TString.h"

class QResource;

/// A resource by its Qt path. Move-only; a moved-from object and one without a resource are not valid, have no bytes
/// and no size. One thread at a time.
class VELCOREDATA_API TResource
{
public:
    /// By Qt path: TResource(u":/de_DE/TQRC_VELSTRINGS"). The empty path is no resource.
    explicit TResource(TString const & path);
    /// By the path inside an archive, which ResourceRegistrationCache::GetResourcePath resolves for the language.
    TResource(TString const & relativePath, TString const & language);
    TResource(TResource &&) noexcept;
    TResource & operator=(TResource &&) noexcept;
    ~TResource();

    bool isValid() const;
    /// The bytes as the archive stores them: those of a compressed resource are compressed. They belong to the archive
    /// and live as long as it is registered. Null for a directory and for what is not valid.
    unsigned char const * GetPtr() const;
    /// The number of stored bytes.
    int size() const;

private:
    std::unique_ptr<QResource> m_resource;
};

/// A resource with a copy of its bytes, which are UTF-8.
class VELCOREDATA_API UTF8StringTResource : public TResource
{
public:
    explicit UTF8StringTResource(TString const & path);
    UTF8StringTResource(TString const & relativePath, TString const & language);
    UTF8StringTResource(UTF8StringTResource &&) noexcept;
    UTF8StringTResource & operator=(UTF8StringTResource &&) noexcept;
    ~UTF8StringTResource();

    /// The text up to the first zero byte; malformed bytes become U+FFFD.
    TString GetString() const;
    /// The number of bytes in the buffer, the terminating zero byte included: 1 for a resource that is not valid.
    int size() const;

private:
    void InitBuffer();

    std::vector<char> m_buffer;
};
