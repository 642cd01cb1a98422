#pragma once

#include "gradients/ConicalGradientElement.h"
#include "gradients/GraphicsConicalGradient.h"
#include "gradients/GraphicsLinearGradient.h"
#include "gradients/GraphicsPathItem.h"
#include "gradients/GraphicsRadialGradient.h"
#include "gradients/LinearGradientElement.h"
#include "gradients/PathElement.h"
#include "gradients/RadialGradientElement.h"
#include "tests/shapes/ShapeFixture.h"

#include "host/core/values/ValueConversion.h"

#include <QByteArrayList>
#include <QPolygonF>

namespace Korvex::Meridane::Designer::Test {

/// The elements whose outline is a list of points that their outer size scales.
inline QByteArrayList outlineElements()
{
    return {"PathElement", "LinearGradientElement", "RadialGradientElement", "ConicalGradientElement"};
}

/// One of the outlineElements() outside of any project.
class OutlineElement : public ShapeFixture
{
public:
    explicit OutlineElement(const QByteArray& className)
        : ShapeFixture(make(className))
    {}

    /// Gives it the canvas item of its kind.
    GraphicsOutline* place()
    {
        const QString name = element->className();
        if (name == QLatin1String("PathElement"))
            return ShapeFixture::place<GraphicsPathItem>();
        if (name == QLatin1String("LinearGradientElement"))
            return ShapeFixture::place<GraphicsLinearGradient>();
        if (name == QLatin1String("RadialGradientElement"))
            return ShapeFixture::place<GraphicsRadialGradient>();
        return ShapeFixture::place<GraphicsConicalGradient>();
    }

    void setPoints(const QPolygonF& points) { set("points", ValueConversion::toString(points)); }
    [[nodiscard]] QPolygonF points() const { return ValueConversion::toPolygon(value("points")); }
    [[nodiscard]] QSharedPointer<DesignerProperty> property(const char* id) const
    {
        return element->getProperty(QLatin1String(id));
    }

private:
    static std::unique_ptr<VisualElement> make(const QByteArray& className)
    {
        if (className == "PathElement")
            return std::make_unique<PathElement>();
        if (className == "LinearGradientElement")
            return std::make_unique<LinearGradientElement>();
        if (className == "RadialGradientElement")
            return std::make_unique<RadialGradientElement>();
        return std::make_unique<ConicalGradientElement>();
    }
};

} // namespace Korvex::Meridane::Designer::Test
