#pragma once

#include "app/UserPrompts.h"

#include <QDialog>

class QComboBox;
class QDialogButtonBox;
class QLineEdit;
class QSpinBox;

namespace Korvex::Meridane::Designer {

/// Asks for the name and the display size of a new project; the usual panel sizes are one choice away.
class NewProjectDialog : public QDialog
{
    Q_OBJECT

public:
    explicit NewProjectDialog(const NewProject& proposal, QWidget* parent = nullptr);

    [[nodiscard]] NewProject newProject() const;

private:
    void showPreset();
    void takePreset(int index);
    void updateAcceptance();

    QLineEdit* m_name;
    QComboBox* m_preset;
    QSpinBox* m_width;
    QSpinBox* m_height;
    QDialogButtonBox* m_buttons;
};

} // namespace Korvex::Meridane::Designer
