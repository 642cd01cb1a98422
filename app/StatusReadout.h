#pragma once

#include <QPointF>
#include <QWidget>

class QLabel;

namespace Korvex::Meridane::Designer {

/// What the status bar tells of the canvas: the pointer's position, and the geometry while a gesture runs.
class StatusReadout : public QWidget
{
    Q_OBJECT

public:
    explicit StatusReadout(QWidget* parent = nullptr);

    [[nodiscard]] QString pointerText() const;
    [[nodiscard]] QString gestureText() const;

public Q_SLOTS:
    /// \a scenePos: pixels of the display.
    void showPointer(const QPointF& scenePos);
    void showGesture(const QString& text);
    void clear();

private:
    QLabel* m_gesture;
    QLabel* m_pointer;
};

} // namespace Korvex::Meridane::Designer
