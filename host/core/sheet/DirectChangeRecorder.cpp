#include "host/core/sheet/DirectChangeRecorder.h"

#include <QApplication>
#include <QEvent>
#include <QPointer>
#include <QWidget>

namespace Korvex::Meridane::Designer {

namespace {

/// Events by which a user operates a widget, and the timer events of a button held down.
bool isInput(QEvent::Type type)
{
    switch (type) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseMove:
    case QEvent::Wheel:
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
    case QEvent::InputMethod:
    case QEvent::FocusOut:
    case QEvent::Shortcut:
    case QEvent::Drop:
    case QEvent::Timer:
        return true;
    default:
        return false;
    }
}

} // namespace

DirectChangeRecorder::DirectChangeRecorder(QWidget* root)
    : QObject(root)
    , m_root(root)
{}

DirectChangeRecorder::~DirectChangeRecorder() = default;

void DirectChangeRecorder::setActive(bool active)
{
    if (m_active == active)
        return;
    m_active = active;
    if (active)
        qApp->installEventFilter(this);
    else
        qApp->removeEventFilter(this);
}

QVector<PropertyChange> DirectChangeRecorder::take()
{
    return m_recording ? m_recording->take() : QVector<PropertyChange>();
}

bool DirectChangeRecorder::eventFilter(QObject* watched, QEvent* event)
{
    if (m_recording || !isInput(event->type()) || !isBelowRoot(watched))
        return QObject::eventFilter(watched, event);

    const QPointer<DirectChangeRecorder> self(this);
    QVector<PropertyChange> left;
    {
        ChangeRecording recording;
        m_recording = &recording;
        QCoreApplication::sendEvent(watched, event);
        if (!self)
            return true;
        m_recording = nullptr;
        left = recording.take();
    }
    // The event has been offered to the parents as well; without this they would get it a second time. What became of
    // a drop is for its source to know.
    if (event->type() != QEvent::Drop)
        event->accept();
    if (!left.isEmpty())
        Q_EMIT changedDirectly(left);
    return true;
}

bool DirectChangeRecorder::isBelowRoot(const QObject* object) const
{
    if (!object->isWidgetType())
        return false;
    while (object && object != m_root)
        object = object->parent();
    return object == m_root;
}

} // namespace Korvex::Meridane::Designer
