#include "host/core/project/Project.h"

#include "host/core/commands/UndoCommand.h"
#include "host/core/objects/Screen.h"
#include "host/core/properties/ObjectListProperty.h"
#include "host/core/properties/PropertyDeclaration.h"
#include "host/core/properties/SizeProperty.h"
#include "host/core/properties/StringProperty.h"
#include "host/core/values/ValueConversion.h"

#include "host/common/LocalizationHelper.h"

#include <QDir>

namespace Korvex::Meridane::Designer {

using Common::LocalizationHelper;

Project::Project(QObject* parent)
    : DesignerObject(parent)
    , m_undoStack(new UndoStack(this))
{
    setContainer(this);
    connect(m_undoStack, &QUndoStack::cleanChanged, this, &Project::updateModified);
}

Project::~Project()
{
    // The history holds removed objects and announces its end: both while the project is still whole.
    m_undoStack->disconnect();
    delete m_undoStack;
}

Project* Project::parentProject(DesignerObject* object)
{
    for (QObject* parent = object; parent; parent = parent->parent()) {
        if (auto* project = qobject_cast<Project*>(parent))
            return project;
    }
    return nullptr;
}

const Project* Project::parentProject(const DesignerObject* object)
{
    return parentProject(const_cast<DesignerObject*>(object));
}

QString Project::className() const
{
    return QStringLiteral("Project");
}

QStringList Project::classNames() const
{
    return DesignerObject::classNames() << QStringLiteral("Project");
}

QString Project::displayName() const
{
    return LocalizationHelper::coreString(QStringLiteral("Project"));
}

bool Project::initializeProperties()
{
    if (!DesignerObject::initializeProperties())
        return false;
    m_name = PropertyDeclaration<StringProperty>(this, QLatin1String("name"),
                                                 LocalizationHelper::coreString(QStringLiteral("Name")), QString())
                 .rank(1)
                 .flags(Stored | Shown | Editable);
    m_displaySize = PropertyDeclaration<SizeProperty>(this, QLatin1String("displaySize"),
                                                      LocalizationHelper::coreString(QStringLiteral("Display Size")),
                                                      QSizeF(800, 480))
                        .rank(2)
                        .flags(Stored | Shown | Editable)
                        .editor(QLatin1String("SizeEditor"), {{QStringLiteral("minimumValue"), QSizeF(1, 1)}});
    m_screens = QSharedPointer<ObjectListProperty>::create(this, QStringLiteral("screens"),
                                                           LocalizationHelper::coreString(QStringLiteral("Screens")));
    m_screens->setRank(100);
    m_screens->setFlags(Stored);
    addProperty(m_screens);
    return true;
}

GraphicsItem* Project::createGraphicsItem()
{
    return nullptr;
}

IdRegistry* Project::containedIds()
{
    return &m_ids;
}

ObjectListProperty* Project::containedObjects() const
{
    return m_screens.data();
}

QString Project::name() const
{
    return m_name->valueString();
}

QSizeF Project::displaySize() const
{
    return ValueConversion::toSize(m_displaySize->valueString());
}

QVector<Screen*> Project::screens() const
{
    QVector<Screen*> screens;
    screens.reserve(m_screens->items().size());
    for (DesignerObject* object : m_screens->items()) {
        if (auto* screen = qobject_cast<Screen*>(object))
            screens.append(screen);
    }
    return screens;
}

Screen* Project::screen(const QString& id) const
{
    return qobject_cast<Screen*>(m_ids.find(id));
}

void Project::setFolder(const QString& folder)
{
    if (m_folder == folder)
        return;
    m_folder = folder;
    m_imagesPath = QDir(folder).filePath(QStringLiteral("images"));
    m_fontsPath = QDir(folder).filePath(QStringLiteral("fonts"));
    Q_EMIT folderChanged();
}

void Project::setImageResources(const QStringList& fileNames)
{
    if (m_imageResources == fileNames)
        return;
    m_imageResources = fileNames;
    Q_EMIT resourcesChanged();
}

void Project::setFontResources(const QStringList& fileNames)
{
    if (m_fontResources == fileNames)
        return;
    m_fontResources = fileNames;
    Q_EMIT resourcesChanged();
}

EditResult Project::execute(std::unique_ptr<UndoCommand> command)
{
    return m_undoStack->execute(std::move(command));
}

void Project::emitUserModified(UndoCommand* command)
{
    if (command && command->mergeKey().isEmpty())
        command->setMergeKey(m_userModificationKey);
    const EditResult result = execute(std::unique_ptr<UndoCommand>(command));
    if (!result.accepted)
        Q_EMIT userModificationRefused(result.message);
}

void Project::notifyUpdateProjectBrowser()
{
    Q_EMIT projectBrowserUpdateRequested();
}

bool Project::isModified() const
{
    return m_modifiedOutsideHistory || !m_undoStack->isClean();
}

void Project::setSaved()
{
    m_modifiedOutsideHistory = false;
    m_undoStack->setClean();
    updateModified();
}

void Project::setModifiedOutsideHistory()
{
    m_modifiedOutsideHistory = true;
    updateModified();
}

void Project::updateModified()
{
    if (m_announcedModified == isModified())
        return;
    m_announcedModified = !m_announcedModified;
    Q_EMIT modifiedChanged(m_announcedModified);
}

} // namespace Korvex::Meridane::Designer
