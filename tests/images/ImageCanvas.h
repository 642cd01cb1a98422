#pragma once

#include "images/GraphicsImage.h"
#include "images/ImageUpdater.h"

#include "host/core/canvas/ScreenRenderer.h"

#include "host/common/Picture.h"

#include "tests/canvas/CanvasFixture.h"
#include "tests/images/ProjectImages.h"

namespace Korvex::Meridane::Designer::Test {

/// Images of the real plug-in on a real canvas, in a project with files.
class ImageCanvas : public CanvasFixture
{
public:
    ImageCanvas() { files.serve(project); }

    /// An image at (100, 100), not selected; the history is empty afterwards.
    DesignerObject* addImage(const QString& source, const QSizeF& size = {80, 60}, const QPointF& position = {100, 100})
    {
        QMap<QString, QString> properties{
            {QStringLiteral("position"), QStringLiteral("%1,%2").arg(position.x()).arg(position.y())},
            {QStringLiteral("size"), QStringLiteral("%1,%2").arg(size.width()).arg(size.height())}};
        if (!source.isEmpty())
            properties.insert(QStringLiteral("source"), source);
        DesignerObject* image = add("Image", properties);
        select({});
        return image;
    }
    void setSource(DesignerObject* image, const QString& source) { set(image, "source", source); }

    static GraphicsImage* item(const DesignerObject* image)
    {
        auto* item = dynamic_cast<GraphicsImage*>(image->graphicsItem());
        if (!item)
            qFatal("no image");
        return item;
    }
    static const ImageUpdater& updater(const DesignerObject* image) { return item(image)->updater(); }
    static bool plays(const DesignerObject* image) { return updater(image).picture().isRunning(); }
    static int frame(const DesignerObject* image) { return updater(image).picture().frame(); }

    /// The screen as it stands on the canvas, and a part of it.
    QImage picture() { return ScreenRenderer::render(scene()); }
    QImage picture(const QRect& part) { return picture().copy(part); }

    ProjectImages files;
};

} // namespace Korvex::Meridane::Designer::Test
