#include "images/Image.h"

#include "images/GraphicsImage.h"
#include "images/ImageSizeEditor.h"

#include "host/core/objects/BoundingSizeReaction.h"
#include "host/core/objects/ElementProperties.h"
#include "host/core/objects/ElementText.h"
#include "host/core/project/Project.h"
#include "host/core/properties/LinkProperty.h"
#include "host/core/properties/PropertyDeclaration.h"
#include "host/core/properties/PropertyValidators.h"
#include "host/core/properties/RuntimeProperty.h"
#include "host/core/values/ValueConversion.h"

#include "host/common/EnumHelper.h"
#include "host/common/TextHelper.h"

namespace Korvex::Meridane::Designer {

using Common::EnumHelper;

namespace {

/// The file name of the image; no line without one.
QString sourceQml(const DesignerProperty* property, int indent)
{
    bool ok = false;
    const QString value = property->valueString();
    const ObjectLinkInfo link = ValueConversion::toLinkInfo(value, &ok);
    if (value.isEmpty() || !ok)
        return {};
    return DesignerObject::getTabs(indent) + QLatin1String("source: \"")
           + Common::TextHelper::toQmlValueString(link.objectId()) + QLatin1Char('"');
}

} // namespace

Image::Image(QObject* parent)
    : VisualElement(parent)
{}

Image::~Image() = default;

QString Image::className() const
{
    return QStringLiteral("Image");
}

QStringList Image::classNames() const
{
    return VisualElement::classNames() << QStringLiteral("Image");
}

QString Image::displayName() const
{
    return elementText("Image");
}

QString Image::qmlName() const
{
    return QStringLiteral("Image2");
}

GraphicsItem* Image::createGraphicsItem()
{
    return createEditableItem(QStringLiteral("GraphicsImage"));
}

bool Image::initializeProperties()
{
    if (!VisualElement::initializeProperties() || !declareIdentity(QStringLiteral("Image"), QStringLiteral("image")))
        return false;
    const QSizeF size(200, 200);
    ObjectLinkInfo link;
    link.setScopeType(QStringLiteral("Project"));
    link.setFilterType(QStringLiteral("ImageResource"));
    m_size = ElementProperties::declareSize(this, 10, size);
    m_boundingSize = ElementProperties::declareBoundingSize(this, 11, size);
    m_boundingSize->setEditor(QStringLiteral("ImageSizeEditor"));
    m_keepRatio = ElementProperties::declareKeepRatio(this, 12);
    m_source = PropertyDeclaration<LinkProperty>(this, QLatin1String("source"), elementText("Source"), link)
                   .rank(13)
                   .allowInvalid()
                   .editor(QLatin1String("ImageSourceEditor"), {{QStringLiteral("scopeType"), link.scopeType()},
                                                                {QStringLiteral("filterType"), link.filterType()}})
                   .validator(PropertyValidators::validLinkValidator)
                   .qmlCreator(sourceQml);
    m_source->setFlag(Exported, true);
    return true;
}

void Image::afterPropertyChanged(const DesignerProperty* property, const QString& oldValue)
{
    if (!property)
        return;
    VisualElement::afterPropertyChanged(property, oldValue);
    if (property->id() == QLatin1String("source")) {
        announceSource();
    } else if (property->id() == QLatin1String("boundingSize")) {
        const auto* item = dynamic_cast<const GraphicsImage*>(graphicsItem());
        if (item && !item->isChangingSize())
            followBoundingSize(this, property, oldValue, 0, item->minSize());
    }
}

void Image::announceSource()
{
    if (auto* editor = dynamic_cast<ImageSizeEditor*>(m_boundingSize->editorWidget()))
        editor->takePicture();
    if (Project* project = Project::parentProject(this))
        project->notifyUpdateProjectBrowser();
}

QList<QSharedPointer<DesignerProperty>> Image::getDependencyProperties() const
{
    return {m_source};
}

QList<RuntimeProperty> Image::runtimeProperties() const
{
    return VisualElement::runtimeProperties()
           << RuntimeProperty(QStringLiteral("height"), elementText("Height"), EnumHelper::Real, true)
           << RuntimeProperty(QStringLiteral("width"), elementText("Width"), EnumHelper::Real, true)
           << RuntimeProperty(QStringLiteral("source"), elementText("Source"), EnumHelper::String, false);
}

QRectF Image::getBoundingRect() const
{
    return ElementProperties::contentRect(*m_size);
}

} // namespace Korvex::Meridane::Designer
