#include <mutex>
#include <shared_mutex>
#include <utility>

#include "DateStyles.h"
#include "velnls/LocaleInfo.h"
#include "velnls/LocaleNames.h"
#include "velsys/NoDestructor.h"

namespace VelNLS::detail {

namespace {

constexpr std::size_t kMostLocales = 16;

// Making the styles of an LCID takes milliseconds, finding them a short walk under a read lock. The oldest goes when
// one more comes.
struct Cache
{
    std::shared_mutex lock;
    std::vector<std::pair<LCID, std::shared_ptr<DateStyles const>>> rows;

    std::shared_ptr<DateStyles const> Find(LCID lcid) const
    {
        for (auto const & row : rows) {
            if (row.first == lcid)
                return row.second;
        }
        return nullptr;
    }
};

}  // namespace

std::shared_ptr<DateStyles const> GetDateStyles(LCID lcid)
{
    static ::detail::NoDestructor<Cache> s_cache;
    lcid = lcid == 0 ? GetUserDefaultLCID() : ConvertDefaultLocale(lcid);
    {
        std::shared_lock const reading(s_cache->lock);
        if (auto found = s_cache->Find(lcid))
            return found;
    }
    char const * const name = FindPublishedLocaleName(lcid);
    if (name == nullptr)
        return nullptr;
    auto made = std::make_shared<DateStyles const>(name);
    std::unique_lock const writing(s_cache->lock);
    if (auto found = s_cache->Find(lcid))
        return found;
    if (s_cache->rows.size() == kMostLocales)
        s_cache->rows.erase(s_cache->rows.begin());
    s_cache->rows.emplace_back(lcid, made);
    return made;
}

}  // namespace VelNLS::detail
