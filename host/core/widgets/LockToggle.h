#pragma once

#include "host/core/CoreExport.h"

#include <QtWidgets/QToolButton>

namespace Korvex::Meridane::Designer {
/** A button with a padlock, closed while it is checked, drawn in the colours of the palette. */
class MERIDANE_CORE_EXPORT LockToggle : public QToolButton
{
    Q_OBJECT

public:
    explicit LockToggle(QWidget* parent = nullptr);

    [[nodiscard]] bool isLocked() const { return isChecked(); }
    /** Shows the state, silently. */
    void setLocked(bool locked);

    [[nodiscard]] QSize sizeHint() const override;

Q_SIGNALS:
    /** The user has locked or unlocked. */
    void userModified();

protected:
    void paintEvent(QPaintEvent* event) override;
};
} // namespace Korvex::Meridane::Designer
