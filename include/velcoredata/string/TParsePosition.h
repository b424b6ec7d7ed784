#pragma once

#include <memory>

#include "velcoredata/core/Export.h"

/// How far a parse came, in code units. Made fresh for each parse; belongs to one thread at a time.
class VELCOREDATA_API TParsePosition
{
public:
    class Impl;

    TParsePosition();
    ~TParsePosition();
    TParsePosition(TParsePosition const &) = delete;
    TParsePosition & operator=(TParsePosition const &) = delete;

    /// The position reached; 0 before a parse and after one that failed.
    int getIndex() const;
    /// The position of the error, -1 if there is none.
    int getErrorIndex() const;

    Impl & getImpl() { return *m_impl; }

private:
    std::unique_ptr<Impl> m_impl;
};
