#pragma once

#include "host/core/output/WorkProgress.h"

#include <QStringList>

class QMimeData;

namespace Korvex::Meridane::Designer {

class EditSession;

/// Images in the data of drags and of the clipboard: files, a picture that is in no file, or images of the project's list.
class ImageData
{
public:
    /// Whether \a data (which may be null) holds images; files are judged by their names.
    [[nodiscard]] static bool holdsImages(const QMimeData* data);
    /// The same, but for images that the project has already.
    [[nodiscard]] static bool holdsNewImages(const QMimeData* data);
    /// Brings the images of \a data into the project. The names of the resources; \a refused receives a message for each
    /// that could not be taken.
    static QStringList take(EditSession* session, const QMimeData* data, QStringList* refused);
    /// The same for \a files, absolute paths. One that the project holds already is not taken a second time. \a progress
    /// hears of each and may end it; what has been taken by then stays.
    static QStringList takeFiles(EditSession* session, const QStringList& files, QStringList* refused,
                                 const WorkProgress& progress = {});

private:
    static QString takeFile(EditSession* session, const QString& file, QString* message);
};

} // namespace Korvex::Meridane::Designer
