#pragma once

#include <QDialog>
#include <QSizeF>

class QDoubleSpinBox;

namespace Korvex::Meridane::Designer {

/// Asks for the distances of the grid's lines.
class GridDialog : public QDialog
{
    Q_OBJECT

public:
    explicit GridDialog(const QSizeF& spacing, QWidget* parent = nullptr);

    /// Pixels of the screen, 1 to 1000.
    [[nodiscard]] QSizeF spacing() const;

private:
    QDoubleSpinBox* m_width;
    QDoubleSpinBox* m_height;
};

} // namespace Korvex::Meridane::Designer
