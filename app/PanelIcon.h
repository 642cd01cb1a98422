#pragma once

#include <QIcon>
#include <QIconEngine>

namespace Korvex::Meridane::Designer {

/// The outline of a panel of some size, in the colours of the window. Panels of all sizes are drawn to one scale.
class PanelIcon : public QIconEngine
{
public:
    /// \a panel in pixels; an invalid size draws the corners of one that is still open.
    explicit PanelIcon(const QSize& panel);
    [[nodiscard]] static QIcon of(const QSize& panel);

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State state) override;
    [[nodiscard]] QIconEngine* clone() const override;

private:
    QSize m_panel;
};

} // namespace Korvex::Meridane::Designer
