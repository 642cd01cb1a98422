#pragma once

#include <QListView>

namespace Korvex::Meridane::Designer {

class ImageListModel;

/// The list of the image panel. The keys that act on its rows are its own while it has the focus, not those of the window:
/// F2, Delete, Enter and the pasting of images. Rows are dragged onto the canvas, into a property, or out of the program.
class ImageList : public QListView
{
    Q_OBJECT

public:
    explicit ImageList(ImageListModel* model, QWidget* parent = nullptr);

    /// The names of the selected images, in the order of the rows.
    [[nodiscard]] QStringList selectedImages() const;
    void selectImages(const QStringList& images);

Q_SIGNALS:
    void selectedImagesChanged();
    void removeRequested();
    void pasteRequested();

protected:
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void startDrag(Qt::DropActions actions) override;
    void selectionChanged(const QItemSelection& selected, const QItemSelection& deselected) override;

private:
    ImageListModel* m_model;
};

} // namespace Korvex::Meridane::Designer
