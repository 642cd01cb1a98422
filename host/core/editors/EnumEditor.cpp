#include "host/core/editors/EnumEditor.h"

#include "host/core/properties/EnumProperty.h"
#include "host/core/widgets/ComboBox.h"

#include "host/common/EnumHelper.h"

#include <QVariant>

namespace Korvex::Meridane::Designer {

using Common::EnumHelper;

EnumEditor::EnumEditor(QWidget* parent)
    : StandardEditor(parent)
{}

EnumEditor::~EnumEditor() = default;

QString EnumEditor::className() const
{
    return QStringLiteral("EnumEditor");
}

bool EnumEditor::createEditorWidget()
{
    const QString name = parameter("enumName").toString();
    QMetaEnum metaEnum = EnumHelper::createEnum(name);
    if (!metaEnum.isValid()) {
        if (const auto* enumProperty = dynamic_cast<const EnumProperty*>(property().data()))
            metaEnum = enumProperty->value().metaEnum();
    }
    if (!metaEnum.isValid())
        return false;
    const QMap<QString, QString> texts = EnumHelper::getEnumNames(metaEnum.enumName());
    m_box = new ComboBox({}, this);
    for (int i = 0; i < metaEnum.keyCount(); ++i) {
        const QString key = QString::fromLatin1(metaEnum.key(i));
        m_box->addKeyedItem(key, texts.value(key, key));
    }
    m_box->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    m_box->setAccessibleName(property()->name());
    connect(m_box, &ComboBox::userModified, this, [this] { edit(); });
    setEditorWidget(m_box);
    return true;
}

bool EnumEditor::showValue(const QString& value)
{
    m_box->setCurrentItemKey(value);
    const bool ok = m_box->currentIndex() >= 0;
    m_box->setMixed(isMixed());
    return ok;
}

QString EnumEditor::widgetValue() const
{
    return m_box->currentItemKey();
}

} // namespace Korvex::Meridane::Designer
