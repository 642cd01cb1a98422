#pragma once

#include "host/core/arrange/ArrangeGeometry.h"
#include "host/core/commands/UndoStack.h"

namespace Korvex::Meridane::Designer {

class DesignerObject;
class EditSession;

/**
 * Brings elements into line, by their outer rectangles as they are seen on the screen, turned as they are.
 *
 * Elements of one group are arranged in its coordinates, others in those of the screen. What is locked counts where
 * others are aligned with it, and stays where it is. An element on whole pixels stays on whole pixels where a middle or an
 * equal distance falls between them. Each is one undo step, and none when nothing moves.
 */
class MERIDANE_CORE_EXPORT Alignment
{
public:
    Alignment() = delete;

    /// Which dimensions of elements become the same.
    enum class Dimension
    {
        Width,
        Height,
        Both
    };

    /// Aligns \a objects with the outermost of them; a single one with its screen.
    static EditResult align(EditSession* session, const QList<DesignerObject*>& objects, AlignEdge edge);
    /// Distributes three or more \a objects between the outermost of them.
    static EditResult distribute(EditSession* session, const QList<DesignerObject*>& objects,
                                 Qt::Orientation orientation, SpacingKind kind);
    /// Moves \a objects together so that they stand in the middle of their screen.
    static EditResult centerOnScreen(EditSession* session, const QList<DesignerObject*>& objects);
    /// Gives \a objects the outer size of the front-most of them that has one, measured along their own sides. Their own
    /// rules hold (kept ratios, smallest sizes); one that refuses its size refuses all.
    static EditResult makeSameSize(EditSession* session, const QList<DesignerObject*>& objects, Dimension dimension);

    // Whether there is anything to do for each of them.
    [[nodiscard]] static bool canAlign(const QList<DesignerObject*>& objects);
    [[nodiscard]] static bool canDistribute(const QList<DesignerObject*>& objects);
    [[nodiscard]] static bool canMakeSameSize(const QList<DesignerObject*>& objects);
};

} // namespace Korvex::Meridane::Designer
