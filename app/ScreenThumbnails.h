#pragma once

#include <QHash>
#include <QImage>
#include <QList>
#include <QObject>
#include <QTimer>

namespace Korvex::Meridane::Designer {

class DesignerObject;
class EditSession;
class Screen;

/**
 * Small pictures of the screens of a project, drawn when somebody asks for them and nothing else goes on, and again some
 * time after a change. The longer a screen takes to draw, the longer the next drawing waits.
 */
class ScreenThumbnails : public QObject
{
    Q_OBJECT

public:
    /// \a side: the longer side of a picture in pixels. \a session outlives the thumbnails.
    ScreenThumbnails(EditSession* session, int side, QObject* parent = nullptr);

    /// The last picture of \a screen, null while there is none; a missing or an old one is drawn soon.
    [[nodiscard]] QImage thumbnail(Screen* screen);
    /// How many pictures have been drawn.
    [[nodiscard]] int drawnCount() const { return m_drawn; }

Q_SIGNALS:
    void changed(Screen* screen);

private:
    struct Entry
    {
        QImage image;
        bool isCurrent = false;
        int cost = 0; // ms that the last drawing took
    };

    void forget(DesignerObject* object);
    void forgetAll();
    void drawNext();
    void schedule(int delay);

    EditSession* m_session;
    int m_side;
    QHash<Screen*, Entry> m_entries;
    QList<Screen*> m_wanted; // in the order in which they were asked for
    QTimer m_timer;
    int m_drawn = 0;
};

} // namespace Korvex::Meridane::Designer
