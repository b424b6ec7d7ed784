// The fixed patterns for dates and times, in ICU's letters.
#pragma once

#include <cstdint>

#include "velcoredata/core/Export.h"

/// A row of the table of fixed patterns, 0 to 69. The table holds four rows more, 70 to 73, which have no identifier:
/// only the search for the format of a text uses them. Some rows hold the same pattern.
///
///     DateFormat_5    "yyyy-MM-dd HH:mm:ss.SSS"    (value 4: the literal of a date-time with milliseconds)
///     DateFormat_11   "yyyy-MM-dd HH:mm:ss"        (value 10)
///     DateFormat_19   "yyyy-MM-dd"                 (value 18)
enum class DateTimeParsingFormats : std::int32_t
{
    DateFormat_1 = 0,
    DateFormat_2,
    DateFormat_3,
    DateFormat_4,
    DateFormat_5,
    DateFormat_6,
    DateFormat_7,
    DateFormat_8,
    DateFormat_9,
    DateFormat_10,
    DateFormat_11,
    DateFormat_12,
    DateFormat_13,
    DateFormat_14,
    DateFormat_15,
    DateFormat_16,
    DateFormat_17,
    DateFormat_18,
    DateFormat_19,
    DateFormat_20,
    DateFormat_21,
    DateFormat_22,
    DateFormat_23,
    DateFormat_24,
    DateFormat_25,
    DateFormat_26,
    DateFormat_27,
    DateFormat_28,
    DateFormat_29,
    DateFormat_30,
    DateFormat_31,
    DateFormat_32,
    DateFormat_33,
    DateFormat_34,
    DateFormat_35,
    DateFormat_36,
    DateFormat_37,
    DateFormat_38,
    DateFormat_39,
    DateFormat_40,
    DateFormat_41,
    DateFormat_42,
    DateFormat_43,
    DateFormat_44,
    DateFormat_45,
    DateFormat_46,
    DateFormat_47,
    DateFormat_48,
    DateFormat_49,
    DateFormat_50,
    DateFormat_51,
    DateFormat_52,
    DateFormat_53,
    DateFormat_54,
    DateFormat_55,
    DateFormat_56,
    DateFormat_57,
    DateFormat_58,
    DateFormat_59,
    DateFormat_60,
    DateFormat_61,
    DateFormat_62,
    DateFormat_63,
    DateFormat_64,
    DateFormat_65,
    DateFormat_66,
    DateFormat_67,
    DateFormat_68,
    DateFormat_69,
    DateFormat_70,
    DateFormat_End,  ///< 70, no row
};

// Both raise the logic assertion "fmt < DateTimeParsingFormats::DateFormat_End && fmt >=
// DateTimeParsingFormats::DateFormat_1" for a value outside 0 to 69, rows 70 to 73 included: the first as
// LogicException_LogicAssert_0xCB022B26, the second as LogicException_LogicAssert_0x5f87753b (in lower case). The texts
// live as long as the library.

/// The pattern that is tried on a text: "yyyy-MM-dd'T'HH:mm:ss.SSS'Z'" of row 25.
VELCOREDATA_API char16_t const * LookupDateTimeParsingFormatString(DateTimeParsingFormats fmt);
/// The same, but in rows 25, 26 and 34 the letter of the time zone in place of the quoted Z:
/// "yyyy-MM-dd'T'HH:mm:ss.SSSZ" of row 25.
VELCOREDATA_API char16_t const * LookupDateTimeParsingPattern(DateTimeParsingFormats fmt);
