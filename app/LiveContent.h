#pragma once

#include "app/UpdatePace.h"

#include <QObject>
#include <QSet>
#include <QString>

namespace Korvex::Meridane::Designer {

class CanvasView;
class DesignerObject;
class EditSession;
class LiveDisplay;
class Screen;
class ScreenChanges;

/**
 * Keeps a live display showing what the canvas shows: the current screen, with every change, and with what a running gesture
 * would write.
 *
 * Only the elements that changed are sent, all of them together, and only when the display has done with what it got
 * before: however fast the changes come, nothing piles up. What was complained about is sent again with it, so that the
 * answer always tells all that is wrong.
 */
class LiveContent : public QObject
{
    Q_OBJECT

public:
    /// All arguments outlive the object.
    LiveContent(EditSession* session, CanvasView* canvas, LiveDisplay* display, QObject* parent = nullptr);

    /// While false nothing is sent, and nothing is computed either.
    void setActive(bool active);

Q_SIGNALS:
    /// There is nothing that could be shown; \a message says why.
    void unshowable(const QString& message);

private:
    void beginAnew();
    void sendSoon();
    void send();
    void hear(const QStringList& complaints);
    void sendScreen(const Screen* screen);
    void sendElements(const Screen* screen, const QSet<const DesignerObject*>& elements);

    EditSession* m_session;
    LiveDisplay* m_display;
    ScreenChanges* m_changes;
    QSet<const DesignerObject*> m_sent; // with the last message; the elements are only compared
    QSet<const DesignerObject*> m_wrong; // those of the last message that was complained about
    bool m_sentScreen = false; // the last message was the whole screen
    bool m_screenIsWrong = false;
    UpdatePace m_pace;
};

} // namespace Korvex::Meridane::Designer
