#pragma once

#include <QImage>
#include <QString>

namespace Korvex::Meridane::Designer {

class EditSession;

/// Small pictures of projects, kept in the user's folder for what can be made again: the first screen of each.
class ProjectThumbnails
{
public:
    ProjectThumbnails() = delete;

    /// The largest width and height of a picture, in pixels.
    static constexpr QSize LargestSize{384, 240};

    /// The picture of the project in \a folder as it was kept last; null when there is none.
    [[nodiscard]] static QImage stored(const QString& folder);
    /// Keeps a picture of the project that \a session edits for the project in \a folder. A failure is nobody's business.
    static void store(EditSession* session, const QString& folder);
    /// Draws, and keeps, the picture of the project in \a folder, which is not touched; null when it cannot be opened.
    static QImage draw(const QString& folder);

    /// The file that holds the picture of the project in \a folder.
    [[nodiscard]] static QString file(const QString& folder);
};

} // namespace Korvex::Meridane::Designer
