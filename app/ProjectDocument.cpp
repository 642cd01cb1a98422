#include "app/ProjectDocument.h"

#include "app/CoreText.h"

#include "host/core/canvas/EditSession.h"
#include "host/core/project/ImageWatcher.h"
#include "host/core/project/Project.h"
#include "host/core/project/ProjectStore.h"
#include "host/core/properties/DesignerProperty.h"

#include <QDir>
#include <QFileInfo>

namespace Korvex::Meridane::Designer {

ProjectDocument::ProjectDocument(QObject* parent)
    : QObject(parent)
{}

ProjectDocument::~ProjectDocument() = default;

Project* ProjectDocument::project() const
{
    return m_session ? m_session->project() : nullptr;
}

bool ProjectDocument::isModified() const
{
    return m_session && m_session->project()->isModified();
}

QString ProjectDocument::name() const
{
    const QString name = m_session ? m_session->project()->name() : QString();
    return name.isEmpty() ? untitledName() : name;
}

QString ProjectDocument::untitledName()
{
    return coreText("Untitled");
}

void ProjectDocument::create(const QString& name, const QSizeF& displaySize)
{
    replaceSession(ProjectStore::create(name, displaySize), true);
}

bool ProjectDocument::open(const QString& path, QList<Problem>* problems)
{
    const QFileInfo info(path);
    const QString folder = info.isFile() ? info.absolutePath() : info.absoluteFilePath();
    ProjectStore::Loaded loaded = ProjectStore::load(folder);
    *problems = loaded.problems;
    if (!loaded.project)
        return false;
    replaceSession(std::move(loaded.project), false);
    return true;
}

bool ProjectDocument::openCopy(const QString& path, QList<Problem>* problems)
{
    ProjectStore::Loaded loaded = ProjectStore::loadCopy(path);
    *problems = loaded.problems;
    if (!loaded.project)
        return false;
    replaceSession(std::move(loaded.project), true);
    return true;
}

bool ProjectDocument::save(QString* message, const WorkProgress& progress)
{
    if (!ProjectStore::save(project(), project()->folder(), message, progress))
        return false;
    Q_EMIT titleChanged();
    return true;
}

bool ProjectDocument::saveAs(const QString& folder, QString* message, const WorkProgress& progress)
{
    const QString path = QDir::cleanPath(QDir(folder).absolutePath());
    const QFileInfo info(path);
    const bool own =
        !m_untitled && info.exists() && info.canonicalFilePath() == QFileInfo(project()->folder()).canonicalFilePath();
    if (!own && info.exists() && !info.isDir()) {
        *message = coreText("\"%1\" is a file. A project is kept in a folder of its own.").arg(path);
        return false;
    }
    if (!own && info.exists() && !QDir(path).isEmpty(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot)) {
        *message = coreText("The folder \"%1\" is not empty. Choose another name or an empty folder.").arg(path);
        return false;
    }
    const QString nameBefore = project()->name();
    nameAfter(path);
    if (!ProjectStore::save(project(), path, message, progress)) {
        project()->changePropertyValue(project()->getProperty(QStringLiteral("name")), nameBefore);
        return false;
    }
    m_untitled = false;
    Q_EMIT titleChanged();
    return true;
}

void ProjectDocument::replaceSession(std::unique_ptr<Project> project, bool untitled)
{
    if (m_session)
        Q_EMIT sessionAboutToClose();
    // The new session is there before the old one goes, so that observers never find none.
    auto old = std::exchange(m_session, std::make_unique<EditSession>(std::move(project)));
    m_untitled = untitled;
    Project* opened = m_session->project();
    m_imageWatcher = std::make_unique<ImageWatcher>(opened);
    connect(opened, &Project::modifiedChanged, this, &ProjectDocument::titleChanged);
    connect(opened, &Project::objectPropertyChanged, this, [this, opened](const DesignerObject* object) {
        if (object == opened)
            Q_EMIT titleChanged();
    });
    Q_EMIT sessionChanged(m_session.get());
    Q_EMIT titleChanged();
}

void ProjectDocument::nameAfter(const QString& folder) const
{
    // A project that nobody has named takes the name of its first folder; that is part of saving and no step.
    if (m_untitled && project()->name() == untitledName())
        project()->changePropertyValue(project()->getProperty(QStringLiteral("name")), QDir(folder).dirName());
}

} // namespace Korvex::Meridane::Designer
