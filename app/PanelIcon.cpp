#include "app/PanelIcon.h"

#include "app/PanelSizes.h"

#include <QGuiApplication>
#include <QPainter>
#include <QPalette>

namespace Korvex::Meridane::Designer {

PanelIcon::PanelIcon(const QSize& panel)
    : m_panel(panel)
{}

QIcon PanelIcon::of(const QSize& panel)
{
    return QIcon(new PanelIcon(panel));
}

void PanelIcon::paint(QPainter* painter, const QRect& rect, QIcon::Mode, QIcon::State)
{
    // The widest of the common panels fills the picture.
    const double scale = (rect.width() - 4.) / PanelSizes.back().width();
    const QSize panel = m_panel.isValid() ? m_panel : QSize(800, 480);
    QRectF outline(QPointF(0, 0), QSizeF(panel) * scale);
    outline.moveCenter(QRectF(rect).center());
    const QPalette palette = QGuiApplication::palette();
    QColor ground = palette.color(QPalette::Highlight);
    ground.setAlphaF(m_panel.isValid() ? 0.16F : 0);
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    QPen pen(palette.color(QPalette::Highlight), 1.6);
    if (!m_panel.isValid())
        pen.setDashPattern({3, 3});
    painter->setPen(pen);
    painter->setBrush(ground);
    painter->drawRoundedRect(outline, 3, 3);
    painter->restore();
}

QIconEngine* PanelIcon::clone() const
{
    return new PanelIcon(*this);
}

} // namespace Korvex::Meridane::Designer
