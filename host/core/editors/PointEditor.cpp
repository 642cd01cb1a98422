#include "host/core/editors/PointEditor.h"

#include "host/core/properties/DesignerProperty.h"
#include "host/core/values/ValueConversion.h"
#include "host/core/widgets/SpinBox.h"

#include "host/common/LocalizationHelper.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QVariant>

namespace Korvex::Meridane::Designer {

using Common::LocalizationHelper;

PointEditor::PointEditor(QWidget* parent)
    : StandardEditor(parent)
{}

PointEditor::~PointEditor() = default;

QString PointEditor::className() const
{
    return QStringLiteral("PointEditor");
}

bool PointEditor::createEditorWidget()
{
    constexpr double Limit = 99999;
    const QPointF minimum = parameter("minimumValue", QPointF(-Limit, -Limit)).toPointF();
    const QPointF maximum = parameter("maximumValue", QPointF(Limit, Limit)).toPointF();
    auto* widget = new QWidget(this);
    auto* box = new QHBoxLayout(widget);
    box->setContentsMargins(0, 0, 0, 0);
    const auto add = [&](const char* component, const char* label, double low, double high) {
        auto* name = new QLabel(LocalizationHelper::coreString(QString::fromLatin1(label)), widget);
        SpinBox* field = createField(QString::fromLatin1(component), name->text(), low, high);
        name->setBuddy(field);
        box->addWidget(name);
        box->addWidget(field, 1);
        return field;
    };
    m_x = add("x", "X", minimum.x(), maximum.x());
    m_y = add("y", "Y", minimum.y(), maximum.y());
    widget->setFocusProxy(m_x);
    setEditorWidget(widget);
    return true;
}

UndoCommand* PointEditor::createUpdateCommand(const QSharedPointer<DesignerProperty>& property, const QString& value,
                                              UndoCommand* parent)
{
    bool presentOk = false;
    bool wantedOk = false;
    const QPointF present = ValueConversion::toPoint(property->valueString(), &presentOk);
    QPointF wanted = ValueConversion::toPoint(value, &wantedOk);
    if (!wantedOk || !m_x)
        return StandardEditor::createUpdateCommand(property, value, parent);
    if (!presentOk || wanted.x() != present.x())
        wanted.setX(m_x->adjusted(wanted.x()));
    if (!presentOk || wanted.y() != present.y())
        wanted.setY(m_y->adjusted(wanted.y()));
    return StandardEditor::createUpdateCommand(property, ValueConversion::toString(wanted), parent);
}

bool PointEditor::showValue(const QString& value)
{
    bool ok = false;
    const QPointF point = ValueConversion::toPoint(value, &ok);
    if (ok) {
        m_x->setValue(point.x());
        m_y->setValue(point.y());
    }
    m_x->setMixed(isMixed(QStringLiteral("x")) || !ok);
    m_y->setMixed(isMixed(QStringLiteral("y")) || !ok);
    return ok;
}

QString PointEditor::widgetValue() const
{
    return ValueConversion::toString(QPointF(m_x->value(), m_y->value()));
}

SpinBox* PointEditor::createField(const QString& component, const QString& label, double minimum, double maximum)
{
    auto* field = new SpinBox(false, this);
    field->setDecimals(parameter("decimals", 2).toInt());
    field->setRange(minimum, maximum);
    field->setSuffix(parameter("suffix").toString());
    field->setRelativeInputAllowed(true);
    field->setAccessibleName(QStringLiteral("%1 %2").arg(property()->name(), label));
    joinSteps(field);
    connect(field, &SpinBox::userModified, this,
            [this, component, field] { edit(component, operationText(field->operation())); });
    return field;
}

} // namespace Korvex::Meridane::Designer
