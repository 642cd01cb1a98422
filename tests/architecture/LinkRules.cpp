#include "tests/architecture/LinkRules.h"

#include <QRegularExpression>

namespace Korvex::Meridane::Architecture {

namespace {

/// What the first group of @p pattern catches in the lines of @p output, sorted.
QStringList namesOf(const QString& pattern, const QString& output)
{
    const QRegularExpression expression(pattern, QRegularExpression::MultilineOption);
    QStringList names;
    auto matches = expression.globalMatch(output);
    while (matches.hasNext())
        names.append(matches.next().captured(1));
    names.sort();
    return names;
}

} // namespace

QStringList LinkRules::neededLibraries(const QString& readelfOutput)
{
    static const QRegularExpression pattern(QStringLiteral(R"(\(NEEDED\)[^\[\n]*\[([^\]]+)\])"));
    QStringList names;
    auto matches = pattern.globalMatch(readelfOutput);
    while (matches.hasNext())
        names.append(matches.next().captured(1));
    return names;
}

QStringList LinkRules::exportedSymbols(const QString& nmOutput)
{
    // Address, type and name; an absolute symbol (A) only names a version node.
    return namesOf(QStringLiteral(R"(^[0-9a-f]+ [B-Zb-z] ([^@\n]+))"), nmOutput);
}

QStringList LinkRules::importedSymbols(const QString& nmOutput)
{
    return namesOf(QStringLiteral(R"(^ +[Uvw] ([^@\n]+))"), nmOutput);
}

QStringList LinkRules::forbiddenLibraries(const QStringList& needed, const QStringList& forbidden)
{
    QStringList found;
    for (const QString& library : needed) {
        const QString file = library.section(QLatin1Char('/'), -1);
        const QString bare = file.startsWith(QLatin1String("lib")) ? file.mid(3) : file;
        if (forbidden.contains(bare.section(QLatin1String(".so"), 0, 0)))
            found.append(library);
    }
    return found;
}

} // namespace Korvex::Meridane::Architecture
