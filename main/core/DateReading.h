// What a TLocale knows of its parsing formatter, so that plain texts need not go through it. Belongs to the lock of
// reading.
#pragma once

#include "main/core/DateTextPlan.h"

namespace detail {

struct DateReading
{
    DateSpeech speech = DateSpeech::Unknown;
    // The formatter is one that the TLocale made of a pattern, and as strict as it was made.
    bool strict = false;
    // Of the pattern that the formatter holds; null if that is not known.
    DateTextPlan const * plan = nullptr;
    // Of the formatter, when all this was so.
    unsigned changes = 0;
    // What `plan` points to unless it is a row of a table.
    DateTextPlan own;
};

}  // namespace detail
