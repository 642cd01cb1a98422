#pragma once

#include <QImage>
#include <QWidget>

namespace Korvex::Meridane::Designer {

/// Shows a picture pixel by pixel, or at a size given in inches; as large as that takes.
class DevicePicture : public QWidget
{
    Q_OBJECT

public:
    explicit DevicePicture(QWidget* parent = nullptr);

    void setPicture(const QImage& picture);
    [[nodiscard]] const QImage& picture() const { return m_picture; }
    /// Units of the widget for a pixel of the picture. 0: one pixel of this screen, or as many whole ones as make up for
    /// its pixel ratio.
    void setScale(double scale);
    [[nodiscard]] QSizeF shownSize() const;
    /// The scale that stands for 0.
    [[nodiscard]] double pixelScale() const;

    [[nodiscard]] QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QImage m_picture;
    double m_scale = 0;
};

} // namespace Korvex::Meridane::Designer
