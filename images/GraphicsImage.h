#pragma once

#include "host/core/canvas/GraphicsFrameItem.h"

#include <memory>

namespace Korvex::Meridane::Designer {

class ImageUpdater;

/// The canvas item of the image. A moving picture plays while the item or its group is selected. Alt+O gives the element
/// the natural size of its picture.
class GraphicsImage : public GraphicsFrameItem
{
public:
    explicit GraphicsImage(DesignerObject* dataObject);
    ~GraphicsImage() override;

    [[nodiscard]] QString className() const override;
    [[nodiscard]] QStringList classNames() const override;
    void updateGraphicsItem(const QSharedPointer<DesignerProperty>& property) override;
    void selectedChanged(bool selected) override;

    [[nodiscard]] const ImageUpdater& updater() const { return *m_updater; }

protected:
    void paintContent(QPainter* painter) override;
    [[nodiscard]] bool acceptsSize(const QSizeF& size) const override;
    /// With a kept ratio pictures have whole sizes.
    [[nodiscard]] QSizeF resizedTo(const QSizeF& outerSize) const override;
    QVariant itemChange(GraphicsItemChange change, const QVariant& value) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    /// Shows the picture that the element names, which is loaded when its file is another one than before.
    void showSource();
    /// Loads the picture again: the file may have other content than before.
    void reload();
    void playWhereSelected();
    [[nodiscard]] bool takesPartInSelection() const;

    QString m_path;
    std::unique_ptr<ImageUpdater> m_updater;
};

} // namespace Korvex::Meridane::Designer
