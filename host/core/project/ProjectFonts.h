#pragma once

#include "host/core/project/Problem.h"

#include <QMap>
#include <QStringList>

namespace Korvex::Meridane::Designer {

class ProjectFolder;

/// The font files of an open project: makes their families known to the application for as long as it lives. Without an
/// application that can show text (QGuiApplication) no font is loaded.
class ProjectFonts
{
public:
    ProjectFonts() = default;
    ~ProjectFonts();
    Q_DISABLE_COPY_MOVE(ProjectFonts)

    /// Loads those of \a fileNames, in the project's fonts/, that have not been loaded yet.
    void load(const ProjectFolder& folder, const QStringList& fileNames);
    /// The files that hold \a family, sorted; empty when the project has none.
    [[nodiscard]] QStringList filesOf(const QString& family) const;
    /// Files that are there and hold no font.
    [[nodiscard]] const QStringList& unusableFiles() const { return m_unusable; }

private:
    struct Font
    {
        int handle = -1;
        QStringList families;
    };

    QMap<QString, Font> m_fonts; // by file name
    QStringList m_unusable;
};

} // namespace Korvex::Meridane::Designer
