#pragma once

#include "host/core/properties/TypedProperty.h"

namespace Korvex::Meridane::Designer {

/// A property that holds a text; every text converts. QML: `<id>: "text"`, escaped.
class MERIDANE_CORE_EXPORT StringProperty : public TypedProperty<QString>
{
public:
    StringProperty(DesignerObject* parent, const QString& id, const QString& name, const QString& value);
    ~StringProperty() override;

    [[nodiscard]] QString className() const override;
    [[nodiscard]] QStringList classNames() const override;
    [[nodiscard]] QString convertToQml(int indent) const override;

protected:
    [[nodiscard]] QString parse(const QString& valueString, bool* ok) const override;
    [[nodiscard]] QString write(const QString& value) const override;
};

} // namespace Korvex::Meridane::Designer
