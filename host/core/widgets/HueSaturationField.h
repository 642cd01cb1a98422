#pragma once

#include "host/core/CoreExport.h"

#include <QtGui/QImage>
#include <QtWidgets/QWidget>

namespace Korvex::Meridane::Designer {
/**
 * A field in which a point picks hue (from left to right) and saturation (from bottom to top). The arrow keys move the
 * point by a hundredth, with Shift by a tenth.
 */
class MERIDANE_CORE_EXPORT HueSaturationField : public QWidget
{
    Q_OBJECT

public:
    explicit HueSaturationField(QWidget* parent = nullptr);

    /** Both from 0 to 1; hue 1 is the red of hue 0 again, at the right edge. */
    [[nodiscard]] double hue() const { return m_hue; }
    [[nodiscard]] double saturation() const { return m_saturation; }
    /** Moves the point, silently; values beyond the ends go to the ends. */
    void setHueAndSaturation(double hue, double saturation);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

Q_SIGNALS:
    /** The user has moved the point. */
    void userModified();
    void gestureStarted();
    void gestureFinished();

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void finishGesture();
    [[nodiscard]] QRectF fieldRect() const;
    void edit(double hue, double saturation);
    void editAt(const QPointF& point);
    void describe();

    double m_hue = 0;
    double m_saturation = 0;
    bool m_gesture = false;
    QImage m_field; // painted when first needed, in device pixels
};
} // namespace Korvex::Meridane::Designer
