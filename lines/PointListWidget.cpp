#include "lines/PointListWidget.h"

#include "host/core/canvas/CanvasNumbers.h"
#include "host/core/objects/ElementText.h"
#include "host/core/sheet/MessageLabel.h"
#include "host/core/widgets/ItemButton.h"
#include "host/core/widgets/NumberSlider.h"
#include "host/core/widgets/NumberWidget.h"
#include "host/core/widgets/SpinBox.h"

#include "lines/RegularPolygonPoints.h"

#include <QFontMetrics>
#include <QGridLayout>
#include <QLabel>
#include <QScopedValueRollback>
#include <QTransform>

#include <algorithm>
#include <cmath>

namespace Korvex::Meridane::Designer {

namespace {

// The columns and rows of the grid. The point rows lie between the header and the rotation.
enum Column
{
    IndexColumn,
    XColumn,
    YColumn,
    ButtonColumn,
    ColumnCount
};
constexpr int HeaderRow = 0;
constexpr int RotationLabelRow = PointListWidget::MostPoints + 1;
constexpr int RotationRow = RotationLabelRow + 1;
constexpr int MessageRow = RotationRow + 1;

constexpr int CellSize = 32; // pixels, the least width of a column and height of a row
constexpr int ColumnGap = 4; // pixels
constexpr double Limit = 99999; // pixels that can be entered, in either direction
constexpr double LargestAngle = 359.99; // degrees
constexpr double SmallestSide = 1; // pixels

/// What the add button makes of 3, 4, … 19 points.
constexpr std::array<const char*, PointListWidget::MostPoints - PointListWidget::FewestPoints> AddToolTips{{
    QT_TRANSLATE_NOOP("VisualDesigner", "Add a new point to form a square"),
    QT_TRANSLATE_NOOP("VisualDesigner", "Add a new point to form a pentagon"),
    QT_TRANSLATE_NOOP("VisualDesigner", "Add a new point to form a hexagon"),
    QT_TRANSLATE_NOOP("VisualDesigner", "Add a new point to form a heptagon"),
    QT_TRANSLATE_NOOP("VisualDesigner", "Add a new point to form an octagon"),
    QT_TRANSLATE_NOOP("VisualDesigner", "Add a new point to form a nonagon"),
    QT_TRANSLATE_NOOP("VisualDesigner", "Add a new point to form a decagon"),
    QT_TRANSLATE_NOOP("VisualDesigner", "Add a new point to form a hendecagon"),
    QT_TRANSLATE_NOOP("VisualDesigner", "Add a new point to form a dodecagon"),
    QT_TRANSLATE_NOOP("VisualDesigner", "Add a new point to form a tridecagon"),
    QT_TRANSLATE_NOOP("VisualDesigner", "Add a new point to form a tetradecagon"),
    QT_TRANSLATE_NOOP("VisualDesigner", "Add a new point to form a pentadecagon"),
    QT_TRANSLATE_NOOP("VisualDesigner", "Add a new point to form a hexadecagon"),
    QT_TRANSLATE_NOOP("VisualDesigner", "Add a new point to form a heptadecagon"),
    QT_TRANSLATE_NOOP("VisualDesigner", "Add a new point to form an octadecagon"),
    QT_TRANSLATE_NOOP("VisualDesigner", "Add a new point to form an enneadecagon"),
    QT_TRANSLATE_NOOP("VisualDesigner", "Add a new point to form an icosagon"),
}};

/// Exact, unlike QPolygonF's own comparison.
bool samePoints(const QPolygonF& one, const QPolygonF& other)
{
    return std::equal(one.begin(), one.end(), other.begin(), other.end(),
                      [](const QPointF& a, const QPointF& b) { return a.x() == b.x() && a.y() == b.y(); });
}

bool isFinite(const QPolygonF& points)
{
    return std::all_of(points.begin(), points.end(),
                       [](const QPointF& point) { return std::isfinite(point.x()) && std::isfinite(point.y()); });
}

} // namespace

PointListWidget::PointListWidget(QWidget* parent)
    : QWidget(parent)
    , m_grid(new QGridLayout(this))
{
    m_grid->setContentsMargins(0, 0, 0, 0);
    m_grid->setHorizontalSpacing(ColumnGap);
    m_grid->setVerticalSpacing(0);
    for (int column = 0; column < ColumnCount; ++column)
        m_grid->setColumnMinimumWidth(column, CellSize);
    m_grid->setColumnStretch(XColumn, 1);
    m_grid->setColumnStretch(YColumn, 1);

    // First of all that hear it: whoever else does finds the points up to date.
    connect(this, &PointListWidget::userModified, this, &PointListWidget::onPointListChanged);
    // Parts are created in the order in which Tab visits them.
    buildHeader();
    for (int index = 0; index < MostPoints; ++index)
        buildRow(index);
    buildRotation();

    m_sizeMessage = new MessageLabel(this);
    m_sizeMessage->setText(elementText("The size is too small."));
    m_grid->addWidget(m_sizeMessage, MessageRow, 0, 1, ColumnCount);
    m_notice = new QLabel(this);
    m_notice->setTextFormat(Qt::PlainText);
    m_notice->setWordWrap(true);
    m_grid->addWidget(m_notice, MessageRow + 1, 0, 1, ColumnCount);

    setFocusProxy(xField(0));
    showNoPoints({});
}

PointListWidget::~PointListWidget() = default;

void PointListWidget::setPointList(const QPolygonF& points, bool rotated)
{
    if (points.size() < FewestPoints || points.size() > MostPoints)
        return;
    const QScopedValueRollback setting(m_setting, true);
    m_points = points;
    if (!rotated) {
        m_unrotated = points;
        m_rotation->setValue(0);
        m_edit = Edit::None;
    }
    for (int i = 0; i < points.size(); ++i) {
        xField(i)->setValue(points.at(i).x());
        yField(i)->setValue(points.at(i).y());
    }
    m_notice->hide();
    showRows(static_cast<int>(points.size()));
    setControlsVisible(true);
    updateAddButton();
    updateSizeMessage();
}

void PointListWidget::showNoPoints(const QString& reason)
{
    const QScopedValueRollback setting(m_setting, true);
    m_points.clear();
    m_unrotated.clear();
    m_rotation->setValue(0);
    m_edit = Edit::None;
    showRows(0);
    setControlsVisible(false);
    updateSizeMessage();
    m_notice->setText(reason);
    m_notice->setVisible(!reason.isEmpty());
}

QSize PointListWidget::minimumSizeHint() const
{
    // The fields could be narrower, but then nobody could read them.
    const int field = fontMetrics().horizontalAdvance(QStringLiteral("-999.99 px")) + CellSize / 2;
    return QWidget::minimumSizeHint().expandedTo({2 * (CellSize + field) + (ColumnCount - 1) * ColumnGap, 0});
}

void PointListWidget::addButtonClicked()
{
    commitTyping();
    if (m_points.isEmpty() || m_points.size() >= MostPoints)
        return;
    setPointList(regularPolygonPoints(static_cast<int>(m_points.size()) + 1, MostPoints));
    announce(Edit::Replacement);
}

void PointListWidget::removeButtonClicked()
{
    const int index = rowOf(sender());
    commitTyping();
    if (index < 0 || index >= m_points.size())
        return;
    if (m_points.size() == FewestPoints) {
        setPointList(regularPolygonPoints(FewestPoints, MostPoints));
        announce(Edit::Replacement);
        return;
    }
    QPolygonF points = m_points;
    points.remove(index);
    // The row at the end goes; the focus stays among the buttons.
    if (removeButton(static_cast<int>(points.size()))->hasFocus())
        removeButton(static_cast<int>(points.size()) - 1)->setFocus();
    setPointList(points);
    announce(Edit::Removal);
}

void PointListWidget::onPointListChanged()
{
    const QPolygonF points = pointsInFields();
    if (samePoints(points, m_points))
        return;
    const Edit edit = m_edit;
    setPointList(points);
    m_edit = edit;
}

void PointListWidget::onRotationChanged()
{
    const QPolygonF rotated = QTransform().rotate(m_rotation->value()).map(m_unrotated);
    if (rotated.isEmpty() || !isFinite(rotated))
        return;
    setPointList(rotated, true);
    announce(Edit::Rotation);
}

void PointListWidget::onPointSelected()
{
    Q_EMIT pointSelected(rowOf(sender()));
}

void PointListWidget::onPointUnselected()
{
    Q_EMIT pointSelected(-1);
}

void PointListWidget::buildHeader()
{
    m_add = new ItemButton(ItemButton::Action::Add, this);
    m_add->setAccessibleName(elementText("Add a point"));
    connect(m_add, &ItemButton::clicked, this, &PointListWidget::addButtonClicked);
    m_grid->addWidget(m_add, HeaderRow, ButtonColumn, Qt::AlignCenter);
    for (const auto& [text, column] : {std::pair(QT_TRANSLATE_NOOP("VisualDesigner", "X:"), XColumn),
                                       std::pair(QT_TRANSLATE_NOOP("VisualDesigner", "Y:"), YColumn)}) {
        auto* label = new QLabel(elementText(text), this);
        QFont bold = label->font();
        bold.setWeight(QFont::Bold);
        label->setFont(bold);
        m_grid->addWidget(label, HeaderRow, column);
        m_columnLabels.append(label);
    }
}

void PointListWidget::buildRow(int index)
{
    Row& row = m_rows.at(index);
    const int number = index + 1;
    row.x = createField();
    row.x->setAccessibleName(elementText("X of point %1").arg(number));
    row.y = createField();
    row.y->setAccessibleName(elementText("Y of point %1").arg(number));
    row.remove = new ItemButton(ItemButton::Action::Remove, this);
    row.remove->setToolTip(elementText("Remove this point"));
    row.remove->setAccessibleName(elementText("Remove point %1").arg(number));
    connect(row.remove, &ItemButton::clicked, this, &PointListWidget::removeButtonClicked);
    row.index = new QLabel(QStringLiteral("%1").arg(number), this);
    row.index->setObjectName(QStringLiteral("indexLabelSquare"));
    row.index->setAlignment(Qt::AlignCenter);

    const int gridRow = HeaderRow + number;
    m_grid->addWidget(row.index, gridRow, IndexColumn);
    m_grid->addWidget(row.x, gridRow, XColumn);
    m_grid->addWidget(row.y, gridRow, YColumn);
    m_grid->addWidget(row.remove, gridRow, ButtonColumn, Qt::AlignCenter);
    for (QWidget* widget : std::initializer_list<QWidget*>{row.index, row.x, row.y, row.remove})
        widget->hide();
}

SpinBox* PointListWidget::createField()
{
    constexpr int Decimals = 2;
    constexpr int SmallestWidth = 10; // pixels
    auto* field = new SpinBox(false, this);
    field->setDecimals(Decimals);
    field->setRange(-Limit, Limit);
    field->setSuffix(elementText(" px"));
    field->setRelativeInputAllowed(true);
    field->setMinimumWidth(SmallestWidth);
    field->setStyleSheet(QStringLiteral("min-width: 10px;"));
    field->setToolTip(elementText("The point's position uses an independent set of coordinates, \n"
                                  "it is not related to the polygon's position on canvas"));
    connect(field, &SpinBox::focusedIn, this, &PointListWidget::onPointSelected);
    connect(field, &SpinBox::focusedOut, this, &PointListWidget::onPointUnselected);
    connect(field, &SpinBox::userModified, this, &PointListWidget::onFieldModified);
    return field;
}

void PointListWidget::buildRotation()
{
    constexpr int Decimals = 2;
    constexpr int SmallestSlider = 48; // pixels
    m_rotationLabel = new QLabel(elementText("Rotate Points Clockwise"), this);
    m_rotation = new NumberWidget(false, this);
    m_rotation->showSlider(true);
    m_rotation->setDecimals(Decimals);
    m_rotation->setMinimum(0);
    m_rotation->setMaximum(LargestAngle);
    m_rotation->setSuffix(elementText("\u00b0"));
    m_rotation->slider()->setMinimumWidth(SmallestSlider);
    m_rotation->setAccessibleLabel(m_rotationLabel->text());
    m_rotation->setRelativeInputAllowed(true);
    connect(m_rotation, &NumberWidget::userModified, this, &PointListWidget::onRotationChanged);
    m_grid->addWidget(m_rotationLabel, RotationLabelRow, 0, 1, ColumnCount);
    m_grid->addWidget(m_rotation, RotationRow, 0, 1, ColumnCount);
}

void PointListWidget::showRows(int count)
{
    // Otherwise the whole window would be laid out anew for each of the widgets.
    m_grid->setEnabled(false);
    for (int index = 0; index < MostPoints; ++index) {
        const bool visible = index < count;
        const Row& row = m_rows.at(index);
        for (QWidget* widget : std::initializer_list<QWidget*>{row.index, row.x, row.y, row.remove})
            widget->setVisible(visible);
        m_grid->setRowMinimumHeight(HeaderRow + 1 + index, visible ? CellSize : 0);
    }
    m_grid->setEnabled(true);
    m_grid->update();
}

void PointListWidget::setControlsVisible(bool visible)
{
    for (QLabel* label : std::as_const(m_columnLabels))
        label->setVisible(visible);
    m_add->setVisible(visible);
    m_rotationLabel->setVisible(visible);
    m_rotation->setVisible(visible);
    m_rotation->setEnabled(visible);
    for (const int row : {HeaderRow, RotationLabelRow, RotationRow})
        m_grid->setRowMinimumHeight(row, visible ? CellSize : 0);
    updateAddButton();
}

void PointListWidget::updateAddButton()
{
    const qsizetype count = m_points.size();
    m_add->setEnabled(count >= FewestPoints && count < MostPoints);
    if (count >= MostPoints)
        m_add->setToolTip(elementText("You cannot have more than %1 points").arg(MostPoints));
    else
        m_add->setToolTip(count < FewestPoints ? QString() : elementText(AddToolTips.at(count - FewestPoints)));
}

void PointListWidget::updateSizeMessage()
{
    const QSizeF size = withoutNoise(m_points.boundingRect().size());
    m_sizeMessage->setVisible(!m_points.isEmpty() && (size.width() < SmallestSide || size.height() < SmallestSide));
}

void PointListWidget::onFieldModified()
{
    auto* field = qobject_cast<SpinBox*>(sender());
    // A row that is taken away commits what was typed in it.
    if (m_setting || rowOf(field) >= m_points.size())
        return;
    m_editedField = field;
    announce(Edit::Coordinate);
}

/// Takes over what stands in the fields, before a button changes them all.
void PointListWidget::commitTyping()
{
    for (int i = 0; i < m_points.size(); ++i) {
        xField(i)->commit();
        yField(i)->commit();
    }
    m_rotation->commit();
}

void PointListWidget::announce(Edit edit)
{
    m_edit = edit;
    Q_EMIT userModified();
}

int PointListWidget::rowOf(const QObject* widget) const
{
    const auto row = std::find_if(m_rows.begin(), m_rows.end(), [widget](const Row& candidate) {
        return candidate.x == widget || candidate.y == widget || candidate.remove == widget;
    });
    return row == m_rows.end() ? -1 : static_cast<int>(row - m_rows.begin());
}

QPolygonF PointListWidget::pointsInFields() const
{
    QPolygonF points;
    points.reserve(m_points.size());
    for (int i = 0; i < m_points.size(); ++i)
        points.append({xField(i)->value(), yField(i)->value()});
    return points;
}

} // namespace Korvex::Meridane::Designer
