#include "host/core/accessibility/CanvasAnnouncer.h"

#include "host/core/accessibility/AccessibleCanvas.h"
#include "host/core/accessibility/AccessibleElement.h"
#include "host/core/canvas/CanvasView.h"
#include "host/core/canvas/EditSession.h"
#include "host/core/objects/EditorMarks.h"
#include "host/core/objects/Screen.h"
#include "host/core/objects/VisualElement.h"
#include "host/core/project/Project.h"
#include "host/core/properties/DesignerProperty.h"

namespace Korvex::Meridane::Designer {

namespace {

/// How many elements of a new selection are announced one by one; of more, only that there is another selection.
constexpr qsizetype MostAnnounced = 20;

CanvasAnnouncer::Listener installedListener = nullptr;

QAccessibleInterface* makeInterface(const QString&, QObject* object)
{
    if (auto* view = qobject_cast<CanvasView*>(object))
        return new AccessibleCanvas(view);
    if (auto* element = qobject_cast<VisualElement*>(object))
        return new AccessibleElement(element);
    return nullptr;
}

} // namespace

void CanvasAnnouncer::attach(CanvasView* view)
{
    QAccessible::installFactory(makeInterface);
    new CanvasAnnouncer(view);
}

CanvasAnnouncer::CanvasAnnouncer(CanvasView* view)
    : QObject(view)
    , m_view(view)
{
    const EditSession* session = view->session();
    const Project* project = session->project();
    connect(session, &EditSession::selectionChanged, this, &CanvasAnnouncer::announceSelection);
    connect(session, &EditSession::currentScreenChanged, this,
            [this] { announce(nullptr, QAccessible::ObjectReorder); });
    connect(project, &Project::objectAdded, this,
            [this](DesignerObject* object) { announce(object, QAccessible::ObjectCreated); });
    connect(project, &Project::objectReordered, this, [this](DesignerObject* object) {
        DesignerObject* owner = object->parentObject();
        announce(isOnCanvas(owner) ? owner : nullptr, QAccessible::ObjectReorder);
    });
    connect(project, &Project::objectRemoved, this, [this](DesignerObject*, DesignerObject* parent) {
        announce(isOnCanvas(parent) ? parent : nullptr, QAccessible::ObjectReorder);
    });
    connect(project, &Project::objectRenamed, this,
            [this](DesignerObject* object) { announce(object, QAccessible::NameChanged); });
    connect(project, &Project::objectPropertyChanged, this, &CanvasAnnouncer::announceValue);
    connect(project, &Project::objectMarked, this, [this](DesignerObject* object, const QString& mark) {
        QAccessible::State changed;
        changed.invisible = mark == EditorMarks::hidden();
        changed.selectable = changed.focusable = true;
        announceState(object, changed);
    });
}

void CanvasAnnouncer::setListener(Listener listener)
{
    installedListener = listener;
}

bool CanvasAnnouncer::isHeard()
{
    return installedListener || QAccessible::isActive();
}

void CanvasAnnouncer::send(QAccessibleEvent* event)
{
    if (installedListener)
        installedListener(event);
    else
        QAccessible::updateAccessibility(event);
}

bool CanvasAnnouncer::isOnCanvas(const DesignerObject* object) const
{
    return qobject_cast<const VisualElement*>(object) && AccessibleElement::viewOf(object) == m_view;
}

/// \a object null: the canvas itself.
void CanvasAnnouncer::announce(DesignerObject* object, QAccessible::Event type) const
{
    if (!isHeard() || (object && !isOnCanvas(object)))
        return;
    QAccessibleEvent event(object ? static_cast<QObject*>(object) : m_view, type);
    send(&event);
}

void CanvasAnnouncer::announceState(DesignerObject* object, QAccessible::State changed) const
{
    if (!isHeard() || !isOnCanvas(object))
        return;
    QAccessibleStateChangeEvent event(object, changed);
    send(&event);
}

void CanvasAnnouncer::announceSelection()
{
    if (!isHeard()) {
        m_selected.clear();
        return;
    }
    const QList<DesignerObject*>& selection = m_view->session()->selection();
    QAccessible::State selected;
    selected.selected = true;
    const QList<QPointer<DesignerObject>> before = m_selected;
    m_selected.clear();
    for (DesignerObject* object : selection)
        m_selected.append(object);
    announce(nullptr, QAccessible::SelectionWithin);
    if (qMax(before.size(), m_selected.size()) > MostAnnounced)
        return;
    for (const QPointer<DesignerObject>& object : before) {
        if (object && !m_selected.contains(object))
            announceState(object, selected);
    }
    for (const QPointer<DesignerObject>& object : qAsConst(m_selected)) {
        if (object && !before.contains(object)) {
            announceState(object, selected);
            announce(object, m_selected.size() == 1 ? QAccessible::Selection : QAccessible::SelectionAdd);
        }
    }
    if (m_selected.size() == 1 && m_selected.constFirst() && m_view->hasFocus())
        announce(m_selected.constFirst(), QAccessible::Focus);
}

void CanvasAnnouncer::announceValue(DesignerObject* object, const QSharedPointer<DesignerProperty>& property)
{
    if (!isHeard())
        return;
    const QString& id = property->id();
    if (id == QLatin1String("text"))
        announce(object, QAccessible::NameChanged);
    else if (id == QLatin1String("position") || id == QLatin1String("boundingSize") || id == QLatin1String("rotation"))
        announce(object, QAccessible::LocationChanged);
}

} // namespace Korvex::Meridane::Designer
