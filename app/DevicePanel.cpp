#include "app/DevicePanel.h"

#include "app/AppSettings.h"
#include "app/CoreText.h"
#include "app/DevicePicture.h"
#include "app/ScreenChanges.h"
#include "app/ThemedIcon.h"

#include "host/core/canvas/EditSession.h"
#include "host/core/canvas/ScreenRenderer.h"
#include "host/core/objects/Screen.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QEvent>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QScreen>
#include <QScrollArea>
#include <QToolButton>
#include <QTransform>
#include <QVBoxLayout>

namespace Korvex::Meridane::Designer {

namespace {

const QString FormatKey = QStringLiteral("panel/format");
const QString RotationKey = QStringLiteral("panel/rotation");
const QString FitKey = QStringLiteral("panel/fit");
const QString PhysicalKey = QStringLiteral("panel/physicalSize");
const QString DensityKey = QStringLiteral("panel/density");
const QString CorrectionKey = QStringLiteral("panel/screenCorrection");

constexpr double UnknownDensity = 20; // below any panel's; the field shows a text for it
constexpr double LargestDensity = 1000;

QString formatText(PanelFormat format)
{
    switch (format) {
    case PanelFormat::Full:
        break;
    case PanelFormat::Rgb565:
        return coreText("RGB565");
    case PanelFormat::Rgb565Dithered:
        return coreText("RGB565, dithered");
    case PanelFormat::Rgb332:
        return coreText("RGB332");
    case PanelFormat::Grey:
        return coreText("Gray");
    }
    return coreText("All colors");
}

} // namespace

DevicePanel::DevicePanel(EditSession* session, CanvasView* canvas, QWidget* parent)
    : QWidget(parent)
    , m_session(session)
    , m_changes(new ScreenChanges(session, canvas, this))
    , m_area(new QScrollArea)
    , m_picture(new DevicePicture)
    , m_pace(this, [this] { refresh(); })
{
    m_area->setFrameShape(QFrame::NoFrame);
    m_area->setAlignment(Qt::AlignCenter);
    m_area->setWidget(m_picture);
    m_area->setAccessibleName(coreText("The screen as the panel shows it"));
    m_area->installEventFilter(this);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(makeChoices());
    layout->addWidget(makeDensities());
    layout->addWidget(m_area, 1);
    readSettings();
    connect(m_changes, &ScreenChanges::changed, this, [this] { m_pace.request(); });
}

QWidget* DevicePanel::makeChoices()
{
    m_format = new QComboBox;
    const QList<PanelFormat> formats = PanelColors::formats();
    for (const PanelFormat format : formats)
        m_format->addItem(formatText(format), PanelColors::name(format));
    m_format->setAccessibleName(coreText("Colors of the panel"));
    m_format->setToolTip(m_format->accessibleName());
    m_rotation = new QComboBox;
    for (const int degrees : {0, 90, 180, 270})
        m_rotation->addItem(coreText("%1°").arg(degrees), degrees);
    m_rotation->setAccessibleName(coreText("How the panel is turned"));
    m_rotation->setToolTip(m_rotation->accessibleName());
    m_fit = new QToolButton;
    m_fit->setIcon(ThemedIcon::named(QStringLiteral("zoom-fit")));
    m_fit->setIconSize(QSize(16, 16));
    m_fit->setAutoRaise(true);
    m_fit->setCheckable(true);
    m_fit->setFocusPolicy(Qt::TabFocus);
    m_fit->setAccessibleName(coreText("Shrink the picture to fit"));
    m_fit->setToolTip(m_fit->accessibleName());
    connect(m_fit, &QToolButton::toggled, this, &DevicePanel::takeChoices);
    m_physical = new QCheckBox(coreText("Physical size"));
    connect(m_format, &QComboBox::activated, this, &DevicePanel::takeChoices);
    connect(m_rotation, &QComboBox::activated, this, &DevicePanel::takeChoices);
    connect(m_physical, &QCheckBox::toggled, this, [this](bool physical) {
        takeChoices();
        // Without the density there is no size; it is asked for once.
        if (physical && m_panelDensity->value() == UnknownDensity) {
            m_panelDensity->setFocus();
            m_panelDensity->selectAll();
        }
    });
    auto* choices = new QWidget;
    auto* row = new QHBoxLayout(choices);
    row->setContentsMargins(4, 2, 4, 2);
    row->setSpacing(4);
    row->addWidget(m_format, 1);
    row->addWidget(m_rotation);
    row->addWidget(m_fit);
    row->addWidget(m_physical);
    return choices;
}

QWidget* DevicePanel::makeDensities()
{
    m_panelDensity = new QDoubleSpinBox;
    m_panelDensity->setRange(UnknownDensity, LargestDensity);
    m_panelDensity->setDecimals(1);
    m_panelDensity->setSuffix(coreText(" dpi"));
    m_panelDensity->setSpecialValueText(coreText("not known"));
    m_panelDensity->setKeyboardTracking(false);
    m_correction = new QDoubleSpinBox;
    m_correction->setRange(25, 400);
    m_correction->setDecimals(1);
    m_correction->setSuffix(coreText(" %"));
    m_correction->setValue(100);
    m_correction->setKeyboardTracking(false);
    m_correction->setToolTip(coreText("Larger where the picture is smaller than the panel: screens often do not know "
                                      "their own density."));
    connect(m_panelDensity, &QDoubleSpinBox::valueChanged, this, &DevicePanel::takeChoices);
    connect(m_correction, &QDoubleSpinBox::valueChanged, this, &DevicePanel::takeChoices);
    m_densities = new QWidget;
    auto* form = new QFormLayout(m_densities);
    form->setContentsMargins(8, 2, 4, 4);
    form->addRow(coreText("Density of the panel:"), m_panelDensity);
    form->addRow(coreText("Correction of this screen:"), m_correction);
    return m_densities;
}

void DevicePanel::readSettings()
{
    const AppSettings settings;
    const QSignalBlocker fitBlocked(m_fit);
    const QSignalBlocker physicalBlocked(m_physical);
    const QSignalBlocker densityBlocked(m_panelDensity);
    const QSignalBlocker correctionBlocked(m_correction);
    m_format->setCurrentIndex(
        std::max(m_format->findData(settings.value(FormatKey, QStringLiteral("rgb565")).toString()), 0));
    m_rotation->setCurrentIndex(std::max(m_rotation->findData(settings.value(RotationKey, 0).toInt()), 0));
    m_fit->setChecked(settings.value(FitKey, true).toBool());
    m_physical->setChecked(settings.value(PhysicalKey, false).toBool());
    m_panelDensity->setValue(settings.value(DensityKey, UnknownDensity).toDouble());
    m_correction->setValue(settings.value(CorrectionKey, 100.0).toDouble());
    m_densities->setVisible(m_physical->isChecked());
    m_fit->setEnabled(!m_physical->isChecked());
}

void DevicePanel::takeChoices()
{
    AppSettings settings;
    settings.setValue(FormatKey, m_format->currentData());
    settings.setValue(RotationKey, m_rotation->currentData());
    settings.setValue(FitKey, m_fit->isChecked());
    settings.setValue(PhysicalKey, m_physical->isChecked());
    if (m_panelDensity->value() > UnknownDensity)
        settings.setValue(DensityKey, m_panelDensity->value());
    settings.setValue(CorrectionKey, m_correction->value());
    m_densities->setVisible(m_physical->isChecked());
    m_fit->setEnabled(!m_physical->isChecked());
    m_pace.request();
}

void DevicePanel::setFormat(PanelFormat format)
{
    m_format->setCurrentIndex(m_format->findData(PanelColors::name(format)));
    takeChoices();
}

void DevicePanel::setRotation(int degrees)
{
    if (const int index = m_rotation->findData(degrees); index >= 0)
        m_rotation->setCurrentIndex(index);
    takeChoices();
}

void DevicePanel::setFitting(bool fitting)
{
    m_fit->setChecked(fitting);
}

void DevicePanel::setPhysicalSize(bool physical)
{
    m_physical->setChecked(physical);
}

void DevicePanel::setPanelDensity(double density)
{
    m_panelDensity->setValue(density);
}

double DevicePanel::physicalScale(double panelDensity, double screenDensity, double correction)
{
    return panelDensity > 0 ? screenDensity * correction / panelDensity : 0;
}

void DevicePanel::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    m_changes->setActive(true);
}

