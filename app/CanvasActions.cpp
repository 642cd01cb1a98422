#include "app/CanvasActions.h"

#include "app/CanvasSettings.h"
#include "app/CoreText.h"
#include "app/GridDialog.h"
#include "app/GuidePopup.h"
#include "app/WindowAction.h"

#include "host/core/canvas/CanvasGuides.h"
#include "host/core/canvas/CanvasView.h"
#include "host/core/canvas/EditSession.h"
#include "host/core/objects/Screen.h"
#include "host/core/project/Project.h"

#include <QActionGroup>
#include <QMenu>

namespace Korvex::Meridane::Designer {

namespace {

constexpr int Spacings[] = {2, 4, 5, 8, 10, 16, 20}; // pixels

} // namespace

CanvasActions::CanvasActions(QObject* parent)
    : QObject(parent)
    , m_aids(CanvasSettings::load())
    , m_snap(makeSwitch("canvas.snap", "snap", coreText("S&nap"), QKeySequence(Qt::Key_F9), &CanvasAids::snapping))
    , m_grid(makeSwitch("canvas.showGrid", "grid", coreText("Gri&d"), QKeySequence(Qt::Key_F8), &CanvasAids::grid))
    , m_rulers(makeSwitch("canvas.showRulers", "rulers", coreText("Ru&lers"), QKeySequence(Qt::CTRL | Qt::Key_R),
                          &CanvasAids::rulers))
    , m_lockGuides(makeSwitch("canvas.lockGuides", "guides-lock", coreText("Loc&k Guides"), QKeySequence(),
                              &CanvasAids::guidesLocked))
    , m_addGuide(make("canvas.addGuide", "guide-add", coreText("&Add Guide…"), &CanvasActions::addGuide))
    , m_clearGuides(make("canvas.clearGuides", "guides-clear", coreText("&Clear Guides"), &CanvasActions::clearGuides))
    , m_zoomToSelection(make("view.zoomToSelection", "zoom-selection", coreText("Zoom &to Selection"),
                             &CanvasActions::zoomToSelection))
    , m_spacings(new QActionGroup(this))
{
    m_zoomToSelection->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_2));
    makeSpacings();
    show();
    update();
}

QAction* CanvasActions::makeSwitch(const char* name, const char* icon, const QString& text,
                                   const QKeySequence& shortcut, bool CanvasAids::*aid)
{
    QList<QKeySequence> shortcuts;
    if (!shortcut.isEmpty())
        shortcuts.append(shortcut);
    auto* action = new WindowAction(QLatin1String(icon), text, shortcuts, this);
    action->setObjectName(QLatin1String(name));
    action->setCheckable(true);
    connect(action, &QAction::triggered, this, [this, aid](bool on) {
        CanvasAids aids = m_aids;
        aids.*aid = on;
        change(aids);
    });
    return action;
}

QAction* CanvasActions::make(const char* name, const char* icon, const QString& text, void (CanvasActions::*run)())
{
    auto* action = new WindowAction(QLatin1String(icon), text, QList<QKeySequence>(), this);
    action->setObjectName(QLatin1String(name));
    connect(action, &QAction::triggered, this, run);
    return action;
}

void CanvasActions::makeSpacings()
{
    for (const int spacing : Spacings) {
        auto* action = new WindowAction({}, coreText("Grid of %1 px").arg(spacing), QList<QKeySequence>(), m_spacings);
        action->setObjectName(QStringLiteral("canvas.gridOf%1").arg(spacing));
        action->setCheckable(true);
        action->setData(spacing);
        connect(action, &QAction::triggered, this, [this, spacing] { setGridSpacing(QSizeF(spacing, spacing)); });
    }
    m_otherSpacing = new WindowAction({}, coreText("&Other Spacing…"), QList<QKeySequence>(), m_spacings);
    m_otherSpacing->setObjectName(QStringLiteral("canvas.gridOfOtherSpacing"));
    m_otherSpacing->setCheckable(true);
    connect(m_otherSpacing, &QAction::triggered, this, &CanvasActions::chooseSpacing);
}

