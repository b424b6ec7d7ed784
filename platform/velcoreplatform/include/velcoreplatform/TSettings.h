// TSettings: persisted choices, as texts under a numbered group and a key.
//
// The default store is a file in the user's configuration folder; a host or a test may replace it. All operations may
// be called from any thread.
#pragma once

#include <optional>

#include "velcoreplatform/Export.h"
#include "velcoreplatform/TString.h"

class VELCOREPLATFORM_API TSettings
{
public:
    enum class Group : int
    {
        Language = 35  // "LanguageCode", "SamplesLanguage"
    };

    // Where settings are kept. Get gives nothing for a key that was never set.
    class VELCOREPLATFORM_API Store
    {
    public:
        virtual ~Store();
        virtual std::optional<TString> Get(TString const & organization, TString const & application, Group group,
                                           TString const & key) = 0;
        virtual void Set(TString const & organization, TString const & application, Group group, TString const & key,
                         TString const & value) = 0;
    };

    // A group of another application's settings; empty names are the application's own.
    TSettings(Group group, TString const & organization, TString const & application);
    void SetStringValue(TString const & key, TString const & value);

    // The application's own settings.
    static TString GetStringValue(Group group, TString const & key, TString const & defaultValue);
    static void SetStringValue(Group group, TString const & key, TString const & value);

    // Installs a store that must outlive its use; null brings the default back. Returns the one before.
    static Store * ReplaceStore(Store * store) noexcept;

private:
    Group m_group;
    TString m_organization;
    TString m_application;
};
