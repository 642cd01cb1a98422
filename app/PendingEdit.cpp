#include "app/PendingEdit.h"

#include <QApplication>
#include <QGraphicsView>
#include <QPointer>

namespace Korvex::Meridane::Designer {

void PendingEdit::finish()
{
    const QPointer<QWidget> focused = QApplication::focusWidget();
    if (!focused || qobject_cast<QGraphicsView*>(focused))
        return;
    focused->clearFocus();
    // Taking the value may have rebuilt the editors.
    if (focused && focused->isVisible())
        focused->setFocus();
}

} // namespace Korvex::Meridane::Designer
