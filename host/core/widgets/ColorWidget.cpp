#include "host/core/widgets/ColorWidget.h"

#include "host/common/LocalizationHelper.h"
#include "host/core/widgets/ColorPopup.h"
#include "host/core/widgets/ColorSwatch.h"
#include "host/core/widgets/FocusTracker.h"
#include "host/core/widgets/HexColorField.h"
#include "host/core/widgets/RecentColors.h"

#include <QtWidgets/QHBoxLayout>

namespace Korvex::Meridane::Designer {
ColorWidget::ColorWidget(TransparentOption transparency, bool compact, QWidget* parent)
    : QWidget(parent)
    , m_transparency(transparency)
    , m_swatch(new ColorSwatch(this))
    , m_text(new HexColorField(transparency, this))
{
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_swatch);
    layout->addWidget(m_text, 1);
    m_text->setVisible(!compact);
    setFocusProxy(m_swatch);
    setAccessibleLabel(Common::LocalizationHelper::coreString(QStringLiteral("Color")));

    connect(m_swatch, &ColorSwatch::clicked, this, &ColorWidget::openPopup);
    connect(m_text, &HexColorField::userModified, this, [this] {
        RecentColors::shared().add(m_text->color());
        edit(m_text->color());
    });
    auto* focus = new FocusTracker(this);
    connect(focus, &FocusTracker::entered, this, &ColorWidget::focusedIn);
    connect(focus, &FocusTracker::left, this, &ColorWidget::focusedOut);
    setColor(m_color);
}

void ColorWidget::setColor(const QColor& color)
{
    m_color = color;
    m_mixed = false;
    m_swatch->setColor(color);
    m_swatch->setMixed(false);
    m_text->setColor(color);
}

void ColorWidget::setMixed(bool mixed)
{
    m_mixed = mixed;
    m_swatch->setMixed(mixed);
    m_text->setMixed(mixed);
}

void ColorWidget::setAccessibleLabel(const QString& label)
{
    setAccessibleName(label);
    m_swatch->setAccessibleName(label);
}

void ColorWidget::openPopup()
{
    if (!m_popup) {
        m_popup = new ColorPopup(m_transparency, this);
        connect(m_popup, &ColorPopup::userModified, this, [this] { edit(m_popup->color()); });
        connect(m_popup, &ColorPopup::gestureStarted, this, &ColorWidget::sliderPressed);
        connect(m_popup, &ColorPopup::gestureFinished, this, &ColorWidget::sliderReleased);
    }
    m_popup->open(m_color, m_swatch);
}

void ColorWidget::edit(const QColor& color)
{
    if (color == m_color && !m_mixed) {
        return;
    }
    setColor(color);
    Q_EMIT userModified();
}
} // namespace Korvex::Meridane::Designer
