#include "lines/PointListEditor.h"

#include "host/core/commands/UndoCommand.h"
#include "host/core/objects/DesignerObject.h"
#include "host/core/objects/ElementText.h"
#include "host/core/properties/DesignerProperty.h"
#include "host/core/values/ValueConversion.h"
#include "host/core/widgets/SpinBox.h"

#include "lines/GraphicsIrregularPolygon.h"
#include "lines/PointListWidget.h"

#include <cmath>

namespace Korvex::Meridane::Designer {

namespace {

QSharedPointer<DesignerProperty> sibling(const DesignerProperty& property, const char* id)
{
    const DesignerObject* object = property.parentObject();
    return object ? object->getProperty(QString::fromLatin1(id)) : nullptr;
}

QString siblingValue(const DesignerProperty& property, const char* id)
{
    const auto found = sibling(property, id);
    return found ? found->valueString() : QString();
}

/// Width / height of \a rect as outer sizes are rounded; 0 where there is no such ratio.
double ratioOf(const QRectF& rect)
{
    constexpr double Scale = 1e6;
    const double width = std::round(rect.width() * Scale);
    const double height = std::round(rect.height() * Scale);
    const double ratio = height > 0 ? width / height : 0;
    return std::isfinite(ratio) ? ratio : 0;
}

/// Whether the value string \a ratio stands for a ratio and not for none.
bool keepsRatio(const QString& ratio)
{
    bool ok = false;
    return ValueConversion::toReal(ratio, &ok) != 0 && ok;
}

/// Whether \a points are as many as the widget can show.
bool isEditable(const QPolygonF& points)
{
    return points.size() >= PointListWidget::FewestPoints && points.size() <= PointListWidget::MostPoints;
}

} // namespace

PointListEditor::PointListEditor(QWidget* parent)
    : StandardEditor(parent)
    , m_widget(new PointListWidget(this))
{
    for (int i = 0; i < PointListWidget::MostPoints; ++i) {
        joinSteps(m_widget->xField(i));
        joinSteps(m_widget->yField(i));
    }
    joinSteps(m_widget->rotationControl());
    connect(m_widget, &PointListWidget::userModified, this, &PointListEditor::onUserModified);
    connect(m_widget, &PointListWidget::pointSelected, this, &PointListEditor::markPoint);
    connect(this, &PropertyEditor::accepted, this, &PointListEditor::rememberBase);
    setEditorWidget(m_widget);
}

PointListEditor::~PointListEditor()
{
    unmarkPoints();
}

QString PointListEditor::className() const
{
    return QStringLiteral("PointListEditor");
}

bool PointListEditor::createEditorWidget()
{
    return true; // the constructor has done so
}

UndoCommand* PointListEditor::createUpdateCommand(const QSharedPointer<DesignerProperty>& property,
                                                  const QString& value, UndoCommand* parent)
{
    UndoCommand* command = StandardEditor::createUpdateCommand(property, value, parent);
    command->setText(elementText("Change Point List"));

    const bool turns = m_widget->lastEdit() == PointListWidget::Edit::Rotation;
    const State before = turns ? stateBefore(*property) : stateOf(*property);
    State after = before;
    after.points = value;
    if (value != before.points) {
        const bool pointsStay = m_widget->lastEdit() == PointListWidget::Edit::Coordinate
                                || m_widget->lastEdit() == PointListWidget::Edit::Removal;
        follow(before, pointsStay ? KeptPlace::Points : KeptPlace::Corner, after);
    }
    if (turns)
        m_turns.insert(property.data(), {before, after});

    if (const auto position = sibling(*property, "position"))
        StandardEditor::createUpdateCommand(position, after.position, command);
    if (keepsRatio(after.ratio))
        StandardEditor::createUpdateCommand(sibling(*property, "keepRatio"), after.ratio, command);
    return command;
}

bool PointListEditor::showValue(const QString& value)
{
    m_turns.clear();
    rememberBase();
    bool ok = false;
    const QPolygonF points = ValueConversion::toPolygon(value, &ok);
    if (isMixed())
        m_widget->showNoPoints(
            elementText("These elements have different points. Select one of them to edit its points."));
    else if (!ok)
        m_widget->showNoPoints(elementText("These points cannot be read."));
    else if (!isEditable(points))
        m_widget->showNoPoints(elementText("Points in this list: %1. Lists of %2 to %3 points can be edited here.")
                                   .arg(points.size())
                                   .arg(PointListWidget::FewestPoints)
                                   .arg(PointListWidget::MostPoints));
    else
        m_widget->setPointList(points);
    return ok;
}

QString PointListEditor::widgetValue() const
{
    return ValueConversion::toString(m_widget->pointList());
}

void PointListEditor::onUserModified()
{
    if (isLoading() || !property())
        return;
    if (property()->valueString() != m_base) {
        // The points have changed elsewhere since a coordinate was being typed: it counts for those points.
        SpinBox* field = m_widget->lastEdit() == PointListWidget::Edit::Coordinate ? m_widget->editedField() : nullptr;
        const double typed = field ? field->value() : 0;
        if (isPropertyChange())
            setChangedPropertyValue(property()->valueString());
        load();
        if (field)
            field->editValue(typed);
        return;
    }
    switch (m_widget->lastEdit()) {
    case PointListWidget::Edit::Coordinate:
    case PointListWidget::Edit::Rotation:
        break;
    case PointListWidget::Edit::None:
    case PointListWidget::Edit::Removal:
    case PointListWidget::Edit::Replacement:
        endSteps();
        break;
    }
    edit();
    rememberBase();
}

void PointListEditor::rememberBase()
{
    if (property())
        m_base = property()->valueString();
}

/// Marks the point \a index of the edited elements on the canvas; none for -1.
void PointListEditor::markPoint(int index)
{
    unmarkPoints();
    if (index < 0)
        return;
    for (const auto& edited : properties()) {
        DesignerObject* object = edited->parentObject();
        if (auto* item = dynamic_cast<GraphicsIrregularPolygon*>(object->graphicsItem())) {
            item->setHighlightedPoint(index);
            m_marked.append(object);
        }
    }
}

void PointListEditor::unmarkPoints()
{
    for (const auto& object : std::exchange(m_marked, {})) {
        if (auto* item = object ? dynamic_cast<GraphicsIrregularPolygon*>(object->graphicsItem()) : nullptr)
            item->setHighlightedPoint(-1);
    }
}

/// Brings position and ratio of \a after into line with its points.
void PointListEditor::follow(const State& before, KeptPlace kept, State& after)
{
    const QPolygonF from = ValueConversion::toPolygon(before.points);
    const QPolygonF to = ValueConversion::toPolygon(after.points);
    bool ok = false;
    const QPointF position = ValueConversion::toPoint(before.position, &ok);
    if (ok && !from.isEmpty() && !to.isEmpty()) {
        const RotationInfo rotation = ValueConversion::toRotationInfo(before.rotation);
        after.position = ValueConversion::toString(
            positionKeepingPlace(position, rotation, from.boundingRect(), to.boundingRect(), kept));
    }
    const double ratio = ratioOf(to.boundingRect());
    if (ratio > 0 && keepsRatio(before.ratio))
        after.ratio = ValueConversion::toString(ratio);
}

/// The state from which \a property is being turned: that before the first of the turns, as long as nothing else has
/// changed the element since the last one, so that the way back leads exactly there.
PointListEditor::State PointListEditor::stateBefore(const DesignerProperty& property) const
{
    const State present = stateOf(property);
    const auto turn = m_turns.constFind(&property);
    return turn != m_turns.constEnd() && turn->after == present ? turn->before : present;
}

PointListEditor::State PointListEditor::stateOf(const DesignerProperty& property)
{
    return {property.valueString(), siblingValue(property, "position"), siblingValue(property, "keepRatio"),
            siblingValue(property, "rotation")};
}

} // namespace Korvex::Meridane::Designer
