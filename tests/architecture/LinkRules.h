#pragma once

#include <QString>
#include <QStringList>

namespace Korvex::Meridane::Architecture {

/** What a program or shared library needs and offers, read from the output of the binary tools. */
class LinkRules
{
public:
    LinkRules() = delete;

    /** The names of the libraries that `readelf --dynamic` lists as NEEDED, in its order. */
    [[nodiscard]] static QStringList neededLibraries(const QString& readelfOutput);
    /** The names that `nm --dynamic --defined-only` lists, sorted, without symbol versions. */
    [[nodiscard]] static QStringList exportedSymbols(const QString& nmOutput);
    /** The names that `nm --dynamic --undefined-only` lists, sorted, without symbol versions. */
    [[nodiscard]] static QStringList importedSymbols(const QString& nmOutput);
    /**
     * Those of @p needed whose file name starts with `lib` and one of the @p forbidden names (`Qt6Widgets` finds
     * `libQt6Widgets.so.6`), or equals it with or without `.so`.
     */
    [[nodiscard]] static QStringList forbiddenLibraries(const QStringList& needed, const QStringList& forbidden);
};

} // namespace Korvex::Meridane::Architecture
