#pragma once

#include "host/core/objects/DesignerObject.h"

namespace Korvex::Meridane::Designer {

/// An object placed on a screen.
class MERIDANE_CORE_EXPORT Element : public DesignerObject
{
    Q_OBJECT

public:
    explicit Element(QObject* parent = nullptr);
    ~Element() override;

    [[nodiscard]] QString className() const override;
    [[nodiscard]] QStringList classNames() const override;
};

} // namespace Korvex::Meridane::Designer
