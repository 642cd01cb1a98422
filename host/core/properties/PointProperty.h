#pragma once

#include "host/core/properties/TypedProperty.h"

#include <QPointF>

namespace Korvex::Meridane::Designer {

/// A property that holds a point. QML: `x` and `y` for "position", else `<id>: Qt.point(x, y)`.
class MERIDANE_CORE_EXPORT PointProperty : public TypedProperty<QPointF>
{
public:
    PointProperty(DesignerObject* parent, const QString& id, const QString& name, const QPointF& value);
    ~PointProperty() override;

    [[nodiscard]] QString className() const override;
    [[nodiscard]] QStringList classNames() const override;
    [[nodiscard]] QString convertToQml(int indent) const override;

protected:
    [[nodiscard]] QPointF parse(const QString& valueString, bool* ok) const override;
    [[nodiscard]] QString write(const QPointF& value) const override;
};

} // namespace Korvex::Meridane::Designer
