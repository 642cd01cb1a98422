#pragma once

#include "runtime/GradientItem.h"

namespace Korvex::Meridane::Display {
/** An outline filled with colours that spread in circles. */
class RadialGradientElement : public Korvex::Meridane::Display::GradientItem
{
    Q_OBJECT
    /** The centre of the circles, in pixels from the item's position. */
    Q_PROPERTY(double centerX READ centerX WRITE setCenterX NOTIFY centerXChanged FINAL)
    /** The centre of the circles, in pixels from the item's position. */
    Q_PROPERTY(double centerY READ centerY WRITE setCenterY NOTIFY centerYChanged FINAL)
    /** The radius of the outermost circle in pixels. */
    Q_PROPERTY(double radius READ radius WRITE setRadius NOTIFY radiusChanged FINAL)
    /** Where the colours start, in pixels from the item's position; a point outside the circle is moved onto it. */
    Q_PROPERTY(double focalX READ focalX WRITE setFocalX NOTIFY focalXChanged FINAL)
    /** Where the colours start, in pixels from the item's position; a point outside the circle is moved onto it. */
    Q_PROPERTY(double focalY READ focalY WRITE setFocalY NOTIFY focalYChanged FINAL)
    /** How the colours go on outside the circle: 0 the last one, 1 back and forth, 2 from the start again. */
    Q_PROPERTY(int spread READ spread WRITE setSpread NOTIFY spreadChanged FINAL)
    QML_ELEMENT

public:
    explicit RadialGradientElement(QQuickItem* parent = nullptr);

    [[nodiscard]] double centerX() const { return m_centerX; }
    void setCenterX(double value) { take(m_centerX, value, &RadialGradientElement::centerXChanged); }
    [[nodiscard]] double centerY() const { return m_centerY; }
    void setCenterY(double value) { take(m_centerY, value, &RadialGradientElement::centerYChanged); }
    [[nodiscard]] double radius() const { return m_radius; }
    void setRadius(double value) { take(m_radius, value, &RadialGradientElement::radiusChanged); }
    [[nodiscard]] double focalX() const { return m_focalX; }
    void setFocalX(double value) { take(m_focalX, value, &RadialGradientElement::focalXChanged); }
    [[nodiscard]] double focalY() const { return m_focalY; }
    void setFocalY(double value) { take(m_focalY, value, &RadialGradientElement::focalYChanged); }
    [[nodiscard]] int spread() const { return m_spread; }
    void setSpread(int value) { take(m_spread, value, &RadialGradientElement::spreadChanged); }

Q_SIGNALS:
    void centerXChanged();
    void centerYChanged();
    void radiusChanged();
    void focalXChanged();
    void focalYChanged();
    void spreadChanged();

protected:
    void paintContent(QPainter* painter) const override;

private:
    double m_centerX = 50;
    double m_centerY = 37.5;
    double m_radius = 50;
    double m_focalX = 50;
    double m_focalY = 37.5;
    int m_spread = 0;
};
} // namespace Korvex::Meridane::Display
