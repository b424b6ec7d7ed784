// VeltriaError: the identity of a throw site, a 32-bit code with its name. Example: 0x0EB526BD and
// "VeltriaException_AutoGen_0x0EB526BD"; the number in the name is the code in eight upper-case hexadecimal digits.
#pragma once

#include <utility>

#include "velsys/TStringCore.h"

class VeltriaError
{
public:
    static VeltriaError MakeError(unsigned code, TStringCore name) { return VeltriaError(code, std::move(name)); }

    unsigned GetCode() const noexcept { return m_code; }
    TStringCore const & GetName() const noexcept { return m_name; }

private:
    VeltriaError(unsigned code, TStringCore name) noexcept : m_code(code), m_name(std::move(name)) {}

    unsigned m_code;
    TStringCore m_name;
};
