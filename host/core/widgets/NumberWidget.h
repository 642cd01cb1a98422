#pragma once

#include "host/core/CoreExport.h"
#include "host/core/values/NumberOperation.h"

#include <QtWidgets/QWidget>

namespace Korvex::Meridane::Designer {
class NumberSlider;
class SpinBox;

/** A number field with an optional slider beside it. What SpinBox promises holds here too. */
class MERIDANE_CORE_EXPORT NumberWidget : public QWidget
{
    Q_OBJECT

public:
    /** @param wholeNumbers true: shows no decimals; false: two. setDecimals() changes that. No slider at first. */
    explicit NumberWidget(bool wholeNumbers, QWidget* parent = nullptr);

    void setDecimals(int decimals);
    void setMinimum(double minimum);
    void setMaximum(double maximum);
    void setSingleStep(double step);
    void setSuffix(const QString& suffix);
    /** The slider spans the range from minimum to maximum. */
    void showSlider(bool show);

    /** The exact value; while the user types, the value that the typed text would commit. */
    [[nodiscard]] double value() const;
    /** Shows @p value, silently. */
    void setValue(double value);

    /** See SpinBox. */
    void setRelativeInputAllowed(bool allowed);
    [[nodiscard]] NumberOperation operation() const;
    [[nodiscard]] double adjusted(double value) const;
    void setMixed(bool mixed);
    [[nodiscard]] bool isMixed() const;
    void commit();

    /** Names field and slider for assistive programs, for example after the property that is edited. */
    void setAccessibleLabel(const QString& label);

    [[nodiscard]] SpinBox* spinBox() const { return m_spinBox; }
    [[nodiscard]] NumberSlider* slider() const { return m_slider; }

Q_SIGNALS:
    /** The user has changed the value; during a drag of the slider once for every change. */
    void userModified();
    /** The focus has come to the field or the slider from elsewhere, or has left both. */
    void focusedIn();
    void focusedOut();
    /** A drag of the slider begins and ends; what is modified between belongs together. */
    void sliderPressed();
    void sliderReleased();

private:
    void updateSliderRange();
    void onSpinBoxModified();

    SpinBox* m_spinBox;
    NumberSlider* m_slider;
};
} // namespace Korvex::Meridane::Designer
