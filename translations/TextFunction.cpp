#include "translations/TextFunction.h"

#include "translations/CodeReader.h"

#include <QRegularExpression>

namespace Korvex::Meridane::Translations {

namespace {

/** The parameter that an argument hands on: `text`, `QString::fromUtf8(text)`. Empty for anything else. */
QString handedOn(const QString& argument)
{
    static const QRegularExpression pattern(QStringLiteral(R"(^(?:QString::from(?:Utf8|Latin1)\((\w+)\)|(\w+))$)"));
    const QRegularExpressionMatch match = pattern.match(argument);
    return match.captured(1).isEmpty() ? match.captured(2) : match.captured(1);
}

/** The name of the function or lambda whose parameters begin with the parenthesis at @p open. */
QString functionAt(const QString& code, qsizetype open)
{
    static const QRegularExpression pattern(QStringLiteral(R"((\w+)\s*(?:=\s*\[[^\[\]]*\]\s*)?$)"));
    return pattern.match(code.left(open)).captured(1);
}

} // namespace

const QVector<TextFunction>& commonTextFunctions()
{
    static const QVector<TextFunction> functions{
        {QStringLiteral("coreText"), QStringLiteral("Core"), 0},
        {QStringLiteral("coreString"), QStringLiteral("Core"), 0},
        {QStringLiteral("elementText"), QStringLiteral("VisualDesigner"), 0},
        {QStringLiteral("visualDesignerString"), QStringLiteral("VisualDesigner"), 0},
        {QStringLiteral("QT_TRANSLATE_NOOP"), {}, 1},
    };
    return functions;
}

std::optional<TextFunction> forwardingFunction(const QString& given, const QString& codeBefore)
{
    const QString parameter = handedOn(given);
    if (parameter.isEmpty())
        return std::nullopt;
    const QRegularExpression declaration(QStringLiteral(R"(const char\s*\*\s*%1\b)").arg(parameter));
    int before = 0;
    int depth = 0;
    for (qsizetype i = codeBefore.lastIndexOf(declaration) - 1; i >= 0; --i) {
        const QChar c = codeBefore.at(i);
        if (c == QLatin1Char(')'))
            ++depth;
        else if (c == QLatin1Char(',') && depth == 0)
            ++before;
        else if (c == QLatin1Char(';') || c == QLatin1Char('}'))
            break;
        else if (c == QLatin1Char('(') && --depth < 0)
            return TextFunction{functionAt(codeBefore, i), {}, before};
    }
    return std::nullopt;
}

QVector<TextFunction> forwardingFunctions(const QString& code, const QVector<TextFunction>& known)
{
    QVector<TextFunction> found;
    CodeReader reader(code);
    while (reader.toNextCall()) {
        for (const TextFunction& function : known) {
            if (reader.callee() != function.name)
                continue;
            std::optional<TextFunction> forwarding =
                forwardingFunction(reader.arguments().value(function.argument), reader.codeBefore());
            if (!forwarding || forwarding->name.isEmpty())
                continue;
            forwarding->context = function.context;
            if (!known.contains(*forwarding) && !found.contains(*forwarding))
                found.append(*forwarding);
        }
    }
    return found;
}

} // namespace Korvex::Meridane::Translations
