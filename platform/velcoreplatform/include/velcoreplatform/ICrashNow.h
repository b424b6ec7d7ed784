// ICrashNow: the process hook that ends the process at once.
#pragma once

#include <functional>

#include "velcoreplatform/Export.h"

// Default: std::abort. Hosts and tests may replace it before other threads start.
extern VELCOREPLATFORM_API std::function<void()> & ICrashNow;
