#include "host/core/widgets/FocusTracker.h"

#include <QtWidgets/QApplication>
#include <QtWidgets/QWidget>

namespace Korvex::Meridane::Designer {
FocusTracker::FocusTracker(QWidget* widget)
    : QObject(widget)
    , m_widget(widget)
{
    connect(qApp, &QApplication::focusChanged, this, &FocusTracker::onFocusChanged);
}

void FocusTracker::onFocusChanged(QWidget* old, QWidget* now)
{
    Q_UNUSED(old);
    const bool inside = isInside(now);
    if (inside == m_inside) {
        return;
    }
    m_inside = inside;
    if (inside) {
        Q_EMIT entered();
    } else {
        Q_EMIT left();
    }
}

bool FocusTracker::isInside(const QWidget* widget) const
{
    // Unlike QWidget::isAncestorOf(), this goes on beyond the border of a window.
    while (widget && widget != m_widget) {
        widget = widget->parentWidget();
    }
    return widget != nullptr;
}
} // namespace Korvex::Meridane::Designer
