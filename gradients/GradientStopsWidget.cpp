#include "gradients/GradientStopsWidget.h"

#include "gradients/GradientPreview.h"
#include "gradients/GradientStopWidget.h"
#include "gradients/GradientStopsProperty.h"
#include "gradients/WholePercent.h"

#include "host/core/objects/ElementText.h"
#include "host/core/sheet/SheetColors.h"
#include "host/core/widgets/ColorSwatch.h"
#include "host/core/widgets/ColorWidget.h"
#include "host/core/widgets/ItemButton.h"
#include "host/core/widgets/MessageBox.h"
#include "host/core/widgets/SpinBox.h"

#include <QApplication>
#include <QEvent>
#include <QFrame>
#include <QLabel>
#include <QMap>
#include <QPointer>
#include <QScrollArea>
#include <QVBoxLayout>

#include <algorithm>

namespace Korvex::Meridane::Designer {

namespace {

constexpr int FewestStops = GradientStopsProperty::FewestStops;
constexpr int MostStops = GradientStopsProperty::MostStops;

constexpr int PartGap = 10; // pixels between preview, rows, line and the row of the new stop
constexpr int RowGap = 4; // pixels
constexpr int LineWidth = 2; // pixels

const QGradientStop& newStop()
{
    static const QGradientStop stop(1, QColor(248, 151, 29, 255));
    return stop;
}

/// Exact, unlike the comparison of pairs in some versions of Qt.
bool isSame(const QGradientStop& one, const QGradientStop& other)
{
    return !(one.first < other.first) && !(other.first < one.first) && one.second == other.second;
}

/// Holds the layout of \a list still while rows come and go, and gives it its new size and order in one go afterwards:
/// first the widgets around it make room, then the rows take their places. Left to itself, the window would be laid out
/// anew for each row, and the list painted too tight until the room is made.
class RowChange
{
public:
    explicit RowChange(QWidget* list)
        : m_list(list)
    {
        m_list->layout()->setEnabled(false);
    }
    ~RowChange()
    {
        m_list->layout()->invalidate();
        m_list->updateGeometry();
        for (QWidget* around = m_list->parentWidget(); around && m_list->isVisible(); around = around->parentWidget()) {
            if (QLayout* layout = around->layout())
                layout->activate();
            else
                QCoreApplication::sendPostedEvents(around, QEvent::LayoutRequest); // as scroll areas need it
            if (around->isWindow())
                break;
        }
        m_list->layout()->setEnabled(true);
        m_list->layout()->activate();
    }
    Q_DISABLE_COPY_MOVE(RowChange)

private:
    QWidget* m_list;
};

} // namespace

GradientStopsWidget::GradientStopsWidget(QWidget* parent)
    : QWidget(parent)
    , m_rowLayout(new QVBoxLayout)
    , m_addRow(new GradientStopWidget(false, this))
    , m_preview(new GradientPreview(this))
    , m_line(new QFrame(this))
    , m_notice(new QLabel(this))
{
    m_preview->setAccessibleName(elementText("Gradient preview"));
    m_line->setFrameStyle(QFrame::HLine | QFrame::Plain);
    m_line->setLineWidth(LineWidth);
    m_line->setFixedHeight(LineWidth);
    colorLine();
    m_notice->setTextFormat(Qt::PlainText);
    m_notice->setWordWrap(true);
    m_notice->hide();

    // A list that grows paints only the row that is new.
    setAttribute(Qt::WA_StaticContents);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(PartGap);
    m_rowLayout->setContentsMargins(0, 0, 0, 0);
    m_rowLayout->setSpacing(RowGap);
    column->addWidget(m_notice);
    column->addWidget(m_preview);
    column->addLayout(m_rowLayout, 1);
    column->addWidget(m_line);
    column->addWidget(m_addRow);

    connect(m_addRow, &GradientStopWidget::requestAdd, this, &GradientStopsWidget::onAddGradientStop);
    resetNewStop();
    setGradientStops(GradientStopsProperty::defaultStops());
}

GradientStopsWidget::~GradientStopsWidget() = default;

void GradientStopsWidget::setGradientStops(const QGradientStops& stops)
{
    if (stops.size() < FewestStops || stops.size() > MostStops
        || std::equal(stops.begin(), stops.end(), m_stops.begin(), m_stops.end(), isSame))
        return;
    const RowChange change(this);
    setRowCount(stops.size());
    m_stops = stops;
    updateRows();
    m_notice->hide();
    setPartsVisible(true);
}

void GradientStopsWidget::showNoStops(const QString& reason)
{
    const RowChange change(this);
    setRowCount(0);
    m_stops.clear();
    updateRows();
    setPartsVisible(false);
    m_notice->setText(reason);
    m_notice->setVisible(!reason.isEmpty());
}

void GradientStopsWidget::resetNewStop()
{
    m_addRow->setGradientStop(newStop());
}

QSize GradientStopsWidget::minimumSizeHint() const
{
    // The same with and without rows, so that the label beside them keeps its place.
    return QWidget::minimumSizeHint().expandedTo({m_addRow->minimumSizeHint().width(), 0});
}

void GradientStopsWidget::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange || event->type() == QEvent::ApplicationPaletteChange)
        colorLine();
}

