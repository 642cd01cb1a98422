#pragma once

#include "app/UserPrompts.h"

#include <QDialog>

class QRadioButton;
class QSpinBox;

namespace Korvex::Meridane::Designer {

/// Asks for the new size of a screen, and what becomes of what is on it.
class ScreenSizeDialog : public QDialog
{
    Q_OBJECT

public:
    /// \a name: of the screen.
    ScreenSizeDialog(const QString& name, const ScreenSize& proposal, QWidget* parent = nullptr);

    [[nodiscard]] ScreenSize screenSize() const;

private:
    QSpinBox* m_width;
    QSpinBox* m_height;
    QRadioButton* m_leave;
    QRadioButton* m_scale;
};

} // namespace Korvex::Meridane::Designer
