#include "host/common/TransformOrigin.h"

#include <QtCore/QMetaEnum>

namespace Korvex::Meridane::Common {
QString transformOriginName(TransformOrigin origin)
{
    return QString::fromLatin1(QMetaEnum::fromType<TransformOrigin>().valueToKey(origin));
}

TransformOrigin transformOriginFromName(QStringView name, bool* ok)
{
    const QMetaEnum origins = QMetaEnum::fromType<TransformOrigin>();
    for (int i = 0; i < origins.keyCount(); ++i) {
        if (name == QLatin1String(origins.key(i))) {
            if (ok) {
                *ok = true;
            }
            return static_cast<TransformOrigin>(origins.value(i));
        }
    }
    if (ok) {
        *ok = false;
    }
    return Center;
}

TransformOrigin oppositeOrigin(TransformOrigin origin)
{
    // The numbers run row by row, so that a point and the one across the centre add up to the last number.
    const int number = origin;
    return number >= TopLeft && number <= BottomRight ? static_cast<TransformOrigin>(BottomRight - number) : Center;
}

QPointF originFractions(TransformOrigin origin)
{
    int number = origin;
    if (number < TopLeft || number > BottomRight) {
        number = Center;
    }
    return QPointF(0.5 * (number % 3), 0.5 * (number / 3));
}

QPointF fixedPointPosition(TransformOrigin origin, const QRectF& content)
{
    const QPointF fractions = originFractions(origin);
    return QPointF(content.x() + fractions.x() * content.width(), content.y() + fractions.y() * content.height());
}

QTransform rotationAbout(const QPointF& fixedPoint, double angle)
{
    QTransform transform;
    transform.translate(fixedPoint.x(), fixedPoint.y());
    transform.rotate(angle);
    transform.translate(-fixedPoint.x(), -fixedPoint.y());
    return transform;
}

QTransform rotationAbout(TransformOrigin origin, const QRectF& content, double angle)
{
    return rotationAbout(fixedPointPosition(origin, content), angle);
}

QPainterPath rotatedPath(const QPainterPath& path, TransformOrigin origin, const QRectF& content, double angle)
{
    return rotationAbout(origin, content, angle).map(path);
}
} // namespace Korvex::Meridane::Common
