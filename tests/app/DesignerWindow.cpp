#include "tests/app/DesignerWindow.h"

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QThread>

namespace Korvex::Meridane::Designer::Test {

namespace {

constexpr int Patience = 30000; // ms, for a slow machine
constexpr int LookInterval = 50; // ms between two looks

} // namespace

DesignerWindow::DesignerWindow(XServer* server, const QString& settingsFolder)
    : m_server(server)
    , m_settingsFolder(settingsFolder)
{}

DesignerWindow::~DesignerWindow()
{
    if (!isRunning())
        return;
    m_program.kill();
    m_program.waitForFinished(5000);
}

bool DesignerWindow::start(const QString& project)
{
    QProcessEnvironment environment = m_server->environment();
    environment.insert(QStringLiteral("XDG_CONFIG_HOME"), m_settingsFolder);
    environment.insert(QStringLiteral("LC_ALL"), QStringLiteral("C.UTF-8"));
    m_program.setProcessEnvironment(environment);
    m_program.setProcessChannelMode(QProcess::ForwardedChannels);
    const QString program =
        QDir(QCoreApplication::applicationDirPath()).filePath(QStringLiteral("../bin/meridane-designer"));
    m_program.start(program, {project});
    if (!m_program.waitForStarted(Patience)) {
        m_error = QStringLiteral("%1 does not start: %2").arg(program, m_program.errorString());
        return false;
    }
    const bool shown = waitFor(QStringLiteral("the window"), [this] {
        const QString found = m_server->xdotool({QStringLiteral("search"), QStringLiteral("--onlyvisible"),
                                                 QStringLiteral("--name"), QStringLiteral("Meridane Designer")});
        m_window = found.section(QLatin1Char('\n'), 0, 0);
        return !m_window.isEmpty();
    });
    // There is no window manager that would give the focus.
    return shown && input({QStringLiteral("windowfocus"), QStringLiteral("--sync"), m_window});
}

int DesignerWindow::waitForEnd()
{
    return m_program.state() == QProcess::NotRunning || m_program.waitForFinished(Patience) ? m_program.exitCode() : -1;
}

bool DesignerWindow::isRunning() const
{
    return m_program.state() != QProcess::NotRunning;
}

bool DesignerWindow::waitForModified(bool modified)
{
    QString title;
    const bool seen =
        waitFor(modified ? QStringLiteral("a change") : QStringLiteral("the saved state"), [this, modified, &title] {
            title = m_server->xdotool({QStringLiteral("getwindowname"), m_window});
            return !title.isEmpty() && title.contains(QLatin1Char('*')) == modified;
        });
    if (!seen)
        m_error += QStringLiteral(" (the title is \"%1\")").arg(title);
    return seen;
}

bool DesignerWindow::waitForDialog(bool shown)
{
    QString dialog;
    const bool seen = waitFor(shown ? QStringLiteral("the question") : QStringLiteral("the end of the question"), [&] {
        dialog = m_server->xdotool({QStringLiteral("search"), QStringLiteral("--onlyvisible"), QStringLiteral("--name"),
                                    QStringLiteral("Unsaved Changes")});
        return dialog.isEmpty() != shown;
    });
    return seen
           && input({QStringLiteral("windowfocus"), QStringLiteral("--sync"),
                     shown ? dialog.section(QLatin1Char('\n'), 0, 0) : m_window});
}

QImage DesignerWindow::waitForPicture(const QString& what, const std::function<bool(const QImage&)>& seen)
{
    QImage picture;
    const bool found = waitFor(what, [this, &picture, &seen] {
        picture = m_server->grab();
        return !picture.isNull() && seen(picture);
    });
    return found ? picture : QImage();
}

QRect DesignerWindow::find(const QImage& picture, const QColor& color, const QRect& area, int length)
{
    constexpr int Tolerance = 6; // of a channel
    const QRect searched = area.isNull() ? picture.rect() : area.intersected(picture.rect());
    QRect bounds;
    for (int y = searched.top(); y <= searched.bottom(); ++y) {
        int run = 0;
        for (int x = searched.left(); x <= searched.right(); ++x) {
            const QRgb pixel = picture.pixel(x, y);
            const bool matches = qAbs(qRed(pixel) - color.red()) <= Tolerance
                                 && qAbs(qGreen(pixel) - color.green()) <= Tolerance
                                 && qAbs(qBlue(pixel) - color.blue()) <= Tolerance;
            run = matches ? run + 1 : 0;
            if (run >= length)
                bounds |= QRect(x - run + 1, y, run, 1);
        }
    }
    return bounds;
}

bool DesignerWindow::click(const QPoint& place)
{
    return input({QStringLiteral("mousemove"), QString::number(place.x()), QString::number(place.y()),
                  QStringLiteral("click"), QStringLiteral("1")});
}

bool DesignerWindow::drag(const QPoint& from, const QPoint& to)
{
    QStringList arguments{QStringLiteral("mousemove"), QString::number(from.x()), QString::number(from.y()),
                          QStringLiteral("mousedown"), QStringLiteral("1")};
    constexpr int Steps = 8;
    for (int step = 1; step <= Steps; ++step) {
        const QPoint at = from + (to - from) * step / Steps;
        arguments << QStringLiteral("mousemove") << QString::number(at.x()) << QString::number(at.y());
    }
    return input(arguments << QStringLiteral("mouseup") << QStringLiteral("1"));
}

bool DesignerWindow::key(const QString& keys)
{
    return input({QStringLiteral("key"), QStringLiteral("--clearmodifiers"), keys});
}

bool DesignerWindow::type(const QString& text)
{
    return input({QStringLiteral("type"), QStringLiteral("--clearmodifiers"), text});
}

bool DesignerWindow::waitFor(const QString& what, const std::function<bool()>& holds)
{
    QElapsedTimer timer;
    timer.start();
    while (!holds()) {
        // Lets the process object notice the end of the program.
        QCoreApplication::processEvents();
        if (!isRunning()) {
            m_error = QStringLiteral("The application has ended (status %1) while %2 was waited for")
                          .arg(m_program.exitCode())
                          .arg(what);
            return false;
        }
        if (timer.elapsed() > Patience) {
            m_error = QStringLiteral("Waited in vain for %1. %2").arg(what, m_server->error());
            return false;
        }
        QThread::msleep(LookInterval);
    }
    return true;
}

bool DesignerWindow::input(const QStringList& arguments)
{
    if (!m_server->xdotool(arguments).isNull())
        return true;
    m_error = m_server->error();
    return false;
}

} // namespace Korvex::Meridane::Designer::Test
