#include "host/core/canvas/EditGesture.h"

#include "host/core/canvas/CanvasView.h"
#include "host/core/canvas/EditSession.h"
#include "host/core/canvas/GraphicsItem.h"
#include "host/core/commands/ChangeProperty.h"
#include "host/core/objects/DesignerObject.h"
#include "host/core/project/Project.h"
#include "host/core/properties/DesignerProperty.h"
#include "host/core/values/ValueConversion.h"

#include "host/common/LocalizationHelper.h"

#include <cmath>

namespace Korvex::Meridane::Designer {

using Common::LocalizationHelper;

EditGesture::EditGesture(CanvasView* view, const CanvasPointer& press)
    : Gesture(view)
    , m_press(press)
    , m_snapping(view)
{}

EditGesture::~EditGesture() = default;

void EditGesture::begin(const QList<DesignerObject*>& objects)
{
    if (hasBegun())
        return;
    m_objects = {objects.cbegin(), objects.cend()};
    m_record.take(objects);
}

GraphicsItem* EditGesture::item() const
{
    const DesignerObject* grabbed = m_objects.isEmpty() ? nullptr : m_objects.first().data();
    return grabbed ? grabbed->graphicsItem() : nullptr;
}

QPointF EditGesture::wayTo(const CanvasPointer& pointer) const
{
    const QPointF way = pointer.scenePos - m_press.scenePos;
    const bool exact = view()->zoom() == 1 && !view()->aids().snapping;
    return exact ? way : QPointF(std::round(way.x()), std::round(way.y()));
}

void EditGesture::finish(const CanvasPointer& pointer)
{
    move(pointer);
    if (!hasBegun())
        return;
    auto command = std::make_unique<UndoCommand>();
    fill(command.get());
    end();
    command->adopt(m_record.changes());
    const DesignerObject* grabbed = m_objects.first();
    command->setText(m_objects.size() == 1 && grabbed ? stepName().arg(grabbed->getIdName())
                                                      : stepNameOfSeveral(int(m_objects.size())));
    command->setAllOrNothing(true);
    if (command->childCommandCount() == 0 && !command->hasEffect()) {
        m_record.restore();
        return;
    }
    EditSession* session = view()->session();
    const EditResult result = session->project()->execute(std::move(command));
    if (!result.changed)
        m_record.restore();
    if (!result.accepted)
        Q_EMIT session->editRefused(result.message);
}

void EditGesture::cancel()
{
    m_record.restore();
    end();
}

QString EditGesture::readout() const
{
    const GraphicsItem* grabbed = item();
    if (!hasBegun() || !grabbed)
        return {};
    const QPointF position = ValueConversion::toPoint(pendingValue(QStringLiteral("position")));
    const QSizeF outer = grabbed->outerRect().size();
    const auto number = [](double value) { return ValueConversion::toQmlString(value, 2); };
    return LocalizationHelper::coreString(QStringLiteral("x %1, y %2, %3 × %4"))
        .arg(number(position.x()), number(position.y()), number(outer.width()), number(outer.height()));
}

QVector<PropertyChange> EditGesture::pendingChanges() const
{
    UndoCommand thrownAway;
    if (hasBegun())
        fill(&thrownAway);
    QVector<PropertyChange> pending;
    for (int i = 0; i < thrownAway.childCommandCount(); ++i) {
        const auto* change = dynamic_cast<const ChangeProperty*>(thrownAway.childCommand(i));
        if (change && change->property()->valueString() != change->value())
            pending.append({change->property(), change->property()->valueString(), change->value()});
    }
    return pending;
}

void EditGesture::paint(QPainter* painter) const
{
    m_snapping.paint(painter);
}

QRegion EditGesture::paintedRegion() const
{
    return m_snapping.region();
}

QString EditGesture::pendingValue(const QString& id) const
{
    const DesignerObject* grabbed = m_objects.isEmpty() ? nullptr : m_objects.first().data();
    const auto property = grabbed ? grabbed->getProperty(id) : QSharedPointer<DesignerProperty>();
    if (!property)
        return {};
    UndoCommand thrownAway;
    m_record.fill(0, &thrownAway);
    for (int i = 0; i < thrownAway.childCommandCount(); ++i) {
        const auto* change = dynamic_cast<const ChangeProperty*>(thrownAway.childCommand(i));
        if (change && change->property() == property)
            return change->value();
    }
    return property->valueString();
}

void EditGesture::fill(UndoCommand* parent) const
{
    for (qsizetype i = 0; i < m_objects.size(); ++i)
        m_record.fill(i, parent);
}

} // namespace Korvex::Meridane::Designer
