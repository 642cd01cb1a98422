#pragma once

#include "host/core/CoreExport.h"

#include <QtGui/QColor>
#include <QtWidgets/QAbstractSlider>

namespace Korvex::Meridane::Designer {
/** A horizontal slider from 0 to 255 whose groove shows the colours that it leads to. */
class MERIDANE_CORE_EXPORT ColorChannelSlider : public QAbstractSlider
{
    Q_OBJECT

public:
    explicit ColorChannelSlider(QWidget* parent = nullptr);

    /** The colours at 0 and at 255; translucent ones lie on a checkerboard. */
    void setEnds(const QColor& first, const QColor& last);

    /** Moves the handle, silently. */
    void setChannel(int channel);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

Q_SIGNALS:
    /** The user has moved the handle. */
    void userModified();
    void gestureStarted();
    void gestureFinished();

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    void finishGesture();
    [[nodiscard]] QRectF grooveRect() const;
    void moveTo(double x);

    QColor m_first = QColor(Qt::black);
    QColor m_last = QColor(Qt::white);
};
} // namespace Korvex::Meridane::Designer
