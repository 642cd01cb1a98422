#include "host/core/properties/SharedText.h"

#include <QSet>

namespace Korvex::Meridane::Designer {

QString sharedText(const QString& text)
{
    static QSet<QString> texts;
    const auto known = texts.constFind(text);
    return known != texts.constEnd() ? *known : *texts.insert(text);
}

} // namespace Korvex::Meridane::Designer
