#include "host/core/qml/ExportContent.h"

#include "host/core/objects/Screen.h"
#include "host/core/objects/UnknownElement.h"
#include "host/core/project/ImageReferences.h"
#include "host/core/project/ObjectTree.h"
#include "host/core/project/Project.h"
#include "host/core/project/ProjectFiles.h"
#include "host/core/project/UnknownContent.h"
#include "host/core/properties/FontProperty.h"
#include "host/core/properties/LinkProperty.h"
#include "host/core/values/ValueConversion.h"

#include "host/common/LocalizationHelper.h"
#include "host/common/TextHelper.h"

namespace Korvex::Meridane::Designer {

using Common::LocalizationHelper;

namespace {

/// Before what a file consists of.
QString importText()
{
    return ExportContent::importLines().join(QLatin1Char('\n')) + QLatin1Char('\n');
}

} // namespace

ExportContent::ExportContent(Project* project, const WorkProgress& progress)
    : m_project(project)
    , m_projectFiles(ProjectFiles::of(project))
{
    m_projectFiles->fonts().setFiles(m_projectFiles->folder(), project->fontResources());
    addMain();
    const QVector<Screen*> screens = project->screens();
    for (qsizetype i = 0; i < screens.size(); ++i) {
        m_ended = progress && !progress(int(i), int(screens.size()));
        if (m_ended)
            return;
        addScreen(screens.at(i));
    }
}

const QStringList& ExportContent::importLines()
{
    static const QStringList lines{QStringLiteral("import Meridane.Display"), QString()};
    return lines;
}

void ExportContent::addMain()
{
    const QSizeF size = m_project->displaySize();
    if (!(size.width() > 0 && size.height() > 0)) {
        m_problems.append(Problem::error(
            ProjectFolder::projectFile(), {}, QStringLiteral("displaySize"),
            LocalizationHelper::coreString(QStringLiteral("Give the display a width and a height above 0."))));
        return;
    }
    QStringList screens;
    for (const Screen* screen : m_project->screens())
        screens.append(QLatin1Char('"') + Common::TextHelper::toQmlValueString(screen->getIdName()) + QLatin1Char('"'));
    const QString list =
        screens.isEmpty() ? QStringLiteral("[]") : QStringLiteral("[ %1 ]").arg(screens.join(QLatin1String(", ")));
    const QString qml =
        QStringLiteral("Display {\n\twidth: %1\n\theight: %2\n\tscreens: %3\n}\n")
            .arg(ValueConversion::toQmlString(size.width(), 4), ValueConversion::toQmlString(size.height(), 4), list);
    m_files.insert(QStringLiteral("Main.qml"), (importText() + qml).toUtf8());
}

void ExportContent::addScreen(const Screen* screen)
{
    const QString file = ProjectFolder::screenFile(screen->getIdName());
    screen->readContent();
    if (!screen->contentError().isEmpty()) {
        m_problems.append(Problem::error(
            file, screen->getIdName(), {},
            screen->contentError() + QLatin1Char(' ')
                + LocalizationHelper::coreString(QStringLiteral("A screen that cannot be read cannot be exported."))));
        return;
    }
    ObjectTree::visitRead(screen, [this, &file](const DesignerObject* object) {
        if (const auto* unknown = qobject_cast<const UnknownElement*>(object))
            m_problems.append(Problem::error(file, ObjectTree::name(object), {}, UnknownContent::explain(unknown)));
        addResources(object, file);
        addFonts(object);
    });
    const QString qml = importText() + screen->toQml(0) + QLatin1Char('\n');
    m_files.insert(QStringLiteral("screens/%1.qml").arg(screen->getIdName()), qml.toUtf8());
}

/// The files that the object names among its dependencies. A text that is no link has no QML line and needs no file.
void ExportContent::addResources(const DesignerObject* object, const QString& screenFile)
{
    const QList<QSharedPointer<DesignerProperty>> dependencies = object->getDependencyProperties();
    for (const QSharedPointer<DesignerProperty>& property : dependencies) {
        const auto* link = dynamic_cast<const LinkProperty*>(property.data());
        if (link && link->isConverted() && ImageReferences::isImageLink(*link) && !link->value().objectId().isEmpty())
            addImage(link->value().objectId(), screenFile, ObjectTree::name(object), link->id());
    }
}

void ExportContent::addFonts(const DesignerObject* object)
{
    for (const auto& property : object->properties()) {
        const auto* font = dynamic_cast<const FontProperty*>(property.data());
        if (!font || !font->isConverted())
            continue;
        const QStringList names = m_projectFiles->fonts().filesOf(font->value().family());
        for (const QString& name : names) {
            const QString file = ProjectFolder::fontFile(name);
            QByteArray content;
            QString reason;
            if (m_files.contains(file))
                continue;
            if (m_projectFiles->folder().read(file, &content, &reason) == ProjectFolder::Found::File)
                m_files.insert(file, content);
            else
                m_problems.append(Problem::error(
                    file, ObjectTree::name(object), property->id(),
                    LocalizationHelper::coreString(QStringLiteral("The font file cannot be read. %1")).arg(reason)));
        }
    }
}

void ExportContent::addImage(const QString& fileName, const QString& screenFile, const QString& object,
                             const QString& property)
{
    const QString file = ProjectFolder::imageFile(fileName);
    if (m_files.contains(file))
        return;
    QByteArray content;
    QString reason;
    switch (m_projectFiles->folder().read(file, &content, &reason)) {
    case ProjectFolder::Found::File:
        m_files.insert(file, content);
        break;
    case ProjectFolder::Found::Nothing:
        m_problems.append(
            Problem::error(screenFile, object, property,
                           LocalizationHelper::coreString(
                               QStringLiteral("The image file \"%1\" is missing. Put it back, or link another image."))
                               .arg(file)));
        break;
    case ProjectFolder::Found::Refused:
        m_problems.append(Problem::error(screenFile, object, property, file + QLatin1String(": ") + reason));
        break;
    }
}

} // namespace Korvex::Meridane::Designer
