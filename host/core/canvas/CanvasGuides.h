#pragma once

#include "host/core/CoreExport.h"
#include "host/core/snapping/Guides.h"

#include <QCursor>
#include <QLineF>
#include <QPointer>

class QPainter;

namespace Korvex::Meridane::Designer {

class CanvasView;
class Screen;

/// The guides of the screen that a view shows: found under the mouse, drawn, changed as undo steps.
class MERIDANE_CORE_EXPORT CanvasGuides
{
public:
    /// Owned by \a view.
    explicit CanvasGuides(CanvasView* view);

    [[nodiscard]] QList<Guide> list() const;
    /// The guide near a point of the viewport, or -1.
    [[nodiscard]] int indexAt(const QPointF& viewPos) const;

    /// Each is one undo step, and none where nothing changes.
    void add(const Guide& guide);
    void move(int index, const Guide& guide);
    void remove(int index);
    void clear();

    /// Draws all guides but the one at \a exceptFor, in viewport pixels.
    void paint(QPainter* painter, int exceptFor = -1) const;
    /// Where a guide is drawn on the viewport.
    [[nodiscard]] QLineF lineOf(const Guide& guide) const;
    [[nodiscard]] static QColor color();
    /// What the mouse looks like over a guide.
    [[nodiscard]] static QCursor cursor(Qt::Orientation orientation);

private:
    [[nodiscard]] Guides stored() const;
    void store(const Guides& guides, const QString& text);

    CanvasView* m_view;
};

} // namespace Korvex::Meridane::Designer
