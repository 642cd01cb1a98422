#pragma once

#include "host/core/objects/IDesignerObject.h"

#include "host/common/TransformOrigin.h"

#include <QPainterPath>
#include <QPointF>
#include <QPointer>
#include <QRectF>
#include <QSharedPointer>
#include <QVector>

class QGraphicsItem;

namespace Korvex::Meridane::Designer {

class DesignerObject;
class DesignerProperty;
class UndoCommand;

/**
 * The designer side of a canvas item. A canvas item class derives from QGraphicsItem first and from this second.
 *
 * The item keeps its own copy of what it draws, refreshed by updateGraphicsItem(); its data object is the source of
 * truth. A mouse gesture changes only the item; at its end updateDataObject() writes the changed values back as undo
 * commands. The item's origin is the top-left corner of the content; a border is centred on the outline.
 */
class MERIDANE_CORE_EXPORT GraphicsItem : public IDesignerObject
{
public:
    ~GraphicsItem() override;
    Q_DISABLE_COPY_MOVE(GraphicsItem)

    [[nodiscard]] QString className() const override;
    [[nodiscard]] QStringList classNames() const override;
    bool initialize() override;

    // The order of the virtual operations is part of the plug-in contract.
    /// The outline in item coordinates, rotated as the element is.
    [[nodiscard]] virtual QPainterPath getShape() const;
    /// Places the canvas item of \a object, a new item of the list \a property, below this item.
    virtual void addGraphicsItemChild(const QSharedPointer<DesignerProperty>& property, DesignerObject* object);
    virtual void removeGraphicsItemChild(const QSharedPointer<DesignerProperty>& property, DesignerObject* object);
    /// A property of the data object changed: refreshes the item. The host's part takes "position" and "rotation".
    virtual void updateGraphicsItem(const QSharedPointer<DesignerProperty>& property);
    /// A command, child of \a parent, that writes the item's state back to \a property, or null when it already holds
    /// it. The host's part takes "position" and "rotation".
    virtual UndoCommand* updateDataObject(const QSharedPointer<DesignerProperty>& property, UndoCommand* parent);
    /// The point handle under \a scenePos, or -1.
    virtual int getResizePointHandle(const QPointF& scenePos, bool* handled);
    /// The frame handle under \a scenePos, 0 to 8 in transform-origin order, 4 for none; sets the handle's tooltip.
    virtual int getResizeHandle(const QPointF& scenePos, bool* handled);
    /// Drags a handle to \a scenePos. The host's part drags frame handles and ends in resizeGraphicsItem().
    virtual void resizeByMouse(int handle, const QPointF& scenePos);
    /// Applies a frame resize to the item's own geometry: \a outerSize is the outer size wanted and \a position the
    /// item position that belongs to it. The item keeps its limits and ratio and the side opposite \a handle in place.
    virtual void resizeGraphicsItem(int handle, const QSizeF& outerSize, const QPointF& position);
    /// Fills \a parent with the commands that write a finished resize back.
    virtual void updateResizedDataObjects(int handle, UndoCommand* parent);
    /// Turns the item to \a angle (degrees, clockwise) about the element's fixed point.
    virtual void rotateByMouse(double angle);
    virtual void selectedChanged(bool selected);
    /// The smallest outer side, in pixels; 1 unless overridden.
    [[nodiscard]] virtual double minSize() const;
    /// The outline alone, grown by its border, in item coordinates; the size that "boundingSize" holds. Handles sit on
    /// it. QGraphicsItem::boundingRect() may be larger (dots, highlights).
    [[nodiscard]] virtual QRectF outerRect() const;
    /// The content rectangle, in item coordinates, on which the fixed point of a rotation is found.
    [[nodiscard]] virtual QRectF contentRect() const;
    // End of the contract's order.

    /// Whether the item offers its eight frame handles at present: it is resizable, not rotated, and large enough on the
    /// screen. The canvas draws them then.
    [[nodiscard]] virtual bool hasFrameHandles() const;
    /// Whether there is room to draw the frame handle \a handle, hasFrameHandles() given: not where a point handle lies.
    [[nodiscard]] virtual bool showsFrameHandle(int handle) const;
    /// Where the point handles of getResizePointHandle() lie at present, in item coordinates, for the canvas to draw;
    /// none unless overridden.
    [[nodiscard]] virtual QVector<QPointF> pointHandles() const;
    /// The outline or the place of a child item changed; nothing unless overridden.
    virtual void childOutlineChanged();

    [[nodiscard]] DesignerObject* dataObject() const;
    [[nodiscard]] QGraphicsItem* graphic() const { return m_graphic; }

