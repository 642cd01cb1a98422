#include "host/core/widgets/ColorPopup.h"

#include "host/common/LocalizationHelper.h"
#include "host/core/values/ValueConversion.h"
#include "host/core/widgets/ColorChannelFields.h"
#include "host/core/widgets/ColorChannelSlider.h"
#include "host/core/widgets/ColorSwatch.h"
#include "host/core/widgets/HexColorField.h"
#include "host/core/widgets/HueSaturationField.h"
#include "host/core/widgets/RecentColors.h"
#include "host/core/widgets/ScreenColorPicker.h"

#include <QtCore/QTimer>
#include <QtGui/QKeyEvent>
#include <QtGui/QScreen>
#include <QtWidgets/QGridLayout>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QToolButton>
#include <QtWidgets/QVBoxLayout>

#include <algorithm>

namespace Korvex::Meridane::Designer {
namespace {
using Common::LocalizationHelper;

constexpr int swatchColumns = 8;
constexpr int swatchWidth = 32;
constexpr int mostSwatches = 16;
/** What a window system needs to take a hidden popup off the screen before the screen is grabbed, in milliseconds. */
constexpr int hidingDelay = 200;
} // namespace

ColorPopup::ColorPopup(TransparentOption transparency, QWidget* parent)
    : QFrame(parent, Qt::Popup)
    , m_transparency(transparency)
    , m_field(new HueSaturationField(this))
    , m_brightness(new ColorChannelSlider(this))
    , m_alpha(new ColorChannelSlider(this))
    , m_channels(new ColorChannelFields(transparency, this))
    , m_text(new HexColorField(transparency, this))
    , m_preview(new ColorSwatch(this))
    , m_pickButton(new QToolButton(this))
    , m_inUseTitle(new QLabel(LocalizationHelper::coreString(QStringLiteral("In the project")), this))
    , m_inUseLayout(new QGridLayout)
    , m_recentTitle(new QLabel(LocalizationHelper::coreString(QStringLiteral("Recently used")), this))
    , m_recentLayout(new QGridLayout)
    , m_screenPicker(new ScreenColorPicker(this))
{
    setFrameShape(QFrame::StyledPanel);
    setAccessibleName(LocalizationHelper::coreString(QStringLiteral("Color")));
    m_brightness->setAccessibleName(LocalizationHelper::coreString(QStringLiteral("Brightness")));
    m_brightness->setToolTip(m_brightness->accessibleName());
    m_alpha->setAccessibleName(LocalizationHelper::coreString(QStringLiteral("Opacity")));
    m_alpha->setToolTip(m_alpha->accessibleName());
    m_alpha->setVisible(transparency == TransparencyAllowed);
    m_preview->setFocusPolicy(Qt::NoFocus);
    m_preview->setAttribute(Qt::WA_TransparentForMouseEvents);
    m_preview->setAccessibleName(LocalizationHelper::coreString(QStringLiteral("Chosen color")));
    m_pickButton->setText(LocalizationHelper::coreString(QStringLiteral("Pick from screen")));
    m_pickButton->setToolTip(LocalizationHelper::coreString(QStringLiteral("Pick a color from the screen")));
    m_pickButton->setFocusPolicy(Qt::StrongFocus);

    auto* row = new QHBoxLayout;
    row->addWidget(m_preview);
    row->addWidget(m_text, 1);
    row->addWidget(m_pickButton);
    for (QGridLayout* swatches : {m_inUseLayout, m_recentLayout}) {
        swatches->setSpacing(2);
        swatches->setColumnStretch(swatchColumns, 1);
    }
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(m_field, 1);
    layout->addWidget(m_brightness);
    layout->addWidget(m_alpha);
    layout->addWidget(m_channels);
    layout->addLayout(row);
    layout->addWidget(m_inUseTitle);
    layout->addLayout(m_inUseLayout);
    layout->addWidget(m_recentTitle);
    layout->addLayout(m_recentLayout);

    connect(m_field, &HueSaturationField::userModified, this, &ColorPopup::editFromSliders);
    connect(m_brightness, &ColorChannelSlider::userModified, this, &ColorPopup::editFromSliders);
    connect(m_alpha, &ColorChannelSlider::userModified, this, &ColorPopup::editFromSliders);
    connect(m_text, &HexColorField::userModified, this, [this] { edit(m_text->color()); });
    connect(m_channels, &ColorChannelFields::colorEdited, this, &ColorPopup::edit);
    connect(m_channels, &ColorChannelFields::hueEdited, this, [this](double hue) {
        m_field->setHueAndSaturation(hue, m_saturation);
        editFromSliders();
    });
    connect(m_channels, &ColorChannelFields::saturationEdited, this, [this](double saturation) {
        m_field->setHueAndSaturation(m_hue, saturation);
        editFromSliders();
    });
    connect(m_channels, &ColorChannelFields::brightnessEdited, this, [this](double brightness) {
        m_brightness->setChannel(qRound(brightness * m_brightness->maximum()));
        editFromSliders();
    });
    connect(m_field, &HueSaturationField::gestureStarted, this, &ColorPopup::gestureStarted);
    connect(m_field, &HueSaturationField::gestureFinished, this, &ColorPopup::gestureFinished);
    for (const ColorChannelSlider* slider : {m_brightness, m_alpha}) {
        connect(slider, &ColorChannelSlider::gestureStarted, this, &ColorPopup::gestureStarted);
        connect(slider, &ColorChannelSlider::gestureFinished, this, &ColorPopup::gestureFinished);
    }
    connect(m_pickButton, &QToolButton::clicked, this, &ColorPopup::pickFromScreen);
    connect(m_screenPicker, &ScreenColorPicker::picked, this, &ColorPopup::finishPicking);
    connect(m_screenPicker, &ScreenColorPicker::cancelled, this, [this] { finishPicking(QColor()); });
}

ColorPopup::~ColorPopup() = default;

void ColorPopup::open(const QColor& color, const QWidget* anchor, const QList<QColor>& inUse, bool mixed)
{
    m_mixed = mixed;
    m_color = color.isValid() ? color : QColor(Qt::black);
    m_colorBefore = m_color;
    m_pickButton->setVisible(ScreenColorPicker::isAvailable());
    showSwatches(m_inUseLayout, m_inUseTitle, inUse, QStringLiteral("usedColor"));
    showSwatches(m_recentLayout, m_recentTitle, RecentColors::shared().colors(), QStringLiteral("recentColor"));
    showColor();
    placeBeside(anchor);
    show();
    placeBeside(anchor); // styles settle the sizes of the parts when they are shown
    m_field->setFocus(Qt::PopupFocusReason);
}

/** Below @p anchor, else above it, within the screen. */
void ColorPopup::placeBeside(const QWidget* anchor)
{
    adjustSize();

    const QRect available = anchor->screen()->availableGeometry();
    QRect place(anchor->mapToGlobal(QPoint(0, anchor->height())), size());
    if (place.bottom() > available.bottom()) {
        place.moveBottom(anchor->mapToGlobal(QPoint(0, 0)).y());
    }
    place.moveLeft(std::clamp(place.left(), available.left(), std::max(available.left(), available.right() - width())));
    place.moveTop(std::max(place.top(), available.top()));
    move(place.topLeft());
}

void ColorPopup::keyPressEvent(QKeyEvent* event)
{
    switch (event->key()) {
    case Qt::Key_Escape:
        if (!m_mixed) {
            edit(m_colorBefore);
        }
        Q_EMIT cancelled();
        close();
        break;
    case Qt::Key_Enter:
    case Qt::Key_Return:
        close();
        break;
    default:
        QFrame::keyPressEvent(event);
        break;
    }
}

void ColorPopup::hideEvent(QHideEvent* event)
{
    QFrame::hideEvent(event);
    if (m_pickingFromScreen) {
        return;
    }
    m_text->commit();
    if (m_color != m_colorBefore) {
        RecentColors::shared().add(m_color);
    }
    Q_EMIT closed();
}

void ColorPopup::showColor()
{
    const QColor hsv = m_color.toHsv();
    if (hsv.valueF() > 0) {
        m_saturation = hsv.saturationF();
        // Hue −1 stands for none; the right edge of the field is the same red as the left one.
        if (hsv.hueF() >= 0 && !(m_hue == 1 && hsv.hueF() == 0)) {
            m_hue = hsv.hueF();
        }
    }
    m_field->setHueAndSaturation(m_hue, m_saturation);
    m_channels->showColor(m_color, m_hue, m_saturation);
    m_brightness->setChannel(hsv.value());
    m_alpha->setChannel(m_color.alpha());
    m_brightness->setEnds(Qt::black, QColor::fromHsvF(static_cast<float>(m_hue), static_cast<float>(m_saturation), 1));
    QColor opaque = m_color;
    opaque.setAlpha(255);
    QColor clear = m_color;
    clear.setAlpha(0);
    m_alpha->setEnds(clear, opaque);
    m_text->setColor(m_color);
    m_preview->setColor(m_color);
}

void ColorPopup::showSwatches(QGridLayout* layout, QLabel* title, const QList<QColor>& colors,
                              const QString& objectName)
{
    while (QLayoutItem* item = layout->takeAt(0)) {
        delete item->widget();
        delete item;
    }
    int index = 0;
    for (const QColor& color : colors) {
        if (m_transparency == OpaqueOnly && color.alpha() < 255) {
            continue;
        }
        auto* swatch = new ColorSwatch(this);
        swatch->setObjectName(objectName);
        swatch->setAccessibleName(title->text());
        swatch->setColor(color);
        swatch->setFixedSize(swatchWidth, swatch->sizeHint().height());
        connect(swatch, &ColorSwatch::clicked, this, [this, color] { edit(color); });
        layout->addWidget(swatch, index / swatchColumns, index % swatchColumns);
        if (++index == mostSwatches) {
            break;
        }
    }
    title->setVisible(index > 0);
}

void ColorPopup::edit(const QColor& color)
{
    if (color == m_color && !m_mixed) {
        return;
    }
    m_mixed = false;
    m_color = color;
    showColor();
    Q_EMIT userModified();
}

void ColorPopup::editFromSliders()
{
    m_hue = m_field->hue();
    m_saturation = m_field->saturation();
    QColor color = QColor::fromHsvF(static_cast<float>(m_hue), static_cast<float>(m_saturation),
                                    static_cast<float>(m_brightness->value() / 255.0))
                       .toRgb();
    // Whole channels: the colour is what its text says.
    color = QColor(color.red(), color.green(), color.blue(),
                   m_transparency == TransparencyAllowed ? m_alpha->value() : 255);
    const double hue = m_hue;
    const double saturation = m_saturation;
    const bool changed = color != m_color || m_mixed;
    m_mixed = false;
    m_color = color;
    showColor();
    // Rounding to channels must not pull the point from under the mouse.
    m_hue = hue;
    m_saturation = saturation;
    m_field->setHueAndSaturation(hue, saturation);
    m_channels->showColor(m_color, hue, saturation);
    if (changed) {
        Q_EMIT userModified();
    }
}

void ColorPopup::pickFromScreen()
{
    m_pickingFromScreen = true;
    hide();
    QTimer::singleShot(hidingDelay, m_screenPicker, &ScreenColorPicker::start);
}

void ColorPopup::finishPicking(const QColor& color)
{
    m_pickingFromScreen = false;
    show();
    m_pickButton->setFocus(Qt::PopupFocusReason);
    if (color.isValid()) {
        edit(color);
    }
}
} // namespace Korvex::Meridane::Designer
