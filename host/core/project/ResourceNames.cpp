#include "host/core/project/ResourceNames.h"

#include <QDir>
#include <QSet>

namespace Korvex::Meridane::Designer {

namespace {

constexpr int LongestBase = 80; // characters of a name that is made here

/// \a base made plain: only characters that are safe in a path, a link and QML.
QString plain(QString base, const QString& word)
{
    for (QChar& c : base) {
        if (!c.isLetterOrNumber() && c != QLatin1Char('-') && c != QLatin1Char('_') && c != QLatin1Char('.'))
            c = QLatin1Char('_');
    }
    while (base.contains(QLatin1String("..")))
        base.replace(QLatin1String(".."), QLatin1String("."));
    while (base.endsWith(QLatin1Char('.')))
        base.chop(1);
    if (base.isEmpty() || base.startsWith(QLatin1Char('.')))
        base.prepend(word);
    return base.left(LongestBase);
}

} // namespace

QString ResourceNames::identity(const QString& name)
{
    return name.normalized(QString::NormalizationForm_C).toCaseFolded();
}

QString ResourceNames::freeName(const QString& folder, const QStringList& taken, const QString& base,
                                const QString& suffix, const QString& word)
{
    QSet<QString> identities;
    const QStringList names = filesIn(folder) + taken;
    for (const QString& name : names)
        identities.insert(identity(name));
    const QString stem = plain(base, word);
    QString name = stem + QLatin1Char('.') + suffix;
    for (int number = 2; identities.contains(identity(name)); ++number)
        name = QStringLiteral("%1-%2.%3").arg(stem, QString::number(number), suffix);
    return name;
}

QStringList ResourceNames::filesIn(const QString& folder)
{
    return QDir(folder).entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
}

} // namespace Korvex::Meridane::Designer
