#pragma once

#include "host/common/EnumHelper.h"
#include "host/core/canvas/GraphicsItem.h"
#include "host/core/objects/BoundingSizeReaction.h"
#include "host/core/objects/VisualElement.h"
#include "host/core/plugins/DesignerFactory.h"
#include "host/core/plugins/IDesignerFactory.h"
#include "host/core/properties/BorderProperty.h"
#include "host/core/properties/ColorProperty.h"
#include "host/core/properties/EnumProperty.h"
#include "host/core/properties/FontProperty.h"
#include "host/core/properties/IntegerProperty.h"
#include "host/core/properties/LinkProperty.h"
#include "host/core/properties/PointListProperty.h"
#include "host/core/properties/PointProperty.h"
#include "host/core/properties/PropertyDeclaration.h"
#include "host/core/properties/RealProperty.h"
#include "host/core/properties/RotationProperty.h"
#include "host/core/properties/SizeProperty.h"
#include "host/core/properties/StringProperty.h"
#include "host/core/values/EnumInfo.h"
#include "host/core/values/ValueConversion.h"

#include <QFont>
#include <QGraphicsItem>
#include <QPolygonF>

#include <functional>

namespace Korvex::Meridane::Designer::Test {

/// An element with one property of every type of the host, a size that is derived from the outer size, and a ratio lock.
class EditorTestElement : public VisualElement
{
    Q_OBJECT

public:
    explicit EditorTestElement(QObject* parent = nullptr)
        : VisualElement(parent)
    {}

    QString className() const override { return QStringLiteral("EditorTestElement"); }
    QStringList classNames() const override { return VisualElement::classNames() << className(); }
    QString displayName() const override { return QStringLiteral("Test Element"); }
    GraphicsItem* createGraphicsItem() override
    {
        GraphicsItem* item = DesignerFactory::instance()->createGraphicsItem(QStringLiteral("GraphicsRectangle"), this);
        item->graphic()->setFlag(QGraphicsItem::ItemIsSelectable);
        item->setResizable(true);
        item->setRotatable(true);
        return item;
    }

    bool initializeProperties() override
    {
        IdentifierInfo info;
        info.setScopeType(QStringLiteral("Screen"));
        info.setFilterType(className());
        info.setBase(QStringLiteral("test"));
        info.setName(QStringLiteral("test"));
        if (!VisualElement::initializeProperties() || !setIdInfo(info))
            return false;
        const QSizeF size(100, 75);
        const QMap<QString, QVariant> smallest{{QStringLiteral("minimumValue"), QSizeF(1, 1)}};
        declare(PropertyDeclaration<SizeProperty>(this, QLatin1String("size"), QStringLiteral("Size"), size)
                    .rank(10)
                    .flags(Stored | Exported)
                    .allowInvalid());
        declare(PropertyDeclaration<SizeProperty>(this, QLatin1String("boundingSize"), QStringLiteral("Size"), size)
                    .rank(11)
                    .flags(Shown | Editable)
                    .allowInvalid()
                    .editor(QLatin1String("SizeEditor"), smallest));
        declare(PropertyDeclaration<RealProperty>(this, QLatin1String("keepRatio"), QStringLiteral("Keep Ratio"), 0.0)
                    .rank(12)
                    .flags(Shown | Editable)
                    .allowInvalid()
                    .editor(QLatin1String("KeepRatioEditor"),
                            {{QStringLiteral("tooltip"), QStringLiteral("Keep the ratio")}}));
        declare(PropertyDeclaration<ColorProperty>(this, QLatin1String("color"), QStringLiteral("Color"),
                                                   QColor(248, 151, 29))
                    .rank(13)
                    .allowInvalid());
        declare(PropertyDeclaration<BorderProperty>(this, QLatin1String("border"), QStringLiteral("Border"),
                                                    BorderInfo(0, Qt::black))
                    .rank(14)
                    .allowInvalid());
        declare(PropertyDeclaration<IntegerProperty>(this, QLatin1String("number"), QStringLiteral("Number"), 1)
                    .rank(15)
                    .allowInvalid()
                    .parameters({{QStringLiteral("minimum"), 0},
                                 {QStringLiteral("maximum"), 100},
                                 {QStringLiteral("suffix"), QStringLiteral(" px")},
                                 {QStringLiteral("showSlider"), true}})
                    .validator([](const DesignerProperty* property, QString& message) {
                        bool ok = false;
                        if (ValueConversion::toInt(property->valueString(), &ok) > 50 && ok)
                            message = QStringLiteral("50 is the most that this element can take.");
                        return message.isEmpty();
                    }));
        declare(PropertyDeclaration<RealProperty>(this, QLatin1String("real"),
                                                  QStringLiteral("A Longer Label (Clockwise)"), 1.5)
                    .rank(16)
                    .allowInvalid());
        declare(PropertyDeclaration<StringProperty>(this, QLatin1String("text"), QStringLiteral("Text"),
                                                    QStringLiteral("[text]"))
                    .rank(17));
        QFont font(QStringLiteral("DejaVu Sans"));
        font.setPointSizeF(24);
        declare(PropertyDeclaration<FontProperty>(this, QLatin1String("font"), QStringLiteral("Font"), font)
                    .rank(18)
                    .allowInvalid());
        declare(
            PropertyDeclaration<EnumProperty>(
                this, QLatin1String("spread"), QStringLiteral("Spread"),
                EnumInfo(Common::EnumHelper::createEnum(QStringLiteral("GradientSpread")), 0))
                .rank(19)
                .editor(QLatin1String("EnumEditor"), {{QStringLiteral("enumName"), QStringLiteral("GradientSpread")}}));
        ObjectLinkInfo link;
        link.setScopeType(QStringLiteral("Screen"));
        link.setFilterType(className());
        declare(PropertyDeclaration<LinkProperty>(this, QLatin1String("link"), QStringLiteral("Link"), link)
                    .rank(20)
                    .allowInvalid());
        ObjectLinkInfo source;
        source.setScopeType(QStringLiteral("Project"));
        source.setFilterType(QStringLiteral("ImageResource"));
        declare(PropertyDeclaration<LinkProperty>(this, QLatin1String("source"), QStringLiteral("Source"), source)
                    .rank(21)
                    .allowInvalid()
                    .editor(QLatin1String("ImageSourceEditor")));
        declare(PropertyDeclaration<PointListProperty>(this, QLatin1String("points"), QStringLiteral("Points"),
                                                       QPolygonF{QPointF(0, 0), QPointF(50, 0), QPointF(25, 40)})
                    .rank(22)
                    .allowInvalid());
        declare(PropertyDeclaration<PointProperty>(this, QLatin1String("fixed"), QStringLiteral("Not Editable"),
                                                   QPointF(1, 2))
                    .rank(23)
                    .flags(Stored | Shown));
        return true;
    }

