#include "app/SheetActions.h"

#include "app/CoreText.h"
#include "app/WindowAction.h"

#include "host/core/sheet/PropertySheet.h"

#include <QMenu>

namespace Korvex::Meridane::Designer {

SheetActions::SheetActions(QObject* parent)
    : QObject(parent)
    , m_find(new WindowAction(QStringLiteral("find"), coreText("&Find Property"), QKeySequence::Find, this))
    , m_reset(new WindowAction(QStringLiteral("reset-value"), coreText("Rese&t Property"),
                               {QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_Backspace)}, this))
{
    m_find->setObjectName(QStringLiteral("sheet.find"));
    m_reset->setObjectName(QStringLiteral("sheet.resetProperty"));
    connect(m_find, &QAction::triggered, this, &SheetActions::find);
    connect(m_reset, &QAction::triggered, this, &SheetActions::reset);
    setSheet(nullptr);
}

void SheetActions::addTo(QMenu* menu)
{
    menu->addAction(m_find);
    menu->addAction(m_reset);
}

void SheetActions::setSheet(PropertySheet* sheet)
{
    if (m_sheet)
        m_sheet->disconnect(this);
    m_sheet = sheet;
    if (sheet)
        connect(sheet, &PropertySheet::canResetCurrentChanged, this, &SheetActions::updateReset);
    m_find->setEnabled(sheet);
    updateReset();
}

void SheetActions::find()
{
    Q_EMIT sheetRequested();
    if (m_sheet)
        m_sheet->focusSearch();
}

void SheetActions::reset()
{
    if (m_sheet)
        m_sheet->resetCurrent();
}

void SheetActions::updateReset()
{
    m_reset->setEnabled(m_sheet && m_sheet->canResetCurrent());
}

} // namespace Korvex::Meridane::Designer
