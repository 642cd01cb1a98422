#include "host/core/widgets/ColorChannelFields.h"

#include "host/common/LocalizationHelper.h"
#include "host/core/widgets/SpinBox.h"

#include <QtGui/QKeyEvent>
#include <QtWidgets/QGridLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>

namespace Korvex::Meridane::Designer {
namespace {
using Common::LocalizationHelper;

constexpr int largestChannel = 255;
constexpr int largestHue = 360;
constexpr int allPercent = 100;

int percentOf(int channel)
{
    return qRound(channel * allPercent / static_cast<double>(largestChannel));
}
} // namespace

ColorChannelFields::ColorChannelFields(TransparentOption transparency, QWidget* parent)
    : QWidget(parent)
{
    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setHorizontalSpacing(4);
    grid->setVerticalSpacing(4);

    const QString degrees = LocalizationHelper::coreString(QStringLiteral("\u00b0"));
    const QString percent = LocalizationHelper::coreString(QStringLiteral("%"));
    m_rgb[0] = addField(LocalizationHelper::coreString(QStringLiteral("R")),
                        LocalizationHelper::coreString(QStringLiteral("Red")), largestChannel, {}, 0, 0);
    m_rgb[1] = addField(LocalizationHelper::coreString(QStringLiteral("G")),
                        LocalizationHelper::coreString(QStringLiteral("Green")), largestChannel, {}, 0, 1);
    m_rgb[2] = addField(LocalizationHelper::coreString(QStringLiteral("B")),
                        LocalizationHelper::coreString(QStringLiteral("Blue")), largestChannel, {}, 0, 2);
    m_hsv[0] = addField(LocalizationHelper::coreString(QStringLiteral("H")),
                        LocalizationHelper::coreString(QStringLiteral("Hue")), largestHue, degrees, 1, 0);
    m_hsv[1] = addField(LocalizationHelper::coreString(QStringLiteral("S")),
                        LocalizationHelper::coreString(QStringLiteral("Saturation")), allPercent, percent, 1, 1);
    m_hsv[2] = addField(LocalizationHelper::coreString(QStringLiteral("V")),
                        LocalizationHelper::coreString(QStringLiteral("Brightness")), allPercent, percent, 1, 2);
    if (transparency == TransparencyAllowed) {
        m_opacity = addField(LocalizationHelper::coreString(QStringLiteral("A")),
                             LocalizationHelper::coreString(QStringLiteral("Opacity")), allPercent, percent, 0, 3);
        connect(m_opacity, &SpinBox::userModified, this, [this] {
            m_alpha = qRound(m_opacity->value() * largestChannel / allPercent);
            editColor();
        });
    }
    for (const SpinBox* field : m_rgb) {
        connect(field, &SpinBox::userModified, this, &ColorChannelFields::editColor);
    }
    // One at a time: the others are shown rounded and must not be changed by that.
    connect(m_hsv[0], &SpinBox::userModified, this, [this] { Q_EMIT hueEdited(m_hsv[0]->value() / largestHue); });
    connect(m_hsv[1], &SpinBox::userModified, this,
            [this] { Q_EMIT saturationEdited(m_hsv[1]->value() / allPercent); });
    connect(m_hsv[2], &SpinBox::userModified, this,
            [this] { Q_EMIT brightnessEdited(m_hsv[2]->value() / allPercent); });
}

bool ColorChannelFields::eventFilter(QObject* watched, QEvent* event)
{
    auto* field = qobject_cast<SpinBox*>(watched);
    if (field && event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        auto* line = field->findChild<QLineEdit*>();
        if ((key == Qt::Key_Return || key == Qt::Key_Enter) && line && line->isModified()) {
            field->commit();
            line->setModified(false);
            field->selectAll();
            return true;
        }
    }
    return QWidget::eventFilter(watched, event);
}

void ColorChannelFields::showColor(const QColor& color, double hue, double saturation)
{
    m_rgb[0]->setValue(color.red());
    m_rgb[1]->setValue(color.green());
    m_rgb[2]->setValue(color.blue());
    m_hsv[0]->setValue(qRound(hue * largestHue));
    m_hsv[1]->setValue(qRound(saturation * allPercent));
    m_hsv[2]->setValue(percentOf(color.toHsv().value()));
    m_alpha = color.alpha();
    if (m_opacity) {
        m_opacity->setValue(percentOf(m_alpha));
    }
}

SpinBox* ColorChannelFields::addField(const QString& letter, const QString& name, int maximum, const QString& suffix,
                                      int row, int column)
{
    auto* label = new QLabel(letter, this);
    auto* field = new SpinBox(true, this);
    field->setRange(0, maximum);
    field->setSuffix(suffix);
    field->setRelativeInputAllowed(true);
    field->setButtonSymbols(QAbstractSpinBox::NoButtons);
    field->setAccessibleName(name);
    field->setToolTip(name);
    field->installEventFilter(this);
    label->setBuddy(field);
    label->setToolTip(name);
    auto* grid = static_cast<QGridLayout*>(layout());
    grid->addWidget(label, row, 2 * column);
    grid->addWidget(field, row, 2 * column + 1);
    grid->setColumnStretch(2 * column + 1, 1);
    return field;
}

void ColorChannelFields::editColor()
{
    Q_EMIT colorEdited(
        QColor(qRound(m_rgb[0]->value()), qRound(m_rgb[1]->value()), qRound(m_rgb[2]->value()), m_alpha));
}
} // namespace Korvex::Meridane::Designer
