#include "host/core/project/ImageWatcher.h"

#include "host/core/project/Project.h"

#include <QDir>
#include <QFileInfo>
#include <QSet>

namespace Korvex::Meridane::Designer {

ImageWatcher::ImageWatcher(Project* project, QObject* parent)
    : QObject(parent)
    , m_project(project)
{
    m_delay.setSingleShot(true);
    m_delay.setInterval(Delay);
    connect(&m_delay, &QTimer::timeout, this, &ImageWatcher::look);
    connect(&m_watcher, &QFileSystemWatcher::fileChanged, &m_delay, qOverload<>(&QTimer::start));
    connect(&m_watcher, &QFileSystemWatcher::directoryChanged, &m_delay, qOverload<>(&QTimer::start));
    connect(project, &Project::resourcesChanged, this, &ImageWatcher::follow);
    connect(project, &Project::folderChanged, this, &ImageWatcher::followFolder);
    // What the program itself writes is announced already.
    connect(project, &Project::imageFileChanged, this, &ImageWatcher::note);
    follow();
}

ImageWatcher::~ImageWatcher() = default;

/// Brings what is watched in line with the images that the project has.
void ImageWatcher::follow()
{
    const QStringList& images = m_project->imageResources();
    m_stamps.removeIf(
        [&images](const QHash<QString, Stamp>::iterator& entry) { return !images.contains(entry.key()); });
    for (const QString& image : images) {
        if (!m_stamps.contains(image))
            m_stamps.insert(image, stampOf(image));
    }
    watchFiles();
}

/// The same files stand elsewhere now, and what shows them has to know.
void ImageWatcher::followFolder()
{
    m_stamps.clear();
    follow();
    const QStringList images = m_project->imageResources();
    for (const QString& image : images)
        Q_EMIT m_project->imageFileChanged(image);
}

void ImageWatcher::look()
{
    const QStringList images = m_stamps.keys();
    for (const QString& image : images) {
        if (stampOf(image) != m_stamps.value(image))
            Q_EMIT m_project->imageFileChanged(image);
    }
    watchFiles();
}

/// Watches the folder, where files come and go, and each file, which may be written in place.
void ImageWatcher::watchFiles()
{
    QStringList wanted;
    if (QFileInfo::exists(m_project->imagesPath()))
        wanted.append(m_project->imagesPath());
    for (auto stamp = m_stamps.cbegin(); stamp != m_stamps.cend(); ++stamp) {
        if (stamp->modified.isValid())
            wanted.append(path(stamp.key()));
    }
    const QStringList watched = m_watcher.files() + m_watcher.directories();
    const QSet<QString> wantedSet(wanted.cbegin(), wanted.cend());
    const QSet<QString> watchedSet(watched.cbegin(), watched.cend());
    const QStringList gone = (watchedSet - wantedSet).values();
    const QStringList added = (wantedSet - watchedSet).values();
    if (!gone.isEmpty())
        m_watcher.removePaths(gone);
    if (!added.isEmpty())
        m_watcher.addPaths(added);
}

void ImageWatcher::note(const QString& fileName)
{
    const auto stamp = m_stamps.find(fileName);
    if (stamp == m_stamps.end())
        return;
    *stamp = stampOf(fileName);
    // A file that was replaced is another one for the operating system, which may go on reporting the old one.
    if (m_watcher.files().contains(path(fileName)))
        m_watcher.removePath(path(fileName));
    watchFiles();
}

QString ImageWatcher::path(const QString& fileName) const
{
    return QDir(m_project->imagesPath()).filePath(fileName);
}

ImageWatcher::Stamp ImageWatcher::stampOf(const QString& fileName) const
{
    const QFileInfo info(path(fileName));
    return info.exists() ? Stamp{info.lastModified(), info.size()} : Stamp();
}

} // namespace Korvex::Meridane::Designer
