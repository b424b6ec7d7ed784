// Runs the acceptance tables of the folder in VELCOREDATA_VECTORS, or of the source tree.

#include "tests/vectors/VectorDriver.h"

#include "velcoreplatform/TLog.h"

#include <cstdlib>
#include <iostream>

namespace {

// The tables provoke thousands of errors that are logged; the report is what counts here.
class SilentLogger : public TLog::Logger
{
public:
    bool IsEnabled(TLog::AnySeverity const &) override { return false; }
    void Log(TLog::Event const &, TLog::AnySeverity const &) override {}
};

}  // namespace

int main()
{
    setenv("LANG", "en_US.UTF-8", 1);
    setenv("LC_ALL", "en_US.UTF-8", 1);
    setenv("TZ", "UTC", 1);
    SilentLogger logger;
    TLog::Logger::Replace(&logger);
    char const * const folder = std::getenv("VELCOREDATA_VECTORS");
    return velcoredata::vectors::RunVectors(folder != nullptr ? folder : VELCOREDATA_SOURCE_VECTORS,
                                            velcoredata::vectors::RegisteredDrivers(), std::cout, std::cerr);
}
