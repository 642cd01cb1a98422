#pragma once

#include "host/core/commands/UndoCommand.h"

#include <QPointer>
#include <QRectF>
#include <QTransform>

namespace Korvex::Meridane::Designer {

/// Where and how far turned an element is on its screen.
struct ElementPlace
{
    QTransform toScene; ///< from the element's own coordinates; moves and turns, nothing else
    double angle = 0; ///< the sum of the rotations that are in it, in degrees, clockwise
};

/// Where elements lie that have canvas items, as their items know it.
class MERIDANE_CORE_EXPORT ElementPlaces
{
public:
    ElementPlaces() = delete;

    /// The place of \a object; that of the screen for what has no item or is the screen.
    [[nodiscard]] static ElementPlace placeOf(const DesignerObject* object);
    /// From the coordinates of \a object to those of its parent.
    [[nodiscard]] static QTransform toParent(const DesignerObject* object);
    /// The upright rectangle around the outer rectangles of \a object, or of what a group holds, as \a transform, from
    /// the object's own coordinates, turns and moves them; null for nothing.
    [[nodiscard]] static QRectF outerBounds(const DesignerObject* object, const QTransform& transform);
    /// The same for the content, without borders.
    [[nodiscard]] static QRectF contentBounds(const DesignerObject* object, const QTransform& transform);

    /// The elements among \a objects that have items, in z-order; what stands in another of them comes with that one.
    /// Those of the first one's screen.
    [[nodiscard]] static QList<DesignerObject*> roots(const QList<DesignerObject*>& objects);
    /// \a objects without what is locked, or has no position that can be changed.
    [[nodiscard]] static QList<DesignerObject*> movable(QList<DesignerObject*> objects);
};

/**
 * Gives elements places on their screen by their positions and rotations, each about its own fixed point; executed after
 * the commands that gave them new parents or siblings. A value that is right already is not touched.
 */
class MERIDANE_CORE_EXPORT PlaceElements : public UndoCommand
{
public:
    explicit PlaceElements(UndoCommand* parent);
    ~PlaceElements() override;

    /// Puts \a object at \a place.
    void put(DesignerObject* object, const ElementPlace& place);
    /// Keeps \a container, and what it stands in, where it is now, whatever comes and goes in it.
    void keep(DesignerObject* container);

    [[nodiscard]] bool isValid() const override;

protected:
    void execute() override;

private:
    struct Target
    {
        QPointer<DesignerObject> object;
        ElementPlace place;
    };
    [[nodiscard]] ElementPlace wantedPlace(const DesignerObject* object) const;

    QList<Target> m_targets;
};

} // namespace Korvex::Meridane::Designer
