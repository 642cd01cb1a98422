#include "host/core/editors/NumberEditor.h"

#include "host/core/properties/DesignerProperty.h"
#include "host/core/values/ValueConversion.h"
#include "host/core/widgets/NumberSlider.h"
#include "host/core/widgets/NumberWidget.h"

#include <QVariant>

namespace Korvex::Meridane::Designer {

NumberEditor::NumberEditor(bool wholeNumbers, QWidget* parent)
    : StandardEditor(parent)
    , m_wholeNumbers(wholeNumbers)
{}

NumberEditor::~NumberEditor() = default;

QStringList NumberEditor::classNames() const
{
    return PropertyEditor::classNames() << QStringLiteral("NumberEditor") << className();
}

bool NumberEditor::createEditorWidget()
{
    constexpr int SmallestSlider = 48; // pixels
    m_widget = new NumberWidget(m_wholeNumbers, this);
    if (!m_wholeNumbers)
        m_widget->setDecimals(parameter("decimals", 2).toInt());
    const QVariant minimum = parameter("minimum");
    if (minimum.isValid())
        m_widget->setMinimum(minimum.toDouble());
    const QVariant maximum = parameter("maximum");
    if (maximum.isValid())
        m_widget->setMaximum(maximum.toDouble());
    m_widget->setSingleStep(parameter("singleStep", 1).toDouble());
    m_widget->setSuffix(parameter("suffix").toString());
    m_widget->showSlider(parameter("showSlider", false).toBool());
    m_widget->slider()->setMinimumWidth(SmallestSlider);
    m_widget->setRelativeInputAllowed(true);
    m_widget->setAccessibleLabel(property()->name());
    joinSteps(m_widget);
    connect(m_widget, &NumberWidget::userModified, this, [this] { edit({}, operationText(m_widget->operation())); });
    setEditorWidget(m_widget);
    return true;
}

UndoCommand* NumberEditor::createUpdateCommand(const QSharedPointer<DesignerProperty>& property, const QString& value,
                                               UndoCommand* parent)
{
    bool ok = false;
    const double number = ValueConversion::toReal(value, &ok);
    // A value that an element has already may lie beyond the limits; only an edit keeps to them.
    const bool adjust = ok && m_widget && !property->equalsValue(value);
    return StandardEditor::createUpdateCommand(property, adjust ? text(m_widget->adjusted(number)) : value, parent);
}

bool NumberEditor::showValue(const QString& value)
{
    bool ok = false;
    const double number = m_wholeNumbers ? ValueConversion::toInt(value, &ok) : ValueConversion::toReal(value, &ok);
    if (ok)
        m_widget->setValue(number);
    m_widget->setMixed(isMixed() || !ok);
    return ok;
}

QString NumberEditor::widgetValue() const
{
    return text(m_widget->value());
}

QString NumberEditor::text(double number) const
{
    return m_wholeNumbers ? ValueConversion::toString(qRound(number)) : ValueConversion::toString(number);
}

} // namespace Korvex::Meridane::Designer
