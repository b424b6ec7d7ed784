// Throw sites. Each site has one 32-bit code, written once as a literal of eight upper-case hexadecimal digits; these
// macros form both the number and the name of the error from that literal, so that the two cannot differ.
#pragma once

#include <type_traits>

#include "velsys/LogicException.h"
#include "velsys/TError.h"
#include "velsys/VeltriaError.h"
#include "velsys/VeltriaException.h"

namespace detail {

constexpr bool IsErrorCodeLiteral(char const * text)
{
    if (text[0] != '0' || text[1] != 'x')
        return false;
    for (int i = 2; i < 10; ++i)
        if (!((text[i] >= '0' && text[i] <= '9') || (text[i] >= 'A' && text[i] <= 'F')))
            return false;
    return text[10] == '\0';
}

// A literal becomes a string; every other message is passed on as it is.
inline TStringCore AsMessage(char16_t const * literal)
{
    return TStringCore(literal);
}
template <class Message>
    requires(!std::is_array_v<Message> && !std::is_pointer_v<Message>)
Message const & AsMessage(Message const & message) noexcept
{
    return message;
}

// Kept out of line so that a throw site costs its caller one call.
template <class Exception, class Message>
[[noreturn, gnu::cold, gnu::noinline]] void ThrowAt(Message const & message, unsigned code, char16_t const * name,
                                                    TError::ErrorSource source = TError::ErrorSource::General,
                                                    grpc::StatusCode status = grpc::StatusCode::UNKNOWN)
{
    throw Exception(AsMessage(message), TError::ErrorInfo(VeltriaError::MakeError(code, name), source, status));
}

}  // namespace detail

// `throw exceptionClass(message, ErrorInfo(error, 4, 2))` with the error <class>_AutoGen_0x<code>.
#define VELTRIA_THROW(exceptionClass, code, message)                                                                   \
    do {                                                                                                               \
        static_assert(::detail::IsErrorCodeLiteral(#code), "0x and eight upper-case digits");                          \
        ::detail::ThrowAt<exceptionClass>(message, code, u"" #exceptionClass "_AutoGen_" #code);                       \
    } while (false)

// The same for an error with a name of its own: <class>_<named error>_0x<code>.
#define VELTRIA_THROW_NAMED(exceptionClass, namedError, code, source, status, message)                                 \
    do {                                                                                                               \
        static_assert(::detail::IsErrorCodeLiteral(#code), "0x and eight upper-case digits");                          \
        ::detail::ThrowAt<exceptionClass>(message, code, u"" #exceptionClass "_" #namedError "_" #code,                \
                                          static_cast<TError::ErrorSource>(source),                                    \
                                          static_cast<grpc::StatusCode>(status));                                      \
    } while (false)

// Raises a LogicException with `text` and the error LogicException_LogicAssert_0x<code>.
#define VELTRIA_FAIL(text, code)                                                                                       \
    do {                                                                                                               \
        static_assert(::detail::IsErrorCodeLiteral(#code), "0x and eight upper-case digits");                          \
        ::ThrowLogicException(__FILE__, __LINE__, text,                                                                \
                              ::VeltriaError::MakeError(code, u"LogicException_LogicAssert_" #code));                  \
    } while (false)

#define VELTRIA_ASSERT_TEXT(condition, text, code)                                                                     \
    do {                                                                                                               \
        if (!(condition)) [[unlikely]]                                                                                 \
            VELTRIA_FAIL(text, code);                                                                                  \
    } while (false)

// The text is the condition as it stands in the source.
#define VELTRIA_ASSERT(condition, code) VELTRIA_ASSERT_TEXT(condition, #condition, code)
