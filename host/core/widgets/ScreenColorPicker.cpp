#include "host/core/widgets/ScreenColorPicker.h"

#include "host/core/widgets/ScreenColorOverlay.h"

#include <QtGui/QCursor>
#include <QtGui/QGuiApplication>
#include <QtGui/QScreen>

#include <utility>

namespace Korvex::Meridane::Designer {
namespace {
QPixmap grabScreen(QScreen* screen)
{
    return screen->grabWindow(0);
}
} // namespace

ScreenColorPicker::ScreenColorPicker(QObject* parent)
    : ScreenColorPicker(grabScreen, parent)
{}

ScreenColorPicker::ScreenColorPicker(Grabber grabber, QObject* parent)
    : QObject(parent)
    , m_grabber(std::move(grabber))
{}

ScreenColorPicker::~ScreenColorPicker()
{
    close();
}

bool ScreenColorPicker::isAvailable()
{
    QScreen* screen = QGuiApplication::primaryScreen();
    return screen && !screen->grabWindow(0, 0, 0, 1, 1).isNull();
}

void ScreenColorPicker::start()
{
    if (isActive()) {
        return;
    }
    const QList<QScreen*> screens = QGuiApplication::screens();
    for (QScreen* screen : screens) {
        const QPixmap picture = m_grabber(screen);
        if (picture.isNull()) {
            continue;
        }
        auto* overlay = new ScreenColorOverlay(screen, picture);
        m_overlays.append(overlay);
        connect(overlay, &ScreenColorOverlay::picked, this, [this](const QColor& color) {
            close();
            Q_EMIT picked(color);
        });
        connect(overlay, &ScreenColorOverlay::cancelled, this, &ScreenColorPicker::cancel);
    }
    if (!isActive()) {
        Q_EMIT cancelled();
        return;
    }
    const QList<QPointer<ScreenColorOverlay>> overlays = m_overlays;
    for (ScreenColorOverlay* overlay : overlays) {
        overlay->showFullScreen();
        if (overlay->geometry().contains(QCursor::pos())) {
            overlay->activateWindow();
        }
    }
}

void ScreenColorPicker::cancel()
{
    if (isActive()) {
        close();
        Q_EMIT cancelled();
    }
}

void ScreenColorPicker::close()
{
    const QList<QPointer<ScreenColorOverlay>> overlays = std::exchange(m_overlays, {});
    for (ScreenColorOverlay* overlay : overlays) {
        if (overlay) {
            overlay->disconnect(this);
            overlay->hide();
            overlay->deleteLater(); // this may run inside one of its events
        }
    }
}
} // namespace Korvex::Meridane::Designer
