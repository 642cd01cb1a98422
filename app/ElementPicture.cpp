#include "app/ElementPicture.h"

#include "app/ElementIconEngine.h"
#include "app/ThemedIcon.h"

#include "host/core/objects/DesignerObject.h"
#include "host/core/plugins/DesignerFactory.h"

namespace Korvex::Meridane::Designer {

QIcon ElementPicture::icon(const QString& className)
{
    std::unique_ptr<DesignerObject> object(DesignerFactory::instance()->createDataObject(className, nullptr));
    auto engine = std::make_unique<ElementIconEngine>(std::move(object));
    if (!engine->isUsable())
        return ThemedIcon::named(QStringLiteral("unknown"));
    return QIcon(engine.release());
}

QString ElementPicture::displayName(const QString& className)
{
    const std::unique_ptr<DesignerObject> object(DesignerFactory::instance()->createDataObject(className, nullptr));
    return object ? object->displayName() : className;
}

} // namespace Korvex::Meridane::Designer
