// Identities of the assertions in the header code of this layer.
#pragma once

#include "velsys/VeltriaError.h"

namespace VelcoreplatformError {

inline VeltriaError LogicAssert_0x2D8C440D()
{
    return VeltriaError::MakeError(0x2D8C440Du, u"LogicException_LogicAssert_0x2D8C440D");
}

inline VeltriaError LogicAssert_0x4CE9D476()
{
    return VeltriaError::MakeError(0x4CE9D476u, u"LogicException_LogicAssert_0x4CE9D476");
}

}  // namespace VelcoreplatformError
