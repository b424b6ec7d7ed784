// Lends a status of this layer to ICU for one operation and writes the answer back at the end of the scope.
#pragma once

#include <unicode/utypes.h>

#include "velicu/ErrorCode.h"
#include "velicu/ScopedStatusFault.h"

namespace VelICU_V2 {

class StatusScope
{
public:
    explicit StatusScope(ICUErrorCode & status) noexcept : m_out(status), m_status(static_cast<UErrorCode>(status))
    {
        if (s_fault != nullptr && U_SUCCESS(m_status)) [[unlikely]]
            TakeFault();
    }
    ~StatusScope() { m_out = static_cast<ICUErrorCode>(m_status); }
    StatusScope(StatusScope const &) = delete;
    StatusScope & operator=(StatusScope const &) = delete;

    operator UErrorCode &() noexcept { return m_status; }
    UErrorCode * operator&() noexcept { return &m_status; }
    bool Failed() const noexcept { return U_FAILURE(m_status); }
    void Fail(UErrorCode status) noexcept
    {
        if (U_SUCCESS(m_status))
            m_status = status;
    }

private:
    friend class ScopedStatusFault;
    void TakeFault() noexcept;

    static thread_local ScopedStatusFault * s_fault;

    ICUErrorCode & m_out;
    UErrorCode m_status;
};

}  // namespace VelICU_V2
