#include "host/core/canvas/EditSession.h"

#include "host/core/canvas/CanvasScene.h"
#include "host/core/canvas/GraphicsItem.h"
#include "host/core/commands/AddObject.h"
#include "host/core/commands/MoveObject.h"
#include "host/core/commands/RemoveFont.h"
#include "host/core/commands/RemoveObject.h"
#include "host/core/commands/RenameObject.h"
#include "host/core/commands/ReparentObjects.h"
#include "host/core/objects/EditorMarks.h"
#include "host/core/objects/QmlIdentifier.h"
#include "host/core/objects/Screen.h"
#include "host/core/plugins/DesignerFactory.h"
#include "host/core/project/ElementEdits.h"
#include "host/core/project/FontImporter.h"
#include "host/core/project/FontReferences.h"
#include "host/core/project/ImageReferences.h"
#include "host/core/project/ObjectTree.h"
#include "host/core/project/Project.h"
#include "host/core/project/ResourceImporter.h"
#include "host/core/properties/DesignerProperty.h"
#include "host/core/values/ValueConversion.h"

#include "host/common/LocalizationHelper.h"

#include <QGuiApplication>
#include <QScopedValueRollback>
#include <QSet>
#include <QSignalBlocker>

namespace Korvex::Meridane::Designer {

using Common::LocalizationHelper;

namespace {

QString text(const char* source)
{
    return LocalizationHelper::coreString(QString::fromUtf8(source));
}

} // namespace

EditSession::EditSession(std::unique_ptr<Project> project, QObject* parent)
    : QObject(parent)
    , m_project(std::move(project))
{
    connect(undoStack(), &UndoStack::stepApplied, this, &EditSession::onStepApplied);
    connect(m_project.get(), &Project::objectRemoved, this, &EditSession::onObjectRemoved);
    connect(m_project.get(), &Project::objectMarked, this, &EditSession::onObjectMarked);
    connect(m_project.get(), &Project::userModificationRefused, this, &EditSession::editRefused);
    if (auto* application = qobject_cast<QGuiApplication*>(QCoreApplication::instance()))
        connect(application, &QGuiApplication::fontDatabaseChanged, this, &EditSession::repaintScenes);
    const QVector<Screen*> screens = m_project->screens();
    if (!screens.isEmpty())
        m_currentScreen = screens.first();
}

EditSession::~EditSession()
{
    m_project->disconnect(this);
    m_project->undoStack()->disconnect(this);
    for (const auto& [screen, scene] : m_scenes)
        scene->disconnect(this);
    m_scenes.clear();
}

UndoStack* EditSession::undoStack() const
{
    return m_project->undoStack();
}

CanvasScene* EditSession::scene(Screen* screen)
{
    if (!screen)
        return nullptr;
    auto& scene = m_scenes[screen];
    if (!scene) {
        scene = std::make_unique<CanvasScene>(screen);
        connect(scene.get(), &QGraphicsScene::selectionChanged, this,
                [this, made = scene.get()] { onSceneSelectionChanged(made); });
        connect(scene.get(), &CanvasScene::elementShown, this, [this] {
            // What was selected while it was out of sight now shows it.
            if (!m_selection.isEmpty() && !m_settingSelection)
                setSelection(QList<DesignerObject*>(m_selection));
        });
    }
    return scene.get();
}

Screen* EditSession::currentScreen() const
{
    return m_currentScreen;
}

void EditSession::setCurrentScreen(Screen* screen)
{
    if (screen == m_currentScreen)
        return;
    m_currentScreen = screen;
    Q_EMIT currentScreenChanged(screen);
    if (screen)
        onSceneSelectionChanged(scene(screen));
    else
        setSelection({});
}

void EditSession::setSelection(const QList<DesignerObject*>& objects)
{
    QList<DesignerObject*> chosen;
    if (!objects.isEmpty()) {
        Screen* screen = screenOf(objects.first());
        if (screen) {
            const QScopedValueRollback<bool> setting(m_settingSelection, true);
            setCurrentScreen(screen);
        }
        for (DesignerObject* object : objects) {
            if (screenOf(object) == screen)
                chosen.append(object);
        }
    }
    {
        const QScopedValueRollback<bool> setting(m_settingSelection, true);
        if (CanvasScene* canvas = scene(m_currentScreen))
            canvas->setSelectedObjects(chosen);
    }
    if (m_selection == chosen)
        return;
    m_selection = chosen;
    Q_EMIT selectionChanged();
}

EditResult EditSession::addScreen(const QString& id, const QSizeF& size, Screen** added)
{
    QString reason;
    if (!id.isEmpty() && !isQmlIdentifier(id, &reason))
        return refused(reason);
    if (!id.isEmpty() && m_project->ownIdScope()->contains(id))
        return refused(text("The id \"%1\" is already used.").arg(id));
    std::unique_ptr<DesignerObject> object(
        DesignerFactory::instance()->createDataObject(QStringLiteral("Screen"), nullptr));
    const auto screen = qobject_cast<Screen*>(object.get());
    screen->setIdName(id);
    const auto sizeProperty = screen->getProperty(QStringLiteral("size"));
    QString message;
    if (!screen->changePropertyValue(
            sizeProperty, ValueConversion::toString(size.isValid() ? size : m_project->displaySize()), &message))
        return refused(message);
    EditResult result = execute(std::make_unique<AddObject>(m_project.get(), std::move(object), -1, nullptr));
    if (result.changed) {
        setCurrentScreen(screen);
        setSelection({});
        if (added)
            *added = screen;
    }
    return result;
}

EditResult EditSession::removeScreen(Screen* screen)
{
    return execute(std::make_unique<RemoveObject>(screen, nullptr));
}

EditResult EditSession::duplicateScreen(Screen* screen, const QString& id, Screen** added)
{
    ScreenEdits::Plan plan = ScreenEdits::duplicate(m_project.get(), screen, id);
    if (!plan.message.isEmpty())
        return refused(plan.message);
    EditResult result = execute(std::move(plan.command));
    if (result.changed) {
        setCurrentScreen(plan.screen);
        setSelection({});
        if (added)
            *added = plan.screen;
    }
    return result;
}

EditResult EditSession::resizeScreen(Screen* screen, const QSizeF& size, ScreenEdits::Content content)
{
    if (content == ScreenEdits::Content::Scale)
        scene(screen);
    ScreenEdits::Plan plan = ScreenEdits::resize(screen, size, content);
    if (!plan.message.isEmpty())
        return refused(plan.message);
    return plan.command ? execute(std::move(plan.command)) : EditResult{true, false, {}};
}

EditResult EditSession::addElement(const QString& className, Screen* screen, const QString& id,
                                   const QMap<QString, QString>& properties, DesignerObject** added)
{
    ElementEdits::Plan plan = ElementEdits::add(className, screen, id, properties);
    if (!plan.message.isEmpty())
        return refused(plan.message);
    scene(screen); // an edit always has items
    EditResult result = execute(std::move(plan.command));
    if (result.changed) {
        setSelection({plan.element});
        if (added)
            *added = plan.element;
    }
    return result;
}

EditResult EditSession::removeElements(const QList<DesignerObject*>& elements)
{
    QList<DesignerObject*> going;
    for (DesignerObject* element : elements) {
        Screen* screen = screenOf(element);
        if (!screen || element == screen)
            continue;
        scene(screen);
        going.append(element);
    }
    ElementEdits::Plan plan = ElementEdits::remove(going);
    if (!plan.command)
        return {true, false, {}};
    EditResult result;
    {
        // The selection follows once, at the end, instead of at each element that goes.
        const QScopedValueRollback<bool> setting(m_settingSelection, true);
        const QSignalBlocker silent(scene(m_currentScreen));
        result = execute(std::move(plan.command));
    }
    if (m_selection.removeIf([this](DesignerObject* object) { return !Project::parentProject(object); }) > 0)
        Q_EMIT selectionChanged();
    return result;
}

EditResult EditSession::setProperty(DesignerObject* object, const QString& propertyId, const QString& value)
{
    return setProperties({object}, propertyId, {value});
}

EditResult EditSession::setProperties(const QList<DesignerObject*>& objects, const QString& propertyId,
                                      const QStringList& values)
{
    ElementEdits::Plan plan = ElementEdits::set(objects, propertyId, values, m_selection);
    if (!plan.message.isEmpty())
        return refused(plan.message);
    for (DesignerObject* object : objects)
        scene(screenOf(object));
    return execute(std::move(plan.command));
}

EditResult EditSession::moveElements(const QList<DesignerObject*>& elements, const QPointF& distance,
                                     const QString& mergeKey)
{
    ElementEdits::Plan plan = ElementEdits::move(elements, distance, m_selection);
    if (!plan.command)
        return {true, false, {}};
    plan.command->setMergeKey(mergeKey);
    for (DesignerObject* element : elements)
        scene(screenOf(element));
    return execute(std::move(plan.command));
}

EditResult EditSession::rotateElement(DesignerObject* element, double angle, const QString& fixedPoint)
{
    scene(screenOf(element));
    const GraphicsItem* item = element->graphicsItem();
    if (!item || !item->isRotatable())
        return refused(text("\"%1\" cannot be rotated.").arg(element->getIdName()));
    RotationInfo rotation;
    rotation.setAngle(angle);
    rotation.setFixedPoint(fixedPoint);
    const QString value = ValueConversion::toString(rotation);
    bool ok = false;
    (void)ValueConversion::toRotationInfo(value, &ok);
    if (!ok)
        return refused(text("\"%1\" is not a fixed point.").arg(fixedPoint));
    return setProperty(element, QStringLiteral("rotation"), value);
}

EditResult EditSession::setLocked(const QList<DesignerObject*>& elements, bool locked)
{
    return setMark(elements, EditorMarks::locked(), locked);
}

EditResult EditSession::setHidden(const QList<DesignerObject*>& elements, bool hidden)
{
    return setMark(elements, EditorMarks::hidden(), hidden);
}

EditResult EditSession::setMark(const QList<DesignerObject*>& elements, const QString& mark, bool set)
{
    const QString value = set ? EditorMarks::setValue() : QString();
    QList<DesignerObject*> changed;
    for (DesignerObject* element : elements) {
        if (element->editorMarkKeys().contains(mark) && element->editorMark(mark) != value && screenOf(element))
            changed.append(element);
    }
    if (changed.isEmpty())
        return {true, false, {}};
    for (DesignerObject* element : std::as_const(changed))
        scene(screenOf(element)); // an edit always has items
    if (set && !undoStack()->isBlocked()) {
        // At once, instead of one by one as the marks are set.
        QList<DesignerObject*> remaining = m_selection;
        const QSet<DesignerObject*> going(changed.cbegin(), changed.cend());
        if (remaining.removeIf([&going](DesignerObject* object) { return going.contains(object); }) > 0)
            setSelection(remaining);
    }
    EditResult result;
    {
        // What was selected out of sight and now shows it does so at the end, instead of at each element that is shown.
        const QScopedValueRollback<bool> setting(m_settingSelection, m_settingSelection || !set);
        result = execute(ElementEdits::mark(changed, mark, set).command);
    }
    if (!set && !m_selection.isEmpty())
        setSelection(QList<DesignerObject*>(m_selection));
    return result;
}

EditResult EditSession::rename(DesignerObject* object, const QString& id)
{
    return execute(std::make_unique<RenameObject>(object, id, nullptr));
}

EditResult EditSession::reorder(DesignerObject* object, int index)
{
    return execute(std::make_unique<MoveObject>(object, index, nullptr));
}

EditResult EditSession::importImage(const QString& file, QString* id)
{
    QString message;
    const QString fileName = ResourceImporter::importImage(m_project.get(), file, &message);
    if (fileName.isEmpty())
        return refused(message);
    if (id)
        *id = fileName;
    return {true, false, {}};
}

EditResult EditSession::renameImage(const QString& image, const QString& name, QString* id)
{
    return executePlan(ImageEdits::rename(m_project.get(), image, name, m_selection), image, id);
}

EditResult EditSession::replaceImage(const QString& image, const QString& file, QString* id)
{
    return executePlan(ImageEdits::replace(m_project.get(), image, file, m_selection), image, id);
}

EditResult EditSession::removeImage(const QString& image)
{
    return executePlan(ImageEdits::remove(m_project.get(), image), image, nullptr);
}

EditResult EditSession::executePlan(ImageEdits::Plan plan, const QString& image, QString* id)
{
    if (!plan.message.isEmpty())
        return refused(plan.message);
    if (id)
        *id = plan.image;
    if (!plan.command)
        return {true, false, {}};
    const QList<ImageUse> uses = ImageReferences::uses(m_project.get(), image);
    for (const ImageUse& use : uses)
        scene(screenOf(use.object)); // an edit always has items
    return execute(std::move(plan.command));
}

EditResult EditSession::importFont(const QString& file, QString* id, QStringList* families)
{
    QString message;
    QStringList found;
    const QString fileName = FontImporter::importFont(m_project.get(), file, &found, &message);
    if (fileName.isEmpty())
        return refused(message);
    if (id)
        *id = fileName;
    if (families)
        *families = found;
    return {true, false, {}};
}

EditResult EditSession::removeFont(const QString& font)
{
    const QString refusal = FontReferences::removalRefusal(m_project.get(), font);
    if (!refusal.isEmpty())
        return refused(refusal);
    return execute(std::make_unique<RemoveFont>(m_project.get(), font));
}

EditResult EditSession::moveToParent(const QList<DesignerObject*>& elements, DesignerObject* owner, int index)
{
    for (DesignerObject* element : elements)
        scene(screenOf(element)); // an edit always has items
    scene(screenOf(owner));
    auto command = std::make_unique<ReparentObjects>(elements, owner, index);
    if (!command->isValid())
        return refused(text("These elements cannot be moved there."));
    EditResult result = execute(std::move(command));
    if (result.changed)
        setSelection(elements);
    return result;
}

EditResult EditSession::undo()
{
    if (!undoStack()->canUndo() || undoStack()->isBlocked())
        return refused(text("There is nothing to undo."));
    undoStack()->undo();
    return {true, true, {}};
}

EditResult EditSession::redo()
{
    if (!undoStack()->canRedo() || undoStack()->isBlocked())
        return refused(text("There is nothing to redo."));
    undoStack()->redo();
    return {true, true, {}};
}

EditResult EditSession::refused(const QString& message)
{
    Q_EMIT editRefused(message);
    return {false, false, message};
}

EditResult EditSession::execute(std::unique_ptr<UndoCommand> command)
{
    EditResult result = m_project->execute(std::move(command));
    if (!result.accepted)
        Q_EMIT editRefused(result.message);
    return result;
}

Screen* EditSession::screenOf(DesignerObject* object) const
{
    return ObjectTree::screenOf(object);
}

void EditSession::onStepApplied(const UndoCommand* command)
{
    if (!command)
        return;
    QList<DesignerObject*> items;
    const QList<DesignerObject*> wanted = command->selectedItems();
    for (DesignerObject* item : wanted) {
        if (Project::parentProject(item) == m_project.get() && item != m_project.get())
            items.append(item);
    }
    if (!items.isEmpty())
        setSelection(items);
    else if (DesignerObject* active = command->activeItem(); active && screenOf(active))
        setCurrentScreen(screenOf(active));
}

void EditSession::onObjectRemoved(DesignerObject* object)
{
    if (auto* screen = qobject_cast<Screen*>(object)) {
        dropScene(screen);
        return;
    }
    if (m_settingSelection)
        return;
    const auto gone = [object](const DesignerObject* selected) { return ObjectTree::isWithin(selected, object); };
    if (m_selection.removeIf(gone) > 0)
        Q_EMIT selectionChanged();
}

void EditSession::onObjectMarked(DesignerObject* object, const QString& mark)
{
    const bool concernsSelection = mark == EditorMarks::hidden() || mark == EditorMarks::locked();
    if (m_selection.isEmpty() || !concernsSelection || object->editorMark(mark) != EditorMarks::setValue())
        return;
    QList<DesignerObject*> remaining = m_selection;
    const auto stands = [object](const DesignerObject* selected) { return ObjectTree::isWithin(selected, object); };
    if (remaining.removeIf(stands) > 0)
        setSelection(remaining);
}

void EditSession::onSceneSelectionChanged(CanvasScene* scene)
{
    if (m_settingSelection || scene->screen() != m_currentScreen)
        return;
    const QList<DesignerObject*> objects = scene->selectedObjects();
    if (objects == m_selection)
        return;
    m_selection = objects;
    Q_EMIT selectionChanged();
}

/// Fonts have come or gone.
void EditSession::repaintScenes()
{
    for (const auto& [screen, scene] : m_scenes)
        scene->update();
}

void EditSession::dropScene(Screen* screen)
{
    if (m_currentScreen == screen) {
        const QVector<Screen*> screens = m_project->screens();
        setCurrentScreen(screens.isEmpty() ? nullptr : screens.first());
        setSelection({});
    }
    const auto scene = m_scenes.find(screen);
    if (scene == m_scenes.end())
        return;
    // The items of a scene that goes are deselected one by one.
    scene->second->disconnect(this);
    m_scenes.erase(scene);
}

} // namespace Korvex::Meridane::Designer
