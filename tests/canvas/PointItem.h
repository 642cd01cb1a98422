#pragma once

#include "host/core/canvas/GraphicsItem.h"
#include "host/core/objects/VisualElement.h"

#include <QGraphicsItem>
#include <QPolygonF>

namespace Korvex::Meridane::Designer::Test {

/// An element made of a list of points, "points", with a derived "boundingSize". Its size is refused where it would reach
/// further than 1000 pixels.
class PointElement : public VisualElement
{
    Q_OBJECT

public:
    explicit PointElement(QObject* parent = nullptr);
    QString className() const override { return QStringLiteral("PointElement"); }
    QStringList classNames() const override { return VisualElement::classNames() << className(); }
    GraphicsItem* createGraphicsItem() override;
    bool initializeProperties() override;

private:
    QSharedPointer<DesignerProperty> m_points;
    QSharedPointer<DesignerProperty> m_boundingSize;
};

/// Its canvas item: every point is a handle. Takes the handle numbers of resizeByMouse() for points, as items with point
/// handles do.
class PointItem : public QGraphicsItem, public GraphicsItem
{
public:
    explicit PointItem(DesignerObject* dataObject);

    QRectF boundingRect() const override;
    QPainterPath shape() const override;
    void paint(QPainter* painter, const QStyleOptionGraphicsItem* option, QWidget* widget) override;

    void updateGraphicsItem(const QSharedPointer<DesignerProperty>& property) override;
    UndoCommand* updateDataObject(const QSharedPointer<DesignerProperty>& property, UndoCommand* parent) override;
    int getResizePointHandle(const QPointF& scenePos, bool* handled) override;
    void resizeByMouse(int handle, const QPointF& scenePos) override;
    void resizeGraphicsItem(int handle, const QSizeF& outerSize, const QPointF& position) override;
    void updateResizedDataObjects(int handle, UndoCommand* parent) override;
    QVector<QPointF> pointHandles() const override { return m_points; }
    void selectedChanged(bool selected) override;
    void keyPressEvent(QKeyEvent* event) override;

    QList<bool> selections; ///< what selectedChanged() was called with
    QList<int> keys; ///< the keys that were pressed

private:
    void setPoints(const QPolygonF& points);

    QPolygonF m_points;
};

} // namespace Korvex::Meridane::Designer::Test
