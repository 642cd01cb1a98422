#include "host/core/objects/UnknownElement.h"

#include "host/common/LocalizationHelper.h"

namespace Korvex::Meridane::Designer {

UnknownElement::UnknownElement(QObject* parent)
    : Element(parent)
{}

UnknownElement::~UnknownElement() = default;

QString UnknownElement::className() const
{
    return QStringLiteral("UnknownElement");
}

QStringList UnknownElement::classNames() const
{
    return Element::classNames() << QStringLiteral("UnknownElement");
}

QString UnknownElement::displayName() const
{
    return Common::LocalizationHelper::coreString(QStringLiteral("Unknown Element (%1)")).arg(wantedClassName());
}

GraphicsItem* UnknownElement::createGraphicsItem()
{
    return nullptr;
}

QString UnknownElement::toQml(int) const
{
    return {};
}

QString UnknownElement::wantedClassName() const
{
    return m_entry.value(QLatin1String("class")).toString();
}

} // namespace Korvex::Meridane::Designer
