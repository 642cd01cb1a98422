#include "app/ImageList.h"

#include "app/CoreText.h"
#include "app/ImageDelegate.h"
#include "app/ImageListModel.h"

#include <QDrag>
#include <QKeyEvent>
#include <QMimeData>

#include <algorithm>

namespace Korvex::Meridane::Designer {

namespace {

bool isOwnKey(const QKeyEvent* key)
{
    return key->key() == Qt::Key_F2 || key->matches(QKeySequence::Delete) || key->matches(QKeySequence::Paste)
           || key->matches(QKeySequence::SelectAll);
}

} // namespace

ImageList::ImageList(ImageListModel* model, QWidget* parent)
    : QListView(parent)
    , m_model(model)
{
    setObjectName(QStringLiteral("ImageList"));
    setAccessibleName(coreText("Images"));
    setModel(model);
    setItemDelegate(new ImageDelegate(this));
    setFrameShape(QFrame::NoFrame);
    setUniformItemSizes(true);
    setResizeMode(QListView::Adjust);
    setMouseTracking(true);
    setVerticalScrollMode(ScrollPerPixel);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setSelectionMode(ExtendedSelection);
    setEditTriggers(EditKeyPressed);
    setDragEnabled(true);
    setDragDropMode(DragOnly);
    setViewportMargins(0, 4, 0, 4);
}

QStringList ImageList::selectedImages() const
{
    QModelIndexList rows = selectionModel()->selectedRows();
    std::sort(rows.begin(), rows.end());
    QStringList images;
    images.reserve(rows.size());
    for (const QModelIndex& row : std::as_const(rows))
        images.append(m_model->image(row));
    return images;
}

void ImageList::selectImages(const QStringList& images)
{
    QItemSelection rows;
    for (const QString& image : images) {
        const QModelIndex row = m_model->indexOf(image);
        if (row.isValid())
            rows.append(QItemSelectionRange(row));
    }
    if (rows.isEmpty())
        return;
    selectionModel()->setCurrentIndex(rows.constFirst().topLeft(), QItemSelectionModel::NoUpdate);
    selectionModel()->select(rows, QItemSelectionModel::ClearAndSelect);
    scrollTo(currentIndex());
}

bool ImageList::event(QEvent* event)
{
    if (event->type() == QEvent::ShortcutOverride && isOwnKey(static_cast<QKeyEvent*>(event))) {
        event->accept();
        return true;
    }
    return QListView::event(event);
}

void ImageList::keyPressEvent(QKeyEvent* event)
{
    if (event->matches(QKeySequence::Delete))
        Q_EMIT removeRequested();
    else if (event->matches(QKeySequence::Paste))
        Q_EMIT pasteRequested();
    else
        QListView::keyPressEvent(event);
}

void ImageList::startDrag(Qt::DropActions)
{
    QMimeData* data = m_model->mimeData(selectionModel()->selectedRows());
    if (!data)
        return;
    auto* drag = new QDrag(this);
    drag->setMimeData(data);
    constexpr int Side = ImageListModel::ThumbnailSide;
    const auto picture = currentIndex().data(ImageListModel::ThumbnailRole).value<QImage>();
    drag->setPixmap(ImageThumbnails::squarePixmap(picture, Side, devicePixelRatioF()));
    drag->setHotSpot(QPoint(0, 0)); // where the top left corner of the image will stand
    drag->exec(Qt::CopyAction);
}

void ImageList::selectionChanged(const QItemSelection& selected, const QItemSelection& deselected)
{
    QListView::selectionChanged(selected, deselected);
    Q_EMIT selectedImagesChanged();
}

} // namespace Korvex::Meridane::Designer
