#include "host/common/LocalizationHelper.h"

#include <QtCore/QCoreApplication>

namespace Korvex::Meridane::Common {

namespace {

QString countedText(const char* context, const QString& singular, const QString& plural, int count)
{
    const QString found = QCoreApplication::translate(context, plural.toUtf8().constData(), nullptr, count);
    // Qt fills in the number without a translation, too, but knows no other form of the source text then.
    const auto english = [count](QString form) { return form.replace(QLatin1String("%n"), QString::number(count)); };
    return count == 1 && found == english(plural) ? english(singular) : found;
}

} // namespace

QString LocalizationHelper::visualDesignerString(const QString& text)
{
    return QCoreApplication::translate(VisualDesignerContext, text.toUtf8().constData());
}

QString LocalizationHelper::coreString(const QString& text)
{
    return QCoreApplication::translate(CoreContext, text.toUtf8().constData());
}

QString LocalizationHelper::visualDesignerString(const QString& singular, const QString& plural, int count)
{
    return countedText(VisualDesignerContext, singular, plural, count);
}

QString LocalizationHelper::coreString(const QString& singular, const QString& plural, int count)
{
    return countedText(CoreContext, singular, plural, count);
}
} // namespace Korvex::Meridane::Common
