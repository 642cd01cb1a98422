#pragma once

#include <QSize>
#include <QWidget>

class QPushButton;

namespace Korvex::Meridane::Designer {

class SizeWidget;

/// Width and height of an image, and a button that takes the size of the picture.
class ImageSizeWidget : public QWidget
{
    Q_OBJECT

public:
    /// The largest width and height that can be entered, in pixels.
    static constexpr int LargestSide = 99999;

    explicit ImageSizeWidget(QWidget* parent);

    [[nodiscard]] SizeWidget* sizeWidget() const { return m_size; }
    [[nodiscard]] QPushButton* button() const { return m_button; }

public Q_SLOTS:
    // Each shows a size in pixels, silently.
    void setImageSize(const QSize& size);
    void setImageWidth(int width);
    void setImageHeight(int height);
    void setButtonEnabled(bool enabled);

Q_SIGNALS:
    void userModified();
    /// The button was pressed.
    void imageSizeWanted();

private Q_SLOTS:
    void onButtonClicked();

private:
    SizeWidget* m_size;
    QPushButton* m_button;
};

} // namespace Korvex::Meridane::Designer
