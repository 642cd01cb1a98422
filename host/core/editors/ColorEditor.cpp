#include "host/core/editors/ColorEditor.h"

#include "host/core/properties/DesignerProperty.h"
#include "host/core/values/ValueConversion.h"
#include "host/core/widgets/ColorWidget.h"

namespace Korvex::Meridane::Designer {

ColorEditor::ColorEditor(QWidget* parent)
    : StandardEditor(parent)
{}

ColorEditor::~ColorEditor() = default;

QString ColorEditor::className() const
{
    return QStringLiteral("ColorEditor");
}

bool ColorEditor::createEditorWidget()
{
    m_widget = new ColorWidget(TransparencyAllowed, false, this);
    m_widget->setAccessibleLabel(property()->name());
    joinSteps(m_widget);
    connect(m_widget, &ColorWidget::userModified, this, [this] { edit(); });
    setEditorWidget(m_widget);
    return true;
}

bool ColorEditor::showValue(const QString& value)
{
    bool ok = false;
    const QColor color = ValueConversion::toColor(value, &ok);
    if (ok)
        m_widget->setColor(color);
    m_widget->setMixed(isMixed() || !ok);
    return ok;
}

QString ColorEditor::widgetValue() const
{
    return ValueConversion::toString(m_widget->color());
}

} // namespace Korvex::Meridane::Designer
