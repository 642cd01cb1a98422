#include "runtime/DisplayElement.h"

#include "host/common/TransformOrigin.h"

#include <QtQml/QQmlInfo>

namespace Korvex::Meridane::Display {
// The two enumerations number the nine points alike, which lets one be cast to the other.
static_assert(static_cast<int>(QQuickItem::TopLeft) == Common::TopLeft);
static_assert(static_cast<int>(QQuickItem::Center) == Common::Center);
static_assert(static_cast<int>(QQuickItem::BottomRight) == Common::BottomRight);

DisplayElement::DisplayElement(QQuickItem* parent)
    : QQuickItem(parent)
{
    connect(this, &QQuickItem::transformOriginChanged, this, &DisplayElement::fixedPointChanged);
}

QString DisplayElement::fixedPoint() const
{
    return Common::transformOriginName(static_cast<Common::TransformOrigin>(transformOrigin()));
}

void DisplayElement::setFixedPoint(const QString& name)
{
    bool ok = false;
    const Common::TransformOrigin origin = Common::transformOriginFromName(name, &ok);
    if (!ok) {
        qmlWarning(this) << "fixedPoint: there is no point \"" << name << '"';
        return;
    }
    setTransformOrigin(static_cast<TransformOrigin>(origin));
}
} // namespace Korvex::Meridane::Display
