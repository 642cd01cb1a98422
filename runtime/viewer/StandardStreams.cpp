#include "runtime/viewer/StandardStreams.h"

#include "host/common/LiveMessage.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QMetaObject>
#include <QtCore/QtEndian>

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <optional>
#include <thread>

#ifdef Q_OS_WIN
#include <fcntl.h>
#include <io.h>
#endif

namespace Korvex::Meridane::Display::StandardStreams {
using Common::LiveMessage;
using Common::LiveMessageReader;

namespace {
/** What a display in an endless loop gets to come to its end. */
constexpr std::chrono::seconds EndPatience(2);

/** Whether @p bytes could be filled from the standard input. */
bool readExactly(QByteArray* bytes)
{
    return std::fread(bytes->data(), 1, std::size_t(bytes->size()), stdin) == std::size_t(bytes->size());
}

/** The next message; none at the end. */
std::optional<LiveMessage> readMessage()
{
    QByteArray head(5, Qt::Uninitialized);
    if (!readExactly(&head)) {
        return std::nullopt;
    }
    const auto length = qFromBigEndian<quint32>(head.constData());
    if (length > LiveMessageReader::LongestMessage) {
        return std::nullopt;
    }
    LiveMessage message{LiveMessage::Kind(quint8(head.at(4))), QByteArray(qsizetype(length), Qt::Uninitialized)};
    if (!readExactly(&message.values)) {
        return std::nullopt;
    }
    return message;
}
} // namespace

void readMessages(QObject* context, const std::function<void(const LiveMessage&)>& handle)
{
#ifdef Q_OS_WIN
    _setmode(_fileno(stdin), _O_BINARY);
    _setmode(_fileno(stdout), _O_BINARY);
#endif
    std::thread([context, handle] {
        while (const std::optional<LiveMessage> message = readMessage()) {
            QMetaObject::invokeMethod(
                context, [handle, message] { handle(*message); }, Qt::QueuedConnection);
        }
        QMetaObject::invokeMethod(
            context, [] { QCoreApplication::quit(); }, Qt::QueuedConnection);
        std::this_thread::sleep_for(EndPatience);
        std::_Exit(EXIT_FAILURE);
    }).detach();
}

void write(const QByteArray& bytes)
{
    std::fwrite(bytes.constData(), 1, std::size_t(bytes.size()), stdout);
    std::fflush(stdout);
}
} // namespace Korvex::Meridane::Display::StandardStreams
