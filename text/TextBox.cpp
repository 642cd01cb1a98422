#include "text/TextBox.h"

#include "text/GraphicsTextBox.h"
#include "text/TextQml.h"

#include "host/core/objects/BoundingSizeReaction.h"
#include "host/core/objects/ElementProperties.h"
#include "host/core/objects/ElementText.h"
#include "host/core/properties/ColorProperty.h"
#include "host/core/properties/FontProperty.h"
#include "host/core/properties/IntegerProperty.h"
#include "host/core/properties/PropertyDeclaration.h"
#include "host/core/properties/RuntimeProperty.h"
#include "host/core/properties/StringProperty.h"

#include "host/common/EnumHelper.h"

namespace Korvex::Meridane::Designer {

using Common::EnumHelper;

TextBox::TextBox(QObject* parent)
    : VisualElement(parent)
{}

TextBox::~TextBox() = default;

QString TextBox::className() const
{
    return QStringLiteral("TextBox");
}

QStringList TextBox::classNames() const
{
    return VisualElement::classNames() << QStringLiteral("TextBox");
}

QString TextBox::displayName() const
{
    return elementText("Text Box");
}

QString TextBox::qmlName() const
{
    return QStringLiteral("TextBox");
}

GraphicsItem* TextBox::createGraphicsItem()
{
    return createEditableItem(QStringLiteral("GraphicsTextBox"), false);
}

bool TextBox::initializeProperties()
{
    if (!VisualElement::initializeProperties()
        || !declareIdentity(QStringLiteral("TextBox"), QStringLiteral("textBox")))
        return false;
    constexpr int TopLeft = Qt::AlignLeft | Qt::AlignTop;
    const QSizeF size(116, 66);
    m_size = ElementProperties::declareSize(this, 10, size);
    m_boundingSize = ElementProperties::declareBoundingSize(this, 11, size);
    m_keepRatio = ElementProperties::declareKeepRatio(this, 12);
    m_text =
        PropertyDeclaration<StringProperty>(this, QLatin1String("text"), elementText("Text"), QStringLiteral("[text]"))
            .rank(13)
            .flags(Stored | Exported | Shown | Editable)
            .allowInvalid()
            .editor(QLatin1String("TextEditPropertyEditor"))
            .qmlCreator(textQml);
    m_alignment =
        PropertyDeclaration<IntegerProperty>(this, QLatin1String("alignment"), elementText("Text Alignment"), TopLeft)
            .rank(14)
            .flags(Stored | Exported | Shown | Editable)
            .allowInvalid()
            .editor(QLatin1String("TextAlignmentEditor"))
            .qmlCreator(alignmentQml);
    m_color = PropertyDeclaration<ColorProperty>(this, QLatin1String("color"), elementText("Color"),
                                                 QColor(QStringLiteral("black")))
                  .rank(15)
                  .allowInvalid();
    m_font = PropertyDeclaration<FontProperty>(this, QLatin1String("font"), elementText("Font"),
                                               QFont(QStringLiteral("Droid Sans"), 24, -1, false))
                 .rank(16)
                 .allowInvalid();
    m_textStyle = PropertyDeclaration<StringProperty>(this, QLatin1String("textStyle"), elementText("Text Style"),
                                                      QStringLiteral("textStyle: Normal;"))
                      .rank(17)
                      .flags(Stored | Exported | Shown | Editable)
                      .allowInvalid()
                      .editor(QLatin1String("TextStyleEditor"))
                      .qmlCreator(textStyleQml);
    return true;
}

void TextBox::afterPropertyChanged(const DesignerProperty* property, const QString& oldValue)
{
    if (!property)
        return;
    VisualElement::afterPropertyChanged(property, oldValue);
    if (property->id() != QLatin1String("boundingSize"))
        return;
    const auto* item = dynamic_cast<const GraphicsTextBox*>(graphicsItem());
    if (item && !item->isChangingSize())
        followBoundingSize(this, property, oldValue, 0, item->minSize());
}

QList<RuntimeProperty> TextBox::runtimeProperties() const
{
    const auto property = [](const char* id, const char* label, EnumHelper::VariableType type) {
        return RuntimeProperty(QString::fromLatin1(id), elementText(label), type, true);
    };
    return VisualElement::runtimeProperties()
           << property("horizontalAlignment", "Horizontal Alignment", EnumHelper::Integer)
           << property("verticalAlignment", "Vertical Alignment", EnumHelper::Integer)
           << property("styleColor", "Style Color", EnumHelper::Color)
           << property("textStyle", "Text Style", EnumHelper::Integer)
           << property("wordSpacing", "Word Spacing", EnumHelper::Real)
           << property("overline", "Overline", EnumHelper::Boolean)
           << property("underline", "Underline", EnumHelper::Boolean)
           << property("strikeout", "Strikeout", EnumHelper::Boolean)
           << property("fontSize", "Font Size", EnumHelper::Integer)
           << property("letterSpacing", "Letter Spacing", EnumHelper::Real)
           << property("italic", "Italic", EnumHelper::Boolean) << property("family", "Font Family", EnumHelper::String)
           << property("bold", "Bold", EnumHelper::Boolean) << property("color", "Color", EnumHelper::Color)
           << property("text", "Text", EnumHelper::String);
}

QRectF TextBox::getBoundingRect() const
{
    return ElementProperties::contentRect(*m_size);
}

} // namespace Korvex::Meridane::Designer
