#pragma once

#include "host/core/objects/DesignerObject.h"

#include <QWidget>

class QAction;
class QMenu;
class QMimeData;
class QStackedWidget;

namespace Korvex::Meridane::Designer {

class EditSession;
class ImageList;
class ImageListModel;

/**
 * The panel of the project's images: the list of them, and what can be done with the selected ones. Image files that are
 * dropped on it are imported; while there is no image it tells so.
 *
 * What needs a dialog is asked for by signals.
 */
class ImagePanel : public QWidget
{
    Q_OBJECT

public:
    /// \a session outlives the panel.
    explicit ImagePanel(EditSession* session, QWidget* parent = nullptr);

    [[nodiscard]] ImageList* list() const { return m_list; }
    [[nodiscard]] ImageListModel* model() const { return m_model; }
    [[nodiscard]] QAction* placeAction() const { return m_place; }
    [[nodiscard]] QAction* replaceAction() const { return m_replace; }
    [[nodiscard]] QAction* renameAction() const { return m_rename; }
    [[nodiscard]] QAction* removeAction() const { return m_remove; }
    [[nodiscard]] QAction* showUsesAction() const { return m_showUses; }
    /// Fills \a menu with what can be done with the selected images, the ways to the elements that use one included.
    void fillMenu(QMenu* menu);

    /// Removes the selected images, each as one step, and selects a neighbour.
    void removeSelected();
    /// Shows the elements that use the selected image: those of one screen; called again, those of the next.
    void showUses();

Q_SIGNALS:
    void importRequested();
    /// Another file is wanted for \a image.
    void replaceRequested(const QString& image);
    /// Elements that show \a images are wanted in the middle of the view.
    void placeRequested(const QStringList& images);
    /// \a data, which lives until the slots return, is to be imported.
    void dataOffered(const QMimeData* data);
    /// An image has not been removed because it is used; \a message tells where.
    void removalRefused(const QString& message);
    /// \a objects are to be selected and brought into view.
    void objectsRequested(const QList<DesignerObject*>& objects);

protected:
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    [[nodiscard]] QSize sizeHint() const override;

private:
    QAction* make(const char* icon, const char* text, const char* hint, void (ImagePanel::*run)());
    [[nodiscard]] QWidget* makeToolRow();
    [[nodiscard]] QWidget* makeInvitation() const;
    void place();
    void replace();
    void rename();
    void updateActions();
    void showRightPage();
    void addUses(QMenu* menu, const QString& image);
    [[nodiscard]] QList<DesignerObject*> users(const QString& image) const;

    EditSession* m_session;
    ImageListModel* m_model;
    ImageList* m_list;
    QStackedWidget* m_pages;
    QWidget* m_invitation;
    QAction* m_import;
    QAction* m_place;
    QAction* m_replace;
    QAction* m_rename;
    QAction* m_remove;
    QAction* m_showUses;
};

} // namespace Korvex::Meridane::Designer
