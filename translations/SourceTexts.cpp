#include "translations/SourceTexts.h"

#include "translations/CodeReader.h"
#include "translations/TextFunction.h"

#include <QDir>
#include <QDirIterator>

#include <algorithm>

namespace Korvex::Meridane::Translations {

namespace {

/** Where the functions themselves stand: they hand on what they are given. */
constexpr const char* RoadFiles[] = {"app/CoreText.h", "host/core/objects/ElementText.cpp",
                                     "host/core/objects/ElementText.h", "host/common/LocalizationHelper.cpp",
                                     "host/common/LocalizationHelper.h"};

/** True for an expression that names a text, such as `row.label` or `texts[int(move)]`, and does not make one. */
bool namesText(const QString& expression)
{
    return !expression.contains(QLatin1Char('"')) && !expression.contains(QLatin1Char('+'))
           && !expression.contains(QLatin1String(".arg("));
}

/** True for an argument that a function of @p functions hands on. */
bool isHandedOn(const QString& argument, const QString& codeBefore, const QVector<TextFunction>& functions)
{
    const std::optional<TextFunction> forwarding = forwardingFunction(argument, codeBefore);
    return forwarding && std::any_of(functions.begin(), functions.end(), [&forwarding](const TextFunction& function) {
               return function.name == forwarding->name && function.argument == forwarding->argument;
           });
}

/** True for an "argument" that declares one. */
bool isParameter(const QString& argument)
{
    return argument.startsWith(QLatin1String("const "));
}

} // namespace

SourceTexts::SourceTexts(const QString& code)
{
    QVector<TextFunction> functions = commonTextFunctions();
    for (QVector<TextFunction> found = forwardingFunctions(code, functions); !found.isEmpty();
         found = forwardingFunctions(code, functions))
        functions += found;

    QVector<HiddenText> named;
    bool anyMarked = false;
    CodeReader reader(code);
    while (reader.toNextCall()) {
        for (const TextFunction& function : qAsConst(functions)) {
            if (reader.callee() != function.name)
                continue;
            if (reader.isQualified() && !commonTextFunctions().contains(function))
                continue; // another one of that name
            const QStringList arguments = reader.arguments();
            if (arguments.size() <= function.argument || isParameter(arguments.at(function.argument)))
                continue; // a declaration
            const QString& given = arguments.at(function.argument);
            const std::optional<QString> text = CodeReader::literal(given);
            if (!text) {
                if (!isHandedOn(given, reader.codeBefore(), functions))
                    (namesText(given) ? named : m_hidden).append({given.simplified().left(60), reader.line()});
                continue;
            }
            const bool marked = function.context.isEmpty();
            anyMarked = anyMarked || marked;
            const std::optional<QString> plural =
                marked ? std::nullopt : CodeReader::literal(arguments.value(function.argument + 1));
            const bool counted = plural && plural->contains(QLatin1String("%n"));
            m_texts.append({marked ? CodeReader::literal(arguments.at(0)).value_or(QString()) : function.context,
                            counted ? *plural : *text, counted, reader.line()});
        }
    }
    if (!anyMarked)
        m_hidden += named;
}

bool SourceTexts::isShownInWindow(const QString& path)
{
    static const QStringList folders{QStringLiteral("app"),    QStringLiteral("host"),     QStringLiteral("plugin"),
                                     QStringLiteral("shapes"), QStringLiteral("lines"),    QStringLiteral("text"),
                                     QStringLiteral("images"), QStringLiteral("gradients")};
    const bool isSource = path.endsWith(QLatin1String(".cpp")) || path.endsWith(QLatin1String(".h"));
    const bool isRoad = std::any_of(std::begin(RoadFiles), std::end(RoadFiles),
                                    [&path](const char* file) { return path == QLatin1String(file); });
    return isSource && !isRoad && folders.contains(path.section(QLatin1Char('/'), 0, 0));
}

QStringList SourceTexts::files(const QString& root)
{
    const QDir folder(root);
    QStringList found;
    for (const QString& name : folder.entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
        QDirIterator files(folder.filePath(name), QDir::Files, QDirIterator::Subdirectories);
        while (name != QLatin1String("build") && files.hasNext()) {
            const QString path = folder.relativeFilePath(files.next());
            if (isShownInWindow(path))
                found.append(path);
        }
    }
    found.sort();
    return found;
}

} // namespace Korvex::Meridane::Translations
