#include "host/common/TextHelper.h"

namespace Korvex::Meridane::Common {
namespace {
/** True for a UTF-16 unit that a QML file cannot hold as it stands. */
bool needsEscape(char16_t unit)
{
    const bool control = unit < 0x20 || (unit >= 0x7f && unit < 0xa0);
    const bool lineSeparator = unit == 0x2028 || unit == 0x2029;
    const bool byteOrderMark = unit == 0xfeff || unit >= 0xfffe;
    return control || lineSeparator || byteOrderMark;
}

void appendEscaped(QString& result, char16_t unit)
{
    result += QLatin1String("\\u") + QString::number(unit, 16).rightJustified(4, QLatin1Char('0'));
}
} // namespace

QString TextHelper::toQmlValueString(const QString& text)
{
    QString result;
    result.reserve(text.size());
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar unit = text.at(i);
        if (unit.isHighSurrogate() && i + 1 < text.size() && text.at(i + 1).isLowSurrogate()) {
            result += unit;
            result += text.at(++i);
        } else if (unit == QLatin1Char('"') || unit == QLatin1Char('\\')) {
            result += QLatin1Char('\\');
            result += unit;
        } else if (unit == QLatin1Char('\n')) {
            result += QLatin1String("\\n");
        } else if (unit == QLatin1Char('\r')) {
            result += QLatin1String("\\r");
        } else if (unit == QLatin1Char('\t')) {
            result += QLatin1String("\\t");
        } else if (unit.isSurrogate() || needsEscape(unit.unicode())) {
            appendEscaped(result, unit.unicode());
        } else {
            result += unit;
        }
    }
    return result;
}
} // namespace Korvex::Meridane::Common
