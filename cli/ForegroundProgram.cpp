#include "cli/ForegroundProgram.h"

#include "host/common/LocalizationHelper.h"

#include <QProcess>
#include <QProcessEnvironment>

namespace Korvex::Meridane::Designer {

using Common::LocalizationHelper;

namespace {

volatile std::sig_atomic_t runningChild = 0;
volatile std::sig_atomic_t requestedSignal = 0;

/// Only what a signal handler may do: the child ends, which ends the wait for it.
void handOn(int signal)
{
    requestedSignal = signal;
    if (runningChild != 0)
        ::kill(runningChild, signal);
}

} // namespace

ForegroundProgram::ForegroundProgram()
{
    requestedSignal = 0;
    for (int i = 0; i < SignalCount; ++i) {
        struct sigaction action = {};
        action.sa_handler = handOn;
        action.sa_flags = SA_RESTART;
        ::sigaction(Signals[i], &action, &m_before[i]);
    }
}

ForegroundProgram::~ForegroundProgram()
{
    for (int i = 0; i < SignalCount; ++i)
        ::sigaction(Signals[i], &m_before[i], nullptr);
}

bool ForegroundProgram::run(const QString& program, const QStringList& arguments, bool offscreen, QString* message)
{
    QProcess process;
    process.setProcessChannelMode(QProcess::ForwardedChannels);
    process.setInputChannelMode(QProcess::ForwardedInputChannel);
    if (offscreen) {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
        process.setProcessEnvironment(environment);
    }
    process.start(program, arguments);
    if (!process.waitForStarted(-1)) {
        *message = LocalizationHelper::coreString(QStringLiteral("%1: cannot be started: %2"))
                       .arg(program, process.errorString());
        return false;
    }
    runningChild = static_cast<std::sig_atomic_t>(process.processId());
    // A request that came before there was anybody to hand it on to.
    if (requestedSignal != 0)
        ::kill(runningChild, requestedSignal);
    process.waitForFinished(-1);
    runningChild = 0;
    if (process.exitStatus() == QProcess::CrashExit) {
        *message = LocalizationHelper::coreString(QStringLiteral("%1: was ended by a signal")).arg(program);
        return false;
    }
    if (process.exitCode() != 0) {
        *message = LocalizationHelper::coreString(QStringLiteral("%1: ended with exit status %2"))
                       .arg(program)
                       .arg(process.exitCode());
        return false;
    }
    return true;
}

} // namespace Korvex::Meridane::Designer
