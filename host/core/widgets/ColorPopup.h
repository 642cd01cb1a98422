#pragma once

#include "host/core/CoreExport.h"
#include "host/core/widgets/TransparentOption.h"

#include <QtGui/QColor>
#include <QtWidgets/QFrame>

class QGridLayout;
class QToolButton;

namespace Korvex::Meridane::Designer {
class ColorChannelSlider;
class ColorSwatch;
class HexColorField;
class HueSaturationField;
class ScreenColorPicker;

/**
 * The popup of a colour field: hue and saturation, brightness, alpha where it is allowed, the colour as text, the recent
 * colours, and a picker for a colour on the screen. Changes are reported as they are made; Escape takes all of them
 * back, Enter and a click outside keep them.
 */
class MERIDANE_CORE_EXPORT ColorPopup : public QFrame
{
    Q_OBJECT

public:
    explicit ColorPopup(TransparentOption transparency, QWidget* parent = nullptr);
    ~ColorPopup() override;

    /** Opens with @p color below @p anchor, or where there is room for it on the screen. */
    void open(const QColor& color, const QWidget* anchor);

    [[nodiscard]] const QColor& color() const { return m_color; }

    [[nodiscard]] ScreenColorPicker* screenPicker() const { return m_screenPicker; }

Q_SIGNALS:
    /** The user has changed the colour. */
    void userModified();
    /** A drag begins and ends; what is modified between belongs together. */
    void gestureStarted();
    void gestureFinished();
    void closed();

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    void placeBeside(const QWidget* anchor);
    void showColor();
    void showRecentColors();
    void edit(const QColor& color);
    void editFromSliders();
    void pickFromScreen();
    void finishPicking(const QColor& color);

    TransparentOption m_transparency;
    QColor m_color = QColor(Qt::black);
    QColor m_colorBefore;
    // Grey has no hue and black no saturation either: the sliders keep what the user picked.
    double m_hue = 0;
    double m_saturation = 0;
    bool m_pickingFromScreen = false;

    HueSaturationField* m_field;
    ColorChannelSlider* m_brightness;
    ColorChannelSlider* m_alpha;
    HexColorField* m_text;
    ColorSwatch* m_preview;
    QToolButton* m_pickButton;
    QGridLayout* m_recentLayout;
    ScreenColorPicker* m_screenPicker;
};
} // namespace Korvex::Meridane::Designer
