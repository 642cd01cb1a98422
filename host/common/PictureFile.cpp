#include "host/common/PictureFile.h"

#include "host/common/DrawingCheck.h"
#include "host/common/DrawingEffort.h"
#include "host/common/LocalizationHelper.h"
#include "host/common/RasterFile.h"

#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtCore/QLoggingCategory>
#include <QtSvg/QSvgRenderer>

#include <atomic>
#include <mutex>
#include <utility>

namespace Korvex::Meridane::Common {
namespace {
constexpr qint64 LargestFile = 64 * 1024 * 1024;
constexpr int MostFrames = 10000;
constexpr double MostEffort = 5; // seconds

bool isDrawingName(const QString& file)
{
    return file.toLower().endsWith(QLatin1String(".svg"));
}

bool isAnimationName(const QString& file)
{
    return file.toLower().endsWith(QLatin1String(".gif"));
}

/** Reads \p file; false with a reason when it is not to be had. */
bool readFile(const QString& file, QByteArray* bytes, QString* reason)
{
    const auto refuse = [reason](const QString& text) {
        *reason = text;
        return false;
    };
    const QFileInfo info(file);
    if (!info.exists()) {
        return refuse(LocalizationHelper::coreString(QStringLiteral("the file is missing")));
    }
    if (!info.isFile()) {
        return refuse(LocalizationHelper::coreString(QStringLiteral("this is no regular file")));
    }
    if (info.size() > LargestFile) {
        return refuse(LocalizationHelper::coreString(QStringLiteral("the file is larger than 64 MiB")));
    }
    QFile source(file);
    if (!source.open(QIODevice::ReadOnly)) {
        return refuse(source.errorString());
    }
    *bytes = source.read(LargestFile);
    return source.error() == QFileDevice::NoError || refuse(source.errorString());
}

/** Lets Qt say nothing of drawings: one may give it cause to do so a hundred thousand times, and it names no file. */
void silenceDrawings()
{
    static QLoggingCategory::CategoryFilter before = nullptr;
    static std::once_flag once;
    std::call_once(once, [] {
        before = QLoggingCategory::installFilter([](QLoggingCategory* category) {
            if (before) { // which is not known yet while the filter is installed
                before(category);
            }
            if (QLatin1String(category->categoryName()).startsWith(QLatin1String("qt.svg"))) {
                category->setEnabled(QtWarningMsg, false);
            }
        });
    });
}

PictureContent drawingFrom(const QByteArray& svg)
{
    PictureContent content;
    if (!isHarmlessDrawing(svg, &content.reason)) {
        return content;
    }
    silenceDrawings();
    const auto drawing = std::make_shared<QSvgRenderer>();
    // A drawing that moves would have a timer of its own.
    drawing->setFramesPerSecond(0);
#if QT_VERSION >= QT_VERSION_CHECK(6, 7, 0)
    // Looks everywhere as with the Qt that knows no filters and masks.
    drawing->setOptions(QtSvg::Tiny12FeaturesOnly);
#endif
    if (!drawing->load(svg)) {
        content.reason = LocalizationHelper::coreString(QStringLiteral("the file holds no drawing"));
        return content;
    }
    if (paintingEffort(drawing.get(), MostEffort) > MostEffort) {
        content.reason = LocalizationHelper::coreString(QStringLiteral("it takes too long to paint"));
        return content;
    }
    static std::atomic<quint64> lastId = 0;
    content.drawingId = ++lastId;
    drawing->moveToThread(nullptr);
    content.info = {PictureKind::Drawing, drawing->defaultSize(), 1, QByteArrayLiteral("svg")};
    content.drawing = drawing;
    return content;
}

/** What \p file, whose content is \p bytes, is shown as. */
PictureInfo rasterInfoOf(const QString& file, const QByteArray& bytes, QString* reason)
{
    PictureInfo info = rasterInfo(bytes, reason);
    if (info.kind != PictureKind::Animation) {
        return info;
    }
    if (!isAnimationName(file)) {
        info.kind = PictureKind::Still;
        info.frames = 1;
    } else if (info.frames > MostFrames) {
        *reason = LocalizationHelper::coreString(QStringLiteral("the animation has too many frames"));
        return PictureInfo();
    }
    return info;
}
} // namespace

PictureInfo pictureInfo(const QString& file, QString* reason)
{
    QString ignored;
    QString& why = reason ? *reason : ignored;
    QByteArray bytes;
    if (!readFile(file, &bytes, &why)) {
        return PictureInfo();
    }
    if (!isDrawingName(file)) {
        return rasterInfoOf(file, bytes, &why);
    }
    const PictureContent drawing = drawingFrom(bytes);
    why = drawing.reason;
    return drawing.info;
}

PictureContent readPicture(const QString& file)
{
    if (isDrawingName(file)) {
        return readDrawing(file);
    }
    PictureContent content;
    QByteArray bytes;
    if (!readFile(file, &bytes, &content.reason)) {
        return content;
    }
    const PictureInfo info = rasterInfoOf(file, bytes, &content.reason);
    if (info.kind == PictureKind::Unreadable) {
        return content;
    }
    content.pixels = readRaster(bytes, &content.reason);
    if (content.pixels.isNull()) {
        return content;
    }
    content.info = info;
    if (info.kind == PictureKind::Animation) {
        content.animation = bytes;
    }
    return content;
}

PictureContent readDrawing(const QString& file)
{
    PictureContent content;
    QByteArray bytes;
    return readFile(file, &bytes, &content.reason) ? drawingFrom(bytes) : content;
}
} // namespace Korvex::Meridane::Common
