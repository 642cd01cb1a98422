#include "app/RecentFiles.h"

#include "app/AppSettings.h"

#include <QDir>

namespace Korvex::Meridane::Designer {

namespace {

const QString FoldersKey = QStringLiteral("recent/folders");

} // namespace

RecentFiles::RecentFiles(QObject* parent)
    : QObject(parent)
    , m_folders(AppSettings().value(FoldersKey).toStringList().mid(0, Limit))
{}

void RecentFiles::add(const QString& folder)
{
    const QString path = QDir::cleanPath(QDir(folder).absolutePath());
    if (!m_folders.isEmpty() && m_folders.constFirst() == path)
        return;
    m_folders.removeAll(path);
    m_folders.prepend(path);
    m_folders = m_folders.mid(0, Limit);
    store();
}

void RecentFiles::remove(const QString& folder)
{
    if (m_folders.removeAll(QDir::cleanPath(QDir(folder).absolutePath())) > 0)
        store();
}

void RecentFiles::clear()
{
    m_folders.clear();
    store();
}

void RecentFiles::store()
{
    AppSettings().setValue(FoldersKey, m_folders);
    Q_EMIT changed();
}

} // namespace Korvex::Meridane::Designer
