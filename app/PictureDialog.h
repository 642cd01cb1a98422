#pragma once

#include "app/UserPrompts.h"

#include <QDialog>

class QCheckBox;
class QComboBox;
class QDoubleSpinBox;
class QLabel;

namespace Korvex::Meridane::Designer {

/// Asks how a screen is to become a picture.
class PictureDialog : public QDialog
{
    Q_OBJECT

public:
    /// \a size: of what is to be shown, in pixels of the display.
    PictureDialog(const QSizeF& size, const PictureChoice& proposal, QWidget* parent = nullptr);

    [[nodiscard]] PictureChoice choice() const;

private:
    void showSize();

    QSizeF m_size;
    QComboBox* m_format;
    QDoubleSpinBox* m_scale;
    QCheckBox* m_transparent;
    QLabel* m_pixels;
};

} // namespace Korvex::Meridane::Designer
