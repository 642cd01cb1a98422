#include "app/ImageData.h"

#include "app/CoreText.h"

#include "host/core/canvas/EditSession.h"
#include "host/core/canvas/ImagePlacement.h"
#include "host/core/project/ImageFormats.h"
#include "host/core/project/Project.h"
#include "host/core/project/ResourceImporter.h"

#include <QFile>
#include <QFileInfo>
#include <QImage>
#include <QMimeData>
#include <QUrl>

namespace Korvex::Meridane::Designer {

namespace {

/// The local files of \a data that may be images: those that are called so, and those whose names say nothing.
QStringList imageFiles(const QMimeData* data)
{
    QStringList files;
    const QList<QUrl> urls = data->urls();
    for (const QUrl& url : urls) {
        const QString file = url.toLocalFile();
        const QString suffix = QFileInfo(file).suffix();
        if (!file.isEmpty() && (suffix.isEmpty() || ImageFormats::isPictureSuffix(suffix)))
            files.append(file);
    }
    return files;
}

} // namespace

bool ImageData::holdsImages(const QMimeData* data)
{
    return data && (data->hasFormat(ImagePlacement::mimeType()) || holdsNewImages(data));
}

bool ImageData::holdsNewImages(const QMimeData* data)
{
    return data && !data->hasFormat(ImagePlacement::mimeType()) && (!imageFiles(data).isEmpty() || data->hasImage());
}

QStringList ImageData::take(EditSession* session, const QMimeData* data, QStringList* refused)
{
    if (data->hasFormat(ImagePlacement::mimeType())) {
        QStringList images = QString::fromUtf8(data->data(ImagePlacement::mimeType())).split(QLatin1Char('\n'));
        const QStringList& known = session->project()->imageResources();
        images.removeIf([&known](const QString& image) { return !known.contains(image); });
        return images;
    }
    if (const QStringList files = imageFiles(data); !files.isEmpty())
        return takeFiles(session, files, refused);
    QString message;
    const QString image = ResourceImporter::importPicture(session->project(), qvariant_cast<QImage>(data->imageData()),
                                                          coreText("pasted"), &message);
    if (image.isEmpty())
        refused->append(message);
    return image.isEmpty() ? QStringList() : QStringList{image};
}

QStringList ImageData::takeFiles(EditSession* session, const QStringList& files, QStringList* refused,
                                 const WorkProgress& progress)
{
    QStringList images;
    int done = 0;
    for (const QString& file : files) {
        if (progress && !progress(done++, int(files.size())))
            break;
        QString message;
        const QString image = takeFile(session, file, &message);
        if (image.isEmpty())
            refused->append(message);
        else if (!images.contains(image))
            images.append(image);
    }
    return images;
}

QString ImageData::takeFile(EditSession* session, const QString& file, QString* message)
{
    Project* project = session->project();
    const std::optional<ImageContent> content = ResourceImporter::readImage(file, message);
    if (!content)
        return {};
    const QString known = ResourceImporter::resourceHolding(project, content->bytes);
    return known.isEmpty() ? ResourceImporter::importImage(project, file, message) : known;
}

} // namespace Korvex::Meridane::Designer
