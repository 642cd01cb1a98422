#include "host/core/canvas/RubberBandGesture.h"

#include "host/core/canvas/CanvasScene.h"
#include "host/core/canvas/CanvasView.h"
#include "host/core/canvas/EditSession.h"
#include "host/core/canvas/MoveGesture.h"
#include "host/core/objects/DesignerObject.h"

#include <QPainter>
#include <QPalette>

namespace Korvex::Meridane::Designer {

RubberBandGesture::RubberBandGesture(CanvasView* view, const CanvasPointer& press)
    : Gesture(view)
    , m_press(press)
    , m_now(press)
{
    const QList<DesignerObject*> selected = view->canvasScene()->selectedObjects();
    m_selectedBefore = {selected.cbegin(), selected.cend()};
}

RubberBandGesture::~RubberBandGesture() = default;

void RubberBandGesture::move(const CanvasPointer& pointer)
{
    m_now = pointer;
    CanvasScene* scene = view()->canvasScene();
    if (!scene || paintedRect().isEmpty())
        return;
    QList<DesignerObject*> selected = scene->elementsIn(QRectF(m_press.scenePos, m_now.scenePos).normalized());
    if (m_press.modifiers & (Qt::ControlModifier | Qt::ShiftModifier)) {
        for (const auto& object : std::as_const(m_selectedBefore)) {
            if (object)
                selected.append(object);
        }
    }
    scene->setSelectedObjects(selected);
}

void RubberBandGesture::finish(const CanvasPointer& pointer)
{
    move(pointer);
    if (!paintedRect().isEmpty() || (m_press.modifiers & (Qt::ControlModifier | Qt::ShiftModifier)))
        return;
    // The session may have selected what the scene does not know: Delete must not meet a screen that was chosen in the tree.
    if (EditSession* session = view()->session())
        session->setSelection({});
    else if (CanvasScene* scene = view()->canvasScene())
        scene->setSelectedObjects({});
}

void RubberBandGesture::cancel()
{
    QList<DesignerObject*> selected;
    for (const auto& object : std::as_const(m_selectedBefore)) {
        if (object)
            selected.append(object);
    }
    if (CanvasScene* scene = view()->canvasScene())
        scene->setSelectedObjects(selected);
}

void RubberBandGesture::paint(QPainter* painter) const
{
    const QRect band = paintedRect();
    if (band.isEmpty())
        return;
    const QColor color = view()->palette().color(QPalette::Highlight);
    QColor inside = color;
    inside.setAlpha(40);
    painter->fillRect(band, inside);
    painter->setBrush(Qt::NoBrush);
    painter->setPen(QPen(color, 1));
    painter->drawRect(band.adjusted(0, 0, -1, -1));
}

QRect RubberBandGesture::paintedRect() const
{
    if ((m_now.viewPos - m_press.viewPos).manhattanLength() < MoveGesture::threshold())
        return {};
    return QRectF(m_press.viewPos, m_now.viewPos).normalized().toAlignedRect().adjusted(0, 0, 1, 1);
}

} // namespace Korvex::Meridane::Designer
