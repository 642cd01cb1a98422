#pragma once

#include "host/core/CoreExport.h"
#include "host/core/widgets/TransparentOption.h"

#include <QtGui/QColor>
#include <QtWidgets/QFrame>

class QGridLayout;
class QLabel;
class QToolButton;

namespace Korvex::Meridane::Designer {
class ColorChannelFields;
class ColorChannelSlider;
class ColorSwatch;
class HexColorField;
class HueSaturationField;
class ScreenColorPicker;

/**
 * The popup of a colour field: hue and saturation, brightness, alpha where it is allowed, the colour as numbers and as
 * text, the colours in use, the recent colours, and a picker for a colour on the screen. Changes are reported as they are
 * made; Escape takes all of them back, Enter and a click outside keep them.
 */
class MERIDANE_CORE_EXPORT ColorPopup : public QFrame
{
    Q_OBJECT

public:
    explicit ColorPopup(TransparentOption transparency, QWidget* parent = nullptr);
    ~ColorPopup() override;

    /**
     * Opens with @p color below @p anchor, or where there is room for it on the screen.
     * @param inUse the colours to offer as those in use, the most used first; the popup takes the first 16
     * @param mixed @p color is one of several that differ: choosing it again makes a difference
     */
    void open(const QColor& color, const QWidget* anchor, const QList<QColor>& inUse = {}, bool mixed = false);

    [[nodiscard]] const QColor& color() const { return m_color; }

    [[nodiscard]] ScreenColorPicker* screenPicker() const { return m_screenPicker; }
    [[nodiscard]] ColorChannelFields* channelFields() const { return m_channels; }

Q_SIGNALS:
    /** The user has changed the colour. */
    void userModified();
    /** A drag begins and ends; what is modified between belongs together. */
    void gestureStarted();
    void gestureFinished();
    /** Escape: the colour is the one that the popup was opened with again. closed() follows. */
    void cancelled();
    void closed();

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    void placeBeside(const QWidget* anchor);
    void showColor();
    void showSwatches(QGridLayout* layout, QLabel* title, const QList<QColor>& colors, const QString& objectName);
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
    bool m_mixed = false;
    bool m_pickingFromScreen = false;

    HueSaturationField* m_field;
    ColorChannelSlider* m_brightness;
    ColorChannelSlider* m_alpha;
    ColorChannelFields* m_channels;
    HexColorField* m_text;
    ColorSwatch* m_preview;
    QToolButton* m_pickButton;
    QLabel* m_inUseTitle;
    QGridLayout* m_inUseLayout;
    QLabel* m_recentTitle;
    QGridLayout* m_recentLayout;
    ScreenColorPicker* m_screenPicker;
};
} // namespace Korvex::Meridane::Designer
