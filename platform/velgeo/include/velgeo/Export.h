#pragma once

/// Marks a class or function that callers outside libvelgeo may use; all others stay hidden in the library.
#define VELGEO_API __attribute__((visibility("default")))
