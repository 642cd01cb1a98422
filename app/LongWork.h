#pragma once

#include <QElapsedTimer>
#include <QString>

#include <memory>

class QProgressDialog;

namespace Korvex::Meridane::Designer {

/// A work that may take long: after half a second a window says how far it has come and can end it.
class LongWork
{
public:
    /// \a text: what is being done, for the user.
    explicit LongWork(const QString& text);
    ~LongWork();
    Q_DISABLE_COPY_MOVE(LongWork)

    /// To be called before each step; false when the user has ended the work. While the window stands, other events are
    /// handled here, but no input beside it.
    bool step(int done, int total);
    [[nodiscard]] bool isEnded() const { return m_ended; }
    /// Shows the window after \a milliseconds; tests have no half a second.
    static void setPatience(int milliseconds);

private:
    QString m_text;
    QElapsedTimer m_time;
    qint64 m_shownAt = 0; // ms
    std::unique_ptr<QProgressDialog> m_dialog;
    bool m_ended = false;
};

} // namespace Korvex::Meridane::Designer
