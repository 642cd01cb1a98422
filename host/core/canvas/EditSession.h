#pragma once

#include "host/core/commands/UndoStack.h"
#include "host/core/project/ImageEdits.h"
#include "host/core/project/ScreenEdits.h"

#include <QList>
#include <QMap>
#include <QObject>
#include <QPointF>
#include <QPointer>
#include <QSizeF>

#include <map>
#include <memory>

namespace Korvex::Meridane::Designer {

class CanvasScene;
class DesignerObject;
class Project;
class Screen;

/**
 * One open project being edited: its scenes, current screen and selection, and the edits that the application and the
 * command line offer. Each edit is one undo step; one that changes nothing makes none and is accepted.
 */
class MERIDANE_CORE_EXPORT EditSession : public QObject
{
    Q_OBJECT

public:
    explicit EditSession(std::unique_ptr<Project> project, QObject* parent = nullptr);
    ~EditSession() override;

    [[nodiscard]] Project* project() const { return m_project.get(); }
    [[nodiscard]] UndoStack* undoStack() const;

    /// The scene of \a screen, made with the items of all its elements when it is first asked for.
    CanvasScene* scene(Screen* screen);
    /// The screen that is shown or was edited last; the first one at the start; null in a project without screens.
    [[nodiscard]] Screen* currentScreen() const;
    void setCurrentScreen(Screen* screen);

    /// The selected objects of the current screen (the screen itself when that is what is selected).
    [[nodiscard]] const QList<DesignerObject*>& selection() const { return m_selection; }
    /// Selects; goes to the objects' screen and makes its scene. Objects of other screens are left out.
    void setSelection(const QList<DesignerObject*>& objects);

    /// \a id empty: the smallest free one from "screen". \a size invalid: the project's display size.
    EditResult addScreen(const QString& id = {}, const QSizeF& size = {}, Screen** added = nullptr);
    EditResult removeScreen(Screen* screen);
    /// Adds a copy of \a screen behind it and goes there. \a id empty: a free one like that of the original.
    EditResult duplicateScreen(Screen* screen, const QString& id = {}, Screen** added = nullptr);
    /// Gives \a screen another size, in pixels; \a content: what becomes of its elements.
    EditResult resizeScreen(Screen* screen, const QSizeF& size, ScreenEdits::Content content);
    /// Adds an element of \a className in front of the others. \a id empty: the smallest free one of its base.
    /// \a properties: value strings by property id, set in order of rank and judged together. Refused as a whole when one is
    /// refused.
    EditResult addElement(const QString& className, Screen* screen, const QString& id,
                          const QMap<QString, QString>& properties, DesignerObject** added = nullptr);
    EditResult removeElements(const QList<DesignerObject*>& elements);
    EditResult setProperty(DesignerObject* object, const QString& propertyId, const QString& value);
    /// The same property of several objects, each with its own value.
    EditResult setProperties(const QList<DesignerObject*>& objects, const QString& propertyId,
                             const QStringList& values);
    /// Moves elements by a distance in pixels; \a mergeKey as in UndoCommand::setMergeKey().
    EditResult moveElements(const QList<DesignerObject*>& elements, const QPointF& distance,
                            const QString& mergeKey = {});
    /// Refused where the element cannot be rotated.
    EditResult rotateElement(DesignerObject* element, double angle, const QString& fixedPoint);
    /// Locks \a elements against the mouse, or unlocks them; what is locked is no longer selected. \a elements that have
    /// no such mark (EditorMarks) are left out.
    EditResult setLocked(const QList<DesignerObject*>& elements, bool locked);
    /// Takes \a elements out of sight on the canvas alone, or shows them again; what is hidden is no longer selected.
    EditResult setHidden(const QList<DesignerObject*>& elements, bool hidden);
    EditResult rename(DesignerObject* object, const QString& id);
    /// Moves \a object to \a index among its siblings (back to front).
    EditResult reorder(DesignerObject* object, int index);
    /// Copies an image file into the project; refused when no reader can decode it. \a id: the new resource's file
    /// name, a free one made of the file's own name.
    EditResult importImage(const QString& file, QString* id);
    /// Calls the image resource \a image \a name; links follow. \a id: its name then, with the ending that it needs.
    EditResult renameImage(const QString& image, const QString& name, QString* id = nullptr);
    /// Lets \a image hold the picture in \a file. \a id: its name then, which ends as the new picture asks for.
    EditResult replaceImage(const QString& image, const QString& file, QString* id = nullptr);
    /// Removes \a image; refused while anything uses it.
    EditResult removeImage(const QString& image);
    /// Copies a font file into the project; refused when it is none that every display can load. \a id: its name in the
    /// project; \a families: what texts call it.
    EditResult importFont(const QString& file, QString* id, QStringList* families = nullptr);
    /// Takes the font file \a font from the project; refused while texts use it.
    EditResult removeFont(const QString& font);
    /// Moves elements, of which none stands in another, to the place \a index among those children of \a owner (a screen
    /// or a group) that are not moved; -1: the front. They stay where they are on the screen. Their order is kept.
    EditResult moveToParent(const QList<DesignerObject*>& elements, DesignerObject* owner, int index);
    EditResult undo();
    EditResult redo();

Q_SIGNALS:
    void selectionChanged();
    void currentScreenChanged(Screen* screen);
    /// An edit from the canvas, an editor or a menu was refused; \a message is for the user.
    void editRefused(const QString& message);

private:
    EditResult refused(const QString& message);
    EditResult execute(std::unique_ptr<UndoCommand> command);
    EditResult executePlan(ImageEdits::Plan plan, const QString& image, QString* id);
    EditResult setMark(const QList<DesignerObject*>& elements, const QString& mark, bool set);
    [[nodiscard]] Screen* screenOf(DesignerObject* object) const;
    void onStepApplied(const UndoCommand* command);
    void onObjectRemoved(DesignerObject* object);
    void onObjectMarked(DesignerObject* object, const QString& mark);
    void onSceneSelectionChanged(CanvasScene* scene);
    void dropScene(Screen* screen);
    void repaintScenes();

    std::unique_ptr<Project> m_project;
    std::map<Screen*, std::unique_ptr<CanvasScene>> m_scenes;
    QPointer<Screen> m_currentScreen;
    QList<DesignerObject*> m_selection;
    bool m_settingSelection = false;
};

} // namespace Korvex::Meridane::Designer
