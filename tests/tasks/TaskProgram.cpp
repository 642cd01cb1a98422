#include "tests/tasks/TaskProgram.h"

#include "app/Appearance.h"
#include "app/DesignerStyle.h"
#include "app/MainWindow.h"

#include "host/core/plugins/DesignerFactory.h"
#include "tests/app/XServer.h"

#include <QApplication>
#include <QDir>
#include <QDirIterator>
#include <QEventLoop>
#include <QProcess>
#include <QStandardPaths>
#include <QTest>
#include <QThread>

#include <cstdio>

namespace Korvex::Meridane::Designer::Test {

namespace {

constexpr QSize ScreenSize(1600, 960);
constexpr const char* InsideVariable = "MERIDANE_TASK_INSIDE";

/// The part of run() that starts the server and this program once more, on it.
int runOutside(int argc, char* argv[])
{
    const QCoreApplication application(argc, argv);
    XServer server;
    if (!server.start(ScreenSize)) {
        std::fprintf(stderr, "%s\n", qPrintable(server.error()));
        return 1;
    }
    const QTemporaryDir home;
    QProcessEnvironment environment = server.environment();
    environment.insert(QString::fromLatin1(InsideVariable), QStringLiteral("1"));
    environment.insert(QStringLiteral("HOME"), home.path());
    for (const char* name : {"XDG_CONFIG_HOME", "XDG_CACHE_HOME", "XDG_DATA_HOME"})
        environment.insert(QString::fromLatin1(name), home.path() + QLatin1Char('/') + QString::fromLatin1(name));
    environment.insert(QStringLiteral("LC_ALL"), QStringLiteral("C.UTF-8"));
    QProcess manager;
    manager.setProcessEnvironment(environment);
    manager.setStandardErrorFile(QProcess::nullDevice());
    manager.start(QStringLiteral("openbox"), {});
    // A window that is shown before the manager is at work never gets the focus.
    while (manager.state() != QProcess::NotRunning && server.xdotool({QStringLiteral("get_num_desktops")}).isNull())
        QThread::msleep(20);
    QProcess inside;
    inside.setProcessEnvironment(environment);
    inside.setProcessChannelMode(QProcess::ForwardedChannels);
    inside.start(QCoreApplication::applicationFilePath(), QCoreApplication::arguments().mid(1));
    const bool ended = inside.waitForFinished(-1);
    manager.terminate();
    manager.waitForFinished(5000);
    return ended && inside.exitStatus() == QProcess::NormalExit ? inside.exitCode() : 1;
}

} // namespace

int TaskProgram::run(int argc, char* argv[], const std::function<std::unique_ptr<QObject>()>& make)
{
    if (!qEnvironmentVariableIsSet(InsideVariable))
        return runOutside(argc, argv);
    QApplication application(argc, argv);
    QApplication::setStyle(new DesignerStyle);
    QCoreApplication::setApplicationName(QStringLiteral("meridane-designer"));
    Appearance::apply(Appearance::Scheme::Light);
    (void)DesignerFactory::instance()->loadInstalledPlugins();
    const std::unique_ptr<QObject> test = make();
    return QTest::qExec(test.get(), argc, argv);
}

TaskProgram::TaskProgram()
    : m_window(std::make_unique<MainWindow>(&m_prompts))
{
    m_prompts.setWindow(m_window.get());
    m_window->showMaximized();
    if (!QTest::qWaitForWindowActive(m_window.get()))
        qWarning("The window does not get the focus.");
}

TaskProgram::~TaskProgram() = default;

QString TaskProgram::openCopy(const QString& name)
{
    const QDir example(QStringLiteral(MERIDANE_EXAMPLES) + QLatin1Char('/') + name);
    const QString copy = folder() + QLatin1Char('/') + example.dirName();
    QDirIterator files(example.path(), QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        const QString file = files.next();
        const QString target = copy + QLatin1Char('/') + example.relativeFilePath(file);
        if (!QDir().mkpath(QFileInfo(target).path()) || !QFile::copy(file, target))
            return {};
        QFile::setPermissions(target, QFile::ReadOwner | QFile::WriteOwner);
    }
    return m_window->openProject(copy) ? copy : QString();
}

QString TaskProgram::carryOut(const std::function<void(const TaskUser& user)>& task)
{
    QString failure;
    const TaskUser user(m_window.get());
    const std::unique_ptr<QThread> thread(QThread::create([&] {
        try {
            task(user);
        } catch (const TaskFailure& thrown) {
            failure = thrown.message;
            try {
                user.picture(QStringLiteral("failed-") + QString::fromLatin1(QTest::currentTestFunction()));
            } catch (const TaskFailure& noPicture) {
                failure += QStringLiteral("; ") + noPicture.message;
            }
            // Whatever is still open would hold up the program.
            TaskUser::look([] {
                while (QWidget* popup = QApplication::activePopupWidget())
                    popup->close();
                while (QWidget* dialog = QApplication::activeModalWidget())
                    dialog->close();
            });
        }
    }));
    QEventLoop loop;
    QObject::connect(thread.get(), &QThread::finished, &loop, &QEventLoop::quit);
    thread->start();
    loop.exec();
    thread->wait();
    return failure;
}

} // namespace Korvex::Meridane::Designer::Test
