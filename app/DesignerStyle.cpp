#include "app/DesignerStyle.h"

#include "app/ThemedIcon.h"

#include <QApplication>
#include <QMainWindow>
#include <QPainter>
#include <QStyleOption>

namespace Korvex::Meridane::Designer {

namespace {

constexpr int TitleMargin = 6; // pixels above and below the title of a panel
constexpr int FocusBarWidth = 3; // pixels, of the mark of the panel that has the keyboard
constexpr int TitleIndent = 6; // pixels in front of it, beyond the style's own
constexpr int PanelTabSpace = 14; // pixels beside the text of a panel's tab, left and right together

} // namespace

DesignerStyle::DesignerStyle()
    : QProxyStyle(QStringLiteral("Fusion"))
{}

QIcon DesignerStyle::standardIcon(StandardPixmap pixmap, const QStyleOption* option, const QWidget* widget) const
{
    switch (pixmap) {
    case SP_TitleBarCloseButton:
        return ThemedIcon::named(QStringLiteral("close"));
    case SP_TitleBarNormalButton:
        return ThemedIcon::named(QStringLiteral("float"));
    default:
        return QProxyStyle::standardIcon(pixmap, option, widget);
    }
}

int DesignerStyle::pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const
{
    switch (metric) {
    case PM_DockWidgetTitleMargin:
        return TitleMargin;
    case PM_DockWidgetTitleBarButtonMargin:
        return 2;
    case PM_TabBarTabHSpace:
        // The tabs of panels stand in a narrow column, where words are worth more than margins.
        if (widget && qobject_cast<const QMainWindow*>(widget->parentWidget()))
            return PanelTabSpace;
        return QProxyStyle::pixelMetric(metric, option, widget);
    default:
        return QProxyStyle::pixelMetric(metric, option, widget);
    }
}

int DesignerStyle::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                             QStyleHintReturn* result) const
{
    // The words say it; the style's coloured pictures would be the only ones in the window.
    if (hint == SH_DialogButtonBox_ButtonsHaveIcons)
        return 0;
    return QProxyStyle::styleHint(hint, option, widget, result);
}

void DesignerStyle::drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                                const QWidget* widget) const
{
    if (const auto* title = qstyleoption_cast<const QStyleOptionDockWidget*>(option);
        title && element == CE_DockWidgetTitle) {
        QStyleOptionDockWidget indented(*title);
        indented.rect.adjust(TitleIndent, 0, 0, 0);
        QProxyStyle::drawControl(element, &indented, painter, widget);
        // A panel that has the keyboard says so; its content often cannot.
        const QWidget* focused = QApplication::focusWidget();
        if (focused && widget && widget->isAncestorOf(focused)) {
            const QRect& area = title->rect;
            painter->fillRect(QRect(area.left(), area.top(), FocusBarWidth, area.height()),
                              option->palette.highlight());
        }
        return;
    }
    if (element == CE_ToolBar) {
        painter->fillRect(option->rect, option->palette.window());
        painter->fillRect(QRect(option->rect.bottomLeft(), QSize(option->rect.width(), 1)), option->palette.mid());
        return;
    }
    QProxyStyle::drawControl(element, option, painter, widget);
}

} // namespace Korvex::Meridane::Designer
