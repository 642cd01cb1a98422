#pragma once

#include "host/core/properties/DesignerProperty.h"

#include <QBrush>

namespace Korvex::Meridane::Designer {

/**
 * The colour stops of a gradient: positions from 0 to 1 with their colours, in order.
 *
 * A text that does not convert is refused and the value stays. A valid list has 2 to 101 stops, no two of them at the
 * same whole percent, at least two different colours and one that is not wholly transparent.
 *
 * QML: a list of lists, `[ position, "colour" ]` each, positions with two decimals.
 */
class GradientStopsProperty : public DesignerProperty
{
public:
    static constexpr int FewestStops = 2;
    static constexpr int MostStops = 101;

    /// Fewer than two \a stops give the two of a new gradient: orange at 33 % and white at 67 %.
    GradientStopsProperty(DesignerObject* parent, const QString& id, const QString& name, const QGradientStops& stops);
    ~GradientStopsProperty() override;

    [[nodiscard]] QString className() const override;
    [[nodiscard]] QStringList classNames() const override;
    bool convertToValue(const QString& valueString) override;
    [[nodiscard]] QString convertToValueString() const override;
    [[nodiscard]] QString convertToQml(int indent) const override;
    [[nodiscard]] bool valueIsEqual(const QString& valueString) const override;
    [[nodiscard]] bool validateValue(QString& message) const override;

    [[nodiscard]] const QGradientStops& value() const { return m_stops; }

    /// The stops of a new gradient.
    [[nodiscard]] static QGradientStops defaultStops();

private:
    QGradientStops m_stops;
};

} // namespace Korvex::Meridane::Designer
