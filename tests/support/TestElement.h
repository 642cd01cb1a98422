#pragma once

#include "host/core/objects/VisualElement.h"
#include "host/core/properties/IntegerProperty.h"
#include "host/core/properties/PropertyDeclaration.h"
#include "host/core/properties/RealProperty.h"
#include "host/core/properties/SizeProperty.h"
#include "host/core/properties/StringProperty.h"

#include <functional>

namespace Korvex::Meridane::Designer::Test {

/// An element whose hooks a test sets: "number" (0 to 10 by its validator), "text", "strict" (keeps no text that does
/// not convert) and "derived".
class TestElement : public VisualElement
{
    Q_OBJECT

public:
    explicit TestElement(QObject* parent = nullptr)
        : VisualElement(parent)
    {}

    QString className() const override { return QStringLiteral("TestElement"); }
    QStringList classNames() const override { return VisualElement::classNames() << className(); }
    GraphicsItem* createGraphicsItem() override { return nullptr; }

    bool initializeProperties() override
    {
        IdentifierInfo info;
        info.setScopeType(QStringLiteral("Screen"));
        info.setFilterType(className());
        info.setBase(QStringLiteral("test"));
        info.setName(QStringLiteral("test"));
        if (!VisualElement::initializeProperties() || !setIdInfo(info))
            return false;
        number = PropertyDeclaration<IntegerProperty>(this, QLatin1String("number"), QStringLiteral("Number"), 1)
                     .rank(10)
                     .allowInvalid()
                     .validator([](const DesignerProperty* property, QString& message) {
                         bool ok = false;
                         const int value = property->valueString().toInt(&ok);
                         if (ok && (value < 0 || value > 10))
                             message = QStringLiteral("0 to 10 only.");
                         return message.isEmpty();
                     });
        text = PropertyDeclaration<StringProperty>(this, QLatin1String("text"), QStringLiteral("Text"), QString())
                   .rank(11);
        strict =
            PropertyDeclaration<RealProperty>(this, QLatin1String("strict"), QStringLiteral("Strict"), 1.5).rank(12);
        derived =
            PropertyDeclaration<IntegerProperty>(this, QLatin1String("derived"), QStringLiteral("Derived"), 2).rank(13);
        return true;
    }

    bool beforePropertyChanged(const DesignerProperty* property, const QString& value) override
    {
        return !before || before(property, value);
    }
    void afterPropertyChanged(const DesignerProperty* property, const QString& oldValue) override
    {
        if (after)
            after(property, oldValue);
    }

    bool set(const QSharedPointer<DesignerProperty>& property, const char* value, QString* message = nullptr)
    {
        return changePropertyValue(property, QString::fromUtf8(value), message);
    }

    QSharedPointer<DesignerProperty> number;
    QSharedPointer<DesignerProperty> text;
    QSharedPointer<DesignerProperty> strict;
    QSharedPointer<DesignerProperty> derived;
    std::function<bool(const DesignerProperty*, const QString&)> before;
    std::function<void(const DesignerProperty*, const QString&)> after;
};

} // namespace Korvex::Meridane::Designer::Test
