#pragma once

#include "host/common/TransformOrigin.h"

#include <QtQml/qqmlregistration.h>
#include <QtQuick/QQuickItem>

namespace Korvex::Meridane::Display {
/** Base of everything on a screen that can be turned: a QQuickItem whose fixed point of rotation goes by its name. */
class DisplayElement : public QQuickItem
{
    Q_OBJECT
    /**
     * The point about which "rotation" turns the element: "TopLeft", "Top", "TopRight", "Left", "Center" (the default),
     * "Right", "BottomLeft", "Bottom" or "BottomRight" of its content. Any other text is refused with a warning.
     */
    Q_PROPERTY(QString fixedPoint READ fixedPoint WRITE setFixedPoint NOTIFY fixedPointChanged FINAL)
    QML_ANONYMOUS

public:
    explicit DisplayElement(QQuickItem* parent = nullptr);

    [[nodiscard]] QString fixedPoint() const;
    void setFixedPoint(const QString& name);

Q_SIGNALS:
    void fixedPointChanged();

protected:
    [[nodiscard]] Common::TransformOrigin fixedOrigin() const { return m_fixedOrigin; }
    /** Makes the item turn about fixedOrigin(): of its own rectangle, unless overridden. */
    virtual void applyFixedPoint();

private:
    Common::TransformOrigin m_fixedOrigin = Common::Center;
};
} // namespace Korvex::Meridane::Display
