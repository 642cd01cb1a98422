#include "host/core/editors/BorderEditor.h"

#include "host/core/properties/DesignerProperty.h"
#include "host/core/values/ValueConversion.h"
#include "host/core/widgets/ColorWidget.h"
#include "host/core/widgets/SpinBox.h"

#include "host/common/LocalizationHelper.h"

#include <QHBoxLayout>
#include <QVariant>

namespace Korvex::Meridane::Designer {

using Common::LocalizationHelper;

BorderEditor::BorderEditor(QWidget* parent)
    : StandardEditor(parent)
{}

BorderEditor::~BorderEditor() = default;

QString BorderEditor::className() const
{
    return QStringLiteral("BorderEditor");
}

bool BorderEditor::createEditorWidget()
{
    auto* widget = new QWidget(this);
    m_width = new SpinBox(true, widget);
    m_width->setRange(0, parameter("maximum", 999).toDouble());
    m_width->setSuffix(parameter("suffix", LocalizationHelper::coreString(QStringLiteral(" px"))).toString());
    m_width->setRelativeInputAllowed(true);
    m_width->setAccessibleName(LocalizationHelper::coreString(QStringLiteral("%1: width")).arg(property()->name()));
    m_color = new ColorWidget(TransparencyAllowed, true, widget);
    m_color->setAccessibleLabel(LocalizationHelper::coreString(QStringLiteral("%1: color")).arg(property()->name()));

    auto* box = new QHBoxLayout(widget);
    box->setContentsMargins(0, 0, 0, 0);
    box->addWidget(m_width, 1);
    box->addWidget(m_color);
    widget->setFocusProxy(m_width);
    joinSteps(m_width);
    joinSteps(m_color);
    connect(m_width, &SpinBox::userModified, this,
            [this] { edit(QStringLiteral("width"), operationText(m_width->operation())); });
    connect(m_color, &ColorWidget::userModified, this, [this] { edit(QStringLiteral("color")); });
    setEditorWidget(widget);
    return true;
}

UndoCommand* BorderEditor::createUpdateCommand(const QSharedPointer<DesignerProperty>& property, const QString& value,
                                               UndoCommand* parent)
{
    bool presentOk = false;
    bool wantedOk = false;
    const BorderInfo present = ValueConversion::toBorderInfo(property->valueString(), &presentOk);
    const BorderInfo wanted = ValueConversion::toBorderInfo(value, &wantedOk);
    if (!wantedOk || !m_width || (presentOk && wanted.width() == present.width()))
        return StandardEditor::createUpdateCommand(property, value, parent);
    const BorderInfo adjusted(qRound(m_width->adjusted(wanted.width())), wanted.color());
    return StandardEditor::createUpdateCommand(property, ValueConversion::toString(adjusted), parent);
}

bool BorderEditor::showValue(const QString& value)
{
    bool ok = false;
    const BorderInfo border = ValueConversion::toBorderInfo(value, &ok);
    if (ok) {
        m_width->setValue(border.width());
        m_color->setColor(border.color());
    }
    m_width->setMixed(isMixed(QStringLiteral("width")) || !ok);
    m_color->setMixed(isMixed(QStringLiteral("color")) || !ok);
    return ok;
}

QString BorderEditor::widgetValue() const
{
    return ValueConversion::toString(BorderInfo(qRound(m_width->value()), m_color->color()));
}

} // namespace Korvex::Meridane::Designer
