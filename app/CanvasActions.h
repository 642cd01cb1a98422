#pragma once

#include "host/core/canvas/CanvasAids.h"

#include <QList>
#include <QObject>
#include <QPointer>

class QAction;
class QActionGroup;
class QMenu;

namespace Korvex::Meridane::Designer {

class CanvasView;

/// The actions for what helps to place things on the canvas: snapping, grid, rulers and guides. What is chosen is remembered.
class CanvasActions : public QObject
{
    Q_OBJECT

public:
    explicit CanvasActions(QObject* parent = nullptr);

    void addTo(QMenu* menu);
    /// The canvas that the actions work on; it gets what was chosen. Null: none.
    void setCanvas(CanvasView* canvas);

    [[nodiscard]] QAction* snapAction() const { return m_snap; }
    [[nodiscard]] QAction* gridAction() const { return m_grid; }
    [[nodiscard]] QAction* rulersAction() const { return m_rulers; }
    [[nodiscard]] QAction* zoomToSelectionAction() const { return m_zoomToSelection; }

    /// Draws the grid with this spacing (pixels of the screen).
    void setGridSpacing(const QSizeF& spacing);

private:
    QAction* makeSwitch(const char* name, const char* icon, const QString& text, const QKeySequence& shortcut,
                        bool CanvasAids::*aid);
    QAction* make(const char* name, const char* icon, const QString& text, void (CanvasActions::*run)());
    void makeSpacings();
    void change(const CanvasAids& aids);
    void show();
    void update();
    void chooseSpacing();
    void addGuide();
    void editGuide(int index);
    void clearGuides();
    void zoomToSelection();

    CanvasAids m_aids;
    QPointer<CanvasView> m_canvas;
    QAction* m_snap;
    QAction* m_grid;
    QAction* m_rulers;
    QAction* m_lockGuides;
    QAction* m_addGuide;
    QAction* m_clearGuides;
    QAction* m_zoomToSelection;
    QActionGroup* m_spacings;
    QAction* m_otherSpacing;
};

} // namespace Korvex::Meridane::Designer
