#pragma once

/// Marks a class or function that callers outside libvelnls may use; all others stay hidden in the library.
#define VELNLS_API __attribute__((visibility("default")))
