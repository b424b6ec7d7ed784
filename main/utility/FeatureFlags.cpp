#include "velcoredata/utility/FeatureFlags.h"

#include <utility>

#include <boost/any.hpp>

#include "velcoredata/utility/FeatureCatalogue.h"
#include "velcoreplatform/CoreThreadContext.h"
#include "velsys/NoDestructor.h"
#include "velsys/ThrowSite.h"

namespace {

TString const & SessionKey()
{
    static detail::NoDestructor<TString> s_key(u"fflags-ctx");
    return *s_key;
}

[[gnu::always_inline]] inline FeatureFlags & OfProcess()
{
    static detail::NoDestructor<FeatureFlags> s_flags;
    return *s_flags;
}

[[gnu::noinline]] FeatureFlags & OfSession()
{
    std::shared_ptr<boost::any> const object = CoreThreadContext::GetGenericUnsynchronizedObject(SessionKey());
    auto * const flags = boost::any_cast<FeatureFlags>(object.get());
    return flags == nullptr ? OfProcess() : *flags;
}

// Without a session this is what a plain set costs.
inline FeatureFlags & Current()
{
    return CoreThreadContext::InSession() ? OfSession() : OfProcess();
}

}  // namespace

FeatureFlags::FeatureFlags() : m_enabled(GetDefaultEnabledFeatureIds().begin(), GetDefaultEnabledFeatureIds().end()) {}

FeatureFlags::FeatureFlags(FeatureFlags const &) = default;
FeatureFlags::FeatureFlags(FeatureFlags &&) noexcept = default;
FeatureFlags & FeatureFlags::operator=(FeatureFlags const &) = default;
FeatureFlags & FeatureFlags::operator=(FeatureFlags &&) noexcept = default;
FeatureFlags::~FeatureFlags() = default;

bool FeatureFlags::operator==(FeatureFlags const & other) const
{
    return m_enabled == other.m_enabled;
}

void FeatureFlags::Enable(FeatureFlagId id)
{
    m_enabled.insert(id);
}

void FeatureFlags::Disable(FeatureFlagId id)
{
    m_enabled.erase(id);
}

void FeatureFlags::Clear()
{
    m_enabled.clear();
}

bool FeatureFlags::IsOn(FeatureFlagId id)
{
    return Current().m_enabled.count(id) != 0;
}

std::unordered_set<FeatureFlagId> FeatureFlags::GetEnabled()
{
    return Get().m_enabled;
}

FeatureFlags & FeatureFlags::GetMutable()
{
    return Current();
}

FeatureFlags const & FeatureFlags::Get()
{
    return Current();
}

void CoreThreadContext::SetSessionFeatureFlags(std::unique_ptr<FeatureFlags> flags)
{
    VELTRIA_ASSERT(flags != nullptr, 0x7A1C40E7);
    SetGenericUnsynchronizedObject(SessionKey(), std::make_shared<boost::any>(std::move(*flags)));
}
