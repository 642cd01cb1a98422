#include "host/common/LocalizationHelper.h"

#include <QtCore/QCoreApplication>

namespace Korvex::Meridane::Common {
QString LocalizationHelper::visualDesignerString(const QString& text)
{
    return QCoreApplication::translate(VisualDesignerContext, text.toUtf8().constData());
}

QString LocalizationHelper::coreString(const QString& text)
{
    return QCoreApplication::translate(CoreContext, text.toUtf8().constData());
}
} // namespace Korvex::Meridane::Common
