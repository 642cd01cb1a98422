#pragma once

#include "host/core/properties/TypedProperty.h"
#include "host/core/values/RotationInfo.h"

namespace Korvex::Meridane::Designer {

/// A property that holds a rotation: angle in degrees, clockwise, and fixed point. QML: `rotation` and, unless it is the centre, `fixedPoint`.
class MERIDANE_CORE_EXPORT RotationProperty : public TypedProperty<RotationInfo>
{
public:
    RotationProperty(DesignerObject* parent, const QString& id, const QString& name, const RotationInfo& value);
    ~RotationProperty() override;

    [[nodiscard]] QString className() const override;
    [[nodiscard]] QStringList classNames() const override;
    [[nodiscard]] QString convertToQml(int indent) const override;

protected:
    [[nodiscard]] RotationInfo parse(const QString& valueString, bool* ok) const override;
    [[nodiscard]] QString write(const RotationInfo& value) const override;
};

} // namespace Korvex::Meridane::Designer
