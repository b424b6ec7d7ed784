// Runs the acceptance tables of the folder in VELCOREDATA_VECTORS, or of the source tree.

#include "tests/vectors/VectorDriver.h"

#include <cstdlib>
#include <iostream>

int main()
{
    setenv("LANG", "en_US.UTF-8", 1);
    setenv("LC_ALL", "en_US.UTF-8", 1);
    setenv("TZ", "UTC", 1);
    char const * const folder = std::getenv("VELCOREDATA_VECTORS");
    return velcoredata::vectors::RunVectors(folder != nullptr ? folder : VELCOREDATA_SOURCE_VECTORS,
                                            velcoredata::vectors::RegisteredDrivers(), std::cout, std::cerr);
}
