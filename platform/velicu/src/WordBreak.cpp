#include "velicu/WordBreak.h"

#include <unicode/ubrk.h>
#include <unicode/utext.h>

#include "StatusScope.h"
#include "velicu/LocaleNames.h"

namespace VelICU_V2 {

// The handles are ICU's own pointers under another name.
namespace {

UText * Native(ICUText * text) noexcept
{
    return reinterpret_cast<UText *>(text);
}

UBreakIterator * Native(ICUBreakIterator * iterator) noexcept
{
    return reinterpret_cast<UBreakIterator *>(iterator);
}

}  // namespace

ICUText * t_utext_openUTF8(ICUText * reuse, char const * utf8, std::int64_t length, ICUErrorCode & status) noexcept
{
    StatusScope scope(status);
    if (scope.Failed())
        return nullptr;
    return reinterpret_cast<ICUText *>(utext_openUTF8(Native(reuse), utf8, length, &scope));
}

void t_utext_close(ICUText * text) noexcept
{
    utext_close(Native(text));
}

ICUBreakIterator * t_ubrk_open(ICUBreakType type, char const * locale, char16_t const * text, int length,
                               ICUErrorCode & status) noexcept
{
    StatusScope scope(status);
    if (locale == nullptr)
        locale = t_uloc_getDefault();
    return reinterpret_cast<ICUBreakIterator *>(
        ubrk_open(static_cast<UBreakIteratorType>(type), locale, text, length, &scope));
}

void t_ubrk_close(ICUBreakIterator * iterator) noexcept
{
    ubrk_close(Native(iterator));
}

void t_ubrk_setUText(ICUBreakIterator * iterator, ICUText * text, ICUErrorCode & status) noexcept
{
    StatusScope scope(status);
    if (iterator == nullptr || text == nullptr)
        scope.Fail(::U_ILLEGAL_ARGUMENT_ERROR);
    if (!scope.Failed())
        ubrk_setUText(Native(iterator), Native(text), &scope);
}

int t_ubrk_next(ICUBreakIterator * iterator) noexcept
{
    return ubrk_next(Native(iterator));
}

int t_ubrk_getRuleStatus(ICUBreakIterator * iterator) noexcept
{
    return ubrk_getRuleStatus(Native(iterator));
}

}  // namespace VelICU_V2
