#include "host/core/canvas/MoveGesture.h"

#include "host/core/canvas/CanvasNumbers.h"
#include "host/core/canvas/CanvasScene.h"
#include "host/core/canvas/CanvasView.h"
#include "host/core/canvas/GraphicsItem.h"
#include "host/core/objects/DesignerObject.h"

#include "host/common/LocalizationHelper.h"

#include <QApplication>
#include <QGraphicsItem>

#include <algorithm>

namespace Korvex::Meridane::Designer {

namespace {

constexpr SnapEdges AllHorizontal = SnapEdge::Left | SnapEdge::HorizontalCenter | SnapEdge::Right;
constexpr SnapEdges AllVertical = SnapEdge::Top | SnapEdge::VerticalCenter | SnapEdge::Bottom;

} // namespace

MoveGesture::MoveGesture(CanvasView* view, const CanvasPointer& press, DesignerObject* grabbed, Click click)
    : EditGesture(view, press)
    , m_grabbed(grabbed)
    , m_click(click)
{}

MoveGesture::~MoveGesture() = default;

int MoveGesture::threshold()
{
    // The platform's distance is made for dragging files; for placing things by the pixel it is too coarse.
    constexpr int Largest = 3;
    return std::clamp(QApplication::startDragDistance(), 1, Largest);
}

bool MoveGesture::start(const CanvasPointer& pointer)
{
    if (hasBegun())
        return true;
    const CanvasScene* scene = view()->canvasScene();
    if (!scene || !m_grabbed || (pointer.viewPos - press().viewPos).manhattanLength() < threshold())
        return false;
    QList<DesignerObject*> moving = scene->movableRoots();
    if (moving.isEmpty())
        return false;
    // The grabbed element first: it is the one that the readout is about.
    const auto grabbed = std::find(moving.begin(), moving.end(), m_grabbed.data());
    if (grabbed != moving.end())
        std::rotate(moving.begin(), grabbed, grabbed + 1);
    begin(moving);
    for (const DesignerObject* object : std::as_const(moving)) {
        const GraphicsItem* item = object->graphicsItem();
        m_positions.append(item->graphic()->pos());
        m_extent |= item->graphic()->sceneTransform().mapRect(item->outerRect());
    }
    m_wholePixels = isWhole(item()->graphic()->scenePos());
    snapping().setMoving(moving);
    return true;
}

void MoveGesture::move(const CanvasPointer& pointer)
{
    if (!start(pointer))
        return;
    QPointF way = wayTo(pointer);
    SnapEdges edges = SnapEdge::All;
    if (pointer.modifiers.testFlag(Qt::ShiftModifier)) {
        const bool vertical = std::abs(way.x()) < std::abs(way.y());
        (vertical ? way.rx() : way.ry()) = 0;
        edges = vertical ? AllVertical : AllHorizontal;
    }
    snapping().hide();
    // Back at the start everything stands where it stood.
    if (snapping().isActive(pointer) && !way.isNull()) {
        const SnapResult snapped = snapping().snap(m_extent.translated(way), edges, m_wholePixels);
        way += snapped.correction;
        snapping().show(m_extent.translated(way), edges, snapped);
    }
    for (int i = 0; i < objects().size(); ++i) {
        GraphicsItem* moving = objects().at(i) ? objects().at(i)->graphicsItem() : nullptr;
        if (!moving)
            continue;
        const QPointF start = m_positions.at(i);
        const QGraphicsItem* parent = moving->graphic()->parentItem();
        const QPointF there = parent ? parent->mapFromScene(parent->mapToScene(start) + way) : start + way;
        moving->setItemPosition(way.isNull() ? start : withoutNoise(there));
    }
}

void MoveGesture::finish(const CanvasPointer& pointer)
{
    EditGesture::finish(pointer);
    CanvasScene* scene = view()->canvasScene();
    if (hasBegun() || !scene || !m_grabbed)
        return;
    if (m_click == Click::SelectAlone) {
        scene->setSelectedObjects({m_grabbed});
    } else if (m_click == Click::SelectBeneath) {
        const QList<DesignerObject*> there = scene->elementsAt(pointer.scenePos);
        const qsizetype present = there.indexOf(m_grabbed);
        if (present >= 0)
            scene->setSelectedObjects({there.at((present + 1) % there.size())});
    } else if (m_click == Click::Deselect) {
        QList<DesignerObject*> selected = scene->selectedObjects();
        selected.removeOne(m_grabbed);
        scene->setSelectedObjects(selected);
    }
}

QString MoveGesture::stepName() const
{
    return Common::LocalizationHelper::coreString(QStringLiteral("Move %1"));
}

QString MoveGesture::stepNameOfSeveral(int count) const
{
    return Common::LocalizationHelper::coreString(QStringLiteral("Move %n Element"), QStringLiteral("Move %n Elements"),
                                                  count);
}

} // namespace Korvex::Meridane::Designer
