#pragma once

#include "host/core/CoreExport.h"

#include <QtWidgets/QSlider>

namespace Korvex::Meridane::Designer {
/**
 * A horizontal slider over real numbers. A click beside the handle moves the handle there. A drag is one gesture;
 * Escape during the drag goes back to where it began. The wheel acts only on the focused slider.
 */
class MERIDANE_CORE_EXPORT NumberSlider : public QSlider
{
    Q_OBJECT

public:
    explicit NumberSlider(QWidget* parent = nullptr);

    /**
     * The ends of the slider, the distance of an arrow key, and how finely it divides the range. Silent. A range that
     * is empty or not finite disables the handle at the left end.
     */
    void setNumbers(double minimum, double maximum, double singleStep, int decimals);

    /** Moves the handle, silently; a number beyond an end goes to that end. */
    void setNumber(double number);

    /** The number under the handle, not rounded to the decimals. */
    [[nodiscard]] double number() const;

Q_SIGNALS:
    /** The user has moved the handle. */
    void numberMoved(double number);
    void gestureStarted();
    void gestureFinished();

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    bool event(QEvent* event) override;

private:
    [[nodiscard]] int positionAt(double x) const;
    void finishGesture();

    double m_minimum = 0;
    double m_maximum = 100;
    int m_positionBefore = 0;
    bool m_gesture = false;
};
} // namespace Korvex::Meridane::Designer
