#pragma once

#include "host/core/arrange/DuplicateSeries.h"

#include <QObject>
#include <QPointer>

class QAction;
class QMenu;
class QMimeData;

namespace Korvex::Meridane::Designer {

class DesignerObject;
class EditSession;
class MessageBar;
struct EditResult;

/// The actions that edit the selection: undo and redo, the clipboard, removal, names and order.
class EditActions : public QObject
{
    Q_OBJECT

public:
    /// \a messages outlives the actions and shows what is refused.
    explicit EditActions(MessageBar* messages, QObject* parent = nullptr);

    void addTo(QMenu* menu);
    /// What context menus offer for the selected objects; null pointers separate.
    [[nodiscard]] QList<QAction*> contextActions() const;
    /// The session that the actions work on; null: none.
    void setSession(EditSession* session);

    [[nodiscard]] QAction* undoAction() const { return m_undo; }
    [[nodiscard]] QAction* redoAction() const { return m_redo; }
    [[nodiscard]] QAction* deleteAction() const { return m_delete; }
    [[nodiscard]] QAction* selectAllAction() const { return m_selectAll; }
    [[nodiscard]] QAction* copyAction() const { return m_copy; }
    [[nodiscard]] QAction* pasteAction() const { return m_paste; }
    [[nodiscard]] QAction* duplicateAction() const { return m_duplicate; }
    [[nodiscard]] QAction* addScreenAction() const { return m_addScreen; }
    /// To front, forward, backward, to back.
    [[nodiscard]] const QList<QAction*>& orderActions() const { return m_order; }

Q_SIGNALS:
    /// The name of the selected object is to be edited in the tree.
    void renameRequested();
    /// Images are to be pasted on the screen; \a data lives until the slots return.
    void imagesPasted(const QMimeData* data);

private:
    QAction* make(const char* name, const char* icon, const char* text, const QList<QKeySequence>& shortcuts,
                  void (EditActions::*run)());
    void undo();
    void redo();
    void cut();
    void copy();
    void paste();
    void pasteInPlace();
    void duplicate();
    void remove();
    void selectAll();
    void addScreen();
    void updateHistory();
    void updateSelection();
    void report(const EditResult& result);
    [[nodiscard]] QList<DesignerObject*> elements() const;
    [[nodiscard]] QList<DesignerObject*> removable() const;

    QPointer<EditSession> m_session;
    DuplicateSeries m_duplicates;
    MessageBar* m_messages;
    QAction* m_undo;
    QAction* m_redo;
    QAction* m_cut;
    QAction* m_copy;
    QAction* m_paste;
    QAction* m_pasteInPlace;
    QAction* m_duplicate;
    QAction* m_delete;
    QAction* m_selectAll;
    QAction* m_rename;
    QAction* m_addScreen;
    QList<QAction*> m_order;
};

} // namespace Korvex::Meridane::Designer
