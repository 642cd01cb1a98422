#pragma once

#include "host/core/canvas/GraphicsItem.h"
#include "host/core/commands/ChangeScopes.h"
#include "host/core/objects/VisualElement.h"
#include "host/core/properties/DesignerProperty.h"
#include "host/core/properties/RuntimeProperty.h"

#include <QGraphicsItem>

#include <memory>

namespace Korvex::Meridane::Designer::Test {

/// One element outside of any project, with its canvas item when that is asked for.
class ShapeFixture
{
public:
    explicit ShapeFixture(std::unique_ptr<VisualElement> made)
        : element(std::move(made))
    {
        if (!element->initialize())
            qFatal("The element cannot be initialised.");
    }

    bool set(const char* id, const QString& value, QString* message = nullptr)
    {
        return element->changePropertyValue(element->getProperty(QLatin1String(id)), value, message);
    }

    bool set(const char* id, const char* value, QString* message = nullptr)
    {
        return set(id, QString::fromUtf8(value), message);
    }

    [[nodiscard]] QString value(const char* id) const { return element->getProperty(QLatin1String(id))->valueString(); }

    /// Gives the element a canvas item of the class \a Item, filled as a canvas fills it.
    template <typename Item>
    Item* place()
    {
        auto made = std::make_unique<Item>(element.get());
        Item* item = made.get();
        m_item = std::move(made);
        element->setGraphicsItem(item);
        {
            const ValueRestoreScope filling;
            item->updateFromDataObject();
        }
        item->fillOuterSize();
        return item;
    }

    /// "name|label|type|writable" of each run-time property beyond those that all visual elements have.
    [[nodiscard]] QStringList runtimeRows() const
    {
        const QList<RuntimeProperty> all = element->runtimeProperties();
        QStringList rows;
        for (const RuntimeProperty& property : all.mid(element->VisualElement::runtimeProperties().size())) {
            rows << QStringLiteral("%1|%2|%3|%4")
                        .arg(property.name(), property.label())
                        .arg(int(property.type()))
                        .arg(property.isWritable());
        }
        return rows;
    }

    /// className|last of classNames|displayName|qmlName|scope|filter|base|name.
    [[nodiscard]] QStringList identity() const
    {
        const IdentifierInfo& info = element->idInfo();
        return {element->className(),
                element->classNames().constLast(),
                element->displayName(),
                element->qmlName(),
                info.scopeType(),
                info.filterType(),
                info.base(),
                info.name()};
    }

    std::unique_ptr<VisualElement> element;

private:
    std::unique_ptr<QGraphicsItem> m_item; // goes first
};

} // namespace Korvex::Meridane::Designer::Test
