#include <array>
#include <memory>
#include <new>

#include "velcoredata/string/ICUUtils.h"
#include "velicu/CharacterText.h"
#include "velicu/WordBreak.h"

namespace ICUUtils {

namespace {

constexpr int STACK_UNITS = 256;

// Runs a case conversion (target, capacity, status) that returns the full length: first for the length, then for the
// text. Any failure gives `text` back.
template <class Convert>
TString Converted(TString const & text, Convert convert)
{
    VelICU::ICUErrorCode status = VelICU::U_ZERO_ERROR;
    int const length = convert(nullptr, 0, status);
    if (length <= 0)
        return text;
    std::array<char16_t, STACK_UNITS> stack{};
    std::unique_ptr<char16_t[]> heap;
    char16_t * buffer = stack.data();
    int capacity = STACK_UNITS;
    if (length >= STACK_UNITS) {
        capacity = length + 1;
        heap.reset(new (std::nothrow) char16_t[static_cast<std::size_t>(capacity)]);
        if (heap == nullptr)
            return text;
        buffer = heap.get();
    }
    status = VelICU::U_ZERO_ERROR;
    int const written = convert(buffer, capacity, status);
    return VelICU::ICU_SUCCESS(status) ? TString(buffer, written) : text;
}

struct CloseText
{
    void operator()(VelICU::ICUText * text) const noexcept { VelICU::t_utext_close(text); }
};

struct CloseIterator
{
    void operator()(VelICU::ICUBreakIterator * iterator) const noexcept { VelICU::t_ubrk_close(iterator); }
};

}  // namespace

int CountWords(TString const & text, std::string const & locale)
{
    std::string const utf8 = text.toStdString();
    VelICU::ICUErrorCode status = VelICU::U_ZERO_ERROR;
    std::unique_ptr<VelICU::ICUText, CloseText> const source(
        VelICU::t_utext_openUTF8(nullptr, utf8.data(), static_cast<std::int64_t>(utf8.size()), status));
    std::unique_ptr<VelICU::ICUBreakIterator, CloseIterator> const iterator(
        VelICU::t_ubrk_open(VelICU::UBRK_WORD, locale.c_str(), nullptr, 0, status));
    VelICU::t_ubrk_setUText(iterator.get(), source.get(), status);
    if (VelICU::ICU_FAILURE(status))
        return 0;
    int words = 0;
    while (VelICU::t_ubrk_next(iterator.get()) != VelICU::ICU_BREAK_DONE)
        if (VelICU::t_ubrk_getRuleStatus(iterator.get()) != 0)
            ++words;
    return words;
}

TString StrFoldCase(TString const & text, bool excludeSpecialI)
{
    return Converted(text, [&](char16_t * buffer, int capacity, VelICU::ICUErrorCode & status) {
        return VelICU::t_u_strFoldCase(buffer, capacity, text.constData(), text.length(), excludeSpecialI ? 1 : 0,
                                       status);
    });
}

TString StrToUpper(TString const & text, char const * locale)
{
    return Converted(text, [&](char16_t * buffer, int capacity, VelICU::ICUErrorCode & status) {
        return VelICU::t_u_strToUpper(buffer, capacity, text.constData(), text.length(), locale, status);
    });
}

}  // namespace ICUUtils
