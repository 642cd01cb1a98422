#include "host/core/canvas/CanvasGuides.h"

#include "host/core/canvas/CanvasScene.h"
#include "host/core/canvas/CanvasView.h"
#include "host/core/canvas/EditSession.h"
#include "host/core/commands/ChangeEditorMark.h"
#include "host/core/objects/EditorMarks.h"
#include "host/core/objects/Screen.h"
#include "host/core/project/Project.h"

#include "host/common/LocalizationHelper.h"

#include <QPainter>

#include <cmath>

namespace Korvex::Meridane::Designer {

using Common::LocalizationHelper;

CanvasGuides::CanvasGuides(CanvasView* view)
    : m_view(view)
{}

QList<Guide> CanvasGuides::list() const
{
    return stored().list();
}

int CanvasGuides::indexAt(const QPointF& viewPos) const
{
    constexpr double Reach = 3; // screen pixels
    const QList<Guide> guides = list();
    int nearest = -1;
    double distance = Reach;
    for (int i = 0; i < guides.size(); ++i) {
        const QPointF place = lineOf(guides.at(i)).p1();
        const double away = guides.at(i).orientation == Qt::Vertical ? std::abs(place.x() - viewPos.x())
                                                                     : std::abs(place.y() - viewPos.y());
        if (away <= distance) {
            nearest = i;
            distance = away;
        }
    }
    return nearest;
}

void CanvasGuides::add(const Guide& guide)
{
    Guides guides = stored();
    guides.append(guide);
    store(guides, LocalizationHelper::coreString(QStringLiteral("Add Guide")));
}

void CanvasGuides::move(int index, const Guide& guide)
{
    Guides guides = stored();
    if (guides.list().value(index) == guide)
        return;
    guides.replace(index, guide);
    store(guides, LocalizationHelper::coreString(QStringLiteral("Move Guide")));
}

void CanvasGuides::remove(int index)
{
    Guides guides = stored();
    guides.remove(index);
    store(guides, LocalizationHelper::coreString(QStringLiteral("Remove Guide")));
}

void CanvasGuides::clear()
{
    Guides guides = stored();
    guides.clear();
    store(guides, LocalizationHelper::coreString(QStringLiteral("Clear Guides")));
}

void CanvasGuides::paint(QPainter* painter, int exceptFor) const
{
    const QList<Guide> guides = list();
    if (guides.isEmpty())
        return;
    painter->setRenderHint(QPainter::Antialiasing, false);
    painter->setPen(QPen(color(), 1));
    for (int i = 0; i < guides.size(); ++i) {
        if (i != exceptFor)
            painter->drawLine(lineOf(guides.at(i)));
    }
}

QLineF CanvasGuides::lineOf(const Guide& guide) const
{
    const QRectF viewport = m_view->viewport()->rect();
    const QPointF place = m_view->viewportTransform().map(QPointF(guide.position, guide.position));
    if (guide.orientation == Qt::Vertical) {
        const double x = std::floor(place.x()) + 0.5;
        return {x, viewport.top(), x, viewport.bottom()};
    }
    const double y = std::floor(place.y()) + 0.5;
    return {viewport.left(), y, viewport.right(), y};
}

QColor CanvasGuides::color()
{
    return {0, 152, 214};
}

QCursor CanvasGuides::cursor(Qt::Orientation orientation)
{
    return orientation == Qt::Vertical ? Qt::SplitHCursor : Qt::SplitVCursor;
}

Guides CanvasGuides::stored() const
{
    const CanvasScene* scene = m_view->canvasScene();
    return scene ? Guides::fromText(scene->screen()->editorMark(EditorMarks::guides())) : Guides();
}

void CanvasGuides::store(const Guides& guides, const QString& text)
{
    const CanvasScene* scene = m_view->canvasScene();
    if (!scene)
        return;
    auto command = std::make_unique<ChangeEditorMark>(scene->screen(), EditorMarks::guides(), guides.toText(), nullptr);
    command->setText(text);
    EditSession* session = m_view->session();
    const EditResult result = session->project()->execute(std::move(command));
    if (!result.accepted)
        Q_EMIT session->editRefused(result.message);
}

} // namespace Korvex::Meridane::Designer
