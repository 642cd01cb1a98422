#include "host/core/values/RotationInfo.h"

#include "host/common/TransformOrigin.h"

namespace Korvex::Meridane::Designer {
RotationInfo::RotationInfo()
    : m_fixedPoint(fixedPointNames().at(Common::Center))
{}

const QStringList& RotationInfo::fixedPointNames()
{
    static const QStringList names = [] {
        QStringList list;
        for (int origin = Common::TopLeft; origin <= Common::BottomRight; ++origin) {
            list.append(Common::transformOriginName(static_cast<Common::TransformOrigin>(origin)));
        }
        return list;
    }();
    return names;
}
} // namespace Korvex::Meridane::Designer
