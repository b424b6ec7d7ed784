#pragma once

/// Marks a class or function that callers outside libvelcoreplatform may use; all others stay hidden in the library.
#define VELCOREPLATFORM_API __attribute__((visibility("default")))
