#include "host/common/PictureFile.h"

#include "host/common/DrawingCheck.h"

#include <QtCore/QFile>
#include <QtGui/QImageReader>
#include <QtSvg/QSvgRenderer>

namespace Korvex::Meridane::Common {
namespace {
constexpr qint64 MostPixels = 32 * 1000 * 1000; // 128 MB as 32-bit pixels, which is also what Qt's readers allow
constexpr int MostFrames = 10000;

PictureInfo unreadable(QString* reason, const QString& text)
{
    if (reason) {
        *reason = text;
    }
    return PictureInfo();
}

PictureInfo drawingInfo(const QString& file, QString* reason)
{
    QFile source(file);
    if (!source.open(QIODevice::ReadOnly)) {
        return unreadable(reason, source.errorString());
    }
    const QByteArray svg = source.readAll();
    if (!isHarmlessDrawing(svg, reason)) {
        return PictureInfo();
    }
    QSvgRenderer renderer(svg);
    if (!renderer.isValid()) {
        return unreadable(reason, QStringLiteral("the file holds no drawing"));
    }
    return {PictureKind::Drawing, renderer.defaultSize(), 1, QByteArrayLiteral("svg")};
}

PictureInfo rasterInfo(const QString& file, bool mayMove, QString* reason)
{
    QImageReader reader(file);
    reader.setDecideFormatFromContent(true);
    const QByteArray format = reader.format();
    if (!reader.canRead()) {
        return unreadable(reason, reader.errorString());
    }
    if (format.startsWith("svg")) {
        return unreadable(reason, QStringLiteral("a drawing needs a file name that ends in .svg"));
    }
    QSize size = reader.size();
    if (reader.transformation() & QImageIOHandler::TransformationRotate90) {
        size.transpose();
    }
    if (!size.isValid() || qint64(size.width()) * size.height() > MostPixels) {
        return unreadable(reason, QStringLiteral("the picture is too large"));
    }
    const int frames = mayMove && format == "gif" ? reader.imageCount() : 1;
    if (frames > MostFrames) {
        return unreadable(reason, QStringLiteral("the animation has too many frames"));
    }
    return {frames > 1 ? PictureKind::Animation : PictureKind::Still, size, qMax(frames, 1), format};
}
} // namespace

PictureInfo pictureInfo(const QString& file, QString* reason)
{
    const QString name = file.toLower();
    if (name.endsWith(QLatin1String(".svg"))) {
        return drawingInfo(file, reason);
    }
    return rasterInfo(file, name.endsWith(QLatin1String(".gif")), reason);
}
} // namespace Korvex::Meridane::Common
