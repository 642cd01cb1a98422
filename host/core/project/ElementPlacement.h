#pragma once

#include <QRectF>

class QTransform;

namespace Korvex::Meridane::Designer {

class VisualElement;

/// Where elements lie on their screen, from their values alone; no canvas is needed.
class ElementPlacement
{
public:
    ElementPlacement() = delete;

    /// The upright rectangle, in pixels of the screen, outside of which \a element draws nothing; the rotations of the
    /// element and of the groups around it are taken into account. Null when values do not convert.
    [[nodiscard]] static QRectF boundsOnScreen(const VisualElement* element);
};

} // namespace Korvex::Meridane::Designer
