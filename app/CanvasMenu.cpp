#include "app/CanvasMenu.h"

#include "app/CoreText.h"
#include "app/ElementPicture.h"
#include "app/MenuText.h"

#include "host/core/canvas/CanvasScene.h"
#include "host/core/canvas/CanvasView.h"
#include "host/core/canvas/EditSession.h"
#include "host/core/canvas/GraphicsItem.h"
#include "host/core/objects/DesignerObject.h"

#include <QGraphicsItem>
#include <QMenu>

namespace Korvex::Meridane::Designer {

CanvasMenu::CanvasMenu(CanvasView* view, const QList<QAction*>& actions)
    : QObject(view)
    , m_view(view)
    , m_actions(actions)
{
    view->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(view, &QWidget::customContextMenuRequested, this, [this](const QPoint& viewPos) {
        QMenu* menu = make(viewPos);
        menu->setAttribute(Qt::WA_DeleteOnClose);
        menu->popup(m_view->viewport()->mapToGlobal(viewPos));
    });
}

QMenu* CanvasMenu::make(const QPoint& viewPos)
{
    auto* menu = new QMenu(m_view);
    menu->setObjectName(QStringLiteral("CanvasMenu"));
    addElements(menu->addMenu(coreText("Selec&t Under the Pointer")), viewPos);
    menu->addSeparator();
    for (QAction* action : std::as_const(m_actions)) {
        if (!action)
            menu->addSeparator();
        else if (action->isEnabled())
            menu->addAction(action);
    }
    return menu;
}

void CanvasMenu::addElements(QMenu* menu, const QPoint& viewPos)
{
    const CanvasScene* scene = m_view->canvasScene();
    const QList<DesignerObject*> elements =
        scene ? scene->elementsAt(m_view->viewportTransform().inverted().map(QPointF(viewPos)))
              : QList<DesignerObject*>();
    menu->menuAction()->setEnabled(!elements.isEmpty());
    for (DesignerObject* element : elements) {
        QString name = element->getIdName();
        QAction* entry = menu->addAction(ElementPicture::icon(element->className()),
                                         name.replace(QLatin1Char('&'), QLatin1String("&&")));
        entry->setCheckable(true);
        entry->setChecked(element->graphicsItem()->graphic()->isSelected());
        const QPointer<DesignerObject> target = element;
        connect(entry, &QAction::hovered, m_view, [this, target] { m_view->setOutlined(target); });
        connect(entry, &QAction::triggered, m_view, [this, target] {
            if (target)
                m_view->session()->setSelection({target});
        });
    }
    connect(menu, &QMenu::aboutToHide, m_view, [this] { m_view->setOutlined(nullptr); });
}

} // namespace Korvex::Meridane::Designer
