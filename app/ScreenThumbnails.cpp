#include "app/ScreenThumbnails.h"

#include "host/core/canvas/CanvasScene.h"
#include "host/core/canvas/EditSession.h"
#include "host/core/canvas/ScreenRenderer.h"
#include "host/core/objects/Screen.h"
#include "host/core/project/ObjectTree.h"
#include "host/core/project/Project.h"
#include "host/core/properties/DesignerProperty.h"

#include <QElapsedTimer>

namespace Korvex::Meridane::Designer {

namespace {

constexpr int FirstDelay = 60; // ms
constexpr int ChangeDelay = 400; // ms after the last change
constexpr int CostFactor = 8; // of a drawing's time, before the next one

} // namespace

ScreenThumbnails::ScreenThumbnails(EditSession* session, int side, QObject* parent)
    : QObject(parent)
    , m_session(session)
    , m_side(side)
{
    m_timer.setSingleShot(true);
    connect(&m_timer, &QTimer::timeout, this, &ScreenThumbnails::drawNext);
    const Project* project = session->project();
    connect(project, &Project::objectPropertyChanged, this,
            [this](DesignerObject* object, const QSharedPointer<DesignerProperty>&) { forget(object); });
    connect(project, &Project::objectAdded, this, &ScreenThumbnails::forget);
    connect(project, &Project::objectReordered, this, &ScreenThumbnails::forget);
    connect(project, &Project::objectRemoved, this, [this](DesignerObject* object, DesignerObject* parent) {
        if (auto* screen = qobject_cast<Screen*>(object)) {
            m_entries.remove(screen);
            m_wanted.removeAll(screen);
        } else {
            forget(parent);
        }
    });
    connect(project, &Project::imageFileChanged, this, &ScreenThumbnails::forgetAll);
    connect(project, &Project::resourcesChanged, this, &ScreenThumbnails::forgetAll);
}

QImage ScreenThumbnails::thumbnail(Screen* screen)
{
    if (!screen)
        return {};
    const Entry& entry = m_entries[screen];
    if (!entry.isCurrent && !m_wanted.contains(screen)) {
        m_wanted.append(screen);
        schedule(entry.image.isNull() ? FirstDelay : ChangeDelay);
    }
    return entry.image;
}

void ScreenThumbnails::forget(DesignerObject* object)
{
    Screen* screen = ObjectTree::screenOf(object);
    const auto entry = m_entries.find(screen);
    if (!screen || entry == m_entries.end())
        return;
    if (m_wanted.contains(screen))
        m_timer.start(ChangeDelay); // not while it goes on changing
    if (!entry->isCurrent)
        return;
    entry->isCurrent = false;
    Q_EMIT changed(screen); // who still shows it asks again
}

void ScreenThumbnails::forgetAll()
{
    const QList<Screen*> screens = m_entries.keys();
    for (Screen* screen : screens)
        forget(screen);
}

void ScreenThumbnails::schedule(int delay)
{
    if (!m_timer.isActive())
        m_timer.start(delay);
}

void ScreenThumbnails::drawNext()
{
    if (m_wanted.isEmpty())
        return;
    if (m_session->undoStack()->isBlocked()) {
        schedule(ChangeDelay); // a gesture runs
        return;
    }
    Screen* screen = m_wanted.takeFirst();
    QElapsedTimer clock;
    clock.start();
    const QSizeF size = screen->size();
    const double longer = qMax(size.width(), size.height());
    screen->readContent();
    QImage image;
    if (screen->contentError().isEmpty() && longer > 0)
        image = ScreenRenderer::render(m_session->scene(screen), qMin(1.0, m_side / longer));
    Entry& entry = m_entries[screen];
    entry.image = image;
    entry.isCurrent = true;
    entry.cost = int(clock.elapsed());
    ++m_drawn;
    if (!m_wanted.isEmpty())
        schedule(FirstDelay + CostFactor * entry.cost);
    Q_EMIT changed(screen);
}

} // namespace Korvex::Meridane::Designer
