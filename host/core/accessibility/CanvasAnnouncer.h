#pragma once

#include "host/core/CoreExport.h"

#include <QAccessible>
#include <QList>
#include <QObject>
#include <QPointer>
#include <QSharedPointer>

namespace Korvex::Meridane::Designer {

class CanvasView;
class DesignerObject;
class DesignerProperty;

/// Tells assistive programs what becomes of the elements on a canvas. While none is running it does nothing.
class MERIDANE_CORE_EXPORT CanvasAnnouncer : public QObject
{
    Q_OBJECT

public:
    /// Makes the canvas known as a parent of its elements and announces what happens on it as long as \a view lives.
    static void attach(CanvasView* view);

    /// Takes what is announced in the place of assistive programs, as if one were running.
    using Listener = void (*)(QAccessibleEvent* event);
    /// Lets \a listener, which may be null for none, hear all further announcements.
    static void setListener(Listener listener);

private:
    explicit CanvasAnnouncer(CanvasView* view);

    void announceSelection();
    void announceValue(DesignerObject* object, const QSharedPointer<DesignerProperty>& property);
    [[nodiscard]] static bool isHeard();
    static void send(QAccessibleEvent* event);
    void announce(DesignerObject* object, QAccessible::Event type) const;
    void announceState(DesignerObject* object, QAccessible::State changed) const;
    [[nodiscard]] bool isOnCanvas(const DesignerObject* object) const;

    CanvasView* m_view;
    QList<QPointer<DesignerObject>> m_selected; // as announced last
};

} // namespace Korvex::Meridane::Designer
