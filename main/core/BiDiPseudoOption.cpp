#include "main/core/BiDiPseudoOption.h"

#include <atomic>

namespace CoreData::detail {

namespace {

std::atomic<bool> s_use{false};

}  // namespace

bool GetUseBiDiPseudo() noexcept
{
    return s_use.load(std::memory_order_relaxed);
}

void SetUseBiDiPseudo(bool use) noexcept
{
    s_use.store(use, std::memory_order_relaxed);
}

}  // namespace CoreData::detail
