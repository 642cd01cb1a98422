#include "host/common/DisplayFont.h"

#include <QtCore/QMutex>
#include <QtGui/QGuiApplication>

#include <atomic>
#include <cmath>

namespace Korvex::Meridane::Common {
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
    QFont result(font);
    result.setPixelSize(fontPixelSize(font));
    result.setWeight(font.bold() ? QFont::Bold : QFont::Normal);
    result.setHintingPreference(QFont::PreferNoHinting);
    const int strategy = font.styleStrategy() | QFont::PreferAntialias | QFont::NoSubpixelAntialias;
    result.setStyleStrategy(static_cast<QFont::StyleStrategy>(strategy));
    return result;
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
