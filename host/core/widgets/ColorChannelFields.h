#pragma once

#include "host/core/CoreExport.h"
#include "host/core/widgets/TransparentOption.h"

#include <QtGui/QColor>
#include <QtWidgets/QWidget>

#include <array>

namespace Korvex::Meridane::Designer {
class SpinBox;

/**
 * The channels of a colour as numbers: red, green and blue from 0 to 255; hue in degrees, saturation and brightness in
 * percent; the opacity in percent where it is allowed.
 */
class MERIDANE_CORE_EXPORT ColorChannelFields : public QWidget
{
    Q_OBJECT

public:
    explicit ColorChannelFields(TransparentOption transparency, QWidget* parent = nullptr);

    /**
     * Shows @p color, silently.
     * @param hue 0 to 1 and @param saturation 0 to 1: what is shown of a grey or black, which has none of its own
     */
    void showColor(const QColor& color, double hue, double saturation);

    [[nodiscard]] SpinBox* redField() const { return m_rgb[0]; }
    [[nodiscard]] SpinBox* greenField() const { return m_rgb[1]; }
    [[nodiscard]] SpinBox* blueField() const { return m_rgb[2]; }
    [[nodiscard]] SpinBox* hueField() const { return m_hsv[0]; }
    [[nodiscard]] SpinBox* saturationField() const { return m_hsv[1]; }
    [[nodiscard]] SpinBox* brightnessField() const { return m_hsv[2]; }
    /** Null where only opaque colours are allowed. */
    [[nodiscard]] SpinBox* opacityField() const { return m_opacity; }

    /** Enter takes a typed number over first; only then it is for the window. */
    bool eventFilter(QObject* watched, QEvent* event) override;

Q_SIGNALS:
    /** The user has edited red, green, blue or the opacity. */
    void colorEdited(const QColor& color);
    /** The user has edited one of these, each from 0 to 1. */
    void hueEdited(double hue);
    void saturationEdited(double saturation);
    void brightnessEdited(double brightness);

private:
    [[nodiscard]] SpinBox* addField(const QString& letter, const QString& name, int maximum, const QString& suffix,
                                    int row, int column);
    void editColor();

    std::array<SpinBox*, 3> m_rgb{};
    std::array<SpinBox*, 3> m_hsv{};
    SpinBox* m_opacity = nullptr;
    int m_alpha = 255;
};
} // namespace Korvex::Meridane::Designer
