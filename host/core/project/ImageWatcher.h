#pragma once

#include "host/core/CoreExport.h"

#include <QDateTime>
#include <QFileSystemWatcher>
#include <QHash>
#include <QObject>
#include <QTimer>

namespace Korvex::Meridane::Designer {

class Project;

/**
 * Notices when another program changes, replaces, removes or brings back an image file of a project, and has the project
 * announce it (Project::imageFileChanged()).
 *
 * The operating system reports changes; nothing is looked at while nothing happens. Reports that follow each other
 * quickly, as while a large file is being written, are answered once.
 */
class MERIDANE_CORE_EXPORT ImageWatcher : public QObject
{
    Q_OBJECT

public:
    /// How long after the last report the files are looked at, in ms.
    static constexpr int Delay = 150;

    /// Watches the images of \a project, which outlives the watcher.
    explicit ImageWatcher(Project* project, QObject* parent = nullptr);
    ~ImageWatcher() override;

private:
    /// What tells one state of a file from another.
    struct Stamp
    {
        QDateTime modified; ///< invalid for a file that is not there
        qint64 size = -1;

        friend bool operator==(const Stamp& a, const Stamp& b) = default;
    };

    void follow();
    void followFolder();
    void look();
    void watchFiles();
    void note(const QString& fileName);
    [[nodiscard]] QString path(const QString& fileName) const;
    [[nodiscard]] Stamp stampOf(const QString& fileName) const;

    Project* m_project;
    QFileSystemWatcher m_watcher;
    QTimer m_delay;
    QHash<QString, Stamp> m_stamps; // by file name
};

} // namespace Korvex::Meridane::Designer
