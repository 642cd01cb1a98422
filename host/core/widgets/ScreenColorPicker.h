#pragma once

#include "host/core/CoreExport.h"

#include <QtCore/QList>
#include <QtCore/QObject>
#include <QtCore/QPointer>
#include <QtGui/QColor>
#include <QtGui/QPixmap>

#include <functional>

class QScreen;

namespace Korvex::Meridane::Designer {
class ScreenColorOverlay;

/**
 * Lets the user pick the colour of any pixel on any screen. The screens are shown frozen under a magnifier: a click or
 * Enter picks, the arrow keys move the pointer by one pixel, Escape and the right button cancel.
 *
 * Some window systems do not let a program see the screen; there isAvailable() is false and start() cancels at once.
 */
class MERIDANE_CORE_EXPORT ScreenColorPicker : public QObject
{
    Q_OBJECT

public:
    /** Gives the picture of a screen, or a null one when that is not allowed. */
    using Grabber = std::function<QPixmap(QScreen* screen)>;

    explicit ScreenColorPicker(QObject* parent = nullptr);
    /** With another source of pictures than the window system. */
    explicit ScreenColorPicker(Grabber grabber, QObject* parent = nullptr);
    ~ScreenColorPicker() override;

    /** Whether the window system gives out pictures of the screen. */
    [[nodiscard]] static bool isAvailable();

    /** Freezes the screens. Exactly one of picked() and cancelled() follows. Does nothing while picking. */
    void start();
    [[nodiscard]] bool isActive() const { return !m_overlays.isEmpty(); }
    void cancel();

Q_SIGNALS:
    /** Always an opaque colour. */
    void picked(const QColor& color);
    void cancelled();

private:
    void close();

    Grabber m_grabber;
    QList<QPointer<ScreenColorOverlay>> m_overlays;
};
} // namespace Korvex::Meridane::Designer
