#pragma once

#include "host/core/CoreExport.h"

#include <QAbstractButton>

namespace Korvex::Meridane::Designer {

/// A dot before the label of a row whose value differs from its default. Under the mouse it becomes an arrow that turns
/// back; a click asks for the default. It takes no focus: the keyboard has the row's menu and an action for it.
class MERIDANE_CORE_EXPORT DefaultMark : public QAbstractButton
{
    Q_OBJECT

public:
    explicit DefaultMark(QWidget* parent);
    ~DefaultMark() override;

    [[nodiscard]] QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void enterEvent(QEnterEvent* event) override;
    void leaveEvent(QEvent* event) override;
};

} // namespace Korvex::Meridane::Designer
