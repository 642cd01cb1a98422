#include "shapes/BorderedFrame.h"

#include "host/core/properties/DesignerProperty.h"
#include "host/core/values/ValueConversion.h"

#include "host/common/PaintHelper.h"

namespace Korvex::Meridane::Designer {

QRectF borderedFrame(const DesignerProperty& size, const DesignerProperty& border)
{
    bool sizeOk = false;
    bool borderOk = false;
    const QSizeF content = ValueConversion::toSize(size.valueString(), &sizeOk);
    const BorderInfo info = ValueConversion::toBorderInfo(border.valueString(), &borderOk);
    if (!sizeOk || !borderOk)
        return {};
    return Common::PaintHelper::getBoundingRect(content.width(), content.height(), info.width());
}

} // namespace Korvex::Meridane::Designer
