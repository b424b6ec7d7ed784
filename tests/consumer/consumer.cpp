// What a caller of the installed library does first: make values, read them, catch an error that the library raised.

#include "velcoredata/core/LibraryVersion.h"
#include "velcoredata/data/DataValue.h"
#include "velcoredata/data/DateTime.h"
#include "velsys/VeltriaException.h"

#include <cstdio>

namespace {

bool ReadingAnotherTypeRaises(DataValue const & value)
{
    try {
        value.GetBool();
        return false;
    } catch (VeltriaException const &) {
        return true;
    }
}

}  // namespace

int main()
{
    DataValue const number(42);
    DateTime const day(2024, 2, 29, 0, 0, 0, 0.0);
    bool const right = number.GetInt() == 42 && day.GetYear() == 2024 && ReadingAnotherTypeRaises(number);
    std::printf("velcoredata %s\n", velcoredata::LibraryVersion());
    return right ? 0 : 1;
}