void DevicePanel::hideEvent(QHideEvent* event)
{
    QWidget::hideEvent(event);
    m_changes->setActive(false);
    m_pace.cancel();
}

bool DevicePanel::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == m_area && event->type() == QEvent::Resize)
        scalePicture();
    return QWidget::eventFilter(watched, event);
}

void DevicePanel::refresh()
{
    if (!m_changes->isActive())
        return;
    m_changes->forget();
    Screen* current = m_session->currentScreen();
    const QImage rendered = current ? ScreenRenderer::render(m_session->scene(current)) : QImage();
    const auto format = PanelColors::named(m_format->currentData().toString());
    const QImage shown = PanelColors::shown(rendered, format.value_or(PanelFormat::Full));
    m_picture->setPicture(shown.transformed(QTransform().rotate(m_rotation->currentData().toInt())));
    scalePicture();
}

void DevicePanel::scalePicture()
{
    const QSizeF picture = m_picture->picture().size();
    double scale = 0;
    if (m_physical->isChecked() && m_panelDensity->value() > UnknownDensity) {
        scale = physicalScale(m_panelDensity->value(), screen()->physicalDotsPerInch(), m_correction->value() / 100);
    } else if (m_fit->isChecked() && !picture.isEmpty()) {
        const QSizeF room = m_area->maximumViewportSize();
        const double most = std::min(room.width() / picture.width(), room.height() / picture.height());
        if (most < m_picture->pixelScale())
            scale = most;
    }
    m_picture->setScale(scale);
}

} // namespace Korvex::Meridane::Designer
