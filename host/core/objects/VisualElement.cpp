#include "host/core/objects/VisualElement.h"

#include "host/core/canvas/GraphicsItem.h"
#include "host/core/objects/EditorMarks.h"
#include "host/core/plugins/DesignerFactory.h"
#include "host/core/properties/PointProperty.h"
#include "host/core/properties/PropertyDeclaration.h"
#include "host/core/properties/RotationProperty.h"
#include "host/core/properties/RuntimeProperty.h"

#include "host/common/LocalizationHelper.h"

#include <QGraphicsItem>

namespace Korvex::Meridane::Designer {

using Common::EnumHelper;
using Common::LocalizationHelper;

VisualElement::VisualElement(QObject* parent)
    : Element(parent)
{
    declareEditorMark(EditorMarks::locked());
    declareEditorMark(EditorMarks::hidden());
}

VisualElement::~VisualElement() = default;

QString VisualElement::className() const
{
    return QStringLiteral("VisualElement");
}

QStringList VisualElement::classNames() const
{
    return Element::classNames() << QStringLiteral("VisualElement");
}

bool VisualElement::initializeProperties()
{
    if (!Element::initializeProperties())
        return false;
    // Shared by all elements.
    static const QMap<QString, QVariant> pixels{
        {QStringLiteral("suffix"), LocalizationHelper::coreString(QStringLiteral(" px"))},
        {QStringLiteral("decimals"), 2}};
    m_position =
        PropertyDeclaration<PointProperty>(this, QLatin1String("position"),
                                           LocalizationHelper::coreString(QStringLiteral("Position")), QPointF(0, 0))
            .rank(1)
            .allowInvalid()
            .parameters(pixels);
    m_rotation = PropertyDeclaration<RotationProperty>(this, QLatin1String("rotation"),
                                                       LocalizationHelper::coreString(QStringLiteral("Rotation")),
                                                       RotationInfo())
                     .rank(2)
                     .allowInvalid();
    return true;
}

QList<RuntimeProperty> VisualElement::runtimeProperties() const
{
    const auto text = [](const char* label) { return LocalizationHelper::coreString(QString::fromLatin1(label)); };
    return {
        {QStringLiteral("visible"), text("Visible"), EnumHelper::Boolean, true},
        {QStringLiteral("x"), text("X"), EnumHelper::Real, true},
        {QStringLiteral("y"), text("Y"), EnumHelper::Real, true},
        {QStringLiteral("rotation"), text("Rotation"), EnumHelper::Real, true},
    };
}

QRectF VisualElement::getBoundingRect() const
{
    return {};
}

bool VisualElement::declareIdentity(const QString& className, const QString& base)
{
    IdentifierInfo info;
    info.setScopeType(QStringLiteral("Screen"));
    info.setFilterType(className);
    info.setBase(base);
    info.setName(base);
    return setIdInfo(info);
}

GraphicsItem* VisualElement::createEditableItem(const QString& itemClass, bool rotatable)
{
    GraphicsItem* item = DesignerFactory::instance()->createGraphicsItem(itemClass, this);
    if (!item)
        return nullptr;
    item->graphic()->setFlag(QGraphicsItem::ItemIsSelectable, true);
    item->graphic()->setFlag(QGraphicsItem::ItemIsMovable, true);
    item->setResizable(true);
    item->setRotatable(rotatable);
    return item;
}

} // namespace Korvex::Meridane::Designer
