#include "velsys/RefCntPtr.h"

#include "velsys/ThrowSite.h"

void detail::ThrowNullPointerDereferenced()
{
    VELTRIA_FAIL("Null pointer dereferenced", 0x00BF554A);
}
