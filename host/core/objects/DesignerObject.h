#pragma once

#include "host/core/objects/IDesignerObject.h"
#include "host/core/values/IdentifierInfo.h"

#include <QJsonObject>
#include <QMap>
#include <QObject>
#include <QSharedPointer>
#include <QVector>

namespace Korvex::Meridane::Designer {

class DesignerProperty;
class GraphicsItem;
class IdRegistry;
class ObjectContainer;
class ObjectListProperty;

/**
 * A named object of a project: typed properties, change hooks and QML output.
 *
 * Every change of a value goes through changePropertyValue(), in this order: beforePropertyChanged(), conversion,
 * validation, the change, afterPropertyChanged(), the canvas item's updateGraphicsItem(). Changes that a hook or an
 * item makes meanwhile run depth first and complete; propertyChanged() is emitted once per property, after the
 * outermost change.
 */
class MERIDANE_CORE_EXPORT DesignerObject : public QObject, public IDesignerObject
{
    Q_OBJECT

public:
    explicit DesignerObject(QObject* parent = nullptr);
    ~DesignerObject() override;

    [[nodiscard]] QString className() const override;
    [[nodiscard]] QStringList classNames() const override;
    /// Runs initializeProperties() and remembers the declared values as defaults.
    bool initialize() override;

    // The order of the virtual operations is part of the plug-in contract.
    /// The localised name of the type, as the user sees it.
    [[nodiscard]] virtual QString displayName() const;
    /// The QML type that an export writes; the class name unless overridden.
    [[nodiscard]] virtual QString qmlName() const;
    /// The object's QML with its children, indented by \a indent tabs, without a final line break.
    [[nodiscard]] virtual QString toQml(int indent) const;
    /// Lines that follow the properties inside the object's braces; none unless overridden.
    [[nodiscard]] virtual QString onCompletedQml(int indent) const;
    /// Makes the object's canvas item; the caller hands it to a scene, which owns it. Null when there is none.
    virtual GraphicsItem* createGraphicsItem() = 0;
    /// Runs after objects were added to, removed from or reordered in one of the object's lists.
    virtual void afterListPropertyChanged();
    /// Declares the object's properties; false discards the object.
    virtual bool initializeProperties();
    /// False refuses the change of \a property to \a newValue.
    virtual bool beforePropertyChanged(const DesignerProperty* property, const QString& newValue);
    /// False refuses to let \a property name \a object (null: no object).
    virtual bool beforeObjectPropertyChanged(const DesignerProperty* property, const DesignerObject* object);
    virtual bool beforeListItemAdded(const DesignerProperty* property, const DesignerObject* object);
    virtual bool beforeListItemRemoved(const DesignerProperty* property, const DesignerObject* object);
    /// The place where an element keeps derived properties consistent. \a oldValue is the value string before.
    virtual void afterPropertyChanged(const DesignerProperty* property, const QString& oldValue);
    virtual void afterObjectPropertyChanged(const DesignerProperty* property, const DesignerObject* object);
    virtual void afterListItemAdded(const DesignerProperty* property, const DesignerObject* object);
    virtual void afterListItemRemoved(const DesignerProperty* property, const DesignerObject* object);
    /// The properties that name other objects which this one needs.
    [[nodiscard]] virtual QList<QSharedPointer<DesignerProperty>> getDependencyProperties() const;

    /// The property of that id, or a null handle.
    [[nodiscard]] QSharedPointer<DesignerProperty> getProperty(const QString& id) const;
    /// All properties by rank; properties of equal rank stand in the order of their declaration.
    [[nodiscard]] const QVector<QSharedPointer<DesignerProperty>>& properties() const { return m_properties; }

    /**
     * Sets a value string and runs the change hooks, without an undo command.
     *
     * Returns false and leaves the value as it was when a hook, the conversion or the validator refuses; \a message
     * (when given) then holds the reason, or is empty where none was given. While values are being restored or an
     * item is being filled the call does nothing and returns false.
     */
    bool changePropertyValue(const QSharedPointer<DesignerProperty>& property, const QString& valueString,
                             QString* message = nullptr);
    /// Writes a recorded value back without hooks or validators and refreshes the canvas item (undo, redo, Escape).
    void restorePropertyValue(const QSharedPointer<DesignerProperty>& property, const QString& valueString);