void GradientStopsWidget::onUserModifiedPosition()
{
    const qsizetype sender = senderIndex();
    if (sender < 0)
        return;
    const double position = m_rows.at(sender)->position();
    const qsizetype index = announced(Edit::Position, sender);
    if (index < 0)
        return;
    if (hasStopAt(wholePercent(position))) {
        const QPointer<GradientStopsWidget> self(this);
        warn("Modify Gradient Stops", wholePercent(position));
        if (self)
            updateRows();
        return;
    }
    m_stops[index].first = position;
    sort();
    Q_EMIT userModified();
}

void GradientStopsWidget::onUserModifiedColor()
{
    const qsizetype sender = senderIndex();
    if (sender < 0)
        return;
    const QColor color = m_rows.at(sender)->color();
    const qsizetype index = announced(Edit::Color, sender);
    if (index < 0)
        return;
    m_stops[index].second = color;
    m_rows.at(index)->setColor(color);
    m_preview->setGradientStops(m_stops);
    Q_EMIT userModified();
}

void GradientStopsWidget::onRemoveGradientStop()
{
    commitTyping();
    const qsizetype sender = senderIndex();
    const qsizetype index = sender < 0 ? -1 : announced(Edit::Count, sender);
    if (index < 0 || m_rows.size() <= FewestStops)
        return;
    GradientStopWidget* row = m_rows.takeAt(index);
    m_stops.remove(index);
    const QWidget* focused = QApplication::focusWidget();
    const bool hadFocus = focused && row->isAncestorOf(focused);
    {
        const RowChange change(this);
        updateRows();
        if (hadFocus) {
            // It stays in the list, among the buttons as long as there are any.
            const GradientStopWidget* next = m_rows.at(std::min(index, m_rows.size() - 1));
            if (next->isButtonVisible())
                next->button()->setFocus();
            else
                next->positionField()->setFocus();
        }
        dropRow(row);
    }
    Q_EMIT userModified();
}

void GradientStopsWidget::onAddGradientStop()
{
    if (m_warning)
        return;
    const QGradientStop stop = m_addRow->requestedStop();
    commitTyping();
    Q_EMIT aboutToModify(Edit::Count);
    if (m_stops.isEmpty() || m_stops.size() >= MostStops)
        return;
    const int percent = wholePercent(stop.first);
    if (hasStopAt(percent)) {
        warn("Add Gradient Stop", percent);
        return;
    }
    m_stops.append(stop);
    {
        const RowChange change(this);
        appendRow();
        if (m_rows.size() >= MostStops && m_addRow->button()->hasFocus())
            m_addRow->positionField()->setFocus(); // the button goes
        sort();
    }
    showAddRow();
    Q_EMIT userModified();
}

/// A new row behind the others, visible like them.
void GradientStopsWidget::appendRow()
{
    auto* row = new GradientStopWidget(true, this);
    connect(row, &GradientStopWidget::userModifiedPosition, this, &GradientStopsWidget::onUserModifiedPosition);
    connect(row, &GradientStopWidget::userModifiedColor, this, &GradientStopsWidget::onUserModifiedColor);
    connect(row, &GradientStopWidget::requestRemove, this, &GradientStopsWidget::onRemoveGradientStop);
    m_rowLayout->addWidget(row);
    m_rows.append(row);
    row->resize(0, 0); // until it has its place: what it lies over would be painted anew
    row->show();
    Q_EMIT rowAdded(row);
}

/// Takes \a row away, which is none of rows() any more. It may be at work yet, as the sender of what is handled.
void GradientStopsWidget::dropRow(GradientStopWidget* row)
{
    row->disconnect(this);
    m_rowLayout->removeWidget(row);
    row->hide();
    row->deleteLater();
}

void GradientStopsWidget::setRowCount(qsizetype count)
{
    while (m_rows.size() > count)
        dropRow(m_rows.takeLast());
    while (m_rows.size() < count)
        appendRow();
}

/// Sorts stops and rows by whole percent. Of several at the same one, the last stays.
void GradientStopsWidget::sort()
{
    QMap<int, qsizetype> indexes;
    for (qsizetype i = 0; i < m_stops.size(); ++i)
        indexes.insert(wholePercent(m_stops.at(i).first), i);
    const QList<GradientStopWidget*> rowsBefore = m_rows;
    const QGradientStops stopsBefore = m_stops;
    m_rows.clear();
    m_stops.clear();
    for (const qsizetype index : std::as_const(indexes)) {
        m_rows.append(rowsBefore.at(index));
        m_stops.append(stopsBefore.at(index));
    }
    if (m_rows.size() < rowsBefore.size()) {
        for (GradientStopWidget* row : rowsBefore) {
            if (!m_rows.contains(row))
                dropRow(row);
        }
    }
    for (int i = 0; i < m_rows.size(); ++i) {
        GradientStopWidget* row = m_rows.at(i);
        if (m_rowLayout->itemAt(i)->widget() != row) {
            m_rowLayout->removeWidget(row);
            m_rowLayout->insertWidget(i, row);
        }
    }
    updateRows();
}

