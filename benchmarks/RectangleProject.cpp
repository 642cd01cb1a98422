#include "benchmarks/RectangleProject.h"

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

void fill(DesignerObject& object, const char* property, const QString& value)
{
    object.getProperty(QLatin1String(property))->fill(value);
}

} // namespace

void writeRectangleProject(const QString& folder, int count)
{
    const auto project = ProjectStore::create(QStringLiteral("rectangles"), QSizeF(800, 480));
    Screen* screen = project->screens().first();
    for (int i = 0; i < count; ++i) {
        DesignerObject* element = DesignerFactory::instance()->createDataObject(QStringLiteral("Rectangle"), nullptr);
        fill(*element, "position", ValueConversion::toString(QPointF(i * 37 % 780, i * 53 % 460)));
        fill(*element, "size", ValueConversion::toString(QSizeF(12 + i % 40, 9 + i % 31 * 0.5)));
        fill(*element, "color", ValueConversion::toString(QColor::fromHsv(i * 7 % 360, 160, 220)));
        fill(*element, "border", QStringLiteral("width: %1; color: #203040;").arg(i % 3));
        fill(*element, "cornerRadius", QString::number(i % 5));
        screen->addListItem(screen->childList(), element, -1);
    }
    QString message;
    if (!ProjectStore::save(project.get(), folder, &message))
        qFatal("%s", qPrintable(message));
}

void loadRectanglePlugin()
{
    QString message;
    if (!DesignerFactory::instance()->loadPlugin(QStringLiteral(MERIDANE_PLUGIN_FILE), &message))
        qFatal("%s", qPrintable(message));
}

} // namespace Korvex::Meridane::Benchmarks
