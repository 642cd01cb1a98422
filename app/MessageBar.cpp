#include "app/MessageBar.h"

#include "app/Appearance.h"
#include "app/CoreText.h"
#include "app/ThemedIcon.h"

#include "host/core/widgets/IconTint.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QScopedValueRollback>
#include <QToolButton>

namespace Korvex::Meridane::Designer {

namespace {

struct BarColors
{
    QColor ground, text;
};

/// Ground and text of each kind; every pair has a contrast of at least 7 : 1.
BarColors barColors(MessageBar::Kind kind, bool dark)
{
    switch (kind) {
    case MessageBar::Kind::Error:
        return dark ? BarColors{QColor(QRgb(0x552229)), QColor(QRgb(0xffdfe1))}
                    : BarColors{QColor(QRgb(0xfde8e9)), QColor(QRgb(0x7c1019))};
    case MessageBar::Kind::Warning:
        return dark ? BarColors{QColor(QRgb(0x4a3a14)), QColor(QRgb(0xffecc0))}
                    : BarColors{QColor(QRgb(0xfff5db)), QColor(QRgb(0x5c4300))};
    case MessageBar::Kind::Information:
        break;
    }
    return dark ? BarColors{QColor(QRgb(0x233a52)), QColor(QRgb(0xdcebfb))}
                : BarColors{QColor(QRgb(0xe6f0fa)), QColor(QRgb(0x123d68))};
}

QString iconName(MessageBar::Kind kind)
{
    switch (kind) {
    case MessageBar::Kind::Error:
        return QStringLiteral(":/meridane/designer/icons/error.svg");
    case MessageBar::Kind::Warning:
        return QStringLiteral(":/meridane/designer/icons/warning.svg");
    case MessageBar::Kind::Information:
        break;
    }
    return QStringLiteral(":/meridane/designer/icons/info.svg");
}

/// The drawing \a file in one colour, for a ground that is not the window's.
QPixmap inked(const QString& file, const QColor& ink, int side, qreal scale)
{
    return IconTint::tinted(QIcon(file).pixmap(QSize(side, side), scale), ink);
}

} // namespace

MessageBar::MessageBar(QWidget* parent)
    : QFrame(parent)
    , m_icon(new QLabel)
    , m_text(new QLabel)
    , m_button(new QPushButton)
    , m_close(new QToolButton)
{
    setObjectName(QStringLiteral("MessageBar"));
    setAutoFillBackground(true);
    setFrameShape(QFrame::NoFrame);
    m_text->setWordWrap(true);
    m_text->setTextFormat(Qt::PlainText);
    m_text->setTextInteractionFlags(Qt::TextSelectableByMouse);
    m_button->setFocusPolicy(Qt::TabFocus);
    m_close->setAutoRaise(true);
    m_close->setFocusPolicy(Qt::TabFocus);
    m_close->setToolTip(coreText("Close this message"));
    m_close->setAccessibleName(m_close->toolTip());
    m_close->setIconSize(QSize(16, 16));

    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(12, 5, 6, 5);
    layout->setSpacing(10);
    layout->addWidget(m_icon);
    layout->addWidget(m_text, 1);
    layout->addWidget(m_button);
    layout->addWidget(m_close);

    m_hideTimer.setSingleShot(true);
    connect(&m_hideTimer, &QTimer::timeout, this, &QWidget::hide);
    connect(m_close, &QToolButton::clicked, this, &QWidget::hide);
    connect(m_button, &QPushButton::clicked, this, [this] {
        hide();
        if (m_action)
            m_action();
    });
    hide();
}

void MessageBar::showMessage(const QString& text, Kind kind)
{
    m_action = nullptr;
    m_button->hide();
    present(text, kind);
    m_hideTimer.start(int(qMin<qsizetype>(5000 + 60 * text.size(), 20000)));
}

void MessageBar::showMessage(const QString& text, Kind kind, const QString& actionText, std::function<void()> action)
{
    m_action = std::move(action);
    m_button->setText(actionText);
    m_button->show();
    present(text, kind);
    m_hideTimer.stop();
}

QString MessageBar::text() const
{
    return isHidden() ? QString() : m_text->text();
}

void MessageBar::enterEvent(QEnterEvent* event)
{
    QFrame::enterEvent(event);
    m_hideTimer.stop();
}

void MessageBar::leaveEvent(QEvent* event)
{
    QFrame::leaveEvent(event);
    if (!m_action && isVisible())
        m_hideTimer.start(4000);
}

void MessageBar::changeEvent(QEvent* event)
{
    QFrame::changeEvent(event);
    if (event->type() == QEvent::ApplicationPaletteChange)
        applyColors();
}

void MessageBar::present(const QString& text, Kind kind)
{
    m_kind = kind;
    m_text->setText(text.isEmpty() ? coreText("That is not possible here.") : text);
    applyColors();
    show();
}

void MessageBar::applyColors()
{
    if (m_applyingColors)
        return;
    const QScopedValueRollback<bool> applying(m_applyingColors, true);
    const BarColors colors = barColors(m_kind, Appearance::isDark(QApplication::palette()));
    QPalette bar = QApplication::palette();
    bar.setColor(QPalette::Window, colors.ground);
    bar.setColor(QPalette::WindowText, colors.text);
    bar.setColor(QPalette::Text, colors.text);
    setPalette(bar);
    QPalette button = QApplication::palette();
    m_button->setPalette(button);
    m_icon->setPixmap(inked(iconName(m_kind), colors.text, 18, devicePixelRatioF()));
    m_close->setIcon(
        inked(QStringLiteral(":/meridane/designer/icons/close.svg"), colors.text, 16, devicePixelRatioF()));
}

} // namespace Korvex::Meridane::Designer
