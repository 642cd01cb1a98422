#pragma once

#include "runtime/BorderedItem.h"

namespace Korvex::Meridane::Display {
/** A filled rectangle with a border centred on its outline and, if wished, round corners. */
class Rectangle2 : public Korvex::Meridane::Display::BorderedItem
{
    Q_OBJECT
    /** The radius of the outline's corners in pixels, limited to half the smaller side; 0 gives sharp corners. */
    Q_PROPERTY(int cornerRadius READ cornerRadius WRITE setCornerRadius NOTIFY cornerRadiusChanged FINAL)
    QML_ELEMENT

public:
    explicit Rectangle2(QQuickItem* parent = nullptr);

    [[nodiscard]] int cornerRadius() const;
    void setCornerRadius(int radius);

Q_SIGNALS:
    void cornerRadiusChanged();

protected:
    void paintContent(QPainter* painter) const override;

private:
    int m_cornerRadius = 0;
};
} // namespace Korvex::Meridane::Display
