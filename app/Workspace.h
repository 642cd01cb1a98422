#pragma once

#include <QObject>

#include <memory>

namespace Korvex::Meridane::Designer {

class CanvasImageDrop;
class CanvasPanel;
class CanvasView;
class DesignerObject;
class EditSession;
class ElementPalette;
class HistoryPanel;
class ImagePanel;
class ProjectTree;
class ProjectTreePanel;
class PropertySheet;

/**
 * The widgets that show one editing session, connected to each other and to the palette.
 *
 * The window shows them in its docks and owns them there; the workspace goes, and they with it, before the session.
 */
class Workspace : public QObject
{
    Q_OBJECT

public:
    /// \a session and \a palette outlive the workspace.
    Workspace(EditSession* session, ElementPalette* palette);
    ~Workspace() override;

    [[nodiscard]] EditSession* session() const { return m_session; }
    [[nodiscard]] CanvasPanel* canvasPanel() const { return m_canvasPanel; }
    [[nodiscard]] CanvasView* canvas() const;
    [[nodiscard]] ProjectTree* tree() const { return m_tree; }
    [[nodiscard]] ProjectTreePanel* treePanel() const { return m_treePanel; }
    [[nodiscard]] ImagePanel* images() const { return m_images; }
    [[nodiscard]] CanvasImageDrop* imageDrop() const { return m_imageDrop; }
    [[nodiscard]] PropertySheet* sheet() const { return m_sheet; }
    [[nodiscard]] HistoryPanel* history() const { return m_history; }

    /// Selects the object that "screen/id" or the id of a screen names and brings it into view.
    void goTo(const QString& object);
    /// Selects \a objects, which stand on one screen, and brings them into view.
    void show(const QList<DesignerObject*>& objects);

Q_SIGNALS:
    /// An edit was refused; \a message is for the user.
    void refused(const QString& message);

private:
    void insertInView(const QString& className);

    EditSession* m_session;
    ElementPalette* m_palette;
    CanvasPanel* m_canvasPanel;
    CanvasImageDrop* m_imageDrop;
    ProjectTree* m_tree;
    ProjectTreePanel* m_treePanel; // holds the tree
    ImagePanel* m_images;
    PropertySheet* m_sheet;
    HistoryPanel* m_history;
};

} // namespace Korvex::Meridane::Designer
