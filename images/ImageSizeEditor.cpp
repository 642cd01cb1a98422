#include "images/ImageSizeEditor.h"

#include "images/ImageFile.h"
#include "images/ImageSizeWidget.h"

#include "host/core/commands/ChangeProperty.h"
#include "host/core/editors/KeptRatio.h"
#include "host/core/objects/DesignerObject.h"
#include "host/core/objects/ElementText.h"
#include "host/core/project/Project.h"
#include "host/core/properties/DesignerProperty.h"
#include "host/core/values/ValueConversion.h"
#include "host/core/widgets/SizeWidget.h"

#include <algorithm>

namespace Korvex::Meridane::Designer {

ImageSizeEditor::ImageSizeEditor(QWidget* parent)
    : SizeEditor(parent)
{}

ImageSizeEditor::~ImageSizeEditor() = default;

QString ImageSizeEditor::className() const
{
    return QStringLiteral("ImageSizeEditor");
}

QWidget* ImageSizeEditor::createWidgets(SizeWidget** sizeWidget)
{
    m_widget = new ImageSizeWidget(this);
    connect(m_widget, &ImageSizeWidget::imageSizeWanted, this, &ImageSizeEditor::setToImageSize);
    *sizeWidget = m_widget->sizeWidget();
    followProject();
    takePicture();
    return m_widget;
}

void ImageSizeEditor::propertyReplaced()
{
    SizeEditor::propertyReplaced();
    followProject();
    takePicture();
}

/// An element announces its new source to its own editor; that of several elements hears of the others from the project.
void ImageSizeEditor::followProject()
{
    Project* project = property() ? Project::parentProject(property()->parentObject()) : nullptr;
    if (project == m_project)
        return;
    if (m_project)
        m_project->disconnect(this);
    m_project = project;
    if (!project)
        return;
    connect(project, &Project::imageFileChanged, this, &ImageSizeEditor::takePicture);
    connect(project, &Project::objectPropertyChanged, this,
            [this](const DesignerObject*, const QSharedPointer<DesignerProperty>& changed) {
                if (changed && changed->id() == QLatin1String("source"))
                    takePicture();
            });
}

void ImageSizeEditor::takePicture()
{
    if (!m_widget)
        return;
    const QList<QSharedPointer<DesignerProperty>>& edited = properties();
    m_widget->setButtonEnabled(std::any_of(edited.cbegin(), edited.cend(), [](const auto& property) {
        return !naturalSizeOf(property->parentObject()).isEmpty();
    }));
}

void ImageSizeEditor::setToImageSize()
{
    if (!isPropertyChange()) {
        setOneToImageSize();
        return;
    }
    // What is changed directly while a click is handled becomes one step of the sheet.
    const QList<QSharedPointer<DesignerProperty>> edited = properties();
    for (const auto& outerSize : edited) {
        DesignerObject* element = outerSize->parentObject();
        const QSize natural = naturalSizeOf(element);
        if (!natural.isEmpty()) {
            element->changePropertyValue(element->getProperty(QStringLiteral("size")),
                                         ValueConversion::toString(QSizeF(natural)));
        }
    }
}

void ImageSizeEditor::setOneToImageSize()
{
    DesignerObject* element = property() ? property()->parentObject() : nullptr;
    Project* project = Project::parentProject(element);
    const QSize natural = naturalSizeOf(element);
    if (!project || natural.isEmpty() || natural == m_widget->sizeWidget()->value().toSize())
        return;
    const double newRatio = double(natural.width()) / natural.height();
    const double ratio = keptRatio(element);
    auto* command = new UndoCommand;
    command->setText(elementText("Set to Image Size"));
    // The commands belong to their parent.
    new ChangeProperty(element->getProperty(QStringLiteral("size")), ValueConversion::toString(QSizeF(natural)), true,
                       command);
    if (ratio > 0 && ratio != newRatio) {
        new ChangeProperty(element->getProperty(QStringLiteral("keepRatio")), ValueConversion::toString(newRatio), true,
                           command);
    }
    project->emitUserModified(command);
}

} // namespace Korvex::Meridane::Designer
