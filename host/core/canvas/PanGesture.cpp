#include "host/core/canvas/PanGesture.h"

#include "host/core/canvas/CanvasView.h"

#include <QScrollBar>

namespace Korvex::Meridane::Designer {

PanGesture::PanGesture(CanvasView* view, const CanvasPointer& press)
    : Gesture(view)
    , m_press(press.viewPos)
    , m_scrolled(view->horizontalScrollBar()->value(), view->verticalScrollBar()->value())
{}

PanGesture::~PanGesture() = default;

void PanGesture::move(const CanvasPointer& pointer)
{
    const QPoint scrolled = m_scrolled - (pointer.viewPos - m_press).toPoint();
    view()->horizontalScrollBar()->setValue(scrolled.x());
    view()->verticalScrollBar()->setValue(scrolled.y());
}

void PanGesture::finish(const CanvasPointer& pointer)
{
    move(pointer);
}

void PanGesture::cancel()
{
    view()->horizontalScrollBar()->setValue(m_scrolled.x());
    view()->verticalScrollBar()->setValue(m_scrolled.y());
}

} // namespace Korvex::Meridane::Designer
