#include "host/core/canvas/GuideGesture.h"

#include "host/core/canvas/CanvasGuides.h"
#include "host/core/canvas/CanvasView.h"
#include "host/core/canvas/MoveGesture.h"
#include "host/core/values/ValueConversion.h"

#include "host/common/LocalizationHelper.h"

#include <QPainter>

#include <cmath>

namespace Korvex::Meridane::Designer {

GuideGesture::GuideGesture(CanvasView* view, const CanvasPointer& press, Qt::Orientation orientation, int index)
    : Gesture(view)
    , m_press(press)
    , m_index(index)
    , m_removed(index < 0)
    , m_snapping(view)
{
    m_guide = index < 0 ? Guide{orientation, 0} : view->guides()->list().at(index);
    m_snapping.leaveOutGuides();
}

GuideGesture::~GuideGesture() = default;

void GuideGesture::move(const CanvasPointer& pointer)
{
    if (!m_moved && (pointer.viewPos - m_press.viewPos).manhattanLength() < MoveGesture::threshold())
        return;
    m_moved = true;
    const bool vertical = m_guide.orientation == Qt::Vertical;
    m_removed = (vertical ? pointer.viewPos.x() : pointer.viewPos.y()) < 0;
    const double there = std::round(vertical ? pointer.scenePos.x() : pointer.scenePos.y());
    m_guide.position = there;
    if (m_removed || !m_snapping.isActive(pointer)) {
        m_snapping.hide();
        return;
    }
    const QRectF place(QPointF(there, there), QSizeF(0, 0));
    const SnapEdges edges = vertical ? SnapEdge::Left : SnapEdge::Top;
    const SnapResult result = m_snapping.snap(place, edges, false);
    m_guide.position += vertical ? result.correction.x() : result.correction.y();
}

void GuideGesture::finish(const CanvasPointer& pointer)
{
    move(pointer);
    if (!m_moved)
        return;
    CanvasGuides* guides = view()->guides();
    if (m_index < 0 && !m_removed)
        guides->add(m_guide);
    else if (m_index >= 0 && m_removed)
        guides->remove(m_index);
    else if (m_index >= 0)
        guides->move(m_index, m_guide);
}

void GuideGesture::cancel() {}

QString GuideGesture::readout() const
{
    if (!m_moved || m_removed)
        return {};
    const QString pattern = m_guide.orientation == Qt::Vertical
                                ? Common::LocalizationHelper::coreString(QStringLiteral("x %1"))
                                : Common::LocalizationHelper::coreString(QStringLiteral("y %1"));
    return pattern.arg(ValueConversion::toQmlString(m_guide.position, 2));
}

void GuideGesture::paint(QPainter* painter) const
{
    if (m_removed)
        return;
    painter->setRenderHint(QPainter::Antialiasing, false);
    painter->setPen(QPen(CanvasGuides::color(), 1));
    painter->drawLine(view()->guides()->lineOf(m_guide));
}

QRegion GuideGesture::paintedRegion() const
{
    if (m_removed)
        return {};
    const QLineF line = view()->guides()->lineOf(m_guide);
    return QRectF(line.p1(), line.p2()).adjusted(-1, -1, 1, 1).toAlignedRect() & view()->viewport()->rect();
}

} // namespace Korvex::Meridane::Designer
