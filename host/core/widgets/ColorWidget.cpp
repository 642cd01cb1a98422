#include "host/core/widgets/ColorWidget.h"

#include "host/common/LocalizationHelper.h"
#include "host/core/widgets/ColorPopup.h"
#include "host/core/widgets/ColorSource.h"
#include "host/core/widgets/ColorSwatch.h"
#include "host/core/widgets/FocusTracker.h"
#include "host/core/widgets/HexColorField.h"
#include "host/core/widgets/RecentColors.h"

#include <QtWidgets/QHBoxLayout>

namespace Korvex::Meridane::Designer {
namespace {
QList<QColor> colorsInUseAround(const QWidget* widget)
{
    for (const QWidget* parent = widget->parentWidget(); parent; parent = parent->parentWidget()) {
        if (const auto* source = dynamic_cast<const ColorSource*>(parent)) {
            return source->colorsInUse();
        }
    }
    return {};
}
} // namespace

ColorWidget::ColorWidget(TransparentOption transparency, bool compact, QWidget* parent)
    : QWidget(parent)
    , m_transparency(transparency)
    , m_swatch(new ColorSwatch(this))
{
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_swatch);
    setFocusProxy(m_swatch);
    setAccessibleLabel(Common::LocalizationHelper::coreString(QStringLiteral("Color")));

    connect(m_swatch, &ColorSwatch::clicked, this, &ColorWidget::openPopup);
    if (!compact) {
        m_text = new HexColorField(transparency, this);
        layout->addWidget(m_text, 1);
        connect(m_text, &HexColorField::userModified, this, [this] {
            RecentColors::shared().add(m_text->color());
            edit(m_text->color());
        });
        connect(m_text, &HexColorField::inputRefused, this, &ColorWidget::inputRefused);
    }
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
    if (m_text) {
        m_text->setColor(color);
    }
}

void ColorWidget::setMixed(bool mixed)
{
    m_mixed = mixed;
    m_swatch->setMixed(mixed);
    if (m_text) {
        m_text->setMixed(mixed);
    }
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
        connect(m_popup, &ColorPopup::cancelled, this, &ColorWidget::cancelled);
        connect(m_popup, &ColorPopup::closed, this, &ColorWidget::sliderReleased);
    }
    Q_EMIT sliderPressed();
    m_popup->open(m_color, m_swatch, colorsInUseAround(this), m_mixed);
}

void ColorWidget::edit(const QColor& color)
{
    setColor(color);
    Q_EMIT userModified();
}
} // namespace Korvex::Meridane::Designer
