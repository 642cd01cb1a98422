#pragma once

#include <QBrush>
#include <QWidget>

namespace Korvex::Meridane::Designer {

/// A strip that shows the colours of gradient stops from left (0) to right (1), over a chequerboard where they are
/// translucent. Stops beyond 0 to 1 are left out, as on the canvas.
class GradientPreview : public QWidget
{
    Q_OBJECT

public:
    explicit GradientPreview(QWidget* parent = nullptr);
    ~GradientPreview() override;

    [[nodiscard]] const QGradientStops& gradientStops() const { return m_stops; }
    void setGradientStops(const QGradientStops& stops);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QGradientStops m_stops;
};

} // namespace Korvex::Meridane::Designer
