#pragma once

#include "host/core/properties/TypedProperty.h"

namespace Korvex::Meridane::Designer {

/// A property that holds an integer. QML: `<id>: 12`.
class MERIDANE_CORE_EXPORT IntegerProperty : public TypedProperty<int>
{
public:
    IntegerProperty(DesignerObject* parent, const QString& id, const QString& name, int value);
    ~IntegerProperty() override;

    [[nodiscard]] QString className() const override;
    [[nodiscard]] QStringList classNames() const override;
    [[nodiscard]] QString convertToQml(int indent) const override;

protected:
    [[nodiscard]] int parse(const QString& valueString, bool* ok) const override;
    [[nodiscard]] QString write(const int& value) const override;
};

} // namespace Korvex::Meridane::Designer
