#include "main/core/LocaleWalk.h"

#include "velcoreplatform/Locks.h"
#include "velcoreplatform/TString.h"
#include "velnls/LocaleInfo.h"

namespace detail {

namespace {

// The platform's callback gets no argument of ours: parked here while the mutex is held.
std::function<void(LCID)> const * s_visit = nullptr;

constexpr int HEXADECIMAL = 16;

bool VisitOne(char16_t * hexadecimalLcid)
{
    try {
        (*s_visit)(static_cast<LCID>(TString(hexadecimalLcid).toInt(nullptr, HEXADECIMAL)));
        return true;
    } catch (...) {
        return false;
    }
}

// Parks a visit and takes the one before back at the end.
class ParkedVisit
{
public:
    explicit ParkedVisit(std::function<void(LCID)> const & visit) : m_before(s_visit) { s_visit = &visit; }
    ~ParkedVisit() { s_visit = m_before; }
    ParkedVisit(ParkedVisit const &) = delete;
    ParkedVisit & operator=(ParkedVisit const &) = delete;

private:
    std::function<void(LCID)> const * m_before;
};

}  // namespace

void WalkSystemLocales(std::function<void(LCID)> const & visit)
{
    static TRecursiveMutex s_mutex;
    AutoSynchronize const lock(s_mutex, 2, __FILE__, "TLocale::GetSupportedLocalesWindows", __LINE__);
    ParkedVisit const parked(visit);
    EnumSystemLocalesW(&VisitOne, LCID_SUPPORTED);
}

}  // namespace detail
