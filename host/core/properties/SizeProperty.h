#pragma once

#include "host/core/properties/TypedProperty.h"

#include <QSizeF>

namespace Korvex::Meridane::Designer {

/// A property that holds a size in pixels. QML: `width` and `height`.
class MERIDANE_CORE_EXPORT SizeProperty : public TypedProperty<QSizeF>
{
public:
    SizeProperty(DesignerObject* parent, const QString& id, const QString& name, const QSizeF& value);
    ~SizeProperty() override;

    [[nodiscard]] QString className() const override;
    [[nodiscard]] QStringList classNames() const override;
    [[nodiscard]] QString convertToQml(int indent) const override;

protected:
    [[nodiscard]] QSizeF parse(const QString& valueString, bool* ok) const override;
    [[nodiscard]] QString write(const QSizeF& value) const override;
};

} // namespace Korvex::Meridane::Designer
