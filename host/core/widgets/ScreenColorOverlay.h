#pragma once

#include "host/core/CoreExport.h"

#include <QtGui/QColor>
#include <QtGui/QImage>
#include <QtWidgets/QWidget>

class QScreen;

namespace Korvex::Meridane::Designer {
/** The frozen picture of one screen, over the whole screen, with a magnifier beside the pointer. */
class MERIDANE_CORE_EXPORT ScreenColorOverlay : public QWidget
{
    Q_OBJECT

public:
    /** A window without parent, deleted by its creator. @p picture holds the screen's device pixels. */
    ScreenColorOverlay(QScreen* screen, const QPixmap& picture);

    /** The colour under a point of the window; invalid outside the picture. */
    [[nodiscard]] QColor colorAt(const QPointF& point) const;

Q_SIGNALS:
    void picked(const QColor& color);
    /** Escape, the right button, or the window was closed. */
    void cancelled();

protected:
    void paintEvent(QPaintEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

private:
    [[nodiscard]] QPoint pixelAt(const QPointF& point) const;
    [[nodiscard]] QRectF magnifierRect() const;
    void pick(const QPointF& point);
    void movePointer(int dx, int dy);

    QImage m_picture;
    double m_ratio; // device pixels of the picture in one pixel of the window
    QPointF m_pointer;
};
} // namespace Korvex::Meridane::Designer
