#pragma once

#include <QList>
#include <QObject>
#include <QPointer>

class QAction;
class QMenu;

namespace Korvex::Meridane::Designer {

class DesignerObject;
class EditSession;
class MessageBar;
struct EditResult;

/// The actions that arrange the selected elements: groups, alignment, distances, sizes, locks and sight.
class ArrangeActions : public QObject
{
    Q_OBJECT

public:
    /// \a messages outlives the actions and shows what is refused.
    explicit ArrangeActions(MessageBar* messages, QObject* parent = nullptr);

    /// \a order: the actions that change the order, which belong between the groups and the rest.
    void addTo(QMenu* menu, const QList<QAction*>& order);
    /// What the project tree and the canvas offer in their context menus; null pointers separate.
    [[nodiscard]] QList<QAction*> contextActions() const;
    /// Align left, centre, right, top, middle, bottom.
    [[nodiscard]] const QList<QAction*>& alignActions() const { return m_align; }
    [[nodiscard]] QAction* groupAction() const { return m_group; }
    [[nodiscard]] QAction* ungroupAction() const { return m_ungroup; }
    /// The session that the actions work on; null: none.
    void setSession(EditSession* session);

private:
    template <typename Run>
    QAction* make(const char* name, const char* icon, const char* text, const QKeySequence& shortcut, Run run);
    void makeAlignment();
    void makeSightAndLock();
    void update();
    void report(const EditResult& result);
    [[nodiscard]] QList<DesignerObject*> selection() const;
    [[nodiscard]] QList<DesignerObject*> marked(const QString& mark) const;
    [[nodiscard]] QList<DesignerObject*> selectedWithout(const QString& mark) const;

    QPointer<EditSession> m_session;
    MessageBar* m_messages;
    QAction* m_group;
    QAction* m_ungroup;
    QList<QAction*> m_align;
    QList<QAction*> m_distribute;
    QList<QAction*> m_sameSize;
    QAction* m_center;
    QAction* m_lock;
    QAction* m_unlockAll;
    QAction* m_hide;
    QAction* m_showAll;
};

} // namespace Korvex::Meridane::Designer
