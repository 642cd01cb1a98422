#pragma once

#include "host/core/properties/TypedProperty.h"

#include <QFont>

namespace Korvex::Meridane::Designer {

/// A property that holds a font. QML: `family`, `fontSize` in pixels, `bold`, `italic`, `underline`, `strikeout`, `overline`,
/// `letterSpacing`, `wordSpacing`.
class MERIDANE_CORE_EXPORT FontProperty : public TypedProperty<QFont>
{
public:
    FontProperty(DesignerObject* parent, const QString& id, const QString& name, const QFont& value);
    ~FontProperty() override;

    [[nodiscard]] QString className() const override;
    [[nodiscard]] QStringList classNames() const override;
    [[nodiscard]] QString convertToQml(int indent) const override;

protected:
    [[nodiscard]] QFont parse(const QString& valueString, bool* ok) const override;
    [[nodiscard]] QString write(const QFont& value) const override;
};

} // namespace Korvex::Meridane::Designer
