#include "velnls/CodePages.h"

unsigned GetACP() noexcept
{
    return 1252;
}

unsigned GetOEMCP() noexcept
{
    return 437;
}
