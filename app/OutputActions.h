#pragma once

#include "host/core/project/Problem.h"

#include <QObject>

class QAction;
class QMenu;

namespace Korvex::Meridane::Designer {

class EditSession;
class MessageBar;
class PictureExport;
class PreviewRunner;
class ProjectDocument;
class UserPrompts;

/// The actions that make something of the open project: QML for the display, a preview, a list of what is wrong.
class OutputActions : public QObject
{
    Q_OBJECT

public:
    /// All arguments outlive the actions.
    OutputActions(ProjectDocument* document, UserPrompts* prompts, MessageBar* messages, QObject* parent = nullptr);

    void addTo(QMenu* menu);
    /// The session of the open project; null: none.
    void setSession(EditSession* session);

    [[nodiscard]] QAction* exportAction() const { return m_export; }
    [[nodiscard]] PictureExport* pictureExport() const { return m_picture; }
    [[nodiscard]] QAction* previewAction() const { return m_preview; }
    [[nodiscard]] QAction* checkAction() const { return m_check; }

Q_SIGNALS:
    /// What an export or a preview has found; empty when all is well. \a consequence: what could not be done
    /// because of it, a sentence, or empty.
    void problemsFound(const QList<Problem>& problems, const QString& consequence);

    /// All of the project is to be checked; others do that.
    void checkRequested();

private:
    void exportQml();
    void preview();

    ProjectDocument* m_document;
    UserPrompts* m_prompts;
    MessageBar* m_messages;
    PreviewRunner* m_runner;
    PictureExport* m_picture;
    QAction* m_export;
    QAction* m_preview;
    QAction* m_check;
};

} // namespace Korvex::Meridane::Designer
