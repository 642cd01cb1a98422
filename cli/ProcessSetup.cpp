#include "cli/ProcessSetup.h"

#include <QByteArray>
#include <QDir>
#include <QFile>

#include <clocale>
#include <csignal>

#include <fcntl.h>
#include <langinfo.h>
#include <unistd.h>

namespace Korvex::Meridane::Designer {

namespace {

void occupyClosedDescriptors()
{
    for (const int descriptor : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) {
        if (::fcntl(descriptor, F_GETFD) != -1)
            continue;
        // Opened the wrong way round, so that the first use reports the closed descriptor as an error. The lowest free
        // number is the one that was found closed.
        const int opened = ::open("/dev/null", descriptor == STDIN_FILENO ? O_WRONLY : O_RDONLY);
        if (opened != -1 && opened != descriptor)
            ::close(opened);
    }
}

void useUtf8Locale()
{
    std::setlocale(LC_ALL, "");
    const QByteArray encoding = QByteArray(::nl_langinfo(CODESET)).toUpper();
    if (encoding != "UTF-8" && encoding != "UTF8")
        qputenv("LC_ALL", "C.UTF-8");
}

/// The folder that Qt takes anyway where the session has none; named, it is taken without a warning. Qt makes it, for
/// this user alone, and refuses one that others can reach.
void nameRuntimeFolder()
{
    if (qEnvironmentVariableIsEmpty("XDG_RUNTIME_DIR"))
        qputenv("XDG_RUNTIME_DIR", QFile::encodeName(QDir::tempPath()) + "/runtime-" + QByteArray::number(::geteuid()));
}

} // namespace

void ProcessSetup::prepare()
{
    occupyClosedDescriptors();
    std::signal(SIGPIPE, SIG_IGN);
    std::signal(SIGXFSZ, SIG_IGN);
    useUtf8Locale();
    nameRuntimeFolder();
}

bool ProcessSetup::hasDisplay()
{
    return !qEnvironmentVariableIsEmpty("DISPLAY") || !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY")
           || !qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM");
}

} // namespace Korvex::Meridane::Designer
