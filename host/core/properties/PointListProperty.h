#pragma once

#include "host/core/properties/TypedProperty.h"

#include <QPolygonF>

namespace Korvex::Meridane::Designer {

/// A property that holds a list of points in the object's coordinates. QML: `points: [ [x, y], ... ]`.
class MERIDANE_CORE_EXPORT PointListProperty : public TypedProperty<QPolygonF>
{
public:
    PointListProperty(DesignerObject* parent, const QString& id, const QString& name, const QPolygonF& value);
    ~PointListProperty() override;

    [[nodiscard]] QString className() const override;
    [[nodiscard]] QStringList classNames() const override;
    [[nodiscard]] QString convertToQml(int indent) const override;

protected:
    [[nodiscard]] QPolygonF parse(const QString& valueString, bool* ok) const override;
    [[nodiscard]] QString write(const QPolygonF& value) const override;
};

} // namespace Korvex::Meridane::Designer
