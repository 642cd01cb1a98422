#include "host/core/project/Problem.h"

namespace Korvex::Meridane::Designer {

namespace {

QString onOneLine(const QString& text)
{
    QString line;
    line.reserve(text.size());
    for (const QChar c : text) {
        if (c == u'\n')
            line += QLatin1String("\\n");
        else if (c == u'\t')
            line += QLatin1String("\\t");
        else if (c.category() == QChar::Other_Control || c.category() == QChar::Separator_Line
                 || c.category() == QChar::Separator_Paragraph)
            line += QStringLiteral("\\u%1").arg(int(c.unicode()), 4, 16, QLatin1Char('0'));
        else
            line += c;
    }
    return line;
}

} // namespace

Problem Problem::error(const QString& file, const QString& object, const QString& property, const QString& message)
{
    return {Severity::Error, file, object, property, message};
}

Problem Problem::warning(const QString& file, const QString& object, const QString& property, const QString& message)
{
    return {Severity::Warning, file, object, property, message};
}

QString Problem::text() const
{
    QString place = object;
    if (!property.isEmpty())
        place += (place.isEmpty() ? QString() : QStringLiteral(".")) + property;
    QString line;
    for (const QString& part : {file, place}) {
        if (!part.isEmpty())
            line += onOneLine(part) + QLatin1String(": ");
    }
    return line + onOneLine(message);
}

} // namespace Korvex::Meridane::Designer
