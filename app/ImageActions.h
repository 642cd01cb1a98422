#pragma once

#include <QObject>
#include <QPointer>

class QMenu;
class QMimeData;
class QPointF;

namespace Korvex::Meridane::Designer {

class MessageBar;
class UserPrompts;
class Workspace;

/// Brings images into the project: from dialogs, drops and the clipboard, into the list or onto the screen.
class ImageActions : public QObject
{
    Q_OBJECT

public:
    /// \a prompts and \a messages outlive the actions.
    ImageActions(UserPrompts* prompts, MessageBar* messages, QObject* parent = nullptr);

    void addTo(QMenu* menu);
    /// The workspace that images go to; null: none.
    void setWorkspace(Workspace* workspace);

    /// Asks for image files and imports them.
    void importFiles();
    /// Asks for a file that is to be shown in the place of \a image.
    void replaceFile(const QString& image);
    /// Imports what \a data holds.
    void importData(const QMimeData* data);
    /// Imports what \a data holds and places it: in the middle of the view, or with its top left corner at \a place.
    void placeData(const QMimeData* data);
    void placeDataAt(const QMimeData* data, const QPointF& place);
    /// Places images of the project in the middle of the view.
    void placeImages(const QStringList& images);

    /// Tells why a used image has not been removed, with a way to its uses.
    void explainRefusedRemoval(const QString& message);

Q_SIGNALS:
    /// The list has other images than before, at the user's wish.
    void imported();

private:
    void showImported(const QStringList& images, const QStringList& refused);
    void reportRefused(const QStringList& refused);
    [[nodiscard]] QString startFolder() const;

    UserPrompts* m_prompts;
    MessageBar* m_messages;
    QPointer<Workspace> m_workspace;
};

} // namespace Korvex::Meridane::Designer
