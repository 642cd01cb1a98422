#include "app/CardGrid.h"

#include "app/CardDelegate.h"

#include <QKeyEvent>

namespace Korvex::Meridane::Designer {

CardGrid::CardGrid(const QSize& picture, QWidget* parent)
    : QListWidget(parent)
{
    setViewMode(QListView::IconMode);
    setResizeMode(QListView::Adjust);
    setMovement(QListView::Static);
    setUniformItemSizes(true);
    setItemDelegate(new CardDelegate(this));
    setIconSize(picture);
    setFrameShape(QFrame::NoFrame);
    setSelectionMode(QAbstractItemView::NoSelection);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    setTabKeyNavigation(false);
    setMouseTracking(true);
    // The page shows through.
    viewport()->setAutoFillBackground(false);
    connect(this, &QListWidget::itemClicked, this, &CardGrid::opened);
    arrange();
}

QListWidgetItem* CardGrid::addCard(const QIcon& icon, const QString& name, const QString& detail, const QVariant& value)
{
    auto* item = new QListWidgetItem(icon, name, this);
    item->setData(DetailRole, detail);
    item->setData(ValueRole, value);
    item->setData(Qt::AccessibleDescriptionRole, detail);
    arrange();
    return item;
}

QSize CardGrid::sizeHint() const
{
    const QSize card = gridSize();
    const int columns = qMax(1, (width() - 1) / qMax(1, card.width()));
    const int rows = (qMax(1, count()) + columns - 1) / columns;
    return {3 * card.width(), rows * card.height()};
}

QSize CardGrid::minimumSizeHint() const
{
    return {gridSize().width() + 1, sizeHint().height()};
}

void CardGrid::keyPressEvent(QKeyEvent* event)
{
    QListWidgetItem* item = currentItem();
    switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Space:
        if (item)
            Q_EMIT opened(item);
        return;
    case Qt::Key_Delete:
        if (item)
            Q_EMIT removalRequested(item);
        return;
    default:
        QListWidget::keyPressEvent(event);
    }
    // Beyond the last row the way goes on, as it does with Tab.
    if (currentItem() == item && event->key() == Qt::Key_Down)
        focusNextChild();
    else if (currentItem() == item && event->key() == Qt::Key_Up)
        focusPreviousChild();
}

void CardGrid::focusInEvent(QFocusEvent* event)
{
    QListWidget::focusInEvent(event);
    // One of the cards shows where the keyboard is.
    if (!currentItem() && count() > 0)
        setCurrentRow(0);
}

void CardGrid::resizeEvent(QResizeEvent* event)
{
    QListWidget::resizeEvent(event);
    updateGeometry();
}

void CardGrid::wheelEvent(QWheelEvent* event)
{
    event->ignore(); // the page scrolls
}

void CardGrid::arrange()
{
    const QSize card = CardDelegate::cardSize(iconSize(), fontMetrics());
    setGridSize(card);
    for (int row = 0; row < count(); ++row)
        item(row)->setSizeHint(card);
    updateGeometry();
}

} // namespace Korvex::Meridane::Designer
