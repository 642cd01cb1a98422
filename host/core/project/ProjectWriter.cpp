#include "host/core/project/ProjectWriter.h"

#include "host/core/objects/Screen.h"
#include "host/core/project/ElementJson.h"
#include "host/core/project/ElementReader.h"
#include "host/core/project/ImageReferences.h"
#include "host/core/project/JsonText.h"
#include "host/core/project/Project.h"
#include "host/core/project/ProjectFiles.h"
#include "host/core/project/ProjectStore.h"
#include "host/core/properties/DesignerProperty.h"
#include "host/core/values/ValueConversion.h"

#include "host/common/LocalizationHelper.h"

#include <QDir>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>

namespace Korvex::Meridane::Designer {

using Common::LocalizationHelper;

namespace {

bool refuse(const ProjectFolder& folder, const QString& file, const QString& reason, QString* message)
{
    *message = QDir::toNativeSeparators(folder.absolute(file)) + QLatin1String(": ") + reason;
    return false;
}

QStringList without(QStringList names, const QStringList& left, const QSet<QString>& out)
{
    names.removeIf([&](const QString& name) { return left.contains(name) || out.contains(name); });
    return names;
}

} // namespace

ProjectWriter::ProjectWriter(Project* project, const QString& folder)
    : m_project(project)
    , m_files(ProjectFiles::of(project))
    , m_source(project->folder())
    , m_target(folder)
    , m_own(isIntoOwnFolder())
    , m_transaction(m_target)
{}

bool ProjectWriter::isIntoOwnFolder() const
{
    if (m_project->folder().isEmpty())
        return false;
    const QString canonical = QFileInfo(m_target.path()).canonicalFilePath();
    return m_target.path() == m_source.path()
           || (!canonical.isEmpty() && canonical == QFileInfo(m_source.path()).canonicalFilePath());
}

QJsonObject ProjectWriter::projectObject(const Project* project, const QSet<QString>& discarded)
{
    QJsonObject object = project->unknownKeys();
    object.insert(QLatin1String("formatVersion"), ProjectStore::FormatVersion);
    for (const auto& property : project->properties()) {
        if (ElementJson::isStored(*property))
            object.insert(property->id(), property->valueString());
    }
    QJsonArray screens;
    for (const Screen* screen : project->screens())
        screens.append(screen->getIdName());
    object.insert(QLatin1String("screens"), screens);
    const ProjectFiles* files = ProjectFiles::find(project);
    object.insert(QLatin1String("images"),
                  QJsonArray::fromStringList(
                      without(project->imageResources(), files ? files->foreignImages() : QStringList(), discarded)));
    object.insert(QLatin1String("fonts"),
                  QJsonArray::fromStringList(
                      without(project->fontResources(), files ? files->foreignFonts() : QStringList(), {})));
    return object;
}

bool ProjectWriter::save(QString* message, const WorkProgress& progress)
{
    // The old content is compared with below, so what an interrupted save left must be put in order before.
    if (QFileInfo(m_target.path()).isDir() && !SaveTransaction::recover(m_target, message))
        return false;
    if ((m_own && !rescueRemovedScreens(message)) || !planScreens(message, progress))
        return false;
    findDiscardedImages();
    if (m_own)
        planScreenRemovals();
    else if (!planResourceCopies(message))
        return false;
    if (!planProjectFile(message) || !m_transaction.commit(message))
        return false;
    adoptResult();
    return true;
}

/// Screens that were removed but can come back by undo are read before their files go.
bool ProjectWriter::rescueRemovedScreens(QString* message)
{
    for (ProjectFiles::ScreenFile& entry : m_files->screenFiles()) {
        if (!entry.screen || entry.screen->parentObject() || entry.file.isEmpty())
            continue;
        entry.screen->readContent();
        if (entry.screen->contentError().isEmpty())
            continue;
        QString reason;
        if (m_source.read(entry.file, &entry.unreadable, &reason) == ProjectFolder::Found::Refused)
            return refuse(m_source, entry.file, reason, message);
        m_files->setContent(entry.file, entry.unreadable);
    }
    return true;
}

bool ProjectWriter::planScreens(QString* message, const WorkProgress& progress)
{
    const auto screens = m_project->screens();
    for (Screen* screen : screens) {
        const QString file = ProjectFolder::screenFile(screen->getIdName());
        m_screenFiles.insert(screen, file);
        // A screen of another name is written anew, so all of these are read before any is looked at as a target.
        const ProjectFiles::ScreenFile* entry = m_files->screenFile(screen);
        if (!entry || entry->file != file)
            screen->readContent();
    }
    int done = 0;
    for (Screen* screen : screens) {
        if (progress && !progress(done++, int(screens.size())))
            return false;
        const QString file = m_screenFiles.value(screen);
        const bool asItStands = !screen->isContentRead();
        if (asItStands && m_own)
            continue;
        if (!(asItStands ? planCopy(file, message) : planScreen(screen, file, message)))
            return false;
    }
    return true;
}

bool ProjectWriter::planScreen(Screen* screen, const QString& file, QString* message)
{
    screen->readContent();
    if (!screen->contentError().isEmpty())
        return planUnreadableScreen(screen, file, message);
    return planFile(file, JsonText::write(ElementJson::write(screen)), screen, message);
}

bool ProjectWriter::planUnreadableScreen(Screen* screen, const QString& file, QString* message)
{
    const ProjectFiles::ScreenFile* entry = m_files->screenFile(screen);
    if (!entry)
        return true;
    if (!entry->file.isEmpty() && entry->file != file) {
        return refuse(m_source, entry->file,
                      LocalizationHelper::coreString(
                          QStringLiteral("The screen cannot be renamed to \"%1\" while its file cannot be read."))
                          .arg(screen->getIdName()),
                      message);
    }
    if (!entry->file.isEmpty())
        return m_own || planCopy(file, message);
    return entry->unreadable.isEmpty() || planFile(file, entry->unreadable, nullptr, message);
}

/// \a file goes into the target as it stands in the source; a file that is missing stays missing.
bool ProjectWriter::planCopy(const QString& file, QString* message)
{
    QByteArray content;
    QString reason;
    switch (m_source.read(file, &content, &reason)) {
    case ProjectFolder::Found::Nothing:
        return true;
    case ProjectFolder::Found::Refused:
        return refuse(m_source, file, reason, message);
    case ProjectFolder::Found::File:
        break;
    }
    return planFile(file, content, nullptr, message);
}

/// \a screen is given when the content is that of a screen which can be compared by its meaning.
bool ProjectWriter::planFile(const QString& file, const QByteArray& content, const Screen* screen, QString* message)
{
    QByteArray present;
    QString reason;
    const ProjectFolder::Found found = m_target.read(file, &present, &reason);
    if (found == ProjectFolder::Found::Refused)
        return refuse(m_target, file, reason, message);
    if (found == ProjectFolder::Found::File) {
        if (present == content) {
            m_contents.insert(file, content);
            return true;
        }
        const QByteArray known = m_own ? m_files->content(file) : QByteArray();
        if (known.isNull()) {
            return refuse(m_target, file,
                          LocalizationHelper::coreString(QStringLiteral(
                              "There is already a file of this name, and it does not belong to the project. Move it "
                              "away, or save into another folder.")),
                          message);
        }
        // A screen that was not changed here stays as its file stands, whoever wrote that.
        if (screen && meansTheSame(known, screen, content))
            return true;
        if (known != present)
            return refuse(m_target, file, SaveTransaction::changedElsewhere(), message);
    }
    if (screen && QJsonDocument::fromJson(content).isNull()) {
        return refuse(m_target, file,
                      LocalizationHelper::coreString(
                          QStringLiteral("The groups of the screen are nested too deeply for a file.")),
                      message);
    }
    m_contents.insert(file, content);
    m_writtenFiles.insert(file);
    m_transaction.write(file, content, present);
    return true;
}

/// Whether a file of the content \a text holds the screen as it is now, only written by another hand: in another order,
/// with defaults left out.
bool ProjectWriter::meansTheSame(const QByteArray& text, const Screen* screen, const QByteArray& content) const
{
    QString ignored;
    const std::optional<QJsonObject> object = JsonText::parse(text, &ignored);
    Screen copy;
    if (!object || !copy.initialize() || !copy.setIdName(screen->getIdName()))
        return false;
    if (const auto size = copy.getProperty(QStringLiteral("size")))
        size->fill(ValueConversion::toString(m_project->displaySize()));
    ElementReader reader({}, screen->getIdName());
    return reader.readScreen(*object, &copy, &ignored) && JsonText::write(ElementJson::write(&copy)) == content;
}

void ProjectWriter::planScreenRemovals()
{
    const QStringList kept = m_screenFiles.values();
    for (const ProjectFiles::ScreenFile& entry : m_files->screenFiles()) {
        if (entry.file.isEmpty() || kept.contains(entry.file))
            continue;
        QByteArray content = m_files->content(entry.file);
        QString ignored;
        // Of a screen that nothing can bring back any more no content need be known.
        if (content.isNull() && !entry.screen
            && m_source.read(entry.file, &content, &ignored) != ProjectFolder::Found::File)
            continue;
        if (!content.isNull() && QFileInfo::exists(m_target.absolute(entry.file)))
            m_transaction.remove(entry.file, ProjectFolder::fingerprint(content));
    }
}

void ProjectWriter::findDiscardedImages()
{
    m_mentionedImages = ImageReferences::texts(m_project->unknownKeys());
    for (const Screen* screen : m_project->screens()) {
        m_mentionedImages += ImageReferences::mentioned(screen);
        m_files->addImageLinks(ImageReferences::linked(screen));
    }
    // An image that is kept for later use and was renamed or removed is kept no more.
    QSet<QString> reserved = m_files->reservedImages();
    const QStringList& offered = m_project->imageResources();
    reserved.intersect(QSet<QString>(offered.cbegin(), offered.cend()));
    QSet<QString> candidates = m_files->ownImages() - m_mentionedImages - reserved;
    if (candidates.isEmpty() && m_own)
        return;
    bool certain = true;
    m_mentionedImages += imagesOfUnreadScreens(&certain);
    if (certain)
        m_discardedImages = candidates.subtract(m_mentionedImages);
}

QSet<QString> ProjectWriter::imagesOfUnreadScreens(bool* certain) const
{
    QSet<QString> texts;
    for (const Screen* screen : m_project->screens()) {
        const bool unreadable = screen->isContentRead() && !screen->contentError().isEmpty();
        if (screen->isContentRead() && !unreadable)
            continue;
        QByteArray content;
        QString ignored;
        const bool read = m_source.read(m_screenFiles.value(screen), &content, &ignored) == ProjectFolder::Found::File;
        const std::optional<QJsonObject> object = read ? JsonText::parse(content, &ignored) : std::nullopt;
        if (object)
            texts += ImageReferences::texts(*object);
        else
            *certain = false;
    }
    return texts;
}

/// Into another folder goes what the project owns or uses; what else the user keeps in images/ stays behind.
bool ProjectWriter::planResourceCopies(QString* message)
{
    QStringList images = m_project->imageResources();
    for (const QString& image : m_files->ownImages()) {
        if (!images.contains(image))
            images.append(image);
    }
    images.removeIf([this](const QString& image) {
        const bool needed = m_files->ownImages().contains(image) || m_mentionedImages.contains(image);
        return !needed || !ProjectFolder::isResourceName(image);
    });
    images.sort();
    for (const QString& image : std::as_const(images)) {
        if (!planCopy(ProjectFolder::imageFile(image), message))
            return false;
    }
    for (const QString& font : m_project->fontResources()) {
        if (ProjectFolder::isResourceName(font) && !planCopy(ProjectFolder::fontFile(font), message))
            return false;
    }
    return true;
}

bool ProjectWriter::planProjectFile(QString* message)
{
    m_projectObject = projectObject(m_project, m_discardedImages);
    const QString file = ProjectFolder::projectFile();
    if (m_own && m_projectObject == m_files->loadedProject() && QFileInfo::exists(m_target.absolute(file)))
        return true;
    return planFile(file, JsonText::write(m_projectObject), nullptr, message);
}

/// Images of the user's that nothing shows have stayed in the folder that the project comes from.
void ProjectWriter::leaveUnusedImages()
{
    QStringList images = m_project->imageResources();
    images.removeIf([this](const QString& image) {
        return !m_files->ownImages().contains(image) && !m_mentionedImages.contains(image);
    });
    m_project->setImageResources(images);
}

void ProjectWriter::adoptResult()
{
    if (!m_own) {
        m_files->takeBackResources();
        m_files->setFolder(m_target.path());
        leaveUnusedImages();
    }
    m_files->setResourcesSaved();
    std::vector<ProjectFiles::ScreenFile>& entries = m_files->screenFiles();
    const QStringList kept = m_screenFiles.values();
    for (const ProjectFiles::ScreenFile& entry : entries) {
        if (!kept.contains(entry.file))
            m_files->forget(entry.file);
    }
    for (Screen* screen : m_project->screens()) {
        if (!m_files->screenFile(screen))
            entries.push_back({screen, {}, {}, {}});
    }
    std::erase_if(entries, [](const ProjectFiles::ScreenFile& entry) { return !entry.screen; });
    for (ProjectFiles::ScreenFile& entry : entries) {
        entry.file = m_screenFiles.value(entry.screen);
        if (m_writtenFiles.contains(entry.file) && entry.screen->isContentRead()
            && entry.screen->contentError().isEmpty())
            entry.problems.clear();
    }
    for (auto content = m_contents.cbegin(); content != m_contents.cend(); ++content) {
        if (content.key().endsWith(QLatin1String(".json")))
            m_files->setContent(content.key(), content.value());
    }

    m_files->setLoadedProject(m_projectObject);
    m_files->setDiscardedImages(m_discardedImages);
    m_project->setSaved();
}

} // namespace Korvex::Meridane::Designer
