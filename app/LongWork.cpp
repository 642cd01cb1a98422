#include "app/LongWork.h"

#include "app/CoreText.h"

#include <QApplication>
#include <QProgressDialog>

namespace Korvex::Meridane::Designer {

namespace {

constexpr qint64 RepaintInterval = 40; // ms; showing the progress takes time itself
int s_patience = 500; // ms

} // namespace

LongWork::LongWork(const QString& text)
    : m_text(text)
{
    m_time.start();
}

LongWork::~LongWork() = default;

void LongWork::setPatience(int milliseconds)
{
    s_patience = milliseconds;
}

bool LongWork::step(int done, int total)
{
    const qint64 now = m_time.elapsed();
    if (m_ended || now < s_patience || (m_dialog && now - m_shownAt < RepaintInterval))
        return !m_ended;
    m_shownAt = now;
    if (!m_dialog) {
        m_dialog =
            std::make_unique<QProgressDialog>(m_text, coreText("Cancel"), 0, total, QApplication::activeWindow());
        m_dialog->setObjectName(QStringLiteral("LongWork"));
        m_dialog->setWindowTitle(QApplication::applicationDisplayName());
        m_dialog->setWindowModality(Qt::ApplicationModal);
        m_dialog->setMinimumDuration(0);
        m_dialog->show();
    }
    m_dialog->setMaximum(total);
    m_dialog->setValue(done);
    QApplication::processEvents();
    m_ended = m_dialog->wasCanceled();
    return !m_ended;
}

} // namespace Korvex::Meridane::Designer
