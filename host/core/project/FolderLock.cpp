#include "host/core/project/FolderLock.h"

#include "host/common/LocalizationHelper.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QThread>

#ifdef Q_OS_UNIX
#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>
#endif

namespace Korvex::Meridane::Designer {

FolderLock::~FolderLock()
{
#ifdef Q_OS_UNIX
    if (m_handle >= 0)
        ::close(m_handle);
#endif
}

bool FolderLock::acquire(const QString& folder, QString* message)
{
#ifdef Q_OS_UNIX
    constexpr int LongestWait = 5000; // ms
    constexpr int Pause = 20; // ms
    m_handle = ::open(QFile::encodeName(folder).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (m_handle < 0)
        return true;
    QElapsedTimer waited;
    waited.start();
    while (::flock(m_handle, LOCK_EX | LOCK_NB) != 0) {
        if (errno != EWOULDBLOCK && errno != EINTR)
            return true;
        if (waited.elapsed() > LongestWait) {
            *message = Common::LocalizationHelper::coreString(
                           QStringLiteral("%1: Another program is saving this project. Try again when it is done."))
                           .arg(QDir::toNativeSeparators(folder));
            return false;
        }
        QThread::msleep(Pause);
    }
#else
    Q_UNUSED(folder)
    Q_UNUSED(message)
#endif
    return true;
}

} // namespace Korvex::Meridane::Designer
