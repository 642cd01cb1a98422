#pragma once

#include "host/core/CoreExport.h"

#include <QtCore/QObject>

class QWidget;

namespace Korvex::Meridane::Designer {
/**
 * Tells when the keyboard focus enters and leaves a widget as a whole: its children and the popups that belong to it
 * count as inside.
 */
class MERIDANE_CORE_EXPORT FocusTracker : public QObject
{
    Q_OBJECT

public:
    /** Watches @p widget, which becomes the parent. */
    explicit FocusTracker(QWidget* widget);

Q_SIGNALS:
    void entered();
    void left();

private:
    void onFocusChanged(QWidget* old, QWidget* now);
    [[nodiscard]] bool isInside(const QWidget* widget) const;

    const QWidget* m_widget;
    bool m_inside = false;
};
} // namespace Korvex::Meridane::Designer
