#pragma once

#include "host/core/commands/UndoStack.h"
#include "host/core/objects/DesignerObject.h"
#include "host/core/objects/IdRegistry.h"
#include "host/core/objects/ObjectContainer.h"

#include <QSizeF>

namespace Korvex::Meridane::Designer {

class Screen;

/**
 * A project: name, display size, screens and resources, with its undo history. The root of the object tree.
 *
 * A project lives in a folder (see ProjectStore); a new one in a temporary folder until it is saved.
 */
class MERIDANE_CORE_EXPORT Project : public DesignerObject, public ObjectContainer
{
    Q_OBJECT

public:
    explicit Project(QObject* parent = nullptr);
    ~Project() override;

    /// The project that \a object belongs to, or null.
    [[nodiscard]] static Project* parentProject(DesignerObject* object);
    [[nodiscard]] static const Project* parentProject(const DesignerObject* object);

    [[nodiscard]] QString className() const override;
    [[nodiscard]] QStringList classNames() const override;
    [[nodiscard]] QString displayName() const override;
    bool initializeProperties() override;
    GraphicsItem* createGraphicsItem() override;
    [[nodiscard]] IdRegistry* containedIds() override;
    [[nodiscard]] ObjectListProperty* containedObjects() const override;

    [[nodiscard]] QString name() const;
    [[nodiscard]] QSizeF displaySize() const;
    [[nodiscard]] QVector<Screen*> screens() const;
    [[nodiscard]] Screen* screen(const QString& id) const;

    /// The folder that the project is kept in, absolute.
    [[nodiscard]] const QString& folder() const { return m_folder; }
    void setFolder(const QString& folder);
    /// The folder of the image files, absolute.
    [[nodiscard]] const QString& imagesPath() const { return m_imagesPath; }
    [[nodiscard]] const QString& fontsPath() const { return m_fontsPath; }

    /// The image files that the project offers, by file name. A link to an image resource names the file.
    [[nodiscard]] const QStringList& imageResources() const { return m_imageResources; }
    void setImageResources(const QStringList& fileNames);
    /// The font files of the project, by file name. Texts use them by their families while they are in this list.
    [[nodiscard]] const QStringList& fontResources() const { return m_fontResources; }
    void setFontResources(const QStringList& fileNames);

    [[nodiscard]] UndoStack* undoStack() const { return m_undoStack; }
    /// Executes \a command as one undo step; takes ownership.
    EditResult execute(std::unique_ptr<UndoCommand> command);
    /// The same for canvas items and editors; a refusal is announced by userModificationRefused().
    void emitUserModified(UndoCommand* command);
    /// Joins the commands that items and editors hand in from now on into one step, as UndoCommand::setMergeKey() does;
    /// empty ends it. One key press may go to several items.
    void setUserModificationKey(const QString& mergeKey) { m_userModificationKey = mergeKey; }
    /// Asks views of the project's tree to refresh what derives from values.
    void notifyUpdateProjectBrowser();

    /// Whether there is something to save.
    [[nodiscard]] bool isModified() const;
    /// The present state is the saved one.
    void setSaved();
    /// The present state differs from the saved one in a way that no undo step records.
    void setModifiedOutsideHistory();

Q_SIGNALS:
    /// A value of any object of the project changed; see DesignerObject::propertyChanged().
    void objectPropertyChanged(DesignerObject* object, const QSharedPointer<DesignerProperty>& property);
    void objectRenamed(DesignerObject* object, const QString& oldId);
    void objectAdded(DesignerObject* object);
    /// \a object has been taken out of \a parent; it still exists.
    void objectRemoved(DesignerObject* object, DesignerObject* parent);
    void objectReordered(DesignerObject* object);
    /// One of an object's editor marks changed; see EditorMarks.
    void objectMarked(DesignerObject* object, const QString& mark);
    void userModificationRefused(const QString& message);
    void projectBrowserUpdateRequested();
    void resourcesChanged();
    /// The image file \a fileName in the images folder has other content than before: it came, went or was replaced.
    void imageFileChanged(const QString& fileName);
    /// The project has moved to another folder, and its images and fonts with it.
    void folderChanged();
    void modifiedChanged(bool modified);

private:
    void updateModified();

    QSharedPointer<ObjectListProperty> m_screens;
    QSharedPointer<DesignerProperty> m_name;
    QSharedPointer<DesignerProperty> m_displaySize;
    IdRegistry m_ids;
    QString m_folder;
    QString m_imagesPath;
    QString m_fontsPath;
    QStringList m_imageResources;
    QStringList m_fontResources;
    QString m_userModificationKey;
    UndoStack* m_undoStack;
    bool m_modifiedOutsideHistory = false;
    bool m_announcedModified = false;
};

} // namespace Korvex::Meridane::Designer
