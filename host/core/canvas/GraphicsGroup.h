#pragma once

#include "host/core/canvas/GraphicsItem.h"

#include <QGraphicsItem>

namespace Korvex::Meridane::Designer {

/// The canvas item of a group: its children move and turn with it; it draws nothing itself but the selection's frame
/// around their outlines. It can be moved and rotated, not resized.
class MERIDANE_CORE_EXPORT GraphicsGroup : public QGraphicsItem, public GraphicsItem
{
public:
    explicit GraphicsGroup(DesignerObject* dataObject);
    ~GraphicsGroup() override;

    [[nodiscard]] QRectF boundingRect() const override;
    /// Empty: a group is hit through its children.
    [[nodiscard]] QPainterPath shape() const override;
    void paint(QPainter* painter, const QStyleOptionGraphicsItem* option, QWidget* widget) override;

    [[nodiscard]] QString className() const override;
    [[nodiscard]] QStringList classNames() const override;
    /// The union of the children's shapes, rotated as the group is.
    [[nodiscard]] QPainterPath getShape() const override;
    /// Children take part in the selection of their group: a moving picture plays while its group is selected.
    void selectedChanged(bool selected) override;
    [[nodiscard]] QRectF outerRect() const override;
    /// From the group's origin to the far corner of its children, as the exported group is sized.
    [[nodiscard]] QRectF contentRect() const override;
    void childOutlineChanged() override;

private:
    void measure() const;

    mutable QRectF m_outer; // the children's outer rectangles as they are turned
    mutable QRectF m_unturned; // the same as if no child were turned
    mutable bool m_measured = false;
};

} // namespace Korvex::Meridane::Designer
