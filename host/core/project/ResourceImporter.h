#pragma once

#include "host/core/CoreExport.h"

#include <QByteArray>
#include <QString>

#include <optional>

class QImage;

namespace Korvex::Meridane::Designer {

class Project;

/// A picture that has been looked at and can be shown.
struct ImageContent
{
    QByteArray bytes; ///< as the file holds them
    QByteArray format; ///< told by the bytes; see ImageFormats
};

/**
 * Brings images into a project. While a project is open its images folder only gains files; the history needs no step for
 * an import. One that is not saved is taken back when the project is closed.
 *
 * Pictures that would cost too much to show are refused before they are decoded.
 */
class MERIDANE_CORE_EXPORT ResourceImporter
{
public:
    ResourceImporter() = delete;

    /// Copies \a file into the project's images folder and offers it as a resource. The result is the resource's file
    /// name: that of the file where it is free and plain and ends as the content asks for, else one made of it. Empty with
    /// a message, which names the file, when the file cannot be read or shown, or when the copy cannot be written.
    static QString importImage(Project* project, const QString& file, QString* message);
    /// The same for \a picture, which comes from no file; \a base is what its name is made of. A picture that the project
    /// holds already is not added a second time.
    static QString importPicture(Project* project, const QImage& picture, const QString& base, QString* message);

    /// The picture in \a file; nothing with a message, which names the file, when it cannot be read or shown.
    [[nodiscard]] static std::optional<ImageContent> readImage(const QString& file, QString* message);
    /// The resource of \a project whose file holds just \a bytes; empty when there is none.
    [[nodiscard]] static QString resourceHolding(const Project* project, const QByteArray& bytes);
};

} // namespace Korvex::Meridane::Designer
