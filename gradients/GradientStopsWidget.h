#pragma once

#include <QBrush>
#include <QWidget>

class QFrame;
class QLabel;
class QVBoxLayout;

namespace Korvex::Meridane::Designer {

class GradientPreview;
class GradientStopWidget;

/**
 * Edits the stops of a gradient: a preview, a row for each of 2 to 101 stops, and below a line the row that adds one.
 *
 * The stops are sorted by whole percent at each edit of a position, and no edit leaves two at the same percent: a row
 * follows its stop, so that the focus stays with what is edited. Positions keep the decimals that they were set with
 * until the user edits them. Only the user's edits emit userModified().
 */
class GradientStopsWidget : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(QGradientStops stops READ gradientStops WRITE setGradientStops)

public:
    explicit GradientStopsWidget(QWidget* parent = nullptr);
    ~GradientStopsWidget() override;

    /// What an edit changes.
    enum class Edit
    {
        Position,
        Color,
        Count
    };

    /// The stops as shown, in the order of the rows; empty while none are.
    [[nodiscard]] const QGradientStops& gradientStops() const { return m_stops; }
    /// Shows no stops, so that nothing can be edited, and \a reason instead.
    void showNoStops(const QString& reason);
    /// Sets the row of the new stop back to how it was at first.
    void resetNewStop();

    /// The rows of the stops, in their order.
    [[nodiscard]] const QList<GradientStopWidget*>& rows() const { return m_rows; }
    [[nodiscard]] GradientStopWidget* addRow() const { return m_addRow; }
    [[nodiscard]] GradientPreview* preview() const { return m_preview; }

    [[nodiscard]] QSize minimumSizeHint() const override;

public Q_SLOTS:
    /// Shows \a stops, silently. Ignored for fewer than 2 or more than 101, and when they are shown already.
    void setGradientStops(const QGradientStops& stops);

Q_SIGNALS:
    /// The user has changed the stops.
    void userModified();
    /// The user is about to change the stops: the time to bring them up to date, should they have changed elsewhere. The
    /// edit is then applied to the same stop, or dropped when that is gone.
    void aboutToModify(GradientStopsWidget::Edit edit);
    void rowAdded(GradientStopWidget* row);

protected:
    bool focusNextPrevChild(bool next) override;
    void changeEvent(QEvent* event) override;

private Q_SLOTS:
    void onUserModifiedPosition();
    void onUserModifiedColor();
    void onRemoveGradientStop();
    void onAddGradientStop();

private:
    void appendRow();
    void dropRow(GradientStopWidget* row);
    void setRowCount(qsizetype count);
    void sort();
    void updateRows();
    [[nodiscard]] QList<QWidget*> tabStops() const;
    void linkTabs();
    void setPartsVisible(bool visible);
    void colorLine();
    void commitTyping();
    void showAddRow();
    void warn(const char* title, int percent);
    [[nodiscard]] qsizetype senderIndex() const;
    [[nodiscard]] qsizetype announced(Edit edit, qsizetype index);
    [[nodiscard]] bool hasStopAt(int percent) const;

    QVBoxLayout* m_rowLayout;
    QList<GradientStopWidget*> m_rows;
    GradientStopWidget* m_addRow;
    QGradientStops m_stops; // of the rows
    GradientPreview* m_preview;
    QFrame* m_line;
    QLabel* m_notice;
    bool m_warning = false; // a warning is open
};

} // namespace Korvex::Meridane::Designer
