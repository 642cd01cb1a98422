#include "app/LiveContent.h"

#include "app/CoreText.h"
#include "app/LiveDisplay.h"
#include "app/ScreenChanges.h"

#include "host/core/canvas/EditSession.h"
#include "host/core/objects/Screen.h"
#include "host/core/project/Project.h"
#include "host/core/properties/ObjectListProperty.h"
#include "host/core/qml/ExportContent.h"
#include "host/core/qml/PendingValues.h"

namespace Korvex::Meridane::Designer {

namespace {

QByteArray fileOf(const QString& qml)
{
    return (ExportContent::importLines().join(QLatin1Char('\n')) + QLatin1Char('\n') + qml + QLatin1Char('\n'))
        .toUtf8();
}

} // namespace

LiveContent::LiveContent(EditSession* session, CanvasView* canvas, LiveDisplay* display, QObject* parent)
    : QObject(parent)
    , m_session(session)
    , m_display(display)
    , m_changes(new ScreenChanges(session, canvas, this))
    , m_pace(this, [this] { send(); })
{
    connect(display, &LiveDisplay::started, this, &LiveContent::beginAnew);
    connect(display, &LiveDisplay::complained, this, &LiveContent::hear);
    connect(display, &LiveDisplay::ready, this, &LiveContent::sendSoon);
    connect(m_changes, &ScreenChanges::changed, this, &LiveContent::sendSoon);
    const Project* project = session->project();
    connect(project, &Project::objectPropertyChanged, this, [this, project](const DesignerObject* object) {
        if (object == project)
            beginAnew();
    });
    // Images are remembered and fonts made known by the display, so that it begins anew with other ones.
    connect(project, &Project::resourcesChanged, this, &LiveContent::beginAnew);
    connect(project, &Project::imageFileChanged, this, &LiveContent::beginAnew);
    connect(project, &Project::folderChanged, this, &LiveContent::beginAnew);
}

void LiveContent::setActive(bool active)
{
    if (active == m_changes->isActive())
        return;
    m_changes->setActive(active);
    if (active)
        beginAnew();
}

void LiveContent::beginAnew()
{
    if (!m_changes->isActive())
        return;
    const Project* project = m_session->project();
    m_display->openProject(project->folder(), project->displaySize());
    m_changes->changeAll();
}

void LiveContent::sendSoon()
{
    if (m_changes->isActive() && m_display->isReady() && !m_changes->isEmpty())
        m_pace.request();
}

void LiveContent::send()
{
    // A display that is not ready now says so when it is.
    if (!m_changes->isActive() || !m_display->isReady())
        return;
    const ScreenChanges::Batch changes = m_changes->take();
    const Screen* screen = m_session->currentScreen();
    const PendingValues asTheGestureHasThem(changes.gesture);
    if (changes.wholeScreen || m_screenIsWrong)
        sendScreen(screen);
    else if (screen)
        sendElements(screen, changes.elements + m_wrong);
}

void LiveContent::hear(const QStringList& complaints)
{
    m_screenIsWrong = m_sentScreen && !complaints.isEmpty();
    m_wrong = complaints.isEmpty() ? QSet<const DesignerObject*>() : m_sent;
}

void LiveContent::sendScreen(const Screen* screen)
{
    m_sentScreen = true;
    m_sent.clear();
    m_wrong.clear();
    if (screen)
        screen->readContent();
    if (!screen || !screen->contentError().isEmpty()) {
        Q_EMIT unshowable(screen ? screen->contentError() : coreText("This project has no screen yet."));
        return;
    }
    QStringList elements;
    for (const DesignerObject* element : screen->childList()->items()) {
        // What a display has no type for is not in its QML either.
        if (!element->toQml(0).isEmpty())
            elements.append(element->getIdName());
    }
    m_display->showScreen(screen->getIdName(), fileOf(screen->toQml(0)), elements);
}

void LiveContent::sendElements(const Screen* screen, const QSet<const DesignerObject*>& elements)
{
    QMap<QString, QByteArray> files;
    if (elements.isEmpty())
        return;
    for (const DesignerObject* element : screen->childList()->items()) {
        const QString qml = elements.contains(element) ? element->toQml(0) : QString();
        if (!qml.isEmpty())
            files.insert(element->getIdName(), fileOf(qml));
    }
    if (files.isEmpty())
        return;
    m_sentScreen = false;
    m_sent = elements;
    m_display->replaceElements(files);
}

} // namespace Korvex::Meridane::Designer
