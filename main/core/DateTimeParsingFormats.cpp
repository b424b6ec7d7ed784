#include "velcoredata/core/DateTimeParsingFormats.h"

#include "main/core/DateTimeParsingRows.h"
#include "velsys/ThrowSite.h"

namespace {

constexpr detail::DateTimeParsingRow ROWS[] = {
    {u"MM/dd/yyyy hh:mm:ss.SSS a", false},                                         // 0
    {u"MM/dd/yyyy HH:mm:ss.SSS", false},                                           // 1
    {u"MM/dd/yyyy hh:mm:ss.SSS a", false},                                         // 2
    {u"MM/dd/yy HH:mm:ss.SSS", false},                                             // 3
    {u"yyyy-MM-dd HH:mm:ss.SSS", true},                                            // 4
    {u"HH:mm:ss.SSS", false},                                                      // 5
    {u"MM/dd/yyyy hh:mm:ss a", true},                                              // 6
    {u"MMMM dd, yyyy HH:mm:ss", true},                                             // 7
    {u"M/d/yyyy HH:mm:ss", true},                                                  // 8
    {u"MM/dd/yy HH:mm:ss", true},                                                  // 9
    {u"yyyy-MM-dd HH:mm:ss", true},                                                // 10
    {u"yyyy-MM-dd'T'HH:mm:ss", false},                                             // 11
    {u"HH:mm:ss", true},                                                           // 12
    {u"MMMM dd yyyy hh:mma", true},                                                // 13
    {u"MM-dd-yyyy HH:mm", true},                                                   // 14
    {u"yyyy-MM-dd HH:mm", true},                                                   // 15
    {u"MMMM dd, yyyy", true},                                                      // 16
    {u"MM-dd-yyyy", true},                                                         // 17
    {u"yyyy-MM-dd", true},                                                         // 18
    {u"MM/dd/yyyy", true},                                                         // 19
    {u"MM/dd/yy", true},                                                           // 20
    {u"yyyy/MM/dd", true},                                                         // 21
    {u"hh:mma", true},                                                             // 22
    {u"MMMM dd yyyy", true},                                                       // 23
    {u"dd-MMM-yyyy", true},                                                        // 24
    {u"yyyy-MM-dd'T'HH:mm:ss.SSS'Z'", u"yyyy-MM-dd'T'HH:mm:ss.SSSZ", true},        // 25
    {u"yyyy-MM-dd'T'HH:mm:ss'Z'", u"yyyy-MM-dd'T'HH:mm:ssZ", false},               // 26
    {u"dd-MMM-yy", true},                                                          // 27
    {u"dd-MMM", true},                                                             // 28
    {u"MMM-yy", true},                                                             // 29
    {u"hh:mm a", true},                                                            // 30
    {u"a", false},                                                                 // 31
    {u"MMMM dd,yyyy", true},                                                       // 32
    {u"MMMM dd,yyyy HH:mm:ss", true},                                              // 33
    {u"yyyy-MM-dd'T'HH:mm:ss.SSSSSS'Z'", u"yyyy-MM-dd'T'HH:mm:ss.SSSSSSZ", true},  // 34
    {u"yyyyMMdd'T'HHmmss", false},                                                 // 35
    {u"dd MMM yyyy", true},                                                        // 36
    {u"yyyy.M.d", true},                                                           // 37
    {u"yyyy-MM-dd'T'HH:mm", false},                                                // 38
    {u"yyyy-MM-dd HH:mm:ss.SSS", true},                                            // 39
    {u"yyyy-MM-dd HH:mm:ss.SSS", true},                                            // 40
    {u"MM/dd/yyyy HH:mm:ss", true},                                                // 41
    {u"MM/dd/yyyy", true},                                                         // 42
    {u"h:mm a", true},                                                             // 43
    {u"EEEE, h:mm a", false},                                                      // 44
    {u"MMM d, h:mm a", false},                                                     // 45
    {u"yyyy MMM d, h:mm a", false},                                                // 46
    {u"yyyy-MM-dd HH:mm:ss.SSS", true},                                            // 47
    {u"yyyy-MM-dd-HH:mm:ss", false},                                               // 48
    {u"M/d/yyyy", true},                                                           // 49
    {u"MM/dd/yyyy hh:mm:ss.SSSSSS a", false},                                      // 50
    {u"dd-MM-yyyy", true},                                                         // 51
    {u"dd/MM/yyyy", true},                                                         // 52
    {u"dd-MMM-yyyy HH:mm:ss", true},                                               // 53
    {u"yyyy/MM/dd HH:mm:ss", true},                                                // 54
    {u"MMM yyyy", true},                                                           // 55
    {u"HH.mm.ss", true},                                                           // 56
    {u"HH.mm", true},                                                              // 57
    {u"hh.mm.ss a", true},                                                         // 58
    {u"hh.mm a", true},                                                            // 59
    {u"MMM/dd/yyyy", true},                                                        // 60
    {u"yyyy-MM-dd'T'HH:mm:ss.SSS", false},                                         // 61
    {u"yyyy-MM-dd'T'HH:mm:ssZZZ:00", false},                                       // 62
    {u"yyyy-MM-dd'T'HH:mm:ss.SSSZZZ:00", false},                                   // 63
    {u"MMM d, yyyy", true},                                                        // 64
    {u"HH:mm:ss.SSSSSS", false},                                                   // 65
    {u"y year m month d day h hour m minute s second us microsecond", false},      // 66
    {u"M/d/yyyy h:mm:ss a", false},                                                // 67
    {u"yyyy-MM-dd hh:mma", true},                                                  // 68
    {u"yyyy-MM-dd'T'HH:mm:ss.SSSSSS", true},                                       // 69
    {u"yyyy", true},                                                               // 70
    {u"M.d.yyyy", true},                                                           // 71
    {u"yyyy-MM", true},                                                            // 72
    {u"MM/dd/yy hh:mm a", true},                                                   // 73
};
static_assert(std::size(ROWS) == 74);

constexpr auto TEXT = "fmt < DateTimeParsingFormats::DateFormat_End && fmt >= DateTimeParsingFormats::DateFormat_1";

constexpr bool HasIdentifier(DateTimeParsingFormats fmt)
{
    return fmt < DateTimeParsingFormats::DateFormat_End && fmt >= DateTimeParsingFormats::DateFormat_1;
}

detail::DateTimeParsingRow const & RowOf(DateTimeParsingFormats fmt)
{
    return ROWS[static_cast<std::size_t>(fmt)];
}

}  // namespace

std::span<detail::DateTimeParsingRow const> detail::DateTimeParsingRows() noexcept
{
    return ROWS;
}

char16_t const * LookupDateTimeParsingFormatString(DateTimeParsingFormats fmt)
{
    VELTRIA_ASSERT_TEXT(HasIdentifier(fmt), TEXT, 0xCB022B26);
    return RowOf(fmt).formatString;
}

char16_t const * LookupDateTimeParsingPattern(DateTimeParsingFormats fmt)
{
    // The name of this error is in lower case, which VELTRIA_ASSERT does not write.
    if (!HasIdentifier(fmt)) [[unlikely]]
        ThrowLogicException(__FILE__, __LINE__, TEXT,
                            VeltriaError::MakeError(0x5F87753B, u"LogicException_LogicAssert_0x5f87753b"));
    return RowOf(fmt).pattern;
}
