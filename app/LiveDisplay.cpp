#include "app/LiveDisplay.h"

#include "app/CoreText.h"
#include "app/PreviewRunner.h"

#include "host/common/LiveMessage.h"

#include <QDir>
#include <QProcess>

#include <algorithm>
#include <cstring>

namespace Korvex::Meridane::Designer {

using Common::LiveMessage;
using Common::LiveMessageReader;

namespace {

constexpr int FirstDelay = 250; // ms before the first new start; doubled each time
constexpr int LongestDelay = 8000;
constexpr qint64 StableAfter = 10000; // ms of running after which failures are forgotten
constexpr int EndPatience = 1000; // ms for a process that was killed to be gone

} // namespace

LiveDisplay::LiveDisplay(const QString& program, QObject* parent)
    : QObject(parent)
    , m_program(program.isEmpty() ? PreviewRunner::installedViewer() : program)
{
    m_restartTimer.setSingleShot(true);
    connect(&m_restartTimer, &QTimer::timeout, this, &LiveDisplay::start);
    m_answerTimer.setSingleShot(true);
    m_answerTimer.setInterval(AnswerPatience);
    connect(&m_answerTimer, &QTimer::timeout, this,
            [this] { fail(coreText("The display does not answer; what it runs may be without an end.")); });
}

LiveDisplay::~LiveDisplay()
{
    end();
}

void LiveDisplay::start()
{
    if (m_process)
        return;
    m_restartTimer.stop();
    m_reader = std::make_unique<LiveMessageReader>();
    m_process = std::make_unique<QProcess>();
    QProcess* process = m_process.get();
    connect(process, &QProcess::started, this, [this] {
        m_running = true;
        m_runningSince.start();
        Q_EMIT started();
    });
    connect(process, &QProcess::readyReadStandardOutput, this, &LiveDisplay::read);
    connect(process, &QProcess::errorOccurred, this, [this](QProcess::ProcessError error) {
        if (error == QProcess::FailedToStart)
            fail(QDir::toNativeSeparators(m_program) + QLatin1String(": ") + m_process->errorString());
    });
    connect(process, &QProcess::finished, this, [this](int, QProcess::ExitStatus status) {
        const QString output = QString::fromUtf8(m_process->readAllStandardError()).trimmed();
        QString reason = output.section(QLatin1Char('\n'), -1);
        if (reason.isEmpty())
            reason = status == QProcess::CrashExit ? coreText("it has crashed") : coreText("it gave no reason");
        fail(coreText("The display has ended: %1").arg(reason));
    });
    process->start(m_program, {QStringLiteral("--live")});
}

void LiveDisplay::stop()
{
    end();
    m_failures = 0;
    m_frame = {};
}

void LiveDisplay::restart()
{
    stop();
    start();
}

qint64 LiveDisplay::processId() const
{
    return m_process ? m_process->processId() : 0;
}

void LiveDisplay::end()
{
    m_restartTimer.stop();
    m_answerTimer.stop();
    m_awaited = 0;
    m_running = false;
    if (!m_process)
        return;
    // It has nothing to save, so that nobody has to wait for it.
    std::unique_ptr<QProcess> process = std::move(m_process);
    process->disconnect(this);
    if (process->state() == QProcess::NotRunning) {
        // It may be the one whose signal is being handled.
        process.release()->deleteLater();
        return;
    }
    process->kill();
    process->waitForFinished(EndPatience);
    process.release()->deleteLater();
}

void LiveDisplay::fail(const QString& reason)
{
    if (m_running && m_runningSince.elapsed() > StableAfter)
        m_failures = 0;
    end();
    ++m_failures;
    const bool givenUp = m_failures >= MostFailures;
    if (!givenUp)
        m_restartTimer.start(std::min(FirstDelay << (m_failures - 1), LongestDelay));
    Q_EMIT failed(reason, givenUp);
}

void LiveDisplay::read()
{
    m_reader->add(m_process->readAllStandardOutput());
    while (const std::optional<LiveMessage> message = m_reader->next()) {
        handle(*message);
        if (!m_running)
            return;
    }
    if (m_reader->isBroken())
        fail(coreText("The display sends what no display sends."));
}

void LiveDisplay::handle(const LiveMessage& message)
{
    quint32 number = 0;
    QStringList complaints;
    QSize size;
    QRect part;
    QByteArray pixels;
    switch (message.kind) {
    case LiveMessage::Kind::Done:
        if (!message.read(number, complaints) || number != m_awaited)
            return;
        m_awaited = 0;
        m_answerTimer.stop();
        Q_EMIT complained(complaints);
        if (isReady())
            Q_EMIT ready();
        break;
    case LiveMessage::Kind::Warnings:
        if (message.read(complaints))
            Q_EMIT complained(complaints);
        break;
    case LiveMessage::Kind::Frame:
        if (message.read(size, part, pixels))
            takeFrame(size, part, pixels);
        break;
    default:
        break;
    }
}

void LiveDisplay::takeFrame(const QSize& size, const QRect& part, const QByteArray& pixels)
{
    constexpr qint64 MostPixels = 100'000'000;
    if (!size.isValid() || qint64(size.width()) * size.height() > MostPixels || part.isEmpty()
        || !QRect(QPoint(0, 0), size).contains(part) || pixels.size() != qsizetype(part.width()) * part.height() * 4)
        return;
    if (m_frame.size() != size) {
        m_frame = QImage(size, QImage::Format_ARGB32_Premultiplied);
        m_frame.fill(Qt::transparent);
    }
    const qsizetype lineBytes = qsizetype(part.width()) * 4;
    for (int y = 0; y < part.height(); ++y) {
        std::memcpy(m_frame.scanLine(part.top() + y) + qsizetype(part.left()) * 4, pixels.constData() + y * lineBytes,
                    std::size_t(lineBytes));
    }
    send(LiveMessage::compose(LiveMessage::Kind::FrameTaken));
    Q_EMIT frameChanged();
}

void LiveDisplay::openProject(const QString& folder, const QSizeF& size)
{
    send(LiveMessage::compose(LiveMessage::Kind::Project, folder, size));
}

void LiveDisplay::showScreen(const QString& id, const QByteArray& qml, const QStringList& elements)
{
    send(LiveMessage::compose(LiveMessage::Kind::Screen, nextNumber(), id, qml, elements));
}

void LiveDisplay::replaceElements(const QMap<QString, QByteArray>& qml)
{
    send(LiveMessage::compose(LiveMessage::Kind::Elements, nextNumber(), qml));
}

void LiveDisplay::setScale(double scale)
{
    send(LiveMessage::compose(LiveMessage::Kind::Scale, scale));
}

void LiveDisplay::sendMouse(QEvent::Type type, const QPointF& place, Qt::MouseButton button, Qt::MouseButtons buttons,
                            Qt::KeyboardModifiers modifiers)
{
    send(LiveMessage::compose(LiveMessage::Kind::Mouse, quint8(type), place, quint32(button), quint32(buttons),
                              quint32(modifiers)));
}

void LiveDisplay::sendWheel(const QPointF& place, const QPoint& angle, Qt::MouseButtons buttons,
                            Qt::KeyboardModifiers modifiers)
{
    send(LiveMessage::compose(LiveMessage::Kind::Wheel, place, angle, quint32(buttons), quint32(modifiers)));
}

void LiveDisplay::send(const QByteArray& bytes)
{
    if (m_running)
        m_process->write(bytes);
}

quint32 LiveDisplay::nextNumber()
{
    m_awaited = ++m_lastNumber;
    m_answerTimer.start();
    return m_awaited;
}

} // namespace Korvex::Meridane::Designer
