#pragma once

#include <QBrush>
#include <QWidget>

#include <optional>

namespace Korvex::Meridane::Designer {

class ColorWidget;
class ItemButton;
class SpinBox;

/**
 * One row of the list of gradient stops: a position in whole percent, a colour, and a button that removes the stop. The
 * row for a new stop adds it instead, also on Enter, Return and "+" in the position's field.
 *
 * Positions are 0 to 1 outside and 0 to 100 % in the field, which drops decimals: whoever needs them keeps the stop.
 */
class GradientStopWidget : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(QGradientStop stop READ gradientStop WRITE setGradientStop)
    Q_PROPERTY(double position READ position WRITE setPosition)
    Q_PROPERTY(QColor color READ color WRITE setColor)
    Q_PROPERTY(bool visible READ isButtonVisible WRITE setButtonVisible)

public:
    /// \a removable: a stop of the list, else the row for a new one.
    explicit GradientStopWidget(bool removable, QWidget* parent = nullptr);
    ~GradientStopWidget() override;

    /// Position (whole percent) and colour as shown.
    [[nodiscard]] QGradientStop gradientStop() const { return {position(), color()}; }
    [[nodiscard]] double position() const;
    [[nodiscard]] const QColor& color() const;
    [[nodiscard]] bool isButtonVisible() const { return m_buttonVisible; }
    /// What requestAdd() asks for: the stop as it was when the key was pressed, else gradientStop().
    [[nodiscard]] QGradientStop requestedStop() const;

    /// Says in the accessible names which stop of the list this is: 1 and up. Not for the row of a new stop.
    void setNumber(int number);
    /// Takes over a position that is being typed, as Enter does.
    void commitTyping();

    [[nodiscard]] SpinBox* positionField() const { return m_position; }
    [[nodiscard]] ColorWidget* colorPicker() const { return m_color; }
    [[nodiscard]] ItemButton* button() const { return m_button; }

    bool eventFilter(QObject* watched, QEvent* event) override;

public Q_SLOTS:
    // None of them announces a change.
    void setGradientStop(const QGradientStop& stop);
    /// Ignored beyond 0 to 100 %.
    void setPosition(double position);
    void setColor(const QColor& color);
    /// A hidden button keeps its place, so that the fields of all rows stay in line.
    void setButtonVisible(bool visible);

Q_SIGNALS:
    void userModified();
    void userModifiedPosition();
    void userModifiedColor();
    void requestRemove();
    void requestAdd();

private:
    void onButtonClicked();
    void add();
    void dropPlus();

    SpinBox* m_position;
    ColorWidget* m_color;
    ItemButton* m_button;
    std::optional<QGradientStop> m_requested; // by a key
    int m_number = 0;
    bool m_removable;
    bool m_buttonVisible = true;
    bool m_pending = false; // a key has asked to add, the click is to come
    bool m_answered = false; // the click that is to come has been forestalled
};

} // namespace Korvex::Meridane::Designer
