#include "app/ElementInsertion.h"

#include "host/core/canvas/EditSession.h"
#include "host/core/objects/Screen.h"
#include "host/core/objects/VisualElement.h"
#include "host/core/plugins/DesignerFactory.h"
#include "host/core/properties/ObjectListProperty.h"
#include "host/core/values/ValueConversion.h"

#include <algorithm>
#include <memory>

namespace Korvex::Meridane::Designer {

namespace {

constexpr double AsideStep = 10; // pixels

/// Whether an element of \a screen has its position at \a place.
bool isTaken(const Screen* screen, const QString& place)
{
    const auto& items = screen->childList()->items();
    return std::any_of(items.cbegin(), items.cend(), [&place](const DesignerObject* object) {
        const auto* element = qobject_cast<const VisualElement*>(object);
        return element && element->position()->valueString() == place;
    });
}

} // namespace

EditResult ElementInsertion::insertAt(EditSession* session, const QString& className, const QPointF& center)
{
    Screen* screen = session->currentScreen();
    const std::unique_ptr<DesignerObject> model(DesignerFactory::instance()->createDataObject(className, nullptr));
    const auto* element = qobject_cast<const VisualElement*>(model.get());
    if (!screen || !screen->contentError().isEmpty() || !element)
        return session->addElement(className, screen, {}, {});

    const QRectF bounds = element->getBoundingRect();
    const QSizeF room = screen->size() - bounds.size();
    QPointF corner = center - QPointF(bounds.width(), bounds.height()) / 2;
    corner.setX(std::clamp(corner.x(), 0., std::max(0., room.width())));
    corner.setY(std::clamp(corner.y(), 0., std::max(0., room.height())));
    QPointF position(qRound(corner.x() - bounds.left()), qRound(corner.y() - bounds.top()));
    while (isTaken(screen, ValueConversion::toString(position)))
        position += QPointF(AsideStep, AsideStep);
    return session->addElement(className, screen, {},
                               {{QStringLiteral("position"), ValueConversion::toString(position)}});
}

} // namespace Korvex::Meridane::Designer
