#pragma once

#include <QString>
#include <QStringList>

namespace Korvex::Meridane::Designer {

/**
 * The names of the files in a project's images and fonts folders.
 *
 * A name is a plain file name that every file system takes, and no two of them differ only in capitals: projects are
 * copied to computers that cannot tell such files apart.
 */
class ResourceNames
{
public:
    ResourceNames() = delete;

    /// Equal for names that some file system takes for the same.
    [[nodiscard]] static QString identity(const QString& name);
    /// A name that neither a file in \a folder nor one of \a taken has, made of \a base (a file name without its ending)
    /// and \a suffix; of \a word where \a base holds nothing that a name can begin with.
    [[nodiscard]] static QString freeName(const QString& folder, const QStringList& taken, const QString& base,
                                          const QString& suffix, const QString& word);
    /// Everything that stands in \a folder.
    [[nodiscard]] static QStringList filesIn(const QString& folder);
};

} // namespace Korvex::Meridane::Designer
