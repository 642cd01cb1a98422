#include "host/core/editors/KeepRatioEditor.h"

#include "host/core/editors/KeptRatio.h"
#include "host/core/properties/DesignerProperty.h"
#include "host/core/values/ValueConversion.h"
#include "host/core/widgets/LockToggle.h"

#include <algorithm>

namespace Korvex::Meridane::Designer {

namespace {

bool isLocked(const QString& value)
{
    bool ok = false;
    return ValueConversion::toReal(value, &ok) > 0 && ok;
}

} // namespace

KeepRatioEditor::KeepRatioEditor(QWidget* parent)
    : StandardEditor(parent)
{}

KeepRatioEditor::~KeepRatioEditor() = default;

QString KeepRatioEditor::className() const
{
    return QStringLiteral("KeepRatioEditor");
}

bool KeepRatioEditor::createEditorWidget()
{
    m_toggle = new LockToggle(this);
    m_toggle->setAccessibleName(property()->name());
    if (const QString tip = property()->editorParameters().value(QStringLiteral("tooltip")).toString(); !tip.isEmpty())
        m_toggle->setToolTip(tip);
    connect(m_toggle, &LockToggle::userModified, this, [this] { edit(); });
    setEditorWidget(m_toggle);
    return true;
}

UndoCommand* KeepRatioEditor::createUpdateCommand(const QSharedPointer<DesignerProperty>& property,
                                                  const QString& value, UndoCommand* parent)
{
    const double ratio = isLocked(value) ? outerRatio(property->parentObject()) : 0;
    return StandardEditor::createUpdateCommand(property, ValueConversion::toString(ratio), parent);
}

bool KeepRatioEditor::showValue(const QString& value)
{
    bool locked = isLocked(value);
    if (isMixed()) {
        locked = std::all_of(properties().begin(), properties().end(),
                             [](const auto& each) { return isLocked(each->valueString()); });
    }
    m_toggle->setLocked(locked);
    return true;
}

QString KeepRatioEditor::widgetValue() const
{
    return ValueConversion::toString(m_toggle->isLocked() && property() ? outerRatio(property()->parentObject()) : 0.0);
}

} // namespace Korvex::Meridane::Designer
