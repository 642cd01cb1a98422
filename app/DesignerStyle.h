#pragma once

#include <QProxyStyle>

namespace Korvex::Meridane::Designer {

/// The look of the window: Fusion on every platform, because dense property editors are laid out for it, with our own
/// line icons and some more air in the panels' titles, and a plain tool bar without shades that suit one palette only.
class DesignerStyle : public QProxyStyle
{
    Q_OBJECT

public:
    DesignerStyle();

    [[nodiscard]] QIcon standardIcon(StandardPixmap pixmap, const QStyleOption* option = nullptr,
                                     const QWidget* widget = nullptr) const override;
    [[nodiscard]] int pixelMetric(PixelMetric metric, const QStyleOption* option = nullptr,
                                  const QWidget* widget = nullptr) const override;
    [[nodiscard]] int styleHint(StyleHint hint, const QStyleOption* option = nullptr, const QWidget* widget = nullptr,
                                QStyleHintReturn* result = nullptr) const override;
    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget = nullptr) const override;
};

} // namespace Korvex::Meridane::Designer
