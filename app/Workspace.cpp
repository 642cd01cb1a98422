#include "app/Workspace.h"

#include "app/CanvasImageDrop.h"
#include "app/CanvasPanel.h"
#include "app/CoreText.h"
#include "app/ElementInsertion.h"
#include "app/ElementPalette.h"
#include "app/HistoryPanel.h"
#include "app/ImagePanel.h"
#include "app/ProjectTree.h"
#include "app/ProjectTreePanel.h"

#include "host/core/canvas/CanvasView.h"
#include "host/core/canvas/EditSession.h"
#include "host/core/canvas/GraphicsItem.h"
#include "host/core/objects/Screen.h"
#include "host/core/project/Project.h"
#include "host/core/sheet/PropertySheet.h"

#include <QGraphicsItem>

namespace Korvex::Meridane::Designer {

Workspace::Workspace(EditSession* session, ElementPalette* palette)
    : m_session(session)
    , m_palette(palette)
    , m_canvasPanel(new CanvasPanel(session))
    , m_imageDrop(new CanvasImageDrop(m_canvasPanel->view()))
    , m_tree(new ProjectTree(session))
    , m_treePanel(new ProjectTreePanel(m_tree))
    , m_images(new ImagePanel(session))
    , m_sheet(new PropertySheet(session))
    , m_history(new HistoryPanel(session))
{
    m_sheet->setFrameShape(QFrame::NoFrame);
    m_sheet->setAccessibleName(coreText("Properties"));
    CanvasView* view = canvas();
    connect(palette, &ElementPalette::armed, this, [view](const QString& className) {
        view->setPlacementClass(className);
        if (!className.isEmpty())
            view->setFocus();
    });
    connect(palette, &ElementPalette::insertRequested, this, &Workspace::insertInView);
    connect(view, &CanvasView::placementFinished, palette, &ElementPalette::disarm);
    connect(session, &EditSession::editRefused, this, &Workspace::refused);
    connect(m_tree, &ProjectTree::refused, this, &Workspace::refused);
    connect(m_images, &ImagePanel::objectsRequested, this, &Workspace::show);
    connect(m_canvasPanel, &CanvasPanel::addScreenRequested, this, [this] { m_session->addScreen(); });
}

Workspace::~Workspace()
{
    canvas()->cancelGesture();
    m_palette->disarm();
    delete m_history;
    delete m_sheet;
    delete m_images;
    delete m_treePanel;
    delete m_canvasPanel;
}

CanvasView* Workspace::canvas() const
{
    return m_canvasPanel->view();
}

void Workspace::goTo(const QString& object)
{
    const QString screenId = object.section(QLatin1Char('/'), 0, 0);
    const QString elementId = object.section(QLatin1Char('/'), 1);
    Screen* screen = m_session->project()->screen(screenId);
    if (!screen)
        return;
    m_session->setCurrentScreen(screen);
    DesignerObject* found = elementId.isEmpty() ? screen : screen->element(elementId);
    if (found)
        show({found});
}

void Workspace::show(const QList<DesignerObject*>& objects)
{
    m_session->setSelection(objects);
    QRectF place;
    for (const DesignerObject* object : objects) {
        if (const GraphicsItem* item = object->graphicsItem())
            place |= item->graphic()->sceneBoundingRect();
    }
    if (!place.isNull())
        canvas()->ensureVisible(place);
}

void Workspace::insertInView(const QString& className)
{
    const QPointF center = canvas()->mapToScene(canvas()->viewport()->rect().center());
    const EditResult result = ElementInsertion::insertAt(m_session, className, center);
    if (!result.accepted)
        Q_EMIT refused(result.message);
}

} // namespace Korvex::Meridane::Designer
