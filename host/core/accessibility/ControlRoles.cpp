#include "host/core/accessibility/ControlRoles.h"

#include "host/core/widgets/HueSaturationField.h"
#include "host/core/widgets/NineGrid.h"

#include <QAccessibleWidget>

namespace Korvex::Meridane::Designer {

namespace {

/// A widget with a role of its own, whose description is its value.
class AccessibleControl : public QAccessibleWidget
{
public:
    AccessibleControl(QWidget* widget, QAccessible::Role role)
        : QAccessibleWidget(widget, role)
    {}

    [[nodiscard]] QString text(QAccessible::Text kind) const override
    {
        return QAccessibleWidget::text(kind == QAccessible::Value ? QAccessible::Description : kind);
    }
};

QAccessibleInterface* makeInterface(const QString&, QObject* object)
{
    if (auto* grid = qobject_cast<NineGrid*>(object))
        return new AccessibleControl(grid, QAccessible::Grouping);
    if (auto* field = qobject_cast<HueSaturationField*>(object))
        return new AccessibleControl(field, QAccessible::ColorChooser);
    return nullptr;
}

} // namespace

void ControlRoles::install()
{
    QAccessible::installFactory(makeInterface);
}

} // namespace Korvex::Meridane::Designer
