#include "host/core/objects/Element.h"

namespace Korvex::Meridane::Designer {

Element::Element(QObject* parent)
    : DesignerObject(parent)
{}

Element::~Element() = default;

QString Element::className() const
{
    return QStringLiteral("Element");
}

QStringList Element::classNames() const
{
    return DesignerObject::classNames() << QStringLiteral("Element");
}

} // namespace Korvex::Meridane::Designer
