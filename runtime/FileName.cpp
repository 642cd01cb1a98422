#include "runtime/FileName.h"

namespace Korvex::Meridane::Display {
bool isFileName(const QString& name)
{
    return !name.isEmpty() && name != QLatin1String(".") && name != QLatin1String("..")
           && !name.contains(QLatin1Char('/')) && !name.contains(QLatin1Char('\\'));
}
} // namespace Korvex::Meridane::Display
