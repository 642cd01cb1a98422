#include "host/core/editors/ImageThumbnails.h"

#include <QCache>
#include <QDateTime>
#include <QFileInfo>
#include <QImageReader>
#include <QPainter>
#include <QPixmap>

namespace Korvex::Meridane::Designer {

namespace {

/// A small drawing can ask for endless painting by nested references. Such files, and packed ones that cannot be looked
/// into, get no thumbnail.
bool isHarmlessDrawing(const QString& file)
{
    constexpr qint64 Largest = 1024 * 1024;
    QFile drawing(file);
    return drawing.size() <= Largest && drawing.open(QIODevice::ReadOnly) && !drawing.readAll().contains("<use");
}

QIcon makeThumbnail(const QString& file)
{
    const QString suffix = QFileInfo(file).suffix().toLower();
    if (suffix == QLatin1String("svgz") || (suffix == QLatin1String("svg") && !isHarmlessDrawing(file)))
        return {};
    constexpr int Scale = 2; // sharp on screens with small pixels
    constexpr QSize Square(ImageThumbnails::Side * Scale, ImageThumbnails::Side * Scale);
    QImageReader reader(file);
    reader.setAutoTransform(true);
    const QSize size = reader.size();
    if (size.isValid() && (size.width() > Square.width() || size.height() > Square.height()))
        reader.setScaledSize(size.scaled(Square, Qt::KeepAspectRatio).expandedTo(QSize(1, 1)));
    QImage image = reader.read();
    if (image.isNull())
        return {};
    if (image.width() > Square.width() || image.height() > Square.height())
        image = image.scaled(Square, Qt::KeepAspectRatio, Qt::SmoothTransformation);
    QPixmap square(Square);
    square.fill(Qt::transparent);
    QPainter painter(&square);
    painter.drawImage((Square.width() - image.width()) / 2, (Square.height() - image.height()) / 2, image);
    return QIcon(square);
}

} // namespace

QIcon ImageThumbnails::thumbnail(const QString& file)
{
    constexpr int Kept = 500;
    static QCache<QString, QIcon> cache(Kept);
    const QFileInfo info(file);
    const QString key =
        QStringLiteral("%1|%2|%3")
            .arg(file, QString::number(info.lastModified().toMSecsSinceEpoch()), QString::number(info.size()));
    if (const QIcon* known = cache.object(key))
        return *known;
    QIcon icon = makeThumbnail(file);
    cache.insert(key, new QIcon(icon));
    return icon;
}

} // namespace Korvex::Meridane::Designer
