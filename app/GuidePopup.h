#pragma once

#include "host/core/snapping/Guides.h"

#include <QFrame>

#include <optional>

class QComboBox;
class QDoubleSpinBox;

namespace Korvex::Meridane::Designer {

/// A small window for the exact position of a guide. Return takes it over, Escape and a click elsewhere leave it. Deletes
/// itself when it closes.
class GuidePopup : public QFrame
{
    Q_OBJECT

public:
    /// \a guide: the one whose position is edited; nothing: a new one, whose direction is chosen, too.
    GuidePopup(const std::optional<Guide>& guide, QWidget* parent);

    /// Shows it with its middle at \a globalPos, within the desktop, with the keyboard in its field.
    void showAt(const QPoint& globalPos);

Q_SIGNALS:
    void accepted(const Guide& guide);

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    QComboBox* m_direction;
    QDoubleSpinBox* m_position;
};

} // namespace Korvex::Meridane::Designer
