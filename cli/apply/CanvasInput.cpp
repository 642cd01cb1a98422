#include "cli/apply/CanvasInput.h"

#include "host/core/canvas/EditSession.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QScrollBar>

namespace Korvex::Meridane::Designer {

namespace {

/// Side of the view, in pixels: smaller than what a view lets one scroll to around the smallest screen.
constexpr int ViewSide = 100;

/// The text that a keyboard would send with \a key; empty for keys and combinations that write nothing.
QString textOf(QKeyCombination key)
{
    const bool writes = !(key.keyboardModifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier));
    if (!writes || key.key() < Qt::Key_Space || key.key() > Qt::Key_ydiaeresis)
        return {};
    const QString text(QChar(key.key()));
    return key.keyboardModifiers() & Qt::ShiftModifier ? text : text.toLower();
}

} // namespace

CanvasInput::CanvasInput(EditSession* session)
    : m_view(session)
{
    QObject::connect(session, &EditSession::editRefused, &m_view, [this](const QString& message) {
        if (m_refusal.isEmpty())
            m_refusal = message;
    });
    // A scripted drag has no unsteady hand: every way counts.
    QApplication::setStartDragDistance(1);
    // Nothing is seen of handles here: every element keeps its own, however many are selected.
    m_view.setSelectionFrame(false);
    m_view.setFrameShape(QFrame::NoFrame);
    m_view.resize(ViewSide, ViewSide);
    m_view.setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_view.setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    // Shown, so that it is laid out and has the keyboard; never on a screen, so that nothing is painted.
    m_view.setAttribute(Qt::WA_DontShowOnScreen);
    m_view.show();
    m_view.setFocus();
}

CanvasInput::~CanvasInput() = default;

QString CanvasInput::drag(const QList<QPointF>& points, Qt::KeyboardModifiers modifiers)
{
    m_refusal.clear();
    putScreenInPlace();
    sendMouse(QEvent::MouseButtonPress, points.first(), Qt::LeftButton, Qt::LeftButton, modifiers);
    for (qsizetype i = 1; i < points.size(); ++i)
        sendMouse(QEvent::MouseMove, points.at(i), Qt::NoButton, Qt::LeftButton, modifiers);
    sendMouse(QEvent::MouseButtonRelease, points.last(), Qt::LeftButton, Qt::NoButton, modifiers);
    return m_refusal;
}

QString CanvasInput::pressKey(QKeyCombination key)
{
    m_refusal.clear();
    const QString text = textOf(key);
    for (const QEvent::Type type : {QEvent::ShortcutOverride, QEvent::KeyPress, QEvent::KeyRelease}) {
        QKeyEvent event(type, key.key(), key.keyboardModifiers(), text);
        QApplication::sendEvent(&m_view, &event);
    }
    return m_refusal;
}

void CanvasInput::putScreenInPlace()
{
    m_view.setZoom(1);
    m_view.horizontalScrollBar()->setValue(0);
    m_view.verticalScrollBar()->setValue(0);
}

void CanvasInput::sendMouse(QEvent::Type type, const QPointF& scenePos, Qt::MouseButton button,
                            Qt::MouseButtons buttons, Qt::KeyboardModifiers modifiers)
{
    QWidget* viewport = m_view.viewport();
    const QPointF position = m_view.viewportTransform().map(scenePos);
    QMouseEvent event(type, position, viewport->mapToGlobal(position), button, buttons, modifiers);
    QApplication::sendEvent(viewport, &event);
}

} // namespace Korvex::Meridane::Designer
