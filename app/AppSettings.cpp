#include "app/AppSettings.h"

#include <QStandardPaths>

namespace Korvex::Meridane::Designer {

AppSettings::AppSettings()
    : QSettings(filePath(), QSettings::IniFormat)
{}

QString AppSettings::filePath()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation)
           + QStringLiteral("/meridane/designer.ini");
}

} // namespace Korvex::Meridane::Designer
