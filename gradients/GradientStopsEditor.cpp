#include "gradients/GradientStopsEditor.h"

#include "gradients/GradientStopWidget.h"
#include "gradients/GradientStopsProperty.h"
#include "gradients/WholePercent.h"

#include "host/core/objects/ElementText.h"
#include "host/core/properties/DesignerProperty.h"
#include "host/core/values/ValueConversion.h"
#include "host/core/widgets/ColorWidget.h"
#include "host/core/widgets/SpinBox.h"

#include <algorithm>

namespace Korvex::Meridane::Designer {

namespace {

bool isShowable(const QGradientStop& stop)
{
    const int percent = wholePercent(stop.first);
    return percent >= 0 && percent <= 100;
}

} // namespace

GradientStopsEditor::GradientStopsEditor(QWidget* parent)
    : StandardEditor(parent)
{
    connect(this, &PropertyEditor::accepted, this, &GradientStopsEditor::rememberBase);
}

GradientStopsEditor::~GradientStopsEditor() = default;

QString GradientStopsEditor::className() const
{
    return QStringLiteral("GradientStopsEditor");
}

bool GradientStopsEditor::createEditorWidget()
{
    m_widget = new GradientStopsWidget(this);
    for (GradientStopWidget* row : m_widget->rows())
        joinStepsOf(row);
    connect(m_widget, &GradientStopsWidget::rowAdded, this, &GradientStopsEditor::joinStepsOf);
    connect(m_widget, &GradientStopsWidget::aboutToModify, this, &GradientStopsEditor::prepareEdit);
    connect(m_widget, &GradientStopsWidget::userModified, this, [this] { edit(); });
    setEditorWidget(m_widget);
    return true;
}

void GradientStopsEditor::propertyReplaced()
{
    if (m_widget)
        m_widget->resetNewStop();
}

bool GradientStopsEditor::showValue(const QString& value)
{
    rememberBase();
    bool ok = false;
    const QGradientStops stops = ValueConversion::toGradientStops(value, &ok);
    if (isMixed())
        m_widget->showNoStops(elementText(
            "These elements have different gradient stops. Select one of them to edit its gradient stops."));
    else if (!ok)
        m_widget->showNoStops(elementText("These gradient stops cannot be read."));
    else if (stops.size() < GradientStopsProperty::FewestStops || stops.size() > GradientStopsProperty::MostStops)
        m_widget->showNoStops(
            elementText("Gradient stops in this list: %1. Lists of %2 to %3 gradient stops can be edited here.")
                .arg(stops.size())
                .arg(GradientStopsProperty::FewestStops)
                .arg(GradientStopsProperty::MostStops));
    else if (!std::all_of(stops.begin(), stops.end(), isShowable))
        m_widget->showNoStops(elementText("Only gradient stops between 0% and 100% can be edited here."));
    else
        m_widget->setGradientStops(stops);
    return ok;
}

QString GradientStopsEditor::widgetValue() const
{
    return ValueConversion::toString(m_widget->gradientStops());
}

void GradientStopsEditor::joinStepsOf(GradientStopWidget* row)
{
    joinSteps(row->positionField());
    joinSteps(row->colorPicker());
}

/// Brings the stops up to date: the sheet leaves an editor alone while the user types in it.
void GradientStopsEditor::prepareEdit(GradientStopsWidget::Edit edit)
{
    if (edit == GradientStopsWidget::Edit::Count)
        endSteps();
    const auto isStale = [this](const auto& edited) { return edited->valueString() != m_base; };
    if (std::none_of(properties().begin(), properties().end(), isStale))
        return;
    const QString present = property()->valueString();
    if (isPropertyChange()) {
        const bool alike = std::all_of(properties().begin(), properties().end(),
                                       [&present](const auto& edited) { return edited->equalsValue(present); });
        setMixedComponents(alike ? QStringList() : QStringList{QString()});
        setChangedPropertyValue(present);
    }
    load();
}

void GradientStopsEditor::rememberBase()
{
    if (property())
        m_base = property()->valueString();
}

} // namespace Korvex::Meridane::Designer