    void afterPropertyChanged(const DesignerProperty* property, const QString& oldValue) override
    {
        VisualElement::afterPropertyChanged(property, oldValue);
        if (property->id() == QLatin1String("boundingSize") && graphicsItem() && !graphicsItem()->isChangingSize()) {
            const int border = ValueConversion::toBorderInfo(value("border")).width();
            const auto outer =
                reactToBoundingSize(ValueConversion::toSize(oldValue), ValueConversion::toSize(property->valueString()),
                                    border + 1.0, ValueConversion::toReal(value("keepRatio")));
            if (outer)
                changePropertyValue(getProperty(QStringLiteral("size")),
                                    ValueConversion::toString(*outer - QSizeF(border, border)));
        }
        if (after)
            after(property, oldValue);
    }

    [[nodiscard]] QString value(const char* id) const { return getProperty(QString::fromLatin1(id))->valueString(); }
    [[nodiscard]] QSharedPointer<DesignerProperty> property(const char* id) const
    {
        return getProperty(QString::fromLatin1(id));
    }

    std::function<void(const DesignerProperty*, const QString&)> after;

private:
    static void declare(const QSharedPointer<DesignerProperty>&) {}
};

/// Serves the classes of a test to the host for as long as it lives.
class TestFactory : public IDesignerFactory
{
public:
    using Maker = std::function<DesignerObject*(QObject*)>;
    using EditorMaker = std::function<PropertyEditor*(QWidget*)>;

    explicit TestFactory(const QMap<QString, Maker>& classes, const QMap<QString, EditorMaker>& editors = {})
        : m_classes(classes)
        , m_editors(editors)
    {
        DesignerFactory::instance()->addFactory(this, QStringLiteral("test"));
    }
    ~TestFactory() override { DesignerFactory::instance()->removeFactory(this); }

    QStringList dataObjectClassNames() const override { return m_classes.keys(); }
    QStringList graphicsItemClassNames() const override { return {}; }
    QStringList propertyEditorClassNames() const override { return m_editors.keys(); }
    QStringList propertyClassNames() const override { return {}; }
    QStringList otherClassNames() const override { return {}; }
    DesignerObject* createDataObject(const QString& name, QObject* parent) override
    {
        return m_classes.contains(name) ? m_classes.value(name)(parent) : nullptr;
    }
    GraphicsItem* createGraphicsItem(const QString&, DesignerObject*) override { return nullptr; }
    PropertyEditor* createPropertyEditor(const QString& name, QWidget* parent) override
    {
        return m_editors.contains(name) ? m_editors.value(name)(parent) : nullptr;
    }
    DesignerProperty* createProperty(const QString&, DesignerObject*) override { return nullptr; }
    IDesignerObject* createOther(const QString&) override { return nullptr; }

private:
    QMap<QString, Maker> m_classes;
    QMap<QString, EditorMaker> m_editors;
};

} // namespace Korvex::Meridane::Designer::Test
