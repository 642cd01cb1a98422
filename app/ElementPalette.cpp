#include "app/ElementPalette.h"

#include "app/CoreText.h"
#include "app/ElementPicture.h"
#include "app/TileDelegate.h"

#include "host/core/canvas/CanvasView.h"
#include "host/core/plugins/DesignerFactory.h"

#include <QDrag>
#include <QKeyEvent>
#include <QMimeData>
#include <QPainter>
#include <QScrollBar>

namespace Korvex::Meridane::Designer {

namespace {

constexpr QSize PictureSize(44, 34);
constexpr int SmallestTileWidth = 84;
constexpr int NameMargin = 14; // of a tile's width that its name leaves free
constexpr int ClassRole = Qt::UserRole;

} // namespace

ElementPalette::ElementPalette(QWidget* parent)
    : QListWidget(parent)
{
    setObjectName(QStringLiteral("ElementPalette"));
    setAccessibleName(coreText("Elements"));
    setViewMode(QListView::IconMode);
    setResizeMode(QListView::Adjust);
    setMovement(QListView::Static);
    setUniformItemSizes(true);
    setItemDelegate(new TileDelegate(this));
    setIconSize(PictureSize);
    setFrameShape(QFrame::NoFrame);
    setSelectionMode(QAbstractItemView::SingleSelection);
    setDragEnabled(true);
    setDragDropMode(QAbstractItemView::DragOnly);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setViewportMargins(4, 8, 4, 0);
    setBackgroundRole(QPalette::Base);
    setAutoFillBackground(true);
    fill();
    arrangeTiles();
    connect(this, &QListWidget::itemClicked, this, [this](QListWidgetItem* item) {
        const QString className = item->data(ClassRole).toString();
        if (className == m_armedClass)
            disarm();
        else
            arm(className);
    });
    connect(this, &QListWidget::itemActivated, this, [this](QListWidgetItem* item) {
        const QString className = item->data(ClassRole).toString();
        disarm();
        Q_EMIT insertRequested(className);
    });
}

QListWidgetItem* ElementPalette::tile(const QString& className) const
{
    for (int row = 0; row < count(); ++row) {
        if (item(row)->data(ClassRole).toString() == className)
            return item(row);
    }
    return nullptr;
}

void ElementPalette::disarm()
{
    clearSelection();
    if (m_armedClass.isEmpty())
        return;
    m_armedClass.clear();
    Q_EMIT armed(QString());
}

QStringList ElementPalette::mimeTypes() const
{
    return {CanvasView::elementMimeType()};
}

QMimeData* ElementPalette::mimeData(const QList<QListWidgetItem*>& items) const
{
    if (items.isEmpty())
        return nullptr;
    auto* data = new QMimeData;
    data->setData(CanvasView::elementMimeType(), items.constFirst()->data(ClassRole).toString().toUtf8());
    return data;
}

void ElementPalette::startDrag(Qt::DropActions)
{
    QListWidgetItem* dragged = currentItem();
    if (!dragged)
        return;
    disarm();
    auto* drag = new QDrag(this);
    drag->setMimeData(mimeData({dragged}));
    drag->setPixmap(dragged->icon().pixmap(PictureSize, devicePixelRatioF()));
    drag->setHotSpot(QPoint(PictureSize.width() / 2, PictureSize.height() / 2));
    drag->exec(Qt::CopyAction);
    clearSelection();
}

void ElementPalette::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Escape && !m_armedClass.isEmpty())
        disarm();
    else
        QListWidget::keyPressEvent(event);
}

void ElementPalette::resizeEvent(QResizeEvent* event)
{
    QListWidget::resizeEvent(event);
    arrangeTiles();
}

void ElementPalette::changeEvent(QEvent* event)
{
    QListWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange)
        arrangeTiles();
}

void ElementPalette::paintEvent(QPaintEvent* event)
{
    QListWidget::paintEvent(event);
    if (count() > 0)
        return;
    QPainter painter(viewport());
    painter.setPen(palette().color(QPalette::PlaceholderText));
    painter.drawText(viewport()->rect().adjusted(16, 16, -16, -16), Qt::AlignCenter | Qt::TextWordWrap,
                     coreText("No elements. The plug-in with the visual elements was not found."));
}

QSize ElementPalette::sizeHint() const
{
    return {3 * SmallestTileWidth + verticalScrollBar()->sizeHint().width(), 380};
}

void ElementPalette::fill()
{
    const QStringList classNames = DesignerFactory::instance()->elementClassNames();
    for (const QString& className : classNames) {
        const QString name = ElementPicture::displayName(className);
        auto* item = new QListWidgetItem(ElementPicture::icon(className), name, this);
        item->setData(ClassRole, className);
        item->setToolTip(coreText("%1: drag it onto the screen, or click it and then the place for it.").arg(name));
    }
}

void ElementPalette::arm(const QString& className)
{
    m_armedClass = className;
    Q_EMIT armed(className);
}

/// As many columns as fit into \a width share all of it, so that no ragged margin is left at the right. Names have a second line
/// only where one of them needs it.
QSize ElementPalette::tileSize(int width) const
{
    const int columns = qMax(1, width / SmallestTileWidth);
    const int tileWidth = qMax(1, (width - 1) / columns);
    int lines = 1;
    for (int row = 0; row < count(); ++row) {
        if (fontMetrics().horizontalAdvance(item(row)->text()) > tileWidth - NameMargin)
            lines = 2;
    }
    return {tileWidth, PictureSize.height() + lines * fontMetrics().lineSpacing() + 16};
}

void ElementPalette::arrangeTiles()
{
    // The room without a scroll bar decides whether there is one: with it fewer tiles may fit into a row, and it would stay.
    const QSize room = contentsRect().marginsRemoved(viewportMargins()).size();
    QSize tile = tileSize(room.width());
    const int columns = qMax(1, room.width() / tile.width());
    const int rows = (count() + columns - 1) / columns;
    const bool scrolls = rows * tile.height() > room.height();
    if (scrolls)
        tile = tileSize(room.width() - verticalScrollBar()->sizeHint().width());
    setVerticalScrollBarPolicy(scrolls ? Qt::ScrollBarAlwaysOn : Qt::ScrollBarAlwaysOff);
    if (gridSize() != tile)
        setGridSize(tile);
    for (int row = 0; row < count(); ++row)
        item(row)->setSizeHint(QSize(tile.width() - 4, tile.height() - 4));
}

} // namespace Korvex::Meridane::Designer
