#include "host/common/LiveMessage.h"

#include <QtCore/QtEndian>

namespace Korvex::Meridane::Common {
namespace {
constexpr qsizetype HeadLength = 5;
} // namespace

QByteArray LiveMessage::framed(Kind kind, const QByteArray& body)
{
    QByteArray message(HeadLength, Qt::Uninitialized);
    qToBigEndian(quint32(body.size()), message.data());
    message[4] = char(kind);
    return message + body;
}

void LiveMessageReader::add(const QByteArray& bytes)
{
    if (!m_broken) {
        m_bytes.append(bytes);
    }
}

std::optional<LiveMessage> LiveMessageReader::next()
{
    if (m_broken || m_bytes.size() - m_read < HeadLength) {
        return std::nullopt;
    }
    const char* head = m_bytes.constData() + m_read;
    const auto length = qFromBigEndian<quint32>(head);
    if (length > LongestMessage) {
        m_broken = true;
        m_bytes.clear();
        return std::nullopt;
    }
    if (m_bytes.size() - m_read - HeadLength < qsizetype(length)) {
        // What was read goes when there is nothing else to do.
        m_bytes.remove(0, std::exchange(m_read, 0));
        return std::nullopt;
    }
    LiveMessage message{LiveMessage::Kind(quint8(head[4])), m_bytes.mid(m_read + HeadLength, length)};
    m_read += HeadLength + qsizetype(length);
    if (m_read == m_bytes.size()) {
        m_bytes.clear();
        m_read = 0;
    }
    return message;
}
} // namespace Korvex::Meridane::Common
