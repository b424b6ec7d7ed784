#pragma once

#include <memory>

#include "velcoredata/string/TParsePosition.h"
#include "velicu/ICUDateFormat.h"

class TParsePosition::Impl
{
public:
    Impl() : m_position(VelICU_V2::ICUParsePosition::createInstance()) {}

    VelICU_V2::ICUParsePosition & GetPosition() const { return *m_position; }

private:
    std::unique_ptr<VelICU_V2::ICUParsePosition> m_position;
};
