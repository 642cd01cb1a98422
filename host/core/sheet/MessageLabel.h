#pragma once

#include "host/core/CoreExport.h"

#include <QLabel>

namespace Korvex::Meridane::Designer {

/// A line below a field that says why its text was refused. Hidden while it is empty; its colour follows the theme.
class MERIDANE_CORE_EXPORT MessageLabel : public QLabel
{
    Q_OBJECT

public:
    explicit MessageLabel(QWidget* parent);
    ~MessageLabel() override;

    /// Shows \a message, or hides the label when it is empty.
    void setMessage(const QString& message);

protected:
    void changeEvent(QEvent* event) override;

private:
    void applyColor();
};

} // namespace Korvex::Meridane::Designer
