#pragma once

#include <QEvent>
#include <QImage>
#include <QWidget>

namespace Korvex::Meridane::Designer {

/// Shows the picture of a running display, as large as there is room for, and takes the mouse for it.
class LiveView : public QWidget
{
    Q_OBJECT

public:
    explicit LiveView(QWidget* parent = nullptr);

    /// \a frame: the picture, of any number of pixels; null for none. \a displaySize: what it shows, in pixels of the
    /// display.
    void setFrame(const QImage& frame, const QSizeF& displaySize);
    /// The pixels of a frame for one of the display that look best here: one, or more where there is room for them.
    [[nodiscard]] double wantedScale() const;
    /// Where the picture stands, in pixels of the widget; empty without a display.
    [[nodiscard]] QRectF picturePlace() const;

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

Q_SIGNALS:
    /// \a place: pixels of the display.
    void mouseMoved(QEvent::Type type, const QPointF& place, Qt::MouseButton button, Qt::MouseButtons buttons,
                    Qt::KeyboardModifiers modifiers);
    void wheelTurned(const QPointF& place, const QPoint& angle, Qt::MouseButtons buttons,
                     Qt::KeyboardModifiers modifiers);
    void wantedScaleChanged();

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    [[nodiscard]] QPointF toDisplay(const QPointF& place) const;
    [[nodiscard]] const QImage& scaledTo(const QSize& pixels);

    QImage m_frame;
    QImage m_scaled; // the frame in pixels of this screen
    QSizeF m_displaySize;
};

} // namespace Korvex::Meridane::Designer
