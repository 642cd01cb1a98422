#include "host/core/sheet/SectionHeader.h"

#include "host/core/sheet/SheetColors.h"
#include "host/core/sheet/SheetMetrics.h"

#include "host/common/LocalizationHelper.h"

#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QPainter>

namespace Korvex::Meridane::Designer {

using Common::LocalizationHelper;

namespace {

constexpr double ChevronReach = 3; // pixels
constexpr int Above = 6; // pixels of air above the text, which sets sections apart
constexpr int Below = 2;

} // namespace

SectionHeader::SectionHeader(const QString& key, const QString& title, QWidget* parent)
    : QAbstractButton(parent)
    , m_key(key)
{
    setObjectName(QStringLiteral("section_") + key);
    setText(title);
    setAccessibleName(title);
    setCheckable(true);
    setChecked(true);
    setFocusPolicy(Qt::StrongFocus);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    applyFont();
    connect(this, &QAbstractButton::toggled, this, &SectionHeader::describe);
    describe();
}

SectionHeader::~SectionHeader() = default;

QSize SectionHeader::sizeHint() const
{
    return {fontMetrics().horizontalAdvance(text()) + 2 * SheetMetrics::Margin,
            fontMetrics().height() + Above + Below + 2};
}

QSize SectionHeader::minimumSizeHint() const
{
    return {2 * SheetMetrics::Margin, sizeHint().height()};
}

void SectionHeader::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF area = QRectF(rect()).adjusted(0, Above, 0, 0);
    QColor line = palette().color(QPalette::WindowText);
    line.setAlphaF(0.16F);
    painter.setPen(QPen(line, 1));
    painter.drawLine(QPointF(SheetMetrics::Margin, 0.5), QPointF(width() - SheetMetrics::Margin, 0.5));

    const QColor ink = underMouse() ? palette().color(QPalette::WindowText) : quietColor(palette());
    painter.setPen(QPen(ink, 1.5, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    const QPointF middle(SheetMetrics::Margin / 2.0, area.center().y());
    const bool mirrored = layoutDirection() == Qt::RightToLeft;
    const QPointF at = mirrored ? QPointF(width() - middle.x(), middle.y()) : middle;
    const double r = ChevronReach;
    if (isChecked()) {
        painter.drawPolyline(QPolygonF{at + QPointF(-r, -r / 2), at + QPointF(0, r / 2), at + QPointF(r, -r / 2)});
    } else {
        const double side = mirrored ? -1 : 1;
        painter.drawPolyline(
            QPolygonF{at + QPointF(-side * r / 2, -r), at + QPointF(side * r / 2, 0), at + QPointF(-side * r / 2, r)});
    }
    const QRectF textArea = area.adjusted(SheetMetrics::Margin, 0, -SheetMetrics::Margin, 0);
    painter.setPen(ink);
    painter.drawText(textArea, Qt::AlignVCenter | Qt::AlignLeading | Qt::TextSingleLine,
                     fontMetrics().elidedText(text(), Qt::ElideRight, static_cast<int>(textArea.width())));
    if (hasFocus()) {
        painter.setPen(QPen(palette().color(QPalette::Highlight), 1.5));
        painter.drawRoundedRect(area.adjusted(1, 1, -1, -1), 2, 2);
    }
}

void SectionHeader::keyPressEvent(QKeyEvent* event)
{
    switch (event->key()) {
    case Qt::Key_Left:
    case Qt::Key_Right:
        if ((event->key() == Qt::Key_Right) != (layoutDirection() == Qt::RightToLeft)) {
            if (!isChecked())
                click();
        } else if (isChecked()) {
            click();
        }
        break;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        click();
        break;
    default:
        QAbstractButton::keyPressEvent(event);
        break;
    }
}

void SectionHeader::contextMenuEvent(QContextMenuEvent* event)
{
    auto* menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    connect(menu->addAction(LocalizationHelper::coreString(QStringLiteral("Reset Section"))), &QAction::triggered, this,
            &SectionHeader::resetRequested);
    menu->popup(event->globalPos());
}

void SectionHeader::enterEvent(QEnterEvent* event)
{
    QAbstractButton::enterEvent(event);
    update();
}

void SectionHeader::leaveEvent(QEvent* event)
{
    QAbstractButton::leaveEvent(event);
    update();
}

void SectionHeader::changeEvent(QEvent* event)
{
    QAbstractButton::changeEvent(event);
    if (event->type() == QEvent::StyleChange)
        updateGeometry();
}

void SectionHeader::describe()
{
    setAccessibleDescription(isChecked() ? LocalizationHelper::coreString(QStringLiteral("Open section"))
                                         : LocalizationHelper::coreString(QStringLiteral("Folded section")));
}

void SectionHeader::applyFont()
{
    QFont own = font();
    own.setWeight(QFont::DemiBold);
    setFont(own);
}

} // namespace Korvex::Meridane::Designer
