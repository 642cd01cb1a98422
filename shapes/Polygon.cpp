#include "shapes/Polygon.h"

#include "shapes/GraphicsPolygon.h"

#include "host/core/objects/ElementProperties.h"
#include "host/core/objects/ElementText.h"
#include "host/core/properties/IntegerProperty.h"
#include "host/core/properties/PropertyDeclaration.h"
#include "host/core/properties/RealProperty.h"
#include "host/core/properties/RuntimeProperty.h"
#include "host/core/values/ValueConversion.h"

#include "host/common/EnumHelper.h"
#include "host/common/PaintHelper.h"

#include <QDebug>

#include <algorithm>

namespace Korvex::Meridane::Designer {

using Common::EnumHelper;
using Common::PaintHelper;

Polygon::Polygon(QObject* parent)
    : VisualElement(parent)
{}

Polygon::~Polygon() = default;

QString Polygon::className() const
{
    return QStringLiteral("Polygon");
}

QStringList Polygon::classNames() const
{
    return VisualElement::classNames() << QStringLiteral("Polygon");
}

QString Polygon::displayName() const
{
    return elementText("Polygon (Regular)");
}

GraphicsItem* Polygon::createGraphicsItem()
{
    return createEditableItem(QStringLiteral("GraphicsPolygon"));
}

bool Polygon::initializeProperties()
{
    if (!VisualElement::initializeProperties()
        || !declareIdentity(QStringLiteral("Polygon"), QStringLiteral("polygon")))
        return false;
    // Shared by all polygons.
    static const QMap<QString, QVariant> edgesRange{{QStringLiteral("minimum"), 3}, {QStringLiteral("maximum"), 20}};
    static const QMap<QString, QVariant> lengthRange{{QStringLiteral("minimum"), int(GraphicsPolygon::ShortestEdge)},
                                                     {QStringLiteral("maximum"), int(GraphicsPolygon::LongestEdge)},
                                                     {QStringLiteral("suffix"), elementText(" px")},
                                                     {QStringLiteral("decimals"), 2}};
    m_boundingSize = ElementProperties::declareBoundingSize(this, 11, QSizeF(50, 43.3));
    m_edges = PropertyDeclaration<IntegerProperty>(this, QLatin1String("edges"), elementText("Edges"), 3)
                  .rank(12)
                  .flags(Stored | Exported | Shown | Editable)
                  .allowInvalid()
                  .editor(QLatin1String("IntegerEditor"), edgesRange);
    m_edgeLength =
        PropertyDeclaration<RealProperty>(this, QLatin1String("edgeLength"), elementText("Edge Length"), 50.0)
            .rank(13)
            .flags(Stored | Exported | Shown | Editable)
            .allowInvalid()
            .editor(QLatin1String("RealEditor"), lengthRange);
    m_color = ElementProperties::declareFillColor(this, 14);
    m_border = ElementProperties::declareBorder(this, 15);
    return true;
}

void Polygon::afterPropertyChanged(const DesignerProperty* property, const QString& oldValue)
{
    if (!property)
        return;
    VisualElement::afterPropertyChanged(property, oldValue);
    if (property->id() != QLatin1String("boundingSize"))
        return;
    auto* item = dynamic_cast<GraphicsPolygon*>(graphicsItem());
    if (!item || item->isChangingSize())
        return;

    const QSizeF before = ValueConversion::toSize(oldValue);
    const QSizeF wanted = ValueConversion::toSize(property->valueString());
    double length = 0;
    if (before.width() != wanted.width()) {
        length = item->edgeLengthFromWidth(wanted.width());
    } else if (before.height() != wanted.height()) {
        length = item->edgeLengthFromHeight(wanted.height());
    } else {
        qDebug("Should not reach here");
        return;
    }
    const double possible = std::clamp(length, GraphicsPolygon::ShortestEdge, GraphicsPolygon::LongestEdge);
    changePropertyValue(m_edgeLength, ValueConversion::toString(possible));
    // Where the limit stopped it, the outer size snaps back to what the polygon occupies.
    if (possible != length)
        item->reportOuterSize();
}

QList<RuntimeProperty> Polygon::runtimeProperties() const
{
    return VisualElement::runtimeProperties()
           << RuntimeProperty(QStringLiteral("color"), elementText("Color"), EnumHelper::Color, true)
           << RuntimeProperty(QStringLiteral("edgeLength"), elementText("Edge Length"), EnumHelper::Real, true)
           << RuntimeProperty(QStringLiteral("edges"), elementText("Edges"), EnumHelper::Integer, true)
           << RuntimeProperty(QStringLiteral("borderWidth"), elementText("Border Width"), EnumHelper::Integer, true)
           << RuntimeProperty(QStringLiteral("borderColor"), elementText("Border Color"), EnumHelper::Color, true);
}

QRectF Polygon::getBoundingRect() const
{
    // What does not convert counts as 0: no polygon, or no border.
    return PaintHelper::getPolygonBoundingRect(ValueConversion::toInt(m_edges->valueString()),
                                               ValueConversion::toReal(m_edgeLength->valueString()),
                                               ValueConversion::toBorderInfo(m_border->valueString()).width());
}

} // namespace Korvex::Meridane::Designer
