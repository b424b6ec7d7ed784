// A settings store in memory, in force while the object lives.
#pragma once

#include <map>
#include <mutex>
#include <optional>
#include <utility>

#include "velcoreplatform/TSettings.h"

namespace test_support {

class MemorySettings : public TSettings::Store
{
public:
    MemorySettings() : m_before(TSettings::ReplaceStore(this)) {}
    ~MemorySettings() override { TSettings::ReplaceStore(m_before); }

    std::optional<TString> Get(TString const & organization, TString const & application, TSettings::Group group,
                               TString const & key) override
    {
        std::lock_guard const lock(m_mutex);
        auto const found = values.find(Path(organization, application, group, key));
        return found == values.end() ? std::nullopt : std::optional(found->second);
    }
    void Set(TString const & organization, TString const & application, TSettings::Group group, TString const & key,
             TString const & value) override
    {
        std::lock_guard const lock(m_mutex);
        values[Path(organization, application, group, key)] = value;
    }

    // By "organization/application/group/key".
    std::map<TString, TString> values;

private:
    static TString Path(TString const & organization, TString const & application, TSettings::Group group,
                        TString const & key)
    {
        return organization + u'/' + application + u'/' + TString::number(static_cast<int>(group)) + u'/' + key;
    }

    std::mutex m_mutex;
    TSettings::Store * m_before;
};

}  // namespace test_support
