#include "benchmarks/MixedScreen.h"

#include "host/core/canvas/EditSession.h"
#include "host/core/objects/DesignerObject.h"
#include "host/core/objects/Screen.h"
#include "host/core/plugins/DesignerFactory.h"
#include "host/core/project/Project.h"
#include "host/core/project/ProjectStore.h"
#include "host/core/properties/DesignerProperty.h"
#include "host/core/properties/ObjectListProperty.h"
#include "host/core/values/ValueConversion.h"

#include <QColor>

namespace Korvex::Meridane::Benchmarks {

using namespace Designer;

namespace {

constexpr const char* Classes[] = {
    "Rectangle", "TextBox", "Rectangle", "Ellipse", "TextBox",   "Polygon",          "TextBox",
    "Rectangle", "Line",    "Rectangle", "Ellipse", "Rectangle", "IrregularPolygon", "LinearGradientElement",
    "TextBox"};

void fill(DesignerObject* object, const char* property, const QString& value)
{
    if (const auto found = object->getProperty(QLatin1String(property)))
        found->fill(value);
}

DesignerObject* makeElement(int i)
{
    DesignerObject* element = DesignerFactory::instance()->createDataObject(
        QString::fromLatin1(Classes[std::size_t(i) % std::size(Classes)]), nullptr);
    fill(element, "position", ValueConversion::toString(QPointF(i * 37 % 1240, i * 53 % 770)));
    const bool large = i % 100 == 0;
    fill(element, "size",
         large ? QStringLiteral("300,180") : ValueConversion::toString(QSizeF(14 + i % 60, 10 + i % 31)));
    fill(element, "color", ValueConversion::toString(QColor::fromHsv(i * 7 % 360, 120, 220)));
    fill(element, "border", QStringLiteral("width: %1; color: #203040;").arg(i % 3));
    fill(element, "text", QStringLiteral("Zone %1: 21.5 °C").arg(i));
    if (i % 25 == 7)
        fill(element, "rotation", QStringLiteral("angle: %1; fixedPoint: Center;").arg(i % 360));
    return element;
}

} // namespace

std::unique_ptr<EditSession> makeMixedScreen(int count)
{
    auto project = ProjectStore::create(QStringLiteral("mixed"), QSizeF(1280, 800));
    Screen* screen = project->screens().first();
    for (int i = 0; i < count; ++i) {
        DesignerObject* element = makeElement(i);
        if (i % 50 != 49) {
            screen->addListItem(screen->childList(), element, -1);
            continue;
        }
        DesignerObject* group = DesignerFactory::instance()->createDataObject(QStringLiteral("Group"), nullptr);
        screen->addListItem(screen->childList(), group, -1);
        group->addListItem(group->childList(), element, -1);
    }
    return std::make_unique<EditSession>(std::move(project));
}

} // namespace Korvex::Meridane::Benchmarks
