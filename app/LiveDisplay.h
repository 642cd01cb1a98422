#pragma once

#include <QElapsedTimer>
#include <QEvent>
#include <QImage>
#include <QMap>
#include <QObject>
#include <QStringList>
#include <QTimer>

#include <memory>

class QProcess;

namespace Korvex::Meridane::Common {
class LiveMessageReader;
struct LiveMessage;
} // namespace Korvex::Meridane::Common

namespace Korvex::Meridane::Designer {

/**
 * A running display without a window, in a process of its own: it is told what to show and gives back its frames. Whatever
 * happens to it, the designer goes on.
 *
 * One that ends or does not answer is started again, later each time, until it has run for a while; after MostFailures in a
 * row it is left alone until restart(). Nothing here waits.
 */
class LiveDisplay : public QObject
{
    Q_OBJECT

public:
    static constexpr int MostFailures = 5;
    /// A display that has not carried out a message after this time, in ms, is ended.
    static constexpr int AnswerPatience = 10000;

    /// \a program: the viewer; empty for the one that lies beside this program.
    explicit LiveDisplay(const QString& program = {}, QObject* parent = nullptr);
    ~LiveDisplay() override;

    void start();
    void stop();
    /// Starts anew at once, earlier failures forgotten.
    void restart();

    /// Whether what comes next would be shown without waiting for something before it.
    [[nodiscard]] bool isReady() const { return m_running && m_awaited == 0; }
    /// The last whole picture; null before the first.
    [[nodiscard]] const QImage& frame() const { return m_frame; }
    /// For how long a message may remain unanswered, in ms.
    void setPatience(int milliseconds) { m_answerTimer.setInterval(milliseconds); }
    /// The process, or 0.
    [[nodiscard]] qint64 processId() const;

    /// The folder of images and fonts, and the size of the display; a screen has to follow.
    void openProject(const QString& folder, const QSizeF& size);
    /// \a elements: the ids of those directly on the screen, back to front.
    void showScreen(const QString& id, const QByteArray& qml, const QStringList& elements);
    /// The QML of files with one element of the shown screen each, by id.
    void replaceElements(const QMap<QString, QByteArray>& qml);
    /// Pixels of a frame for one of the display.
    void setScale(double scale);
    /// \a place: pixels of the display.
    void sendMouse(QEvent::Type type, const QPointF& place, Qt::MouseButton button, Qt::MouseButtons buttons,
                   Qt::KeyboardModifiers modifiers);
    void sendWheel(const QPointF& place, const QPoint& angle, Qt::MouseButtons buttons,
                   Qt::KeyboardModifiers modifiers);

Q_SIGNALS:
    /// The display runs and knows nothing yet: project, scale and screen are to be sent.
    void started();
    /// isReady() is true again.
    void ready();
    void frameChanged();
    /// What QML complained about, empty when it did not: about what was sent last, or while it ran.
    void complained(const QStringList& complaints);
    /// The display has ended by itself. \a message: for the user. \a givenUp: restart() is needed.
    void failed(const QString& message, bool givenUp);

private:
    void end();
    void fail(const QString& reason);
    void read();
    void handle(const Common::LiveMessage& message);
    void takeFrame(const QSize& size, const QRect& part, const QByteArray& pixels);
    void send(const QByteArray& bytes);
    [[nodiscard]] quint32 nextNumber();

    QString m_program;
    std::unique_ptr<QProcess> m_process;
    std::unique_ptr<Common::LiveMessageReader> m_reader;
    QImage m_frame;
    QTimer m_restartTimer;
    QTimer m_answerTimer;
    QElapsedTimer m_runningSince;
    quint32 m_lastNumber = 0;
    quint32 m_awaited = 0; // the number of the message that has to be answered; 0: none
    int m_failures = 0;
    bool m_running = false;
};

} // namespace Korvex::Meridane::Designer
