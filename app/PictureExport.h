#pragma once

#include "app/UserPrompts.h"

#include <QObject>

class QAction;
class QMenu;

namespace Korvex::Meridane::Designer {

class DesignerObject;
class EditSession;
class MessageBar;

/// The actions that make a picture file of the current screen, or of what is selected on it.
class PictureExport : public QObject
{
    Q_OBJECT

public:
    /// \a prompts and \a messages outlive the actions.
    PictureExport(UserPrompts* prompts, MessageBar* messages, QObject* parent = nullptr);

    void addTo(QMenu* menu);
    /// The session whose screens are shown; null: none.
    void setSession(EditSession* session);

    [[nodiscard]] QAction* screenAction() const { return m_screen; }
    [[nodiscard]] QAction* selectionAction() const { return m_selection; }

private:
    void updateActions();
    [[nodiscard]] QList<DesignerObject*> selectedElements() const;
    void run(const QList<DesignerObject*>& only, const QString& name);
    /// The content of the file; empty when the user has ended it, or with a message when it cannot be made.
    [[nodiscard]] QByteArray compose(const QList<DesignerObject*>& only, const PictureChoice& choice,
                                     QString* message) const;

    EditSession* m_session = nullptr;
    UserPrompts* m_prompts;
    MessageBar* m_messages;
    QAction* m_screen;
    QAction* m_selection;
    PictureChoice m_choice; // the last one
};

} // namespace Korvex::Meridane::Designer
