#pragma once

#include "host/core/properties/TypedProperty.h"

namespace Korvex::Meridane::Designer {

/// A property that holds a real number. QML: `<id>: 12.5`, up to four decimals.
class MERIDANE_CORE_EXPORT RealProperty : public TypedProperty<double>
{
public:
    RealProperty(DesignerObject* parent, const QString& id, const QString& name, double value);
    ~RealProperty() override;

    [[nodiscard]] QString className() const override;
    [[nodiscard]] QStringList classNames() const override;
    [[nodiscard]] QString convertToQml(int indent) const override;

protected:
    [[nodiscard]] double parse(const QString& valueString, bool* ok) const override;
    [[nodiscard]] QString write(const double& value) const override;
};

} // namespace Korvex::Meridane::Designer
