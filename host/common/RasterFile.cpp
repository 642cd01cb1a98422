#include "host/common/RasterFile.h"

#include "host/common/LocalizationHelper.h"

#include <QtCore/QBuffer>
#include <QtCore/QtEndian>
#include <QtGui/QImageReader>

#include <utility>

namespace Korvex::Meridane::Common {
namespace {
constexpr qint64 MostPixels = 32 * 1000 * 1000; // 128 MB as 32-bit pixels, which is also what Qt's readers allow
constexpr qsizetype MostScans = 100; // cameras write up to 12

PictureInfo unreadable(QString* reason, const QString& text)
{
    if (reason) {
        *reason = text;
    }
    return PictureInfo();
}

/** Formats that describe a picture by instructions, and can ask for any amount of work. */
bool holdsInstructions(const QByteArray& format)
{
    return format == "svg" || format == "svgz" || format == "pdf" || format == "mng";
}

/** A progressive JPEG goes over all its pixels once for every scan, which may take only a few bytes of the file. */
qsizetype scanCount(const QByteArray& jpeg)
{
    return jpeg.count(QByteArrayLiteral("\xff\xda"));
}

/**
 * \p file as it is handed to a reader: of a PNG file the texts are left out. Nobody is shown them, and a small file may hold
 * gigabytes of them.
 */
QByteArray withoutTexts(const QByteArray& file)
{
    constexpr qsizetype Frame = 12; // a chunk's length, name and check sum
    const auto signature = QByteArrayLiteral("\x89PNG\r\n\x1a\n");
    if (!file.startsWith(signature)) {
        return file;
    }
    QByteArray kept = signature;
    kept.reserve(file.size());
    for (qsizetype at = signature.size(); at < file.size();) {
        const qsizetype left = file.size() - at;
        const QByteArrayView name = left < Frame ? QByteArrayView() : QByteArrayView(file).sliced(at + 4, 4);
        const qsizetype size =
            left < Frame ? left : qMin<qsizetype>(left, Frame + qFromBigEndian<quint32>(file.constData() + at));
        if (name != "tEXt" && name != "zTXt" && name != "iTXt") {
            kept.append(QByteArrayView(file).sliced(at, size));
        }
        at += size;
    }
    return kept;
}

QSize turnedSize(const QImageReader& reader)
{
    const QSize size = reader.size();
    return reader.transformation() & QImageIOHandler::TransformationRotate90 ? size.transposed() : size;
}
} // namespace

PictureInfo rasterInfo(const QByteArray& file, QString* reason)
{
    QByteArray bytes = withoutTexts(file);
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::ReadOnly);
    QImageReader reader(&buffer);
    const QByteArray format = reader.format();
    if (holdsInstructions(format)) {
        return unreadable(
            reason,
            format == "svg"
                ? LocalizationHelper::coreString(QStringLiteral("a drawing needs a file name that ends in .svg"))
                : LocalizationHelper::coreString(QStringLiteral("pictures of this kind are not shown")));
    }
    if (!reader.canRead()) {
        return unreadable(reason,
                          LocalizationHelper::coreString(QStringLiteral("the file holds no picture that can be read")));
    }
    const QSize size = turnedSize(reader);
    if (size.isEmpty()) {
        return unreadable(
            reason, LocalizationHelper::coreString(QStringLiteral("the file does not say how large the picture is")));
    }
    if (qint64(size.width()) * size.height() > MostPixels) {
        return unreadable(reason, LocalizationHelper::coreString(QStringLiteral("the picture is too large")));
    }
    if (format == "jpeg" && scanCount(bytes) > MostScans) {
        return unreadable(reason, LocalizationHelper::coreString(QStringLiteral("the picture has too many scans")));
    }
    const int frames = format == "gif" ? qMax(reader.imageCount(), 1) : 1;
    return {frames > 1 ? PictureKind::Animation : PictureKind::Still, size, frames, format};
}

QImage readRaster(const QByteArray& file, QString* reason)
{
    const PictureInfo info = rasterInfo(file, reason);
    if (info.kind == PictureKind::Unreadable) {
        return QImage();
    }
    QByteArray bytes = withoutTexts(file);
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::ReadOnly);
    QImageReader reader(&buffer);
    reader.setAutoTransform(true);
    QImage picture = reader.read();
    // An icon file may hold another picture than it says.
    if (picture.size() != info.size) {
        unreadable(reason, LocalizationHelper::coreString(QStringLiteral("the picture is damaged")));
        return QImage();
    }
    const bool translucent = picture.hasAlphaChannel();
    // In place where the pixels have as many bits: no second copy.
    picture.convertTo(translucent ? QImage::Format_ARGB32_Premultiplied : QImage::Format_RGB32);
    return picture;
}
} // namespace Korvex::Meridane::Common