/// Shows the stops in the rows, and the buttons that go with their number.
void GradientStopsWidget::updateRows()
{
    const bool removable = m_rows.size() > FewestStops;
    for (int i = 0; i < m_rows.size(); ++i) {
        GradientStopWidget* row = m_rows.at(i);
        row->setGradientStop(m_stops.at(i));
        row->setNumber(i + 1);
        row->setButtonVisible(removable);
    }
    m_addRow->setButtonVisible(m_rows.size() < MostStops);
    m_preview->setGradientStops(m_stops);
    linkTabs();
    setFocusProxy(m_rows.isEmpty() ? nullptr : m_rows.first());
}

/// What Tab goes through, as the rows stand, wherever a row was made or moved.
QList<QWidget*> GradientStopsWidget::tabStops() const
{
    QList<QWidget*> stops;
    for (const GradientStopWidget* row : m_rows + QList{m_addRow})
        stops += {row->positionField(), row->colorPicker()->swatch(), row->button()};
    return stops;
}

void GradientStopsWidget::linkTabs()
{
    QWidget* before = m_preview;
    const QList<QWidget*> stops = tabStops();
    for (QWidget* stop : stops) {
        setTabOrder(before, stop);
        before = stop;
    }
}

/// Qt would also stop at the widgets between the rows, because they hand the focus on.
bool GradientStopsWidget::focusNextPrevChild(bool next)
{
    QList<QWidget*> stops = tabStops();
    stops.removeIf([](const QWidget* stop) { return !stop->isVisible() || !stop->isEnabled(); });
    const qsizetype at = stops.indexOf(QApplication::focusWidget());
    const qsizetype wanted = next ? at + 1 : at - 1;
    if (at < 0 || wanted < 0 || wanted >= stops.size())
        return QWidget::focusNextPrevChild(next);
    stops.at(wanted)->setFocus(next ? Qt::TabFocusReason : Qt::BacktabFocusReason);
    return true;
}

void GradientStopsWidget::setPartsVisible(bool visible)
{
    m_preview->setVisible(visible);
    m_line->setVisible(visible);
    m_addRow->setVisible(visible);
}

/// A colour that is seen in every theme.
void GradientStopsWidget::colorLine()
{
    QPalette own = m_line->palette();
    own.setColor(QPalette::WindowText, quietColor(palette()));
    m_line->setPalette(own);
}

/// Takes over what is being typed in a row, before a button changes them all.
void GradientStopsWidget::commitTyping()
{
    const QList<GradientStopWidget*> rows = m_rows;
    for (GradientStopWidget* row : rows)
        row->commitTyping();
}

/// Keeps the row of the new stop, which each new row pushes down, in sight while it is used.
void GradientStopsWidget::showAddRow()
{
    QWidget* focused = QApplication::focusWidget();
    if (!focused || !m_addRow->isAncestorOf(focused))
        return;
    for (QWidget* ancestor = parentWidget(); ancestor; ancestor = ancestor->parentWidget()) {
        if (auto* area = qobject_cast<QScrollArea*>(ancestor))
            area->ensureWidgetVisible(focused, 0, PartGap);
    }
}

/// Says that there is a stop at \a percent already, and returns when the user has read it.
void GradientStopsWidget::warn(const char* title, int percent)
{
    const QPointer<GradientStopsWidget> self(this);
    m_warning = true;
    MessageBox::warning(this, elementText(title),
                        elementText("Gradient stop at position %1% already exists.").arg(percent));
    if (self)
        m_warning = false;
}

/// The index of the row that sent the signal; -1 for none, and while a warning is open: a button that was held down may
/// go on stepping meanwhile.
qsizetype GradientStopsWidget::senderIndex() const
{
    return m_warning ? -1 : m_rows.indexOf(qobject_cast<GradientStopWidget*>(sender()));
}

/// Announces an edit of the stop \a index. Gives back the index that the stop has afterwards, -1 when it is gone.
qsizetype GradientStopsWidget::announced(Edit edit, qsizetype index)
{
    const QGradientStop stop = m_stops.at(index);
    Q_EMIT aboutToModify(edit);
    if (index < m_stops.size() && isSame(m_stops.at(index), stop))
        return index;
    const auto found = std::find_if(m_stops.cbegin(), m_stops.cend(),
                                    [&stop](const QGradientStop& other) { return isSame(other, stop); });
    return found == m_stops.cend() ? -1 : found - m_stops.cbegin();
}

bool GradientStopsWidget::hasStopAt(int percent) const
{
    return std::any_of(m_stops.cbegin(), m_stops.cend(),
                       [percent](const QGradientStop& stop) { return wholePercent(stop.first) == percent; });
}

} // namespace Korvex::Meridane::Designer
