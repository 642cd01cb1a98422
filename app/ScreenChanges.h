#pragma once

#include "host/core/commands/ChangeRecording.h"

#include <QObject>
#include <QPointer>
#include <QSet>

namespace Korvex::Meridane::Designer {

class CanvasView;
class DesignerObject;
class EditSession;

/**
 * What has changed on the current screen since it was last looked at, for views that follow at a pace of their own: by
 * elements directly on the screen, and with what a running gesture would write.
 */
class ScreenChanges : public QObject
{
    Q_OBJECT

public:
    struct Batch
    {
        /// Another screen, other elements, another order, another value of the screen itself.
        bool wholeScreen = false;
        /// Elements directly on the screen that changed themselves or in what they hold. They may have gone since: they
        /// are to be compared with those of the screen, never used.
        QSet<const DesignerObject*> elements;
        /// What the running gesture would write; the elements of these changes are among the others.
        QVector<PropertyChange> gesture;
    };

    /// \a session outlives the object.
    ScreenChanges(EditSession* session, CanvasView* canvas, QObject* parent = nullptr);

    /// While false nothing is noted; afterwards the whole screen counts as changed.
    void setActive(bool active);
    [[nodiscard]] bool isActive() const { return m_active; }
    [[nodiscard]] bool isEmpty() const { return !m_wholeScreen && !m_gestureMoved && m_elements.isEmpty(); }
    /// Everything counts as changed.
    void changeAll();
    /// What has changed; nothing has afterwards.
    [[nodiscard]] Batch take();
    /// The same for those who do not want to know what it was.
    void forget();

Q_SIGNALS:
    /// isEmpty() is false now, or more has changed.
    void changed();

private:
    void changeObject(const DesignerObject* object);

    EditSession* m_session;
    QPointer<CanvasView> m_canvas;
    QSet<const DesignerObject*> m_elements;
    QSet<const DesignerObject*> m_inGesture; // those of the last batch that showed what the gesture would write
    bool m_wholeScreen = true;
    bool m_gestureMoved = false;
    bool m_active = false;
};

} // namespace Korvex::Meridane::Designer
