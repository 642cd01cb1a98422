#include "images/GraphicsImage.h"

#include "images/ImageFile.h"
#include "images/ImageUpdater.h"

#include "host/core/commands/ChangeProperty.h"
#include "host/core/objects/DesignerObject.h"
#include "host/core/project/Project.h"
#include "host/core/properties/DesignerProperty.h"
#include "host/core/values/ValueConversion.h"

#include "host/common/LocalizationHelper.h"

#include <QKeyEvent>

namespace Korvex::Meridane::Designer {

GraphicsImage::GraphicsImage(DesignerObject* dataObject)
    : GraphicsFrameItem(dataObject, QSizeF(200, 200))
    , m_updater(std::make_unique<ImageUpdater>(this))
{
    m_updater->setImageFile({});
    if (Project* project = Project::parentProject(dataObject)) {
        QObject::connect(project, &Project::imageFileChanged, m_updater.get(), [this](const QString& fileName) {
            if (imageNameOf(this->dataObject()) == fileName)
                reload();
        });
    }
}

GraphicsImage::~GraphicsImage() = default;

QString GraphicsImage::className() const
{
    return QStringLiteral("GraphicsImage");
}

QStringList GraphicsImage::classNames() const
{
    return GraphicsItem::classNames() << QStringLiteral("GraphicsImage");
}

void GraphicsImage::updateGraphicsItem(const QSharedPointer<DesignerProperty>& property)
{
    GraphicsFrameItem::updateGraphicsItem(property);
    if (property && property->id() == QLatin1String("source"))
        showSource();
}

void GraphicsImage::selectedChanged(bool selected)
{
    if (selected)
        m_updater->startAnimation();
    else
        m_updater->stopAnimation();
}

void GraphicsImage::paintContent(QPainter* painter)
{
    m_updater->paint(size(), painter);
}

bool GraphicsImage::acceptsSize(const QSizeF& size) const
{
    return size.width() >= 1 && size.height() >= 1;
}

QSizeF GraphicsImage::resizedTo(const QSizeF& outerSize) const
{
    return keptRatio() > 0 ? QSizeF(outerSize.toSize().expandedTo(QSize(1, 1))) : outerSize;
}

QVariant GraphicsImage::itemChange(GraphicsItemChange change, const QVariant& value)
{
    if (change == ItemSelectedHasChanged)
        selectedChanged(value.toBool());
    else if (change == ItemEnabledHasChanged && !value.toBool())
        m_updater->unload(); // a selected item has been deselected by Qt before, and stands on its first frame
    else if (change == ItemEnabledHasChanged && value.toBool())
        reload(); // what was given up can be played again
    return QGraphicsItem::itemChange(change, value);
}

void GraphicsImage::keyPressEvent(QKeyEvent* event)
{
    const auto property =
        dataObject() ? dataObject()->getProperty(QStringLiteral("size")) : QSharedPointer<DesignerProperty>();
    Project* project = Project::parentProject(dataObject());
    if (event->modifiers() != Qt::AltModifier || event->key() != Qt::Key_O || !property || !project) {
        QGraphicsItem::keyPressEvent(event);
        return;
    }
    // Not of the path that was loaded: the project may have been saved elsewhere since.
    const QSize natural = naturalSizeOf(dataObject());
    if (natural.isEmpty() || QSizeF(natural) == size())
        return;
    auto* command = new ChangeProperty(property, ValueConversion::toString(QSizeF(natural)), true, nullptr);
    command->setText(Common::LocalizationHelper::coreString(QStringLiteral("Change %1")).arg(property->name()));
    project->emitUserModified(command);
}

void GraphicsImage::showSource()
{
    const QString path = imageFileOf(dataObject());
    if (path != m_path) {
        m_path = path;
        m_updater->setImageFile(path);
    }
    playWhereSelected();
}

void GraphicsImage::reload()
{
    m_path = imageFileOf(dataObject());
    m_updater->setImageFile(m_path);
    playWhereSelected();
}

void GraphicsImage::playWhereSelected()
{
    if (takesPartInSelection())
        m_updater->startAnimation();
}

/// Whether the item, or the group that it is in, is selected.
bool GraphicsImage::takesPartInSelection() const
{
    return isSelected() || (parentItem() && fromGraphic(parentItem()) && parentItem()->isSelected());
}

} // namespace Korvex::Meridane::Designer
