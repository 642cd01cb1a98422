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
        m_timer.setInterval(ShortestInterval);
        QObject::connect(&m_timer, &QTimer::timeout, owner, [this, work] {
            QElapsedTimer time;
            time.start();
            work();
            m_timer.setInterval(qBound(ShortestInterval, int(time.elapsed()) * ShareOfTime, LongestInterval));
        });
    }

    /// Runs the work when it is its time. Asked again before that, it still runs once.
    void request()
    {
        if (!m_timer.isActive())
            m_timer.start();
    }
    void cancel() { m_timer.stop(); }

private:
    static constexpr int ShortestInterval = 15; // ms
    static constexpr int LongestInterval = 1000;
    static constexpr int ShareOfTime = 4;

    QTimer m_timer;
};

} // namespace Korvex::Meridane::Designer
