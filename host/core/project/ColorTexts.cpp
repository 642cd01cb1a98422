#include "host/core/project/ColorTexts.h"

namespace Korvex::Meridane::Designer {

namespace {

bool isHexDigit(QChar c)
{
    return (c >= u'0' && c <= u'9') || (c >= u'a' && c <= u'f') || (c >= u'A' && c <= u'F');
}

/// The end of the run of hexadecimal digits that begins at \a from.
qsizetype endOfDigits(const QString& text, qsizetype from)
{
    while (from < text.size() && isHexDigit(text.at(from)))
        ++from;
    return from;
}

} // namespace

QColor ColorTexts::color(const QString& text)
{
    if (!text.startsWith(u'#') || endOfDigits(text, 1) != text.size())
        return {};
    const qsizetype digits = text.size() - 1;
    return digits == 3 || digits == 6 || digits == 8 ? QColor(text) : QColor();
}

QList<QColor> ColorTexts::colors(const QString& valueString)
{
    QList<QColor> found;
    for (qsizetype at = valueString.indexOf(u'#'); at >= 0; at = valueString.indexOf(u'#', at + 1)) {
        const QColor named = color(valueString.mid(at, endOfDigits(valueString, at + 1) - at));
        if (named.isValid())
            found.append(named);
    }
    return found;
}

bool ColorTexts::contains(const QString& valueString, const QColor& color)
{
    for (const QColor& named : colors(valueString)) {
        if (named.rgba() == color.rgba())
            return true;
    }
    return false;
}

} // namespace Korvex::Meridane::Designer
