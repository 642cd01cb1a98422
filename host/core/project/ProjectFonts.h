#pragma once

#include "host/core/project/Problem.h"

#include <QMap>
#include <QStringList>

namespace Korvex::Meridane::Designer {

class ProjectFolder;

/// The font files of an open project: makes their families known to the application for as long as it lives. They go
/// before other versions of them that are installed. Without an application that can show text (QGuiApplication) no font is
/// loaded.
class ProjectFonts
{
public:
    ProjectFonts() = default;
    ~ProjectFonts();
    Q_DISABLE_COPY_MOVE(ProjectFonts)

    /// From now on the fonts are those of \a fileNames in the project's fonts/: loads the ones that are new and lets the
    /// others go. A file that could not be read is tried again at the next call.
    void setFiles(const ProjectFolder& folder, const QStringList& fileNames);
    /// The files that hold \a family, sorted; empty when the project has none.
    [[nodiscard]] QStringList filesOf(const QString& family) const;
    /// The families that \a content, a font file, holds; none when it is no font.
    [[nodiscard]] static QStringList familiesIn(const QByteArray& content);
    /// Files that are there and hold no font.
    [[nodiscard]] const QStringList& unusableFiles() const { return m_unusable; }

private:
    void release(const QStringList& kept);

    struct Font
    {
        int handle = -1;
        QStringList families;
    };

    QMap<QString, Font> m_fonts; // by file name
    QStringList m_unusable;
};

} // namespace Korvex::Meridane::Designer
