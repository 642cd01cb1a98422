#pragma once

#include "tests/app/XServer.h"

#include <QRect>

#include <functional>

namespace Korvex::Meridane::Designer::Test {

/// The application running in a window of an X server, used as a person does: by looking, pointing and typing. Nothing
/// waits for a fixed time; what is waited for is named in error() when it does not come.
class DesignerWindow
{
public:
    /// \a settingsFolder: where the application keeps its settings. \a server outlives the window.
    DesignerWindow(XServer* server, const QString& settingsFolder);
    ~DesignerWindow();
    Q_DISABLE_COPY_MOVE(DesignerWindow)

    /// Starts the application on \a project and waits for its window.
    bool start(const QString& project);
    /// Waits for the program to end; its exit status, -1 when it does not end.
    int waitForEnd();
    [[nodiscard]] bool isRunning() const;
    [[nodiscard]] const QString& error() const { return m_error; }

    /// Waits until the title shows, or no longer shows, the mark of unsaved changes.
    bool waitForModified(bool modified);
    /// Waits until the question about unsaved changes is shown and has the focus, or has gone and the window has it again.
    bool waitForDialog(bool shown);
    /// Looks at the screen until \a seen is content with it; the picture, or a null one.
    QImage waitForPicture(const QString& what, const std::function<bool(const QImage&)>& seen);
    /// The bounding rectangle of the pixels of about \a color within \a area (all of the picture when null); only rows
    /// of at least \a length such pixels side by side count.
    [[nodiscard]] static QRect find(const QImage& picture, const QColor& color, const QRect& area = {}, int length = 1);

    bool click(const QPoint& place);
    /// Presses at \a from, moves in steps to \a to and lets go there.
    bool drag(const QPoint& from, const QPoint& to);
    bool key(const QString& keys);
    bool type(const QString& text);

private:
    bool waitFor(const QString& what, const std::function<bool()>& holds);
    bool input(const QStringList& arguments);

    XServer* m_server;
    QString m_settingsFolder;
    QProcess m_program;
    QString m_window;
    QString m_error;
};

} // namespace Korvex::Meridane::Designer::Test
