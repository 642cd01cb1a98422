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
{}

QString DisplayElement::fixedPoint() const
{
    return Common::transformOriginName(m_fixedOrigin);
}

void DisplayElement::setFixedPoint(const QString& name)
{
    bool ok = false;
    const Common::TransformOrigin origin = Common::transformOriginFromName(name, &ok);
    if (!ok) {
        qmlWarning(this) << "fixedPoint: there is no point \"" << name << '"';
        return;
    }
    if (origin == m_fixedOrigin) {
        return;
    }
    m_fixedOrigin = origin;
    applyFixedPoint();
    Q_EMIT fixedPointChanged();
}

void DisplayElement::applyFixedPoint()
{
    setTransformOrigin(static_cast<TransformOrigin>(m_fixedOrigin));
}
} // namespace Korvex::Meridane::Display
