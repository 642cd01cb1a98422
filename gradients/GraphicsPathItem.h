#pragma once

#include "host/core/canvas/GraphicsOutline.h"

#include <QBrush>

namespace Korvex::Meridane::Designer {

/// The canvas item of the path.
class GraphicsPathItem : public GraphicsOutline
{
public:
    explicit GraphicsPathItem(DesignerObject* dataObject);
    ~GraphicsPathItem() override;

    [[nodiscard]] QString className() const override;
    [[nodiscard]] QStringList classNames() const override;
    void updateGraphicsItem(const QSharedPointer<DesignerProperty>& property) override;

protected:
    void paintOutline(QPainter* painter) override;

private:
    QBrush m_brush;
};

} // namespace Korvex::Meridane::Designer
