#include "host/core/editors/SizeEditor.h"

#include "host/core/editors/KeptRatio.h"
#include "host/core/properties/DesignerProperty.h"
#include "host/core/values/ValueConversion.h"
#include "host/core/widgets/SizeWidget.h"
#include "host/core/widgets/SpinBox.h"

#include <QVariant>

namespace Korvex::Meridane::Designer {

SizeEditor::SizeEditor(QWidget* parent)
    : StandardEditor(parent)
{}

SizeEditor::~SizeEditor() = default;

QString SizeEditor::className() const
{
    return QStringLiteral("SizeEditor");
}

bool SizeEditor::createEditorWidget()
{
    QWidget* widget = createWidgets(&m_widget);
    m_widget->setDecimals(parameter("decimals", 2).toInt());
    const QVariant minimum = parameter("minimumValue");
    if (minimum.isValid())
        m_widget->setMinimum(minimum.toSizeF());
    const QVariant maximum = parameter("maximumValue");
    if (maximum.isValid())
        m_widget->setMaximum(maximum.toSizeF());
    const QVariant suffix = parameter("suffix");
    if (suffix.isValid())
        m_widget->setSuffix(suffix.toString());
    m_widget->setRelativeInputAllowed(true);
    joinSteps(m_widget->widthField());
    joinSteps(m_widget->heightField());
    connect(m_widget, &SizeWidget::userModifiedWidth, this,
            [this] { edit(QStringLiteral("width"), operationText(m_widget->widthOperation())); });
    connect(m_widget, &SizeWidget::userModifiedHeight, this,
            [this] { edit(QStringLiteral("height"), operationText(m_widget->heightOperation())); });
    setEditorWidget(widget);
    return true;
}

QWidget* SizeEditor::createWidgets(SizeWidget** sizeWidget)
{
    *sizeWidget = new SizeWidget(this);
    return *sizeWidget;
}

UndoCommand* SizeEditor::createUpdateCommand(const QSharedPointer<DesignerProperty>& property, const QString& value,
                                             UndoCommand* parent)
{
    bool presentOk = false;
    bool wantedOk = false;
    const QSizeF present = ValueConversion::toSize(property->valueString(), &presentOk);
    QSizeF wanted = ValueConversion::toSize(value, &wantedOk);
    if (!wantedOk || !m_widget)
        return StandardEditor::createUpdateCommand(property, value, parent);
    if (!presentOk || wanted.width() != present.width())
        wanted.setWidth(m_widget->widthField()->adjusted(wanted.width()));
    if (!presentOk || wanted.height() != present.height())
        wanted.setHeight(m_widget->heightField()->adjusted(wanted.height()));
    if (presentOk) {
        const QSizeF minimum(m_widget->widthField()->minimum(), m_widget->heightField()->minimum());
        wanted = sizeCompletedToRatio(present, wanted, keptRatio(property->parentObject()), minimum);
    }
    return StandardEditor::createUpdateCommand(property, ValueConversion::toString(wanted), parent);
}

bool SizeEditor::showValue(const QString& value)
{
    bool ok = false;
    const QSizeF size = ValueConversion::toSize(value, &ok);
    if (ok)
        m_widget->setValue(size);
    m_widget->setMixed(isMixed(QStringLiteral("width")) || !ok, isMixed(QStringLiteral("height")) || !ok);
    return ok;
}

QString SizeEditor::widgetValue() const
{
    return ValueConversion::toString(m_widget->value());
}

} // namespace Korvex::Meridane::Designer
