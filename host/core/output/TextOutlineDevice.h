#pragma once

#include <QPaintDevice>

#include <memory>

class QPaintEngine;
class QPainter;

namespace Korvex::Meridane::Designer {

class TextOutlineEngine;

/**
 * A paint device that hands on what is painted to another painter, letters as their outlines: a picture that leaves the
 * machine must not depend on the fonts of the one that it reaches.
 *
 * Clipping is not handed on, nor is what drawings (SVG) cannot say: conical gradients and modes of composition.
 */
class TextOutlineDevice : public QPaintDevice
{
public:
    /// \a target is active, outlives the device and gives it its size.
    explicit TextOutlineDevice(QPainter* target);
    ~TextOutlineDevice() override;

    [[nodiscard]] QPaintEngine* paintEngine() const override;

    /// Whether letters have been painted.
    [[nodiscard]] bool hasText() const;
    /// Whether something has been painted that a drawing cannot say.
    [[nodiscard]] bool hasUnsayable() const;

protected:
    [[nodiscard]] int metric(PaintDeviceMetric metric) const override;

private:
    QPainter* m_target;
    std::unique_ptr<TextOutlineEngine> m_engine;
};

} // namespace Korvex::Meridane::Designer
