#pragma once

#include "host/core/CoreExport.h"

#include <QtGui/QColor>
#include <QtWidgets/QAbstractButton>

namespace Korvex::Meridane::Designer {
/** A button filled with a colour, over a checkerboard where the colour is translucent. */
class MERIDANE_CORE_EXPORT ColorSwatch : public QAbstractButton
{
    Q_OBJECT

public:
    explicit ColorSwatch(QWidget* parent = nullptr);

    [[nodiscard]] const QColor& color() const { return m_color; }
    void setColor(const QColor& color);

    /** Shows "—" instead of a colour. */
    void setMixed(bool mixed);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void enterEvent(QEnterEvent* event) override;
    void leaveEvent(QEvent* event) override;

private:
    void describe();

    QColor m_color = QColor(Qt::black);
    bool m_mixed = false;
};
} // namespace Korvex::Meridane::Designer
