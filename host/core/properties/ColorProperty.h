#pragma once

#include "host/core/properties/TypedProperty.h"

#include <QColor>

namespace Korvex::Meridane::Designer {

/// A property that holds a colour. QML: `<id>: "#rrggbb"`, with alpha `"#aarrggbb"`.
class MERIDANE_CORE_EXPORT ColorProperty : public TypedProperty<QColor>
{
public:
    ColorProperty(DesignerObject* parent, const QString& id, const QString& name, const QColor& value);
    ~ColorProperty() override;

    [[nodiscard]] QString className() const override;
    [[nodiscard]] QStringList classNames() const override;
    [[nodiscard]] QString convertToQml(int indent) const override;

protected:
    [[nodiscard]] QColor parse(const QString& valueString, bool* ok) const override;
    [[nodiscard]] QString write(const QColor& value) const override;
};

} // namespace Korvex::Meridane::Designer
