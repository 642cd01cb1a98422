#pragma once

#include "host/core/CoreExport.h"

#include <QString>

namespace Korvex::Meridane::Designer {

/// Keeps two programs from saving into one folder at a time. The lock leaves no file behind and ends with the program.
/// Where the file system knows no locks the folder counts as locked.
class FolderLock
{
public:
    FolderLock() = default;
    ~FolderLock();
    Q_DISABLE_COPY_MOVE(FolderLock)

    /// Waits for the lock, some seconds at most; false with a message when another program holds it all the time.
    [[nodiscard]] bool acquire(const QString& folder, QString* message);

private:
    int m_handle = -1;
};

} // namespace Korvex::Meridane::Designer
