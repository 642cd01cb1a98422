#pragma once

#include "host/core/CoreExport.h"

#include <QtWidgets/QToolButton>

namespace Korvex::Meridane::Designer {
/** A small flat button that adds an item to a list (a plus) or takes one out of it (a minus). */
class MERIDANE_CORE_EXPORT ItemButton : public QToolButton
{
    Q_OBJECT

public:
    enum class Action
    {
        Add,
        Remove
    };

    /** Its object name is "addItem" or "removeItem". */
    explicit ItemButton(Action action, QWidget* parent = nullptr);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    Action m_action;
};
} // namespace Korvex::Meridane::Designer
