#pragma once

#include "host/core/properties/TypedProperty.h"
#include "host/core/values/BorderInfo.h"

namespace Korvex::Meridane::Designer {

/// A property that holds a border: width in pixels and colour. QML: `borderWidth` and `borderColor`.
class MERIDANE_CORE_EXPORT BorderProperty : public TypedProperty<BorderInfo>
{
public:
    BorderProperty(DesignerObject* parent, const QString& id, const QString& name, const BorderInfo& value);
    ~BorderProperty() override;

    [[nodiscard]] QString className() const override;
    [[nodiscard]] QStringList classNames() const override;
    [[nodiscard]] QString convertToQml(int indent) const override;

protected:
    [[nodiscard]] BorderInfo parse(const QString& valueString, bool* ok) const override;
    [[nodiscard]] QString write(const BorderInfo& value) const override;
};

} // namespace Korvex::Meridane::Designer
