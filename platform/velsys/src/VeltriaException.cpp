#include "velsys/VeltriaException.h"

#include <ostream>

VeltriaException::VeltriaException(TStringCore const & message)
    : VeltriaException(message, TError::ErrorInfo(VeltriaError::MakeError(0, TStringCore()),
                                                  TError::ErrorSource::General, grpc::StatusCode::UNKNOWN))
{}

VeltriaException::VeltriaException(TStringCore const & message, TError::ErrorInfo const & info)
    : m_message(message), m_info(info)
{}

VeltriaException::VeltriaException(TFormatStringCore const & message, TError::ErrorInfo const & info)
    : m_message(message.Text()), m_info(info)
{}

VeltriaException::VeltriaException(VeltriaException const &) = default;
VeltriaException & VeltriaException::operator=(VeltriaException const &) = default;
VeltriaException::~VeltriaException() = default;

VeltriaException * VeltriaException::Clone() const
{
    return new VeltriaException(*this);
}

void VeltriaException::Throw() const
{
    VeltriaException copy(*this);
    throw copy;
}

TStringCore VeltriaException::GetConcatenatedMessages() const
{
    return m_message;
}

TStringCore VeltriaException::GetMessagesFront() const
{
    return m_message.toQString().section(u'\n', 0, 0);
}

TStringCore VeltriaException::CollateMessagesForLog() const
{
    QString text = m_message.toQString();
    text.replace(u'\n', u' ');
    if (m_info.GetError().GetName().length() > 0)
        text += QStringLiteral(" [") + m_info.GetError().GetName().toQString() + u']';
    return text;
}

std::ostream & operator<<(std::ostream & out, VeltriaException const & exception)
{
    return out << exception.CollateMessagesForLog().toQString().toStdString();
}
