#pragma once

/// Marks a class or function that callers outside libvelicu may use; all others stay hidden in the library.
#define VELICU_API __attribute__((visibility("default")))
