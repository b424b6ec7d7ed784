#include "velcoredata/string/TParsePosition.h"

#include "main/string/TParsePositionImpl.h"

TParsePosition::TParsePosition() : m_impl(std::make_unique<Impl>()) {}

TParsePosition::~TParsePosition() = default;

int TParsePosition::getIndex() const
{
    return m_impl->GetPosition().getIndex();
}

int TParsePosition::getErrorIndex() const
{
    return m_impl->GetPosition().getErrorIndex();
}
