#include "host/common/DisplayFont.h"

#include <QtCore/QMutex>
#include <QtGui/QFontDatabase>
#include <QtGui/QGuiApplication>
#include <QtGui/QRawFont>

#include <atomic>
#include <cmath>

namespace Korvex::Meridane::Common {
namespace {
/**
 * Of two fonts of a family the one that was registered last counts, and installed ones are registered when their family
 * is first asked for: now.
 */
void registerInstalled(const QRawFont& font)
{
    if (font.isValid()) {
        static_cast<void>(QFontDatabase::styles(font.familyName()));
    }
}
} // namespace

int pixelsFromPoints(double points)
{
    return qMax(1, static_cast<int>(std::floor(points * 96 / 72 + 0.5)));
}

int fontPixelSize(const QFont& font)
{
    return font.pixelSize() > 0 ? font.pixelSize() : pixelsFromPoints(font.pointSizeF());
}

QFont displayFont(const QFont& font)
{
    // Made anew: a copy would keep what its maker left to the application's own font.
    QFont result(font.family(), 1, font.bold() ? QFont::Bold : QFont::Normal, font.italic());
    result.setFamilies({font.family()}); // the constructor takes a comma as a separator of families
    result.setPixelSize(fontPixelSize(font));
    result.setUnderline(font.underline());
    result.setOverline(font.overline());
    result.setStrikeOut(font.strikeOut());
    result.setLetterSpacing(font.letterSpacingType(), font.letterSpacing());
    result.setWordSpacing(font.wordSpacing());
    result.setHintingPreference(QFont::PreferNoHinting);
    result.setStyleStrategy(static_cast<QFont::StyleStrategy>(QFont::PreferAntialias | QFont::NoSubpixelAntialias));
    return result;
}

int addFontFile(const QString& path)
{
    registerInstalled(QRawFont(path, 1));
    return QFontDatabase::addApplicationFont(path);
}

int addFontContent(const QByteArray& content)
{
    registerInstalled(QRawFont(content, 1));
    return QFontDatabase::addApplicationFontFromData(content);
}

int fontGeneration()
{
    static QBasicMutex mutex;
    static const QGuiApplication* watched = nullptr;
    static std::atomic<int> generation = 0;
    const QMutexLocker locker(&mutex);
    if (qGuiApp && qGuiApp != watched) {
        watched = qGuiApp;
        ++generation;
        QObject::connect(
            qGuiApp, &QGuiApplication::fontDatabaseChanged, qGuiApp, [] { ++generation; }, Qt::DirectConnection);
    }
    return generation;
}
} // namespace Korvex::Meridane::Common
