#pragma once

#include "host/core/CoreExport.h"

#include <QtCore/QString>
#include <QtWidgets/QWidget>

namespace Korvex::Meridane::Designer {
/**
 * A rectangle with nine points of which one is chosen: the fixed point of a rotation. A click chooses the nearest
 * point, the arrow keys go to the neighbour, Home to the top left, End to the bottom right.
 */
class MERIDANE_CORE_EXPORT NineGrid : public QWidget
{
    Q_OBJECT

public:
    /** The centre is chosen. */
    explicit NineGrid(QWidget* parent = nullptr);

    /** The name of the chosen point, "TopLeft" … "BottomRight"; while the state is mixed, the one set before. */
    [[nodiscard]] QString fixedPoint() const;
    /** Chooses the point called @p name, silently; another text changes nothing. */
    void setFixedPoint(const QString& name);

    /** Shows no point as chosen, for several values that differ, until setFixedPoint() or an edit. */
    void setMixed(bool mixed);
    [[nodiscard]] bool isMixed() const { return m_mixed; }

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

Q_SIGNALS:
    /** The user has chosen another point. */
    void userModified();
    void focusedIn();
    void focusedOut();

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    [[nodiscard]] QRectF frame() const;
    [[nodiscard]] QPointF pointPosition(int index) const;
    [[nodiscard]] int pointAt(const QPointF& position) const;
    void choose(int index);
    void setHovered(int index);
    void describe();

    int m_chosen; // row by row, 0 … 8
    int m_hovered = -1;
    bool m_mixed = false;
};
} // namespace Korvex::Meridane::Designer
