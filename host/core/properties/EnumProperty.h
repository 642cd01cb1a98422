#pragma once

#include "host/core/properties/TypedProperty.h"
#include "host/core/values/EnumInfo.h"

namespace Korvex::Meridane::Designer {

/// A property that holds a value of an enumeration, by its key. QML: `<id>: <number>`.
class MERIDANE_CORE_EXPORT EnumProperty : public TypedProperty<EnumInfo>
{
public:
    EnumProperty(DesignerObject* parent, const QString& id, const QString& name, const EnumInfo& value);
    ~EnumProperty() override;

    [[nodiscard]] QString className() const override;
    [[nodiscard]] QStringList classNames() const override;
    [[nodiscard]] QString convertToQml(int indent) const override;

protected:
    [[nodiscard]] EnumInfo parse(const QString& valueString, bool* ok) const override;
    [[nodiscard]] QString write(const EnumInfo& value) const override;
};

} // namespace Korvex::Meridane::Designer
