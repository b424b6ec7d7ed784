#pragma once

/// Marks a class or function that callers outside libvelcoredata may use; all others stay hidden in the library.
#define VELCOREDATA_API __attribute__((visibility("default")))
