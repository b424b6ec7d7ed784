// InitOnce: thread-safe single initialisation of a process-wide object.
#pragma once

#include <boost/any.hpp>

#include "velcoreplatform/Export.h"

// `create` runs once per slot, on the first call; `extract` turns its result into the pointer that lands in *slot.
// Later calls return at once with the slot filled. The object is never destroyed, so it may be used while the process
// exits. If `create` or `extract` throws, nothing is kept and the next call tries again. `create` may itself initialise
// other slots; asking for its own raises the logic assertion "InitOnce asked for a slot from its own create function"
// ("LogicException_LogicAssert_0x1F0D5C2E"). A slot has static storage.
VELCOREPLATFORM_API void InitOnce(void ** slot, boost::any * (*create)(void * context), void * context,
                                  void * (*extract)(boost::any * made));
