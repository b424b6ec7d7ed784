// What a caller of the installed library does first: make values, look at them, catch an error.

#include "velcoredata/core/LibraryVersion.h"

#include <cstdio>

int main()
{
    std::printf("velcoredata %s\n", velcoredata::LibraryVersion());
    return 0;
}
