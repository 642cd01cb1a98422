#pragma once

#include "host/core/CoreExport.h"

#include <QtCore/QString>
#include <QtCore/QStringList>

namespace Korvex::Meridane::Designer {
/** How far an element is turned, and about which point of its content. */
class MERIDANE_CORE_EXPORT RotationInfo
{
public:
    /** Not turned: angle 0 about the "Center". */
    RotationInfo();

    /** In degrees, clockwise on the screen; any finite number. */
    [[nodiscard]] double angle() const { return m_angle; }
    void setAngle(double angle) { m_angle = angle; }

    /** One of fixedPointNames(). */
    [[nodiscard]] QString fixedPoint() const { return m_fixedPoint; }

    /** Takes @p name as it stands; only the names of fixedPointNames() make a value that can be read back. */
    void setFixedPoint(const QString& name) { m_fixedPoint = name; }

    /** The nine names, row by row: "TopLeft", "Top", "TopRight", "Left", "Center" … "BottomRight". */
    [[nodiscard]] static const QStringList& fixedPointNames();

    friend bool operator==(const RotationInfo& a, const RotationInfo& b) = default;

private:
    double m_angle = 0;
    QString m_fixedPoint;
};
} // namespace Korvex::Meridane::Designer
