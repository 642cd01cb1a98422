#include "lines/FocusRealEditor.h"

#include "lines/GraphicsLine.h"

#include "host/core/objects/DesignerObject.h"
#include "host/core/properties/DesignerProperty.h"
#include "host/core/widgets/NumberWidget.h"

#include <QVariant>

#include <utility>

namespace Korvex::Meridane::Designer {

namespace {

/// Nothing happens where \a object is not, or no longer, a line on the canvas.
void showStartPoint(const DesignerObject* object, bool show)
{
    if (auto* line = object ? dynamic_cast<GraphicsLine*>(object->graphicsItem()) : nullptr)
        line->setShowStartPoint(show);
}

} // namespace

FocusRealEditor::FocusRealEditor(QWidget* parent)
    : NumberEditor(false, parent)
{}

FocusRealEditor::~FocusRealEditor()
{
    onFocusedOut();
}

QString FocusRealEditor::className() const
{
    return QStringLiteral("FocusRealEditor");
}

bool FocusRealEditor::createEditorWidget()
{
    constexpr double DefaultMinimum = 0;
    constexpr double DefaultMaximum = 100;
    if (!NumberEditor::createEditorWidget())
        return false;
    if (!parameter("minimum").isValid())
        numberWidget()->setMinimum(DefaultMinimum);
    if (!parameter("maximum").isValid())
        numberWidget()->setMaximum(DefaultMaximum);
    connect(numberWidget(), &NumberWidget::focusedIn, this, &FocusRealEditor::onFocusedIn);
    connect(numberWidget(), &NumberWidget::focusedOut, this, &FocusRealEditor::onFocusedOut);
    return true;
}

void FocusRealEditor::propertyReplaced()
{
    NumberEditor::propertyReplaced();
    if (!m_marked.isEmpty())
        onFocusedIn();
}

void FocusRealEditor::onFocusedIn()
{
    QList<DesignerObject*> objects;
    for (const auto& edited : properties())
        objects.append(edited->parentObject());
    mark(objects);
}

void FocusRealEditor::onFocusedOut()
{
    mark({});
}

/// Marks the start points of \a objects, and of no others.
void FocusRealEditor::mark(const QList<DesignerObject*>& objects)
{
    const QList<QPointer<DesignerObject>> before = std::exchange(m_marked, {objects.cbegin(), objects.cend()});
    for (const auto& object : before) {
        if (!objects.contains(object))
            showStartPoint(object, false);
    }
    for (const DesignerObject* object : objects)
        showStartPoint(object, true);
}

} // namespace Korvex::Meridane::Designer
