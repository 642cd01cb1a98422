#include "host/core/project/ProjectReader.h"

#include "host/core/objects/QmlIdentifier.h"
#include "host/core/objects/Screen.h"
#include "host/core/project/ElementJson.h"
#include "host/core/project/JsonText.h"
#include "host/core/project/Project.h"
#include "host/core/project/ProjectFiles.h"
#include "host/core/project/ProjectStore.h"
#include "host/core/project/ProjectWriter.h"
#include "host/core/project/SaveTransaction.h"
#include "host/core/properties/ObjectListProperty.h"

#include "host/common/LocalizationHelper.h"

#include <QDir>
#include <QFileInfo>
#include <QJsonArray>

namespace Korvex::Meridane::Designer {

using Common::LocalizationHelper;

namespace {

bool isScreenId(const QString& name)
{
    return isQmlIdentifier(name);
}

} // namespace

ProjectReader::ProjectReader(const QString& folder)
    : m_folder(folder)
{}

std::unique_ptr<Project> ProjectReader::read()
{
    if (!readObject() || !checkVersion() || !readNames(QStringLiteral("screens"), true, isScreenId, &m_screens)
        || !readNames(QStringLiteral("images"), false, ProjectFolder::isResourceName, &m_images)
        || !readNames(QStringLiteral("fonts"), false, ProjectFolder::isResourceName, &m_fonts))
        return nullptr;
    auto project = std::make_unique<Project>();
    if (!project->initialize()) {
        refuse(LocalizationHelper::coreString(QStringLiteral("The project could not be made.")));
        return nullptr;
    }
    ProjectFiles* files = ProjectFiles::of(project.get());
    files->setFolder(m_folder.path());
    files->setContent(ProjectFolder::projectFile(), m_content);
    fillProperties(project.get());
    addResources(project.get(), files);
    addScreens(project.get(), files);
    reportUnlistedScreens();
    files->setProblems(m_problems);
    files->setLoadedProject(ProjectWriter::projectObject(project.get()));
    project->setSaved();
    return project;
}

bool ProjectReader::readObject()
{
    QString error;
    if (!QFileInfo(m_folder.path()).exists())
        return refuse(LocalizationHelper::coreString(QStringLiteral("The folder does not exist.")));
    if (!QFileInfo(m_folder.path()).isDir())
        return refuse(LocalizationHelper::coreString(QStringLiteral("A project is a folder, and this is a file.")));
    if (!SaveTransaction::recover(m_folder, &error))
        return refuse(error);
    switch (m_folder.read(ProjectFolder::projectFile(), &m_content, &error)) {
    case ProjectFolder::Found::Nothing:
        return refuse(LocalizationHelper::coreString(
            QStringLiteral("The folder holds no project: there is no file \"project.json\" in it.")));
    case ProjectFolder::Found::Refused:
        return refuse(error);
    case ProjectFolder::Found::File:
        break;
    }
    const std::optional<QJsonObject> object = JsonText::parse(m_content, &error);
    if (!object)
        return refuse(error);
    m_object = *object;
    return true;
}

bool ProjectReader::checkVersion()
{
    const QJsonValue value = m_object.value(QLatin1String("formatVersion"));
    const double version = value.toDouble(-1);
    if (!value.isDouble() || version < 1 || version != double(value.toInteger())) {
        return refuse(LocalizationHelper::coreString(
                          QStringLiteral("\"formatVersion\" must be a whole number from 1 to %1, not %2."))
                          .arg(QString::number(ProjectStore::FormatVersion),
                               value.isUndefined() ? JsonText::kindOf(value) : JsonText::compact(value)));
    }
    if (version > ProjectStore::FormatVersion) {
        return refuse(LocalizationHelper::coreString(
                          QStringLiteral("The project has format version %1; this program reads versions up to %2. "
                                         "Open it with a newer version of the program."))
                          .arg(QString::number(value.toInteger()), QString::number(ProjectStore::FormatVersion)));
    }
    return true;
}

bool ProjectReader::readNames(const QString& key, bool required, bool (*isUsable)(const QString& name),
                              QStringList* names)
{
    const QJsonValue value = m_object.value(key);
    if (value.isUndefined() && !required)
        return true;
    if (!value.isArray()) {
        return refuse(LocalizationHelper::coreString(QStringLiteral("\"%1\" must be a list, not %2."))
                          .arg(key, JsonText::kindOf(value)));
    }
    const QJsonArray list = value.toArray();
    for (qsizetype i = 0; i < list.size(); ++i) {
        const QString name = list.at(i).toString();
        if (!list.at(i).isString() || !isUsable(name)) {
            return refuse(
                LocalizationHelper::coreString(QStringLiteral("\"%1[%2]\" is %3, which cannot be used as a name."))
                    .arg(key, QString::number(i), JsonText::compact(list.at(i))));
        }
        if (names->contains(name)) {
            m_problems.append(
                Problem::error(ProjectFolder::projectFile(), {}, {},
                               LocalizationHelper::coreString(
                                   QStringLiteral("\"%1\" names \"%2\" twice: at %3 and at %4. Remove one."))
                                   .arg(key, name, QString::number(names->indexOf(name)), QString::number(i))));
            continue;
        }
        names->append(name);
    }
    return true;
}

void ProjectReader::fillProperties(Project* project)
{
    QJsonObject unknown = m_object;
    for (const char* key : {"formatVersion", "screens", "images", "fonts"})
        unknown.remove(QLatin1String(key));
    for (const auto& property : project->properties()) {
        if (!ElementJson::isStored(*property))
            continue;
        const QJsonValue value = m_object.value(property->id());
        unknown.remove(property->id());
        if (value.isUndefined())
            continue;
        const QString text = value.isString() ? value.toString() : JsonText::compact(value);
        if (!value.isString()) {
            m_problems.append(Problem::error(
                ProjectFolder::projectFile(), {}, property->id(),
                LocalizationHelper::coreString(
                    QStringLiteral("\"%1\" is %2; values are texts. It is taken as \"%3\": put it in quotes."))
                    .arg(property->id(), JsonText::kindOf(value), text)));
        }
        property->fill(text);
    }
    project->setUnknownKeys(unknown);
}

void ProjectReader::addResources(Project* project, ProjectFiles* files)
{
    const QStringList images =
        unlisted(QStringLiteral("images"), m_images,
                 {QStringLiteral("png"), QStringLiteral("jpg"), QStringLiteral("jpeg"), QStringLiteral("gif"),
                  QStringLiteral("bmp"), QStringLiteral("svg"), QStringLiteral("svgz"), QStringLiteral("webp"),
                  QStringLiteral("ico"), QStringLiteral("tif"), QStringLiteral("tiff"), QStringLiteral("pbm"),
                  QStringLiteral("pgm"), QStringLiteral("ppm"), QStringLiteral("xbm"), QStringLiteral("xpm")});
    const QStringList fonts = unlisted(QStringLiteral("fonts"), m_fonts,
                                       {QStringLiteral("ttf"), QStringLiteral("otf"), QStringLiteral("ttc")});
    files->setForeignResources(images, fonts);
    files->setReservedImages(m_images);
    project->setImageResources(m_images + images);
    project->setFontResources(m_fonts + fonts);
}

QStringList ProjectReader::unlisted(const QString& subfolder, const QStringList& listed,
                                    const QStringList& suffixes) const
{
    QStringList names = m_folder.fileNames(subfolder);
    names.removeIf([&listed, &suffixes](const QString& name) {
        return listed.contains(name) || !ProjectFolder::isResourceName(name)
               || !suffixes.contains(QFileInfo(name).suffix(), Qt::CaseInsensitive);
    });
    return names;
}

void ProjectReader::addScreens(Project* project, ProjectFiles* files)
{
    for (const QString& id : std::as_const(m_screens)) {
        auto screen = std::make_unique<Screen>(project);
        if (!screen->initialize() || !screen->setIdName(id)
            || !project->addListItem(project->childList(), screen.get(), -1))
            continue;
        files->addScreen(screen.get(), ProjectFolder::screenFile(id));
        screen.release(); // NOLINT(bugprone-unused-return-value): the project owns it now
    }
}

void ProjectReader::reportUnlistedScreens()
{
    const QStringList names = m_folder.fileNames(QStringLiteral("screens"));
    for (const QString& name : names) {
        if (name.endsWith(QLatin1String(".json")) && !m_screens.contains(name.chopped(5))) {
            m_problems.append(Problem::warning(
                QLatin1String("screens/") + name, {}, {},
                LocalizationHelper::coreString(
                    QStringLiteral(
                        "The file is not listed in project.json and is left alone. Add \"%1\" to \"screens\" there, or "
                        "remove the file."))
                    .arg(name.chopped(5))));
        }
    }
}

bool ProjectReader::refuse(const QString& message)
{
    const bool hasFolder = QFileInfo(m_folder.path()).isDir();
    m_problems.append(Problem::error(
        hasFolder ? ProjectFolder::projectFile() : QDir::toNativeSeparators(m_folder.path()), {}, {}, message));
    return false;
}

} // namespace Korvex::Meridane::Designer
