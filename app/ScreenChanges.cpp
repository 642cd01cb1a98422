#include "app/ScreenChanges.h"

#include "host/core/canvas/CanvasView.h"
#include "host/core/canvas/EditSession.h"
#include "host/core/objects/Screen.h"
#include "host/core/project/Project.h"
#include "host/core/properties/DesignerProperty.h"
#include "host/core/qml/ScreenQml.h"

namespace Korvex::Meridane::Designer {

ScreenChanges::ScreenChanges(EditSession* session, CanvasView* canvas, QObject* parent)
    : QObject(parent)
    , m_session(session)
    , m_canvas(canvas)
{
    connect(canvas, &CanvasView::gestureMoved, this, [this] {
        if (!m_active)
            return;
        m_gestureMoved = true;
        Q_EMIT changed();
    });
    connect(session, &EditSession::currentScreenChanged, this, &ScreenChanges::changeAll);
    const Project* project = session->project();
    connect(project, &Project::objectPropertyChanged, this, &ScreenChanges::changeObject);
    connect(project, &Project::objectAdded, this, &ScreenChanges::changeAll);
    connect(project, &Project::objectRemoved, this, &ScreenChanges::changeAll);
    connect(project, &Project::objectReordered, this, &ScreenChanges::changeAll);
    connect(project, &Project::objectRenamed, this, &ScreenChanges::changeAll);
    connect(project, &Project::resourcesChanged, this, &ScreenChanges::changeAll);
    connect(project, &Project::imageFileChanged, this, &ScreenChanges::changeAll);
}

void ScreenChanges::setActive(bool active)
{
    if (active == m_active)
        return;
    m_active = active;
    m_elements.clear();
    m_inGesture.clear();
    if (active)
        changeAll();
}

void ScreenChanges::changeAll()
{
    m_wholeScreen = true;
    if (m_active)
        Q_EMIT changed();
}

void ScreenChanges::changeObject(const DesignerObject* object)
{
    if (!m_active)
        return;
    const Screen* screen = m_session->currentScreen();
    if (object == screen)
        m_wholeScreen = true;
    else if (const DesignerObject* element = ScreenQml::outermost(object, screen))
        m_elements.insert(element);
    else
        return;
    Q_EMIT changed();
}

void ScreenChanges::forget()
{
    m_wholeScreen = false;
    m_gestureMoved = false;
    m_elements.clear();
    m_inGesture.clear();
}

ScreenChanges::Batch ScreenChanges::take()
{
    Batch batch;
    batch.wholeScreen = std::exchange(m_wholeScreen, false);
    batch.elements = std::exchange(m_elements, {});
    // Those of the last time as well: the gesture may have taken them back.
    batch.elements += std::exchange(m_inGesture, {});
    m_gestureMoved = false;
    if (!m_canvas)
        return batch;
    batch.gesture = m_canvas->pendingChanges();
    for (const PropertyChange& change : std::as_const(batch.gesture)) {
        const DesignerObject* element =
            ScreenQml::outermost(change.property->parentObject(), m_session->currentScreen());
        if (element)
            m_inGesture.insert(element);
    }
    batch.elements += m_inGesture;
    return batch;
}

} // namespace Korvex::Meridane::Designer
