#pragma once

/// Marks a class or function that callers outside libvelsys may use; all others stay hidden in the library.
#define VELSYS_API __attribute__((visibility("default")))
