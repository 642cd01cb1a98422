#include "app/PreviewRunner.h"

#include "app/CoreText.h"

#include "host/core/project/Project.h"
#include "host/core/qml/QmlExporter.h"

#include <QCoreApplication>
#include <QDir>
#include <QProcess>
#include <QTemporaryDir>

namespace Korvex::Meridane::Designer {

namespace {

constexpr int EndPatience = 2000; // ms that a viewer gets to close its window

} // namespace

PreviewRunner::PreviewRunner(const QString& program, QObject* parent)
    : QObject(parent)
    , m_program(program.isEmpty() ? installedViewer() : program)
{}

PreviewRunner::~PreviewRunner()
{
    stop();
}

bool PreviewRunner::start(Project* project, const QString& screenId, QList<Problem>* problems,
                          const WorkProgress& progress)
{
    stop();
    m_folder = std::make_unique<QTemporaryDir>();
    if (!m_folder->isValid()) {
        Q_EMIT failed(coreText("No temporary folder can be made for the preview: %1").arg(m_folder->errorString()));
        return false;
    }
    bool goesOn = true;
    *problems = QmlExporter::exportProject(project, m_folder->path(), [&](int done, int total) {
        goesOn = goesOn && (!progress || progress(done, total));
        return goesOn;
    });
    if (!goesOn)
        problems->clear();
    if (!goesOn || !problems->isEmpty())
        return false;

    m_process = std::make_unique<QProcess>();
    m_process->setProcessChannelMode(QProcess::SeparateChannels);
    m_process->setStandardOutputFile(QProcess::nullDevice());
    connect(m_process.get(), &QProcess::started, this, &PreviewRunner::started);
    connect(m_process.get(), &QProcess::errorOccurred, this, [this](QProcess::ProcessError error) {
        if (error == QProcess::FailedToStart) {
            Q_EMIT failed(coreText("The preview cannot be started: %1: %2")
                              .arg(QDir::toNativeSeparators(m_program), m_process->errorString()));
        }
    });
    connect(m_process.get(), &QProcess::finished, this,
            [this](int exitCode, QProcess::ExitStatus status) { onEnded(exitCode, status == QProcess::CrashExit); });
    QStringList arguments{m_folder->path()};
    if (!screenId.isEmpty())
        arguments << QStringLiteral("--screen") << screenId;
    arguments << QStringLiteral("--title") << project->name();
    m_process->start(m_program, arguments);
    return true;
}

QString PreviewRunner::installedViewer()
{
#ifdef Q_OS_WIN
    const QString name = QStringLiteral("meridane-viewer.exe");
#else
    const QString name = QStringLiteral("meridane-viewer");
#endif
    return QDir(QCoreApplication::applicationDirPath()).filePath(name);
}

bool PreviewRunner::isRunning() const
{
    return m_process && m_process->state() != QProcess::NotRunning;
}

void PreviewRunner::stop()
{
    if (isRunning()) {
        m_process->disconnect(this);
        m_process->terminate();
        if (!m_process->waitForFinished(EndPatience)) {
            m_process->kill();
            m_process->waitForFinished(EndPatience);
        }
    }
    m_process.reset();
    m_folder.reset();
}

void PreviewRunner::onEnded(int exitCode, bool crashed)
{
    if (exitCode == 0 && !crashed)
        return;
    // The last line is the one that says what ended the viewer.
    const QString output = QString::fromUtf8(m_process->readAllStandardError()).trimmed();
    const QString reason = output.isEmpty() ? coreText("it gave no reason") : output.section(QLatin1Char('\n'), -1);
    Q_EMIT failed(crashed ? coreText("The preview has crashed: %1").arg(reason)
                          : coreText("The preview has ended with an error: %1").arg(reason));
}

} // namespace Korvex::Meridane::Designer