    /// The handle hit width: 5 screen pixels in item units, so it shrinks as the view zooms in.
    [[nodiscard]] double detectionWidth() const;
    [[nodiscard]] bool isResizable() const { return m_resizable; }
    void setResizable(bool resizable) { m_resizable = resizable; }
    [[nodiscard]] bool isRotatable() const { return m_rotatable; }
    void setRotatable(bool rotatable) { m_rotatable = rotatable; }
    /// Whether the item's rotation is neither 0, 360 nor -360.
    [[nodiscard]] bool isRotated() const;

    /// True while the item itself writes "boundingSize" or a mouse resize is in progress: the element then does not
    /// derive its size from it.
    [[nodiscard]] bool isChangingSize() const { return m_changingSize; }
    void setChangingSize(bool changing) { m_changingSize = changing; }

    /// To be called after every change of the outline: puts the fixed point of the rotation where it belongs, tells the
    /// parent item, and writes the outer size into the element's "boundingSize" where it differs, rounded to 6 decimals.
    void reportOuterSize();
    /// The same for a freshly filled item: "boundingSize" is filled, without hooks, record or announcement.
    void fillOuterSize();
    /// Updates the item from every property of its data object that converts, by rank.
    void updateFromDataObject();
    /// The point about which the item turns, in item coordinates.
    [[nodiscard]] QPointF fixedPoint() const;
    /// Moves the item to \a position in its parent's coordinates and tells the parent item.
    void setItemPosition(const QPointF& position);
    /// Whether the outer rectangle is larger than 10 screen pixels in both directions; smaller ones have no handles.
    [[nodiscard]] bool isLargeEnoughForHandles() const;
    /// The tooltip "type: id" of the element; shown unless a handle is under the mouse.
    [[nodiscard]] QString nameToolTip() const;
    /// Shows \a text (a handle's) as tooltip until the name's is asked for again.
    void setHandleToolTip(const QString& text);
    /// Shows the name as tooltip. Cheap when it is shown already.
    void showNameToolTip();
    /// For paint(): shows the name as tooltip unless a handle is under the mouse.
    void refreshToolTip();
    /// Forgets the cached name tooltip; called when the element's id changed.
    void nameChanged();

    /// The item of a QGraphicsItem of ours, or null.
    [[nodiscard]] static GraphicsItem* fromGraphic(QGraphicsItem* graphic);

protected:
    GraphicsItem(DesignerObject* dataObject, QGraphicsItem* graphic);

    /// What a frame resize comes to: the new outer size and the item position that belongs to it.
    struct FrameChange
    {
        QSizeF outerSize;
        QPointF position;
    };
    /// The frame resize that resizeGraphicsItem() is asked for, with the kept ratio and minSize() observed and the side
    /// or corner opposite \a handle in place. For items whose outer rectangle keeps its offset from the item's origin.
    [[nodiscard]] FrameChange frameChange(int handle, const QSizeF& outerSize) const;
    /// The item position with which the side or corner opposite \a handle stays where it is when the outer rectangle, in
    /// item coordinates, becomes \a outerRect.
    [[nodiscard]] QPointF positionKeepingOpposite(int handle, const QRectF& outerRect) const;
    /// Puts the rotation's fixed point where it belongs on the present content; called after the geometry changed.
    void updateTransformOrigin();
    /// What reportOuterSize() does before it writes: for an outline that changed while "boundingSize" is to stay.
    void outlineChanged();
    /// "keepRatio" when it converts and is above 0, else 0.
    [[nodiscard]] double keptRatio() const;
    /// A command that sets \a property to \a value unless it already holds it (then null); shared by all items.
    [[nodiscard]] UndoCommand* writeBack(const QSharedPointer<DesignerProperty>& property, const QString& value,
                                         UndoCommand* parent) const;
    /// \a outline turned about the element's fixed point as "rotation" says, in item coordinates.
    [[nodiscard]] QPainterPath rotatedShape(const QPainterPath& outline) const;

    /// Whether \a point, in item coordinates, would be drawn over the frame handle \a handle.
    [[nodiscard]] bool liesOnFrameHandle(const QPointF& point, int handle) const;

private:
    [[nodiscard]] QString outerSizeText(const QSharedPointer<DesignerProperty>& boundingSize) const;
    void setItemRotation(double angle);
    void tellParent();

    QPointer<DesignerObject> m_dataObject;
    QGraphicsItem* m_graphic;
    mutable QString m_nameToolTip;
    Common::TransformOrigin m_fixedPoint = Common::Center;
    bool m_handleToolTip = false;
    bool m_resizable = false;
    bool m_rotatable = false;
    bool m_changingSize = false;
};

} // namespace Korvex::Meridane::Designer
