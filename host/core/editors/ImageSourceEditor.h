#pragma once

#include "host/core/editors/LinkEditor.h"

class QToolButton;

namespace Korvex::Meridane::Designer {

class ImageThumbnails;
struct ImageThumbnail;

/**
 * The editor of a link to an image resource of the project: a list with thumbnails, and a button that imports a file. A
 * file, or an image of the project's list, can be dropped on it.
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
    void linkTo(const QString& image);
    void requestThumbnail(const QString& image);
    void showThumbnail(const QString& file, const ImageThumbnail& thumbnail);

    QToolButton* m_button = nullptr;
    ImageThumbnails* m_thumbnails;
    QMetaObject::Connection m_fileChanges; // of the project that the property belongs to
};

} // namespace Korvex::Meridane::Designer
