#include "host/core/editors/RotationEditor.h"

#include "host/core/properties/DesignerProperty.h"
#include "host/core/values/ValueConversion.h"
#include "host/core/widgets/NineGrid.h"
#include "host/core/widgets/NumberSlider.h"
#include "host/core/widgets/NumberWidget.h"

#include "host/common/LocalizationHelper.h"

#include <QHBoxLayout>

namespace Korvex::Meridane::Designer {

using Common::LocalizationHelper;

RotationEditor::RotationEditor(QWidget* parent)
    : StandardEditor(parent)
{}

RotationEditor::~RotationEditor() = default;

QString RotationEditor::className() const
{
    return QStringLiteral("RotationEditor");
}

bool RotationEditor::createEditorWidget()
{
    constexpr double Limit = 99999;
    constexpr double FullTurn = 360;
    constexpr int Decimals = 2;
    constexpr int SmallestSlider = 64; // pixels; a shorter one cannot be aimed with
    auto* widget = new QWidget(this);
    m_angle = new NumberWidget(false, widget);
    m_angle->setDecimals(Decimals);
    m_angle->setMinimum(-Limit);
    m_angle->setMaximum(Limit);
    m_angle->setSuffix(LocalizationHelper::coreString(QStringLiteral("\u00b0")));
    m_angle->setRelativeInputAllowed(true);
    m_angle->setAccessibleLabel(LocalizationHelper::coreString(QStringLiteral("%1: angle")).arg(property()->name()));
    m_angle->showSlider(true);
    m_angle->slider()->setNumbers(0, FullTurn, 1, Decimals);
    m_angle->slider()->setMinimumWidth(SmallestSlider);
    m_grid = new NineGrid(widget);
    m_grid->setToolTip(LocalizationHelper::coreString(QStringLiteral("The point that stays in place")));

    auto* box = new QHBoxLayout(widget);
    box->setContentsMargins(0, 0, 0, 0);
    box->addWidget(m_angle, 1, Qt::AlignTop);
    box->addWidget(m_grid, 0, Qt::AlignTop);
    widget->setFocusProxy(m_angle);
    joinSteps(m_angle);
    connect(m_angle, &NumberWidget::userModified, this,
            [this] { edit(QStringLiteral("angle"), operationText(m_angle->operation())); });
    connect(m_grid, &NineGrid::userModified, this, [this] { edit(QStringLiteral("fixedPoint")); });
    setEditorWidget(widget);
    return true;
}

UndoCommand* RotationEditor::createUpdateCommand(const QSharedPointer<DesignerProperty>& property, const QString& value,
                                                 UndoCommand* parent)
{
    bool presentOk = false;
    bool wantedOk = false;
    const RotationInfo present = ValueConversion::toRotationInfo(property->valueString(), &presentOk);
    RotationInfo wanted = ValueConversion::toRotationInfo(value, &wantedOk);
    if (!wantedOk || !m_angle || (presentOk && wanted.angle() == present.angle()))
        return StandardEditor::createUpdateCommand(property, value, parent);
    wanted.setAngle(m_angle->adjusted(wanted.angle()));
    return StandardEditor::createUpdateCommand(property, ValueConversion::toString(wanted), parent);
}

bool RotationEditor::showValue(const QString& value)
{
    bool ok = false;
    const RotationInfo rotation = ValueConversion::toRotationInfo(value, &ok);
    if (ok) {
        m_angle->setValue(rotation.angle());
        m_grid->setFixedPoint(rotation.fixedPoint());
    }
    m_angle->setMixed(isMixed(QStringLiteral("angle")) || !ok);
    m_grid->setMixed(isMixed(QStringLiteral("fixedPoint")) || !ok);
    return ok;
}

QString RotationEditor::widgetValue() const
{
    RotationInfo rotation;
    rotation.setAngle(m_angle->value());
    rotation.setFixedPoint(m_grid->fixedPoint());
    return ValueConversion::toString(rotation);
}

} // namespace Korvex::Meridane::Designer
