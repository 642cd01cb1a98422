#include "host/core/sheet/SheetSearch.h"

#include "host/common/LocalizationHelper.h"

#include <QKeyEvent>

namespace Korvex::Meridane::Designer {

using Common::LocalizationHelper;

SheetSearch::SheetSearch(QWidget* parent)
    : QLineEdit(parent)
{
    setObjectName(QStringLiteral("sheetSearch"));
    setPlaceholderText(LocalizationHelper::coreString(QStringLiteral("Find a property")));
    setAccessibleName(placeholderText());
    setToolTip(LocalizationHelper::coreString(
        QStringLiteral("Shows the properties whose name or value contains what you type here")));
    setClearButtonEnabled(true);
}

SheetSearch::~SheetSearch() = default;

bool SheetSearch::event(QEvent* event)
{
    // Escape here is nobody's shortcut.
    if (event->type() == QEvent::ShortcutOverride && static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape) {
        event->accept();
        return true;
    }
    return QLineEdit::event(event);
}

void SheetSearch::keyPressEvent(QKeyEvent* event)
{
    switch (event->key()) {
    case Qt::Key_Escape:
        Q_EMIT cancelled();
        break;
    case Qt::Key_Down:
    case Qt::Key_Return:
    case Qt::Key_Enter:
        Q_EMIT resultRequested();
        break;
    default:
        QLineEdit::keyPressEvent(event);
        break;
    }
}

} // namespace Korvex::Meridane::Designer
