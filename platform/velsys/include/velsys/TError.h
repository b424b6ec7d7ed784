// TError::ErrorInfo: what an exception carries beside its message: the throw site's identity, where the fault lies, and
// the status a remote caller would be given.
#pragma once

#include <utility>

#include "velsys/VeltriaError.h"

#if __has_include(<grpcpp/support/status_code_enum.h>)
#include <grpcpp/support/status_code_enum.h>
#else
namespace grpc {
// The status codes of gRPC, by their published numbers.
enum StatusCode
{
    OK = 0,
    CANCELLED = 1,
    UNKNOWN = 2,
    INVALID_ARGUMENT = 3,
    DEADLINE_EXCEEDED = 4,
    NOT_FOUND = 5,
    ALREADY_EXISTS = 6,
    PERMISSION_DENIED = 7,
    RESOURCE_EXHAUSTED = 8,
    FAILED_PRECONDITION = 9,
    ABORTED = 10,
    OUT_OF_RANGE = 11,
    UNIMPLEMENTED = 12,
    INTERNAL = 13,
    UNAVAILABLE = 14,
    DATA_LOSS = 15,
    UNAUTHENTICATED = 16,
    DO_NOT_USE = -1
};
}  // namespace grpc
#endif

namespace TError {

// Where the fault lies. The numbers are part of the contract; three of them are in use.
enum class ErrorSource : int
{
    User = 1,      // the input of a user
    DataType = 2,  // a value of another type than was asked for
    General = 4    // everything else
};

class ErrorInfo
{
public:
    ErrorInfo(VeltriaError const & error, ErrorSource source, grpc::StatusCode status)
        : m_error(error), m_source(source), m_status(status)
    {}

    VeltriaError const & GetError() const noexcept { return m_error; }
    ErrorSource GetSource() const noexcept { return m_source; }
    grpc::StatusCode GetStatus() const noexcept { return m_status; }

private:
    VeltriaError m_error;
    ErrorSource m_source;
    grpc::StatusCode m_status;
};

}  // namespace TError
