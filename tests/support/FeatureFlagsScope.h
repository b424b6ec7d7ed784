// Brings the process's feature flags back at its end.
#pragma once

#include "velcoredata/utility/FeatureFlags.h"
#include "velcoreplatform/CoreThreadContext.h"

namespace test_support {

class FeatureFlagsScope
{
public:
    FeatureFlagsScope() : m_before(OfProcess()) {}
    ~FeatureFlagsScope() { OfProcess() = m_before; }
    FeatureFlagsScope(FeatureFlagsScope const &) = delete;
    FeatureFlagsScope & operator=(FeatureFlagsScope const &) = delete;

    // The process's object, whatever the thread's session has.
    static FeatureFlags & OfProcess()
    {
        ScopedSession const outside(nullptr);
        return FeatureFlags::GetMutable();
    }

private:
    FeatureFlags const m_before;
};

}  // namespace test_support
