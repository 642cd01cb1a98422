#pragma once

#include <QElapsedTimer>
#include <QTimer>

namespace Korvex::Meridane::Designer {

/// Lets something that follows the user's work run as often as the machine manages beside that work: not more than about
/// sixty times a second, and never for more than a fifth of the time.
class UpdatePace
{
public:
    template <typename Work>
    UpdatePace(QObject* owner, const Work& work)
    {
        m_timer.setSingleShot(true);
        QObject::connect(&m_timer, &QTimer::timeout, owner, [this, work] {
            QElapsedTimer time;
            time.start();
            work();
            m_pause = qMin(int(time.elapsed()) * ShareOfTime, LongestInterval);
            m_sinceWork.start();
        });
    }

    /// Runs the work when it is its time. Asked again before that, it still runs once.
    void request()
    {
        if (m_timer.isActive())
            return;
        const int rest = m_sinceWork.isValid() ? m_pause - int(qMin<qint64>(m_sinceWork.elapsed(), m_pause)) : 0;
        m_timer.start(qMax(rest, ShortestInterval));
    }
    void cancel() { m_timer.stop(); }

private:
    static constexpr int ShortestInterval = 15; // ms
    static constexpr int LongestInterval = 1000;
    static constexpr int ShareOfTime = 4;

    QTimer m_timer;
    QElapsedTimer m_sinceWork;
    int m_pause = 0; // ms that the work has to rest
};

} // namespace Korvex::Meridane::Designer
