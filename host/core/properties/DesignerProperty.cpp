#include "host/core/properties/DesignerProperty.h"

#include "host/core/properties/SharedText.h"

namespace Korvex::Meridane::Designer {

DesignerProperty::DesignerProperty(DesignerObject* parent, const QString& id, const QString& name)
    : m_parentObject(parent)
    , m_id(sharedText(id))
    , m_name(sharedText(name))
{}

DesignerProperty::~DesignerProperty() = default;

QString DesignerProperty::className() const
{
    return QStringLiteral("DesignerProperty");
}

QStringList DesignerProperty::classNames() const
{
    return {QStringLiteral("DesignerProperty")};
}

bool DesignerProperty::initialize()
{
    return true;
}

bool DesignerProperty::validateValue(QString& message) const
{
    message.clear();
    return !m_validator || m_validator(this, message);
}

bool DesignerProperty::validateObjectValue(QString& message) const
{
    message.clear();
    return true;
}

bool DesignerProperty::validateListItems(QString& message) const
{
    message.clear();
    return true;
}

QString DesignerProperty::valueString() const
{
    return isConverted() ? convertToValueString() : m_unconverted;
}

bool DesignerProperty::equalsValue(const QString& valueString) const
{
    return isConverted() ? valueIsEqual(valueString) : m_unconverted == valueString;
}

void DesignerProperty::fill(const QString& valueString)
{
    if (!convertToValue(valueString))
        m_unconverted = valueString.isNull() ? QStringLiteral("") : valueString;
}

QString DesignerProperty::toQml(int indent) const
{
    if (!isConverted())
        return {};
    return m_qmlCreator ? m_qmlCreator(this, indent) : convertToQml(indent);
}

void DesignerProperty::setEditor(const QString& editorClass, const QMap<QString, QVariant>& parameters)
{
    m_editor = sharedText(editorClass);
    m_editorParameters = parameters;
}

void DesignerProperty::rememberDefault()
{
    m_default = sharedText(valueString());
}

bool DesignerProperty::keepUnconverted(const QString& text)
{
    if (m_allowInvalidValue)
        m_unconverted = text.isNull() ? QStringLiteral("") : text;
    return m_allowInvalidValue;
}

} // namespace Korvex::Meridane::Designer
