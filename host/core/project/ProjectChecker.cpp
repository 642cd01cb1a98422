#include "host/core/project/ProjectChecker.h"

#include "host/core/objects/Screen.h"
#include "host/core/objects/VisualElement.h"
#include "host/core/project/EditorRange.h"
#include "host/core/project/ElementPlacement.h"
#include "host/core/project/ImageReferences.h"
#include "host/core/project/ObjectTree.h"
#include "host/core/project/Project.h"
#include "host/core/project/ProjectFiles.h"
#include "host/core/project/UnknownContent.h"
#include "host/core/properties/FontProperty.h"
#include "host/core/properties/LinkProperty.h"

#include "host/common/LocalizationHelper.h"
#include "host/common/PictureCache.h"

#include <QFontDatabase>
#include <QGuiApplication>

namespace Korvex::Meridane::Designer {

using Common::LocalizationHelper;

namespace {

/// The largest side of a display, in pixels.
constexpr double LargestDisplay = 20000;

} // namespace

ProjectChecker::ProjectChecker(Project* project, ProjectFiles* files)
    : m_project(project)
    , m_files(files)
{}

QList<Problem> ProjectChecker::check(Project* project)
{
    ProjectChecker checker(project, ProjectFiles::of(project));
    for (const Screen* screen : project->screens())
        screen->readContent();
    checker.m_problems = checker.m_files->allProblems();
    checker.checkProject();
    for (const Screen* screen : project->screens())
        checker.checkScreen(screen);
    return checker.m_problems;
}

void ProjectChecker::checkProject()
{
    m_file = ProjectFolder::projectFile();
    m_problems.append(UnknownContent::find(m_project));
    for (const auto& property : m_project->properties())
        checkProperty(*property);
    const QSizeF size = m_project->displaySize();
    const auto property = m_project->getProperty(QStringLiteral("displaySize"));
    if (property->isConverted()
        && !(size.width() >= 1 && size.height() >= 1 && size.width() <= LargestDisplay
             && size.height() <= LargestDisplay)) {
        report(Problem::Severity::Error, *property,
               LocalizationHelper::coreString(
                   QStringLiteral("The size of a display must be between 1 and %1 px in both directions."))
                   .arg(int(LargestDisplay)));
    }
    if (m_project->screens().isEmpty()) {
        m_problems.append(Problem::warning(
            m_file, {}, {}, LocalizationHelper::coreString(QStringLiteral("The project has no screen. Add one."))));
    }
    checkResources();
}

/// Files that the project lists but does not have, fonts that are none.
void ProjectChecker::checkResources()
{
    const ProjectFolder folder = m_files->folder();
    QStringList files;
    for (const QString& image : m_project->imageResources())
        files.append(ProjectFolder::imageFile(image));
    for (const QString& font : m_project->fontResources())
        files.append(ProjectFolder::fontFile(font));
    for (const QString& file : std::as_const(files)) {
        QString reason;
        const ProjectFolder::Found found = folder.find(file, &reason);
        if (found == ProjectFolder::Found::Nothing) {
            m_problems.append(Problem::warning(
                file, {}, {},
                LocalizationHelper::coreString(
                    QStringLiteral("The file is missing. Put it back, or take it out of the list in project.json."))));
        } else if (found == ProjectFolder::Found::Refused) {
            m_problems.append(Problem::error(file, {}, {}, reason));
        }
    }
    m_files->fonts().setFiles(folder, m_project->fontResources());
    for (const QString& font : m_files->fonts().unusableFiles()) {
        m_problems.append(Problem::warning(
            ProjectFolder::fontFile(font), {}, {},
            LocalizationHelper::coreString(QStringLiteral("The file holds no font that can be used. Replace it."))));
    }
}

void ProjectChecker::checkScreen(const Screen* screen)
{
    m_screen = screen;
    m_file = ProjectFolder::screenFile(screen->getIdName());
    m_problems.append(UnknownContent::find(screen));
    if (screen->contentError().isEmpty())
        checkElement(screen, false);
}

/// Checks \a object and what is below it. Of a group that lies off the screen the elements need no report of their own.
void ProjectChecker::checkElement(const DesignerObject* object, bool mayBeOffScreen)
{
    for (const auto& property : object->properties())
        checkProperty(*property);
    const bool offScreen = mayBeOffScreen && isOffScreen(object);
    if (offScreen) {
        m_problems.append(Problem::warning(
            m_file, ObjectTree::name(object), {},
            LocalizationHelper::coreString(QStringLiteral(
                "The element lies outside of its screen and cannot be seen. Move it onto the screen or remove it."))));
    }
    if (const ObjectListProperty* list = object->childList()) {
        for (const DesignerObject* child : list->items())
            checkElement(child, !offScreen);
    }
}

void ProjectChecker::checkProperty(const DesignerProperty& property)
{
    QString message;
    if (!property.isConverted()) {
        report(Problem::Severity::Error, property,
               LocalizationHelper::coreString(
                   QStringLiteral("\"%1\" is not a valid value for \"%2\". It is kept, but has no effect: correct it."))
                   .arg(property.valueString(), property.name()));
        return;
    }
    if (!property.validateValue(message) || !property.validateObjectValue(message)
        || !property.validateListItems(message)) {
        report(Problem::Severity::Error, property, message);
        return;
    }
    for (const QString& advice : {property.advice(), editorRangeAdvice(property)}) {
        if (!advice.isEmpty())
            report(Problem::Severity::Warning, property, advice);
    }
    checkFont(property);
    checkImageFile(property);
}

void ProjectChecker::checkFont(const DesignerProperty& property)
{
    const auto* font = dynamic_cast<const FontProperty*>(&property);
    if (!font || !qobject_cast<QGuiApplication*>(QCoreApplication::instance()))
        return;
    const QString family = font->value().family();
    if (isKnown(family))
        return;
    report(
        Problem::Severity::Warning, property,
        LocalizationHelper::coreString(
            QStringLiteral(
                "The font \"%1\" is neither in the project's fonts folder nor installed here; another one is shown in "
                "its place. Add its file to the project, or choose another font."))
            .arg(family));
}

/// The system takes its time to look for a family, and a project has few of them.
bool ProjectChecker::isKnown(const QString& family)
{
    auto known = m_families.constFind(family);
    if (known == m_families.cend())
        known =
            m_families.insert(family, QFontDatabase::hasFamily(family) || !m_files->fonts().filesOf(family).isEmpty());
    return *known;
}

void ProjectChecker::checkImageFile(const DesignerProperty& property)
{
    const auto* link = dynamic_cast<const LinkProperty*>(&property);
    if (!link || !ImageReferences::isImageLink(*link) || link->value().objectId().isEmpty())
        return;
    const QString file = ProjectFolder::imageFile(link->value().objectId());
    QString reason;
    switch (m_files->folder().find(file, &reason)) {
    case ProjectFolder::Found::File:
        checkPicture(property, file);
        break;
    case ProjectFolder::Found::Nothing:
        report(Problem::Severity::Error, property,
               LocalizationHelper::coreString(
                   QStringLiteral("The image file \"%1\" is missing. Put it back, or link another image."))
                   .arg(file));
        break;
    case ProjectFolder::Found::Refused:
        report(Problem::Severity::Error, property, file + QLatin1String(": ") + reason);
        break;
    }
}

/// Reports a picture that is shown nowhere. Reading some needs fonts.
void ProjectChecker::checkPicture(const DesignerProperty& property, const QString& file)
{
    if (!qobject_cast<QGuiApplication*>(QCoreApplication::instance()))
        return;
    const auto picture = Common::PictureCache::content(m_files->folder().absolute(file));
    if (picture->info.kind != Common::PictureKind::Unreadable)
        return;
    report(Problem::Severity::Error, property,
           LocalizationHelper::coreString(
               QStringLiteral("The image file \"%1\" cannot be shown (%2). Replace it, or link another image."))
               .arg(file, picture->reason));
}

bool ProjectChecker::isOffScreen(const DesignerObject* object) const
{
    const auto* element = qobject_cast<const VisualElement*>(object);
    const QRectF bounds = element ? ElementPlacement::boundsOnScreen(element) : QRectF();
    const QSizeF screen = m_screen->size();
    return !bounds.isNull()
           && (bounds.right() <= 0 || bounds.bottom() <= 0 || bounds.left() >= screen.width()
               || bounds.top() >= screen.height());
}

void ProjectChecker::report(Problem::Severity severity, const DesignerProperty& property, const QString& message)
{
    m_problems.append({severity, m_file, ObjectTree::name(property.parentObject()), property.id(), message});
}

} // namespace Korvex::Meridane::Designer
