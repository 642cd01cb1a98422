#pragma once

#include "runtime/GradientItem.h"

namespace Korvex::Meridane::Display {
/** An outline filled with colours that sweep around a centre. */
class ConicalGradientElement : public Korvex::Meridane::Display::GradientItem
{
    Q_OBJECT
    /** The centre, in percent of the outline's bounding rectangle. */
    Q_PROPERTY(double centerX READ centerX WRITE setCenterX NOTIFY centerXChanged FINAL)
    /** The centre, in percent of the outline's bounding rectangle. */
    Q_PROPERTY(double centerY READ centerY WRITE setCenterY NOTIFY centerYChanged FINAL)
    /** Where the sweep starts, in degrees clockwise from the x axis. */
    Q_PROPERTY(double startAngle READ startAngle WRITE setStartAngle NOTIFY startAngleChanged FINAL)
    QML_ELEMENT

public:
    explicit ConicalGradientElement(QQuickItem* parent = nullptr);

    [[nodiscard]] double centerX() const { return m_centerX; }
    void setCenterX(double value) { take(m_centerX, value, &ConicalGradientElement::centerXChanged); }
    [[nodiscard]] double centerY() const { return m_centerY; }
    void setCenterY(double value) { take(m_centerY, value, &ConicalGradientElement::centerYChanged); }
    [[nodiscard]] double startAngle() const { return m_startAngle; }
    void setStartAngle(double value) { take(m_startAngle, value, &ConicalGradientElement::startAngleChanged); }

Q_SIGNALS:
    void centerXChanged();
    void centerYChanged();
    void startAngleChanged();

protected:
    void paintContent(QPainter* painter) const override;

private:
    double m_centerX = 50;
    double m_centerY = 50;
    double m_startAngle = 0;
};
} // namespace Korvex::Meridane::Display
