#pragma once

#include "host/core/CoreExport.h"

#include <QColor>
#include <QString>

namespace Korvex::Meridane::Designer {

/// Colours in value strings: those of colour properties, borders and gradients alike.
class MERIDANE_CORE_EXPORT ColorTexts
{
public:
    ColorTexts() = delete;

    /// The colour that \a text names: "#rgb", "#rrggbb" or "#aarrggbb"; invalid for anything else.
    [[nodiscard]] static QColor color(const QString& text);
    /// All colours that stand in \a valueString, in their order.
    [[nodiscard]] static QList<QColor> colors(const QString& valueString);
    /// Whether \a color, its alpha included, is one of them.
    [[nodiscard]] static bool contains(const QString& valueString, const QColor& color);
};

} // namespace Korvex::Meridane::Designer
