// A fault of ICU made to order, so that a test reaches the branch behind a failed status.
//
// While the object lives, the n-th operation of this layer (0: the next) that the calling thread makes with a status in
// success finds `fault` in it instead and does what it does on that failure. One operation fails, then all is as
// before. Faults of one thread nest; other threads see nothing. Operations without a status are not counted.
//
//   ScopedStatusFault fault(U_MEMORY_ALLOCATION_ERROR);
//   TCalendar calendar;  // raises: no calendar could be made
#pragma once

#include "velicu/ErrorCode.h"

namespace VelICU_V2 {

class VELICU_API ScopedStatusFault
{
public:
    explicit ScopedStatusFault(ICUErrorCode fault, int operationsBefore = 0) noexcept;
    ~ScopedStatusFault();
    ScopedStatusFault(ScopedStatusFault const &) = delete;
    ScopedStatusFault & operator=(ScopedStatusFault const &) = delete;

    // True once the operation that was to fail has failed.
    bool HasStruck() const noexcept { return m_left < 0; }

private:
    friend class StatusScope;
    ICUErrorCode m_fault;
    int m_left;
    ScopedStatusFault * m_outer;
};

}  // namespace VelICU_V2
