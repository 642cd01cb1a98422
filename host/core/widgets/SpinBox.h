#pragma once

#include "host/core/CoreExport.h"
#include "host/core/values/NumberOperation.h"

#include <QtWidgets/QDoubleSpinBox>

#include <optional>

namespace Korvex::Meridane::Designer {
/**
 * A number field that never loses precision by being looked at.
 *
 * It keeps the exact value it was given and shows it with at most decimals() decimals; only an edit by the user rounds
 * and limits it. A value outside the range is shown as it is. What is typed counts when it is committed: on Enter, when
 * the focus leaves, and before a step; Escape takes it back. A text that cannot be read stays where somebody listens to
 * inputRefused(), and is dropped otherwise. Arithmetic (`120/3`) may be typed, and where it is allowed
 * a relative change (`+=10`), which operation() then reports. The decimal sign shown is ".", whatever the locale.
 *
 * Up and Down step; with Shift by ten steps, with Ctrl by a tenth, as far as the decimals go.
 *
 * The wheel acts only on the focused field, so that a scrolled page keeps its values.
 *
 * Several functions hide non-virtual ones of QDoubleSpinBox, which would round: use the class by its own name.
 */
class MERIDANE_CORE_EXPORT SpinBox : public QDoubleSpinBox
{
    Q_OBJECT
    Q_PROPERTY(double value READ value WRITE setValue USER true)
    Q_PROPERTY(int decimals READ decimals WRITE setDecimals)
    Q_PROPERTY(double minimum READ minimum WRITE setMinimum)
    Q_PROPERTY(double maximum READ maximum WRITE setMaximum)
    Q_PROPERTY(QString suffix READ suffix WRITE setSuffix)

public:
    /** @param wholeNumbers true: shows no decimals; false: two. setDecimals() changes that. The range is ±10^9. */
    explicit SpinBox(bool wholeNumbers, QWidget* parent = nullptr);

    /** The exact value; while the user types, the value that the typed text would commit. */
    [[nodiscard]] double value() const;

    [[nodiscard]] int decimals() const { return m_decimals; }
    void setDecimals(int decimals);
    [[nodiscard]] double minimum() const { return m_minimum; }
    [[nodiscard]] double maximum() const { return m_maximum; }
    void setMinimum(double minimum);
    void setMaximum(double maximum);
    /** Limits what the user can enter. A value that was set before stays. */
    void setRange(double minimum, double maximum);
    [[nodiscard]] QString suffix() const { return m_suffix; }
    void setSuffix(const QString& suffix);

    /** @p value as an edit would leave it: within the range and rounded to decimals(). */
    [[nodiscard]] double adjusted(double value) const;

    /** Lets the user type `+=10` and the like; steps are then relative too. Off at first. */
    void setRelativeInputAllowed(bool allowed) { m_relativeInputAllowed = allowed; }
    [[nodiscard]] bool isRelativeInputAllowed() const { return m_relativeInputAllowed; }

    /**
     * What the last edit asked for: a new value, already adjusted(), or a relative change to be applied to each of
     * several values, whose results the caller passes through adjusted(). Set to value() when nothing was edited.
     */
    [[nodiscard]] NumberOperation operation() const { return m_operation; }

    /** Shows "—" for several values that differ, until setValue() or an absolute edit. value() stays what was set. */
    void setMixed(bool mixed);
    [[nodiscard]] bool isMixed() const { return m_mixed; }

    /** Takes over the typed text as Enter does. */
    void commit();
    /** Shows the value again, whatever was typed; silently. */
    void dropInput();

    /** Changes the value for the user, as a step or a slider does: userModified() when that makes a difference. */
    void editValue(double value);

    /** Room for four digits and a sign, or for less where the range is smaller, whether the value is mixed or not. */
    [[nodiscard]] QSize minimumSizeHint() const override;

    void stepBy(int steps) override;
    [[nodiscard]] QString textFromValue(double value) const override;
    [[nodiscard]] double valueFromText(const QString& text) const override;
    QValidator::State validate(QString& text, int& position) const override;
    void fixup(QString& text) const override;

public Q_SLOTS:
    /** Shows @p value, silently; typed text survives when it is the present value. Not-a-number is ignored. */
    void setValue(double value);

Q_SIGNALS:
    /** The user has changed the value; never sent for setValue(). */
    void userModified();
    /**
     * The typed text cannot be read, for the reason that @p message tells the user; it stays in the field. When the field
     * is in order again userModified() follows, also when the value is the one before. Without a receiver the text is
     * dropped and the reason shown as a tooltip.
     */
    void inputRefused(const QString& message);
    void focusedIn();
    void focusedOut();

protected:
    [[nodiscard]] StepEnabled stepEnabled() const override;
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    void showValue();
    void keepRefusedText();
    void step(double steps);
    void applyOperation(const NumberOperation& operation);
    void onBaseValueChanged(double value);
    [[nodiscard]] QString shownText() const;
    [[nodiscard]] bool isEdited() const;
    [[nodiscard]] QStringView withoutSuffix(QStringView text) const;
    [[nodiscard]] std::optional<NumberOperation> read(QStringView text, QString* error = nullptr) const;

    double m_value = 0;
    double m_minimum;
    double m_maximum;
    int m_decimals;
    QString m_suffix;
    NumberOperation m_operation;
    QString m_refusedText; // null while the text can be read
    bool m_loaded = false;
    bool m_mixed = false;
    bool m_relativeInputAllowed = false;
    bool m_synchronising = false;
};
} // namespace Korvex::Meridane::Designer
