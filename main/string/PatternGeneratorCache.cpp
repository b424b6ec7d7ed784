#include "main/string/PatternGeneratorCache.h"

#include "velcoreplatform/InitOnce.h"

namespace ICUUtils::detail {

namespace {

constexpr std::size_t MAX_LOCALES = 5;

}  // namespace

DateTimePatternGeneratorCache & DateTimePatternGeneratorCache::Get()
{
    static void * s_slot = nullptr;
    InitOnce(
        &s_slot, [](void *) { return new boost::any(std::make_shared<DateTimePatternGeneratorCache>()); }, nullptr,
        [](boost::any * made) -> void * {
            return boost::any_cast<std::shared_ptr<DateTimePatternGeneratorCache> &>(*made).get();
        });
    return *static_cast<DateTimePatternGeneratorCache *>(s_slot);
}

DateTimePatternGeneratorCache::DateTimePatternGeneratorCache() = default;

DateTimePatternGeneratorCache::~DateTimePatternGeneratorCache() = default;

RefCntPtr<DateTimePatternGeneratorWrapper, RefCntObject> DateTimePatternGeneratorCache::Find(std::string const & locale)
{
    std::lock_guard const lock(m_mutex);
    if (auto const found = m_wrappers.find(locale); found != m_wrappers.end())
        return found->second;
    if (m_wrappers.size() >= MAX_LOCALES)
        m_wrappers.clear();
    RefCntPtr<DateTimePatternGeneratorWrapper, RefCntObject> wrapper(new DateTimePatternGeneratorWrapper());
    VelICU::ICUErrorCode status = VelICU::U_ZERO_ERROR;
    wrapper->generator = VelICU::ICUDateTimePatternGenerator::createInstance(locale.c_str(), status);
    m_wrappers.emplace(locale, wrapper);
    return wrapper;
}

bool DateTimePatternGeneratorCache::Holds(std::string const & locale) const
{
    std::lock_guard const lock(m_mutex);
    return m_wrappers.count(locale) != 0;
}

std::size_t DateTimePatternGeneratorCache::Count() const
{
    std::lock_guard const lock(m_mutex);
    return m_wrappers.size();
}

TString FindBestPattern(TString const & skeleton, std::string const & locale)
{
    auto const wrapper = DateTimePatternGeneratorCache::Get().Find(locale);
    AutoSynchronize const lock(wrapper->mutex, 0, __FILE__, "ICUUtils::GetBestDateTimePattern", __LINE__);
    if (wrapper->generator == nullptr)
        return skeleton;
    VelICU::ICUErrorCode status = VelICU::U_ZERO_ERROR;
    TString pattern = wrapper->generator->getBestPattern(skeleton, status);
    return VelICU::ICU_FAILURE(status) ? skeleton : pattern;
}

}  // namespace ICUUtils::detail