void CanvasActions::addTo(QMenu* menu)
{
    menu->addAction(m_zoomToSelection);
    menu->addSeparator();
    menu->addAction(m_snap);
    menu->addAction(m_grid);
    menu->addMenu(coreText("Grid Spacin&g"))->addActions(m_spacings->actions());
    menu->addSeparator();
    menu->addActions({m_rulers, m_lockGuides, m_addGuide, m_clearGuides});
}

void CanvasActions::setCanvas(CanvasView* canvas)
{
    if (m_canvas) {
        m_canvas->disconnect(this);
        m_canvas->session()->disconnect(this);
        m_canvas->session()->project()->disconnect(this);
        m_canvas->session()->undoStack()->disconnect(this);
    }
    m_canvas = canvas;
    if (canvas) {
        canvas->setAids(m_aids);
        EditSession* session = canvas->session();
        connect(canvas, &CanvasView::guideActivated, this, &CanvasActions::editGuide);
        connect(session, &EditSession::selectionChanged, this, &CanvasActions::update);
        connect(session, &EditSession::currentScreenChanged, this, &CanvasActions::update);
        connect(session->project(), &Project::objectMarked, this, &CanvasActions::update);
        connect(session->undoStack(), &UndoStack::blockedChanged, this, &CanvasActions::update);
    }
    update();
}

void CanvasActions::setGridSpacing(const QSizeF& spacing)
{
    CanvasAids aids = m_aids;
    aids.gridSpacing = spacing;
    aids.grid = true;
    change(aids);
}

void CanvasActions::change(const CanvasAids& aids)
{
    m_aids = aids;
    CanvasSettings::store(aids);
    if (m_canvas)
        m_canvas->setAids(aids);
    show();
}

/// Checks what is on.
void CanvasActions::show()
{
    m_snap->setChecked(m_aids.snapping);
    m_grid->setChecked(m_aids.grid);
    m_rulers->setChecked(m_aids.rulers);
    m_lockGuides->setChecked(m_aids.guidesLocked);
    QAction* present = m_otherSpacing;
    const QList<QAction*> spacings = m_spacings->actions();
    for (QAction* action : spacings) {
        const double spacing = action->data().toDouble();
        if (m_aids.gridSpacing == QSizeF(spacing, spacing))
            present = action;
    }
    present->setChecked(true);
}

/// Enables what can act.
void CanvasActions::update()
{
    const EditSession* session = m_canvas ? m_canvas->session() : nullptr;
    const bool free = session && session->currentScreen() && !session->undoStack()->isBlocked();
    m_addGuide->setEnabled(free);
    m_clearGuides->setEnabled(free && !m_canvas->guides()->list().isEmpty());
    m_zoomToSelection->setEnabled(session && !session->selection().isEmpty()
                                  && !qobject_cast<Screen*>(session->selection().constFirst()));
}

void CanvasActions::chooseSpacing()
{
    auto* dialog = new GridDialog(m_aids.gridSpacing, m_canvas ? m_canvas->window() : nullptr);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    connect(dialog, &QDialog::accepted, this, [this, dialog] { setGridSpacing(dialog->spacing()); });
    connect(dialog, &QDialog::rejected, this, &CanvasActions::show);
    dialog->open();
}

void CanvasActions::addGuide()
{
    if (!m_canvas)
        return;
    auto* popup = new GuidePopup(std::nullopt, m_canvas);
    connect(popup, &GuidePopup::accepted, this, [this](const Guide& guide) {
        if (m_canvas)
            m_canvas->guides()->add(guide);
    });
    popup->showAt(m_canvas->viewport()->mapToGlobal(m_canvas->viewport()->rect().center()));
}

void CanvasActions::editGuide(int index)
{
    const QList<Guide> guides = m_canvas->guides()->list();
    if (index < 0 || index >= guides.size())
        return;
    auto* popup = new GuidePopup(guides.at(index), m_canvas);
    connect(popup, &GuidePopup::accepted, this, [this, index](const Guide& guide) {
        if (m_canvas && index < m_canvas->guides()->list().size())
            m_canvas->guides()->move(index, guide);
    });
    popup->showAt(QCursor::pos());
}

void CanvasActions::clearGuides()
{
    if (m_canvas)
        m_canvas->guides()->clear();
}

void CanvasActions::zoomToSelection()
{
    if (!m_canvas)
        return;
    m_canvas->zoomToSelection();
    m_canvas->setFocus();
}

} // namespace Korvex::Meridane::Designer
