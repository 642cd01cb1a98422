#pragma once

#include "runtime/BorderedItem.h"

namespace Korvex::Meridane::Display {
/** A filled ellipse with a border centred on its outline. */
class Ellipse : public Korvex::Meridane::Display::BorderedItem
{
    Q_OBJECT
    QML_ELEMENT

public:
    explicit Ellipse(QQuickItem* parent = nullptr);

protected:
    void paintContent(QPainter* painter) const override;
};
} // namespace Korvex::Meridane::Display
