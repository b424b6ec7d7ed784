// The process's time zone while the object lives, given in the notation of TZ.
#pragma once

#include <cstdlib>
#include <ctime>
#include <string>

class ZoneScope
{
public:
    explicit ZoneScope(char const * zone) : m_before(std::getenv("TZ") != nullptr ? std::getenv("TZ") : "")
    {
        Set(zone);
    }
    ~ZoneScope() { Set(m_before.c_str()); }
    ZoneScope(ZoneScope const &) = delete;
    ZoneScope & operator=(ZoneScope const &) = delete;

private:
    static void Set(char const * zone)
    {
        setenv("TZ", zone, 1);
        tzset();
    }

    std::string m_before;
};
