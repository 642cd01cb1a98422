#pragma once

#include "host/core/editors/LinkEditor.h"

class QTimer;
class QToolButton;

namespace Korvex::Meridane::Designer {

/**
 * The editor of a link to an image resource of the project: a list with thumbnails, and a button that imports a file.
 *
 * Importing copies the file into the project and links to the copy. It needs the session() and is disabled without one.
 * Editor parameters as in LinkEditor.
 */
class MERIDANE_CORE_EXPORT ImageSourceEditor : public LinkEditor
{
    Q_OBJECT

public:
    explicit ImageSourceEditor(QWidget* parent);
    ~ImageSourceEditor() override;

    [[nodiscard]] QString className() const override;
    bool createEditorWidget() override;
    void propertyReplaced() override;

    /// Copies \a file into the project and links to it; a file that is no image is refused with a message.
    void importFile(const QString& file);

    [[nodiscard]] QToolButton* importButton() const { return m_button; }

protected:
    [[nodiscard]] QStringList candidates() const override;
    [[nodiscard]] bool isCandidate(const QString& id) const override;
    void choicesReplaced() override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    void chooseFile();
    void loadNextThumbnail();

    QToolButton* m_button = nullptr;
    QTimer* m_thumbnails; // loads one picture at a time, so that opening the list never waits
    int m_nextThumbnail = 0;
};

} // namespace Korvex::Meridane::Designer
