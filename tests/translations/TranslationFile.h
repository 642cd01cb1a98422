#pragma once

#include <QString>
#include <QStringList>
#include <QVector>

namespace Korvex::Meridane::Translations {

/** One text of a translation file. */
struct Translation
{
    QString context;
    QString source; ///< English; of a counted text the plural.
    QStringList forms; ///< One, or one for each of the language's numbers.
    bool counted = false;
    bool finished = false; ///< Not marked as unfinished or gone.
};

/** Reads a .ts file of Qt Linguist; empty when it cannot be read. */
[[nodiscard]] QVector<Translation> readTranslationFile(const QString& path);

} // namespace Korvex::Meridane::Translations