    /// The object's id: unique in its scope, a valid QML id; empty until it has been given.
    [[nodiscard]] const QString& getIdName() const { return m_idName; }
    /// Gives the object an id; false when it is no QML id or stands already in the scope. Records no undo step.
    bool setIdName(const QString& id);
    /// The stem, filter type and scope of the object's ids; false, which aborts initialisation, for an unusable one.
    bool setIdInfo(const IdentifierInfo& info);
    [[nodiscard]] const IdentifierInfo& idInfo() const { return m_idInfo; }
    /// The registry of the scope that the object's id is unique in, or null while the object stands in no scope.
    [[nodiscard]] IdRegistry* idScope() const;
    /// The registry of the ids below this object; null except for objects that are a scope.
    [[nodiscard]] IdRegistry* ownIdScope() const;

    /// \a indent tabs, the indentation of a QML line at that depth.
    [[nodiscard]] static QString getTabs(int indent);

    /// The object's canvas item, or null. The scene owns it.
    [[nodiscard]] GraphicsItem* graphicsItem() const { return m_graphicsItem; }
    /// Called by the canvas when it places the object, and with null by the item when it goes.
    void setGraphicsItem(GraphicsItem* item) { m_graphicsItem = item; }

    /// The list of the object's child elements, or null for objects without children.
    [[nodiscard]] ObjectListProperty* childList() const;
    /// The object whose list holds this one, or null.
    [[nodiscard]] DesignerObject* parentObject() const;
    /// Adds \a object (ownership passes to this) to \a list at \a index, running the list hooks and giving it a free
    /// id when it has none. False refuses and leaves ownership with the caller.
    bool addListItem(ObjectListProperty* list, DesignerObject* object, int index);
    /// Takes \a object out of \a list, running the list hooks; on true the caller owns it.
    bool removeListItem(ObjectListProperty* list, DesignerObject* object);
    /// Moves the item at \a from to \a to; both are indices of the list.
    void moveListItem(ObjectListProperty* list, int from, int to);

    /// The value of an editor mark (see EditorMarks); empty while it is not set.
    [[nodiscard]] QString editorMark(const QString& mark) const { return m_editorMarks.value(mark); }
    /// The marks that the object can have.
    [[nodiscard]] const QStringList& editorMarkKeys() const { return m_editorMarkKeys; }
    /// Sets a mark, or with an empty \a value removes it, without an undo step. False when nothing changed or the object
    /// has no such mark.
    bool setEditorMark(const QString& mark, const QString& value);

    /// Keys and values of the object's file entry that this version does not know; written back as they were.
    [[nodiscard]] const QJsonObject& unknownKeys() const { return m_unknownKeys; }
    void setUnknownKeys(const QJsonObject& keys) { m_unknownKeys = keys; }

Q_SIGNALS:
    /// A value changed, by an edit, by undo or by a derived change; once per property and outermost change.
    void propertyChanged(const QSharedPointer<DesignerProperty>& property);
    void idNameChanged(const QString& oldId);
    /// Children were added, removed or reordered.
    void childrenChanged();

protected:
    /// Called by the constructor of a class whose objects have the editor mark \a mark.
    void declareEditorMark(const QString& mark) { m_editorMarkKeys.append(mark); }
    /// Called once by the constructor of an object that holds others.
    void setContainer(ObjectContainer* container) { m_container = container; }
    /// Adds a declared property; the object shares its ownership. Kept sorted by rank.
    void addProperty(const QSharedPointer<DesignerProperty>& property);

    friend class PropertyDeclarationBase;

private:
    bool storeValue(DesignerProperty& property, const QString& valueString, QString& message);

    QVector<QSharedPointer<DesignerProperty>> m_properties;
    QVector<const DesignerProperty*> m_reacting; // properties whose reaction is running
    QString m_idName;
    IdentifierInfo m_idInfo;
    QStringList m_editorMarkKeys;
    QMap<QString, QString> m_editorMarks; // those that are set
    QJsonObject m_unknownKeys;
    GraphicsItem* m_graphicsItem = nullptr;
    ObjectContainer* m_container = nullptr; // this object's own face as a container
};

} // namespace Korvex::Meridane::Designer
