#include "velcoreplatform/TSettings.h"

#include <QtCore/QSettings>

#include <atomic>
#include <mutex>

#include "velsys/NoDestructor.h"

namespace {

constexpr char16_t const * kOrganization = u"veltria";
constexpr char16_t const * kApplication = u"velcoredata";

QString PathOf(TSettings::Group group, TString const & key)
{
    return QString::number(static_cast<int>(group)) + u'/' + key.toQString();
}

class ConfigurationFolderStore : public TSettings::Store
{
public:
    std::optional<TString> Get(TString const & organization, TString const & application, TSettings::Group group,
                               TString const & key) override
    {
        std::lock_guard const lock(m_mutex);
        QSettings const settings(QSettings::IniFormat, QSettings::UserScope, organization.toQString(),
                                 application.toQString());
        QVariant const value = settings.value(PathOf(group, key));
        if (!value.isValid())
            return std::nullopt;
        return TString(value.toString());
    }

    void Set(TString const & organization, TString const & application, TSettings::Group group, TString const & key,
             TString const & value) override
    {
        std::lock_guard const lock(m_mutex);
        QSettings settings(QSettings::IniFormat, QSettings::UserScope, organization.toQString(),
                           application.toQString());
        settings.setValue(PathOf(group, key), value.toQString());
    }

private:
    std::mutex m_mutex;
};

std::atomic<TSettings::Store *> g_store{nullptr};

TSettings::Store & CurrentStore()
{
    TSettings::Store * const installed = g_store.load(std::memory_order_acquire);
    if (installed != nullptr)
        return *installed;
    static detail::NoDestructor<ConfigurationFolderStore> s_default;
    return *s_default;
}

}  // namespace

TSettings::Store::~Store() = default;

TSettings::TSettings(Group group, TString const & organization, TString const & application)
    : m_group(group),
      m_organization(organization.isEmpty() ? TString(kOrganization) : organization),
      m_application(application.isEmpty() ? TString(kApplication) : application)
{}

void TSettings::SetStringValue(TString const & key, TString const & value)
{
    CurrentStore().Set(m_organization, m_application, m_group, key, value);
}

TString TSettings::GetStringValue(Group group, TString const & key, TString const & defaultValue)
{
    return CurrentStore().Get(kOrganization, kApplication, group, key).value_or(defaultValue);
}

void TSettings::SetStringValue(Group group, TString const & key, TString const & value)
{
    CurrentStore().Set(kOrganization, kApplication, group, key, value);
}

TSettings::Store * TSettings::ReplaceStore(Store * store) noexcept
{
    return g_store.exchange(store, std::memory_order_acq_rel);
}
