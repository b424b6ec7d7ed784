#pragma once

#include <memory>
#include <unordered_set>

#include "velcoredata/core/Export.h"
#include "velcoredata/utility/CoredataFeatureFlagIds.h"

/// The set of the feature flags that are on. A flag that is not in the set is off; ids that the catalogue does not have
/// are kept like any other.
///
/// There are two levels: one object of the process, made at first use from the catalogue's defaults, and one that a
/// session may install for itself. A session's object replaces the process's as a whole: nothing falls through flag by
/// flag, and what is done later to the process's object does not reach the session.
///
///   FeatureFlags flags;
///   flags.Enable(GetDefaultFeatureIdLookup().GetId(u"DummyFeature1"));
///   CoreThreadContext::SetSessionFeatureFlags(std::make_unique<FeatureFlags>(flags));
///   FeatureFlags::IsOn(FeatureFlagId::DummyFeature1);  // true, in this session
///
///   f.Enable(i); f.Enable(i)     == f.Enable(i)
///   f.Disable(i); f.Disable(i)   == f.Disable(i)
///   f.Enable(i); f.Disable(i)    == f.Disable(i)
///   a == b iff both hold the same ids, in whatever order they came
///
/// No lock: many threads may read an object that nobody writes. The process's object is to be set up before other
/// threads read it; a session's is for the thread that works for the session. A reader on a hot path asks once and
/// keeps the answer: IsOn costs a look-up of the session's object by name and one in the set.
class VELCOREDATA_API FeatureFlags
{
public:
    /// The catalogue's defaults, GetDefaultEnabledFeatureIds(). No file, setting or environment variable takes part.
    FeatureFlags();
    FeatureFlags(FeatureFlags const &);
    FeatureFlags(FeatureFlags &&) noexcept;
    FeatureFlags & operator=(FeatureFlags const &);
    FeatureFlags & operator=(FeatureFlags &&) noexcept;
    ~FeatureFlags();

    bool operator==(FeatureFlags const & other) const;

    void Enable(FeatureFlagId id);
    void Disable(FeatureFlagId id);
    /// Everything off, the default flags too.
    void Clear();

    // The set of the calling thread's session if it has one, else that of the process. An object of another type under
    // the session's name "fflags-ctx" counts as none.

    static bool IsOn(FeatureFlagId id);
    static std::unordered_set<FeatureFlagId> GetEnabled();
    /// The object itself; that of a session lives until the session ends or installs another.
    static FeatureFlags & GetMutable();

private:
    static FeatureFlags const & Get();

    std::unordered_set<FeatureFlagId> m_enabled;
};

namespace CoreThreadContext {

/// Installs the flags of the calling thread's session in place of those it had. Outside a session a warning is logged
/// and nothing kept. A null pointer raises the logic assertion "flags != nullptr",
/// LogicException_LogicAssert_0x7A1C40E7.
VELCOREDATA_API void SetSessionFeatureFlags(std::unique_ptr<FeatureFlags> flags);

}  // namespace CoreThreadContext
