#pragma once

#include "runtime/GradientItem.h"

namespace Korvex::Meridane::Display {
/** An outline filled with colours that run along a line. */
class LinearGradientElement : public Korvex::Meridane::Display::GradientItem
{
    Q_OBJECT
    /** Where the line starts, in percent of the outline's bounding rectangle. */
    Q_PROPERTY(double startX READ startX WRITE setStartX NOTIFY startXChanged FINAL)
    /** Where the line starts, in percent of the outline's bounding rectangle. */
    Q_PROPERTY(double startY READ startY WRITE setStartY NOTIFY startYChanged FINAL)
    /** Where the line ends, in percent of the outline's bounding rectangle. */
    Q_PROPERTY(double stopX READ stopX WRITE setStopX NOTIFY stopXChanged FINAL)
    /** Where the line ends, in percent of the outline's bounding rectangle. */
    Q_PROPERTY(double stopY READ stopY WRITE setStopY NOTIFY stopYChanged FINAL)
    QML_ELEMENT

public:
    explicit LinearGradientElement(QQuickItem* parent = nullptr);

    [[nodiscard]] double startX() const { return m_startX; }
    void setStartX(double value) { take(m_startX, value, &LinearGradientElement::startXChanged); }
    [[nodiscard]] double startY() const { return m_startY; }
    void setStartY(double value) { take(m_startY, value, &LinearGradientElement::startYChanged); }
    [[nodiscard]] double stopX() const { return m_stopX; }
    void setStopX(double value) { take(m_stopX, value, &LinearGradientElement::stopXChanged); }
    [[nodiscard]] double stopY() const { return m_stopY; }
    void setStopY(double value) { take(m_stopY, value, &LinearGradientElement::stopYChanged); }

Q_SIGNALS:
    void startXChanged();
    void startYChanged();
    void stopXChanged();
    void stopYChanged();

protected:
    void paintContent(QPainter* painter) const override;

private:
    double m_startX = 0;
    double m_startY = 0;
    double m_stopX = 100;
    double m_stopY = 100;
};
} // namespace Korvex::Meridane::Display
