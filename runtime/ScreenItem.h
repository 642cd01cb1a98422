#pragma once

#include <QtGui/QColor>
#include <QtQml/qqmlregistration.h>
#include <QtQuick/QQuickItem>

namespace Korvex::Meridane::Display {
/**
 * The root of an exported screen: an area of one colour, 800 × 480 pixels unless width and height say otherwise, that
 * shows nothing of its children outside itself. In QML it is used as Screen, by way of Screen.qml.
 */
class ScreenItem : public QQuickItem
{
    Q_OBJECT
    /** The colour of the ground; white unless set, and it may be translucent. */
    Q_PROPERTY(QColor color READ color WRITE setColor NOTIFY colorChanged FINAL)
    QML_ELEMENT

public:
    explicit ScreenItem(QQuickItem* parent = nullptr);

    [[nodiscard]] QColor color() const;
    void setColor(const QColor& color);

Q_SIGNALS:
    void colorChanged();

protected:
    QSGNode* updatePaintNode(QSGNode* node, UpdatePaintNodeData* data) override;

private:
    QColor m_color = Qt::white;
};
} // namespace Korvex::Meridane::Display
