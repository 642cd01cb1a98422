#include "host/core/project/ProjectChecker.h"

#include "host/core/objects/EditorMarks.h"
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
#include "host/core/snapping/Guides.h"

#include "host/common/LocalizationHelper.h"
#include "host/common/PictureCache.h"

#include <QElapsedTimer>
#include <QFontDatabase>
#include <QGuiApplication>

#include <algorithm>
#include <iterator>
#include <utility>

namespace Korvex::Meridane::Designer {

using Common::LocalizationHelper;

namespace {

/// The largest side of a display, in pixels.
constexpr double LargestDisplay = 20000;

} // namespace

ProjectChecker::ProjectChecker(Project* project)
    : m_project(project)
    , m_files(ProjectFiles::of(project))
{}

QList<Problem> ProjectChecker::check(Project* project)
{
    ProjectChecker checker(project);
    for (const Screen* screen : project->screens())
        screen->readContent();
    QList<Problem> problems = checker.fileProblems() + checker.checkProject();
    for (const Screen* screen : project->screens()) {
        checker.beginScreen(screen);
        checker.continueScreen();
        problems += checker.takeScreenProblems();
    }
    return problems;
}

QList<Problem> ProjectChecker::fileProblems() const
{
    return m_files->allProblems();
}

QList<Problem> ProjectChecker::checkProject()
{
    m_problems.clear();
    m_waiting.clear();
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
    return std::exchange(m_problems, {});
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

void ProjectChecker::beginScreen(const Screen* screen)
{
    screen->readContent();
    m_screen = screen;
    m_file = ProjectFolder::screenFile(screen->getIdName());
    m_problems = UnknownContent::find(screen);
    const QList<QString> noGuides = Guides::fromText(screen->editorMark(EditorMarks::guides())).unreadable();
    for (const QString& text : noGuides) {
        m_problems.append(
            Problem::warning(m_file, screen->getIdName(), {},
                             LocalizationHelper::coreString(
                                 QStringLiteral("\"%1\" is no guide. Guides are written as in \"x 100, y 50.5\"."))
                                 .arg(text)));
    }
    m_waiting.clear();
    if (screen->contentError().isEmpty())
        m_waiting.append({screen, false});
}

bool ProjectChecker::continueScreen(int milliseconds)
{
    QElapsedTimer timer;
    timer.start();
    while (!m_waiting.isEmpty()) {
        checkElement(m_waiting.takeLast());
        if (milliseconds >= 0 && timer.hasExpired(milliseconds))
            break;
    }
    return m_waiting.isEmpty();
}

QList<Problem> ProjectChecker::takeScreenProblems()
{
    m_waiting.clear();
    return std::exchange(m_problems, {});
}

/// Checks one object and puts what is below it in front of what is waiting. Of a group that lies off the screen the
/// elements need no report of their own.
void ProjectChecker::checkElement(const Waiting& waiting)
{
    const DesignerObject* object = waiting.object;
    for (const auto& property : object->properties())
        checkProperty(*property);
    const bool offScreen = waiting.mayBeOffScreen && isOffScreen(object);
    if (offScreen) {
        m_problems.append(Problem::warning(
            m_file, ObjectTree::name(object), {},
            LocalizationHelper::coreString(QStringLiteral(
                "The element lies outside of its screen and cannot be seen. Move it onto the screen or remove it."))));
        m_problems.last().kind = Problem::Kind::OffScreen;
    }
    if (const ObjectListProperty* list = object->childList()) {
        const auto& children = list->items();
        std::transform(children.crbegin(), children.crend(), std::back_inserter(m_waiting),
                       [offScreen](const DesignerObject* child) {
                           return Waiting{child, !offScreen};
                       });
    }
}

void ProjectChecker::checkProperty(const DesignerProperty& property)
{
    QString message;
    if (!property.isConverted()) {
        report(Problem::Severity::Error, property,
               LocalizationHelper::coreString(
                   QStringLiteral("\"%1\" is not a valid value for \"%2\". It is kept, but has no effect: correct it."))
                   .arg(property.valueString(), property.name()),
               Problem::Kind::InvalidValue);
        return;
    }
    if (!property.validateValue(message) || !property.validateObjectValue(message)
        || !property.validateListItems(message)) {
        const auto* link = dynamic_cast<const LinkProperty*>(&property);
        const bool isImage = link && ImageReferences::isImageLink(*link);
        report(Problem::Severity::Error, property, message,
               isImage ? Problem::Kind::MissingImage : Problem::Kind::InvalidValue);
        return;
    }
    if (const QString advice = property.advice(); !advice.isEmpty())
        report(Problem::Severity::Warning, property, advice);
    if (const QString advice = editorRangeAdvice(property); !advice.isEmpty())
        report(Problem::Severity::Warning, property, advice, Problem::Kind::InvalidValue);
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
                   .arg(file),
               Problem::Kind::MissingImage);
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

void ProjectChecker::report(Problem::Severity severity, const DesignerProperty& property, const QString& message,
                            Problem::Kind kind)
{
    m_problems.append({severity, m_file, ObjectTree::name(property.parentObject()), property.id(), message, kind});
}

} // namespace Korvex::Meridane::Designer
