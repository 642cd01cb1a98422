#pragma once

#include "host/core/canvas/GraphicsItem.h"

#include <QColor>
#include <QGraphicsItem>

namespace Korvex::Meridane::Designer {

/**
 * The background of a screen: its size filled with its colour. It cannot be selected or moved.
 *
 * The elements of the screen stand beside it on the scene's top level, in front of it: there the scene's index finds
 * them, while children of one item would all be visited for every hit and every exposed spot.
 */
class MERIDANE_CORE_EXPORT GraphicsScreen : public QGraphicsItem, public GraphicsItem
{
public:
    explicit GraphicsScreen(DesignerObject* dataObject);
    ~GraphicsScreen() override;

    [[nodiscard]] QRectF boundingRect() const override;
    void paint(QPainter* painter, const QStyleOptionGraphicsItem* option, QWidget* widget) override;

    [[nodiscard]] QString className() const override;
    [[nodiscard]] QStringList classNames() const override;
    void addGraphicsItemChild(const QSharedPointer<DesignerProperty>& property, DesignerObject* object) override;
    void updateGraphicsItem(const QSharedPointer<DesignerProperty>& property) override;

    [[nodiscard]] const QColor& color() const { return m_color; }

private:
    QSizeF m_size;
    QColor m_color = Qt::white;
};

} // namespace Korvex::Meridane::Designer
