#include "tests/app/XServer.h"

#include <QCoreApplication>
#include <QGuiApplication>
#include <QPixmap>
#include <QScreen>
#include <QStandardPaths>
#include <QTemporaryDir>

namespace Korvex::Meridane::Designer::Test {

namespace {

constexpr int Patience = 30000; // ms, for a slow machine

} // namespace

XServer::~XServer()
{
    if (m_server.state() == QProcess::NotRunning)
        return;
    m_server.terminate();
    if (!m_server.waitForFinished(5000))
        m_server.kill();
    m_server.waitForFinished(5000);
}

bool XServer::start(const QSize& size)
{
    for (const char* program : {"Xvfb", "xdotool"}) {
        if (QStandardPaths::findExecutable(QString::fromLatin1(program)).isEmpty()) {
            m_error = QStringLiteral("%1 is not installed").arg(QString::fromLatin1(program));
            return false;
        }
    }
    // The server picks a free display and writes its number as soon as it takes clients.
    m_server.setStandardErrorFile(QProcess::nullDevice());
    m_server.start(QStringLiteral("Xvfb"),
                   {QStringLiteral("-displayfd"), QStringLiteral("1"), QStringLiteral("-screen"), QStringLiteral("0"),
                    QStringLiteral("%1x%2x24").arg(size.width()).arg(size.height()), QStringLiteral("-nolisten"),
                    QStringLiteral("tcp")});
    QByteArray number;
    while (!number.endsWith('\n')) {
        if (!m_server.waitForReadyRead(Patience)) {
            m_error = QStringLiteral("Xvfb does not start: ") + m_server.errorString();
            return false;
        }
        number += m_server.readAllStandardOutput();
    }
    m_display = QLatin1Char(':') + QString::fromLatin1(number.trimmed());
    return true;
}

QProcessEnvironment XServer::environment() const
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("DISPLAY"), m_display);
    environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("xcb"));
    for (const char* name : {"QT_SCALE_FACTOR", "QT_QPA_PLATFORMTHEME", "WAYLAND_DISPLAY", "XAUTHORITY"})
        environment.remove(QString::fromLatin1(name));
    return environment;
}

QString XServer::xdotool(const QStringList& arguments)
{
    QProcess tool;
    tool.setProcessEnvironment(environment());
    tool.start(QStringLiteral("xdotool"), arguments);
    if (!tool.waitForFinished(Patience) || tool.exitCode() != 0) {
        m_error = QStringLiteral("xdotool %1: %2")
                      .arg(arguments.join(QLatin1Char(' ')), QString::fromUtf8(tool.readAllStandardError()));
        return {};
    }
    const QString output = QString::fromUtf8(tool.readAllStandardOutput()).trimmed();
    return output.isNull() ? QStringLiteral("") : output;
}

QImage XServer::grab()
{
    QTemporaryDir folder;
    const QString file = folder.filePath(QStringLiteral("screen.png"));
    QProcess grabber;
    grabber.setProcessEnvironment(environment());
    grabber.start(QCoreApplication::applicationFilePath(), {QString::fromLatin1(GrabOption), file});
    if (!grabber.waitForFinished(Patience) || grabber.exitCode() != 0) {
        m_error = QStringLiteral("The screen cannot be read: ") + QString::fromUtf8(grabber.readAllStandardError());
        return {};
    }
    return QImage(file);
}

int XServer::grabInto(int argc, char* argv[])
{
    const QGuiApplication application(argc, argv);
    const QPixmap screen = QGuiApplication::primaryScreen()->grabWindow(0);
    return !screen.isNull() && screen.save(QString::fromLocal8Bit(argv[2])) ? 0 : 1;
}

} // namespace Korvex::Meridane::Designer::Test
