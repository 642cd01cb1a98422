#include "host/core/project/ProjectFiles.h"

#include "host/core/objects/Screen.h"
#include "host/core/project/ElementReader.h"
#include "host/core/project/FileOperations.h"
#include "host/core/project/ImageReferences.h"
#include "host/core/project/JsonText.h"
#include "host/core/project/Project.h"

#include "host/common/LocalizationHelper.h"

#include <algorithm>

namespace Korvex::Meridane::Designer {

using Common::LocalizationHelper;

ProjectFiles::ProjectFiles(Project* project)
    : QObject(project)
    , m_project(project)
{
    connect(project, &Project::resourcesChanged, this, &ProjectFiles::noteImages);
    connect(project, &Project::resourcesChanged, this, &ProjectFiles::loadFonts);
}

ProjectFiles::~ProjectFiles()
{
    takeBackResources();
    removeDiscardedFiles();
}

ProjectFiles* ProjectFiles::of(Project* project)
{
    auto* files = project->findChild<ProjectFiles*>(QString(), Qt::FindDirectChildrenOnly);
    return files ? files : new ProjectFiles(project);
}

const ProjectFiles* ProjectFiles::find(const Project* project)
{
    return project->findChild<ProjectFiles*>(QString(), Qt::FindDirectChildrenOnly);
}

ProjectFolder ProjectFiles::folder() const
{
    return ProjectFolder(m_project->folder());
}

void ProjectFiles::setFolder(const QString& folder)
{
    m_project->setFolder(folder);
    m_folderPath = folder;
    m_temporaryFolder.reset();
}

void ProjectFiles::setTemporaryFolder(std::unique_ptr<QTemporaryDir> folder)
{
    setFolder(folder->path());
    m_temporaryFolder = std::move(folder);
}

void ProjectFiles::addScreen(Screen* screen, const QString& file)
{
    m_screens.push_back({screen, file, {}, {}});
    screen->setContentReader([files = QPointer<ProjectFiles>(this)](Screen* unread) {
        if (files)
            files->readScreen(unread);
    });
}

ProjectFiles::ScreenFile* ProjectFiles::screenFile(const Screen* screen)
{
    const auto found = std::find_if(m_screens.begin(), m_screens.end(),
                                    [screen](const ScreenFile& entry) { return entry.screen == screen; });
    return found == m_screens.end() ? nullptr : &*found;
}

QList<Problem> ProjectFiles::allProblems() const
{
    QList<Problem> problems = m_problems;
    for (const ScreenFile& entry : m_screens) {
        if (entry.screen && entry.screen->parentObject())
            problems.append(entry.problems);
    }
    return problems;
}

void ProjectFiles::setForeignResources(const QStringList& images, const QStringList& fonts)
{
    m_foreignImages = images;
    m_foreignFonts = fonts;
    noteImages();
}

void ProjectFiles::adoptForeignImage(const QString& image)
{
    if (m_foreignImages.removeAll(image) > 0)
        m_ownImages.insert(image);
}

void ProjectFiles::releaseForeignImage(const QString& image)
{
    m_ownImages.remove(image);
    m_reservedImages.remove(image);
    if (!m_foreignImages.contains(image))
        m_foreignImages.append(image);
}

bool ProjectFiles::writeImage(const QString& fileName, const QByteArray& content, QString* message)
{
    if (!m_images.write(folder(), fileName, content, message))
        return false;
    Q_EMIT m_project->imageFileChanged(fileName);
    return true;
}

bool ProjectFiles::writeFont(const QString& fileName, const QByteArray& content, QString* message)
{
    return m_fontFiles.write(folder(), fileName, content, message);
}

QByteArray ProjectFiles::readImage(const QString& fileName) const
{
    return m_images.read(folder(), fileName);
}

QByteArray ProjectFiles::readFont(const QString& fileName) const
{
    return m_fontFiles.read(folder(), fileName);
}

void ProjectFiles::setFontRemoved(const QString& fileName, bool removed)
{
    if (removed)
        m_removedFonts.insert(fileName);
    else
        m_removedFonts.remove(fileName);
}

void ProjectFiles::setResourcesSaved()
{
    m_discardedFonts = m_removedFonts;
    m_images.setSaved();
    m_fontFiles.setSaved();
}

void ProjectFiles::takeBackResources()
{
    if (m_temporaryFolder || !(m_images.isChanged() || m_fontFiles.isChanged()))
        return;
    const std::optional<QSet<QString>> mentioned = mentionedInFolder();
    m_images.takeBack(ProjectFolder(m_folderPath), mentioned);
    m_fontFiles.takeBack(ProjectFolder(m_folderPath), mentioned);
}

void ProjectFiles::setReservedImages(const QStringList& images)
{
    m_reservedImages = QSet<QString>(images.cbegin(), images.cend());
}

void ProjectFiles::readScreen(Screen* screen)
{
    ScreenFile* entry = screenFile(screen);
    if (!entry)
        return;
    QString error;
    if (readScreenFile(*entry, screen, &error))
        return;
    screen->setContentError(error);
    entry->problems = {
        Problem::error(entry->file, screen->getIdName(), {},
                       error + QLatin1Char(' ')
                           + LocalizationHelper::coreString(QStringLiteral(
                               "The screen cannot be shown; its file is left as it is until it has been corrected.")))};
}

bool ProjectFiles::readScreenFile(ScreenFile& entry, Screen* screen, QString* error)
{
    QByteArray content;
    switch (folder().read(entry.file, &content, error)) {
    case ProjectFolder::Found::Nothing:
        *error = LocalizationHelper::coreString(QStringLiteral("The file of the screen is missing."));
        return false;
    case ProjectFolder::Found::Refused:
        return false;
    case ProjectFolder::Found::File:
        break;
    }
    const std::optional<QJsonObject> object = JsonText::parse(content, error);
    if (!object)
        return false;
    ElementReader reader(entry.file, screen->getIdName());
    if (!reader.readScreen(*object, screen, error))
        return false;
    setContent(entry.file, content);
    entry.problems = reader.problems();
    addImageLinks(ImageReferences::linked(screen));
    return true;
}

/// An image is the project's own from the moment at which it is offered and was not found in the folder. It is kept for
/// whoever imported it, until it has been used.
void ProjectFiles::noteImages()
{
    const QStringList& images = m_project->imageResources();
    for (const QString& image : images) {
        if (m_foreignImages.contains(image) || m_ownImages.contains(image))
            continue;
        m_ownImages.insert(image);
        m_reservedImages.insert(image);
    }
}

void ProjectFiles::loadFonts()
{
    m_fonts.setFiles(folder(), m_project->fontResources());
}

/// Every text by which a file of the project, as they stand now, whoever wrote them, could name an image or a font;
/// nothing when one of them cannot be read.
std::optional<QSet<QString>> ProjectFiles::mentionedInFolder() const
{
    const ProjectFolder folder(m_folderPath);
    QStringList files{ProjectFolder::projectFile()};
    const QStringList screens = folder.fileNames(QStringLiteral("screens"));
    for (const QString& screen : screens)
        files.append(QLatin1String("screens/") + screen);
    QSet<QString> mentioned;
    for (const QString& file : std::as_const(files)) {
        QByteArray content;
        QString ignored;
        const bool read = folder.read(file, &content, &ignored) == ProjectFolder::Found::File;
        const std::optional<QJsonObject> object = read ? JsonText::parse(content, &ignored) : std::nullopt;
        if (!object)
            return std::nullopt;
        mentioned += ImageReferences::texts(*object);
    }
    return mentioned;
}

void ProjectFiles::removeDiscardedFiles()
{
    if ((m_discardedImages.isEmpty() && m_discardedFonts.isEmpty()) || m_temporaryFolder)
        return;
    const std::optional<QSet<QString>> mentioned = mentionedInFolder();
    if (!mentioned)
        return;
    const ProjectFolder folder(m_folderPath);
    for (const QString& image : std::as_const(m_discardedImages)) {
        if (!mentioned->contains(image))
            FileOperations::current().removeFile(folder.absolute(ProjectFolder::imageFile(image)), nullptr);
    }
    for (const QString& font : std::as_const(m_discardedFonts)) {
        if (!mentioned->contains(font) && ProjectFolder::isResourceName(font))
            FileOperations::current().removeFile(folder.absolute(ProjectFolder::fontFile(font)), nullptr);
    }
}

} // namespace Korvex::Meridane::Designer
