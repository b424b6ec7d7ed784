#include "velnls/LocaleInfo.h"

#include <unicode/ustring.h>

#include <cstring>
#include <limits>
#include <optional>
#include <string>
#include <string_view>

#include "LocaleAnswers.h"
#include "velnls/LocaleNames.h"

namespace {

constexpr LCTYPE kFlags = LOCALE_NOUSEROVERRIDE | LOCALE_USE_CP_ACP | LOCALE_RETURN_NUMBER;

// Every query that is answered, with the form of its answer.
bool IsNumberQuery(LCTYPE query)
{
    switch (query) {
    case LOCALE_IMEASURE:
    case LOCALE_IDIGITS:
    case LOCALE_ICURRDIGITS:
    case LOCALE_ICURRENCY:
    case LOCALE_INEGCURR:
    case LOCALE_IFIRSTWEEKOFYEAR:
    case LOCALE_INEGNUMBER: return true;
    default: return false;
    }
}

// Nothing: no such query, or no such locale.
std::optional<std::u16string> Answer(LCID lcid, LCTYPE query)
{
    char const * const name =
        VelNLS::FindPublishedLocaleName(lcid == 0 ? GetUserDefaultLCID() : ConvertDefaultLocale(lcid));
    if (name == nullptr)
        return std::nullopt;
    if (query == LOCALE_SNAME)
        return std::u16string(name, name + std::strlen(name));
    VelNLS::detail::IcuLocale const locale = VelNLS::detail::IcuLocaleOf(name);
    std::u16string answer = VelNLS::detail::NumberAnswer(locale, query);
    if (answer.empty())
        answer = VelNLS::detail::PictureAnswer(locale, query);
    return answer.empty() ? std::nullopt : std::optional(answer);
}

std::string ToUtf8(std::u16string const & text)
{
    std::string bytes(text.size() * 3, '\0');
    std::int32_t length = 0;
    UErrorCode status = U_ZERO_ERROR;
    u_strToUTF8(bytes.data(), static_cast<std::int32_t>(bytes.size()), &length, text.data(),
                static_cast<std::int32_t>(text.size()), &status);
    bytes.resize(U_FAILURE(status) ? 0 : static_cast<std::size_t>(length));
    return bytes;
}

template <class Character>
int Write(std::basic_string<Character> const & answer, Character * buffer, int size)
{
    int const needed = static_cast<int>(answer.size()) + 1;
    if (size == 0)
        return needed;
    if (size < needed)
        return 0;
    std::memcpy(buffer, answer.c_str(), static_cast<std::size_t>(needed) * sizeof(Character));
    return needed;
}

template <class Character>
int WriteNumber(std::u16string const & answer, Character * buffer, int size)
{
    constexpr int needed = static_cast<int>(sizeof(std::uint32_t) / sizeof(Character));
    if (size == 0)
        return needed;
    if (size < needed)
        return 0;
    std::uint32_t number = 0;
    for (char16_t const digit : answer)
        number = number * 10 + static_cast<std::uint32_t>(digit - u'0');
    std::memcpy(buffer, &number, sizeof number);
    return needed;
}

}  // namespace

int GetLocaleInfoW(LCID lcid, LCTYPE type, char16_t * buffer, int size)
{
    LCTYPE const query = type & ~kFlags;
    bool const asNumber = (type & LOCALE_RETURN_NUMBER) != 0;
    if (size < 0 || (size > 0 && buffer == nullptr) || (asNumber && !IsNumberQuery(query)))
        return 0;
    std::optional<std::u16string> const answer = Answer(lcid, query);
    if (!answer)
        return 0;
    return asNumber ? WriteNumber(*answer, buffer, size) : Write(*answer, buffer, size);
}

int GetLocaleInfoA(LCID lcid, LCTYPE type, char * buffer, int size)
{
    LCTYPE const query = type & ~kFlags;
    bool const asNumber = (type & LOCALE_RETURN_NUMBER) != 0;
    if (size < 0 || (size > 0 && buffer == nullptr) || (asNumber && !IsNumberQuery(query)))
        return 0;
    std::optional<std::u16string> const answer = Answer(lcid, query);
    if (!answer)
        return 0;
    return asNumber ? WriteNumber(*answer, buffer, size) : Write(ToUtf8(*answer), buffer, size);
}
