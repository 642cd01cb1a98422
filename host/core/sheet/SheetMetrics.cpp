#include "host/core/sheet/SheetMetrics.h"

#include <QFontMetrics>
#include <QStyle>
#include <QStyleOptionFrame>
#include <QWidget>

namespace Korvex::Meridane::Designer {

int SheetMetrics::fieldHeight(const QWidget* widget)
{
    QStyleOptionFrame option;
    option.initFrom(widget);
    option.lineWidth = widget->style()->pixelMetric(QStyle::PM_DefaultFrameWidth, &option, widget);
    // The inner margin that a line edit keeps above and below its text.
    const QSize text(0, widget->fontMetrics().height() + 2);
    return widget->style()->sizeFromContents(QStyle::CT_LineEdit, &option, text, widget).height();
}

} // namespace Korvex::Meridane::Designer
