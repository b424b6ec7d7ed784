#include "velicu/ScopedStatusFault.h"

#include "StatusScope.h"

namespace VelICU_V2 {

thread_local ScopedStatusFault * StatusScope::s_fault = nullptr;

ScopedStatusFault::ScopedStatusFault(ICUErrorCode fault, int operationsBefore) noexcept
    : m_fault(fault), m_left(operationsBefore), m_outer(StatusScope::s_fault)
{
    StatusScope::s_fault = this;
}

ScopedStatusFault::~ScopedStatusFault()
{
    StatusScope::s_fault = m_outer;
}

void StatusScope::TakeFault() noexcept
{
    if (s_fault->m_left >= 0 && s_fault->m_left-- == 0)
        m_status = static_cast<UErrorCode>(s_fault->m_fault);
}

}  // namespace VelICU_V2
