#pragma once

#include <QPolygonF>
#include <QVector>
#include <QWidget>

#include <array>

class QGridLayout;
class QLabel;

namespace Korvex::Meridane::Designer {

class ItemButton;
class MessageLabel;
class NumberWidget;
class SpinBox;

/**
 * Edits a list of 3 to 20 points: a row of two number fields for each point, buttons that add and remove points, and a
 * control that turns them all.
 *
 * Coordinates are pixels in a system of the polygon's own. Numbers are exact as long as they are not edited (see
 * SpinBox). The turn is always applied to the points as they were before the control was used, so that turning back
 * restores them exactly. Only the user's edits emit userModified().
 */
class PointListWidget : public QWidget
{
    Q_OBJECT

public:
    static constexpr int FewestPoints = 3;
    static constexpr int MostPoints = 20;

    /// What the user did last.
    enum class Edit
    {
        None, ///< nothing since the points were set
        Coordinate, ///< changed one coordinate
        Removal, ///< took a point out
        Replacement, ///< had the points replaced by a regular polygon
        Rotation ///< turned the points
    };

    explicit PointListWidget(QWidget* parent = nullptr);
    ~PointListWidget() override;

    /// Shows \a points, silently. A \a rotated list is the one before turned by the control; any other one is shown
    /// with the control at 0. Ignored for fewer than 3 or more than 20 points.
    void setPointList(const QPolygonF& points, bool rotated = false);
    /// Shows no points, so that nothing can be edited, and \a reason instead.
    void showNoPoints(const QString& reason);

    /// The points as shown; empty while none are.
    [[nodiscard]] const QPolygonF& pointList() const { return m_points; }
    [[nodiscard]] Edit lastEdit() const { return m_edit; }
    /// The field of the last edit of a coordinate, or null.
    [[nodiscard]] SpinBox* editedField() const { return m_editedField; }

    /// The parts of the row of the point \a index, which is 0 to 19. Rows without a point are hidden.
    [[nodiscard]] SpinBox* xField(int index) const { return m_rows.at(index).x; }
    [[nodiscard]] SpinBox* yField(int index) const { return m_rows.at(index).y; }
    [[nodiscard]] ItemButton* removeButton(int index) const { return m_rows.at(index).remove; }
    [[nodiscard]] ItemButton* addButton() const { return m_add; }
    [[nodiscard]] NumberWidget* rotationControl() const { return m_rotation; }

    [[nodiscard]] QSize minimumSizeHint() const override;

public Q_SLOTS:
    void addButtonClicked();
    void removeButtonClicked();
    void onPointListChanged();
    void onRotationChanged();
    void onPointSelected();
    void onPointUnselected();

Q_SIGNALS:
    /// The user has changed the points.
    void userModified();
    /// The focus has come to a field of the point \a index, or has left it (-1).
    void pointSelected(int index);

private:
    struct Row
    {
        ItemButton* remove;
        SpinBox* x;
        SpinBox* y;
        QLabel* index;
    };

    void buildHeader();
    void buildRow(int index);
    void buildRotation();
    [[nodiscard]] SpinBox* createField();
    void showRows(int count);
    void setControlsVisible(bool visible);
    void onFieldModified();
    void updateAddButton();
    void updateSizeMessage();
    void commitTyping();
    void announce(Edit edit);
    [[nodiscard]] int rowOf(const QObject* widget) const;
    [[nodiscard]] QPolygonF pointsInFields() const;

    QGridLayout* m_grid;
    std::array<Row, MostPoints> m_rows{};
    QVector<QLabel*> m_columnLabels;
    ItemButton* m_add = nullptr;
    QLabel* m_rotationLabel = nullptr;
    NumberWidget* m_rotation = nullptr;
    MessageLabel* m_sizeMessage = nullptr;
    QLabel* m_notice = nullptr;
    SpinBox* m_editedField = nullptr;
    QPolygonF m_points;
    QPolygonF m_unrotated;
    Edit m_edit = Edit::None;
    bool m_setting = false; // the fields are being set
};

} // namespace Korvex::Meridane::Designer
