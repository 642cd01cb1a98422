#include "app/ViewActions.h"

#include "app/Appearance.h"
#include "app/CoreText.h"
#include "app/WindowAction.h"

#include "host/core/canvas/CanvasView.h"

#include <QActionGroup>
#include <QMenu>

namespace Korvex::Meridane::Designer {

namespace {

constexpr double Ladder[] = {0.1, 0.25, 0.33, 0.5, 0.67, 0.75, 1, 1.25, 1.5, 2, 3, 4, 6, 8, 12, 16, 24, 32};

} // namespace

ViewActions::ViewActions(QObject* parent)
    : QObject(parent)
    // Ctrl+= is what Ctrl++ is on keyboards where the plus needs Shift.
    , m_zoomIn(new WindowAction(QStringLiteral("zoom-in"), coreText("Zoo&m In"),
                                {QKeySequence(Qt::CTRL | Qt::Key_Plus), QKeySequence(Qt::CTRL | Qt::Key_Equal)}, this))
    , m_zoomOut(new WindowAction(QStringLiteral("zoom-out"), coreText("&Zoom Out"),
                                 {QKeySequence(Qt::CTRL | Qt::Key_Minus)}, this))
    , m_actual(new WindowAction(QStringLiteral("zoom-actual"), coreText("&Actual Size"),
                                {QKeySequence(Qt::CTRL | Qt::Key_1)}, this))
    , m_fit(new WindowAction(QStringLiteral("zoom-fit"), coreText("&Fit Screen"), {QKeySequence(Qt::CTRL | Qt::Key_0)},
                             this))
{
    m_zoomIn->setObjectName(QStringLiteral("view.zoomIn"));
    m_zoomOut->setObjectName(QStringLiteral("view.zoomOut"));
    m_actual->setObjectName(QStringLiteral("view.zoomActual"));
    m_fit->setObjectName(QStringLiteral("view.zoomFit"));
    connect(m_zoomIn, &QAction::triggered, this, [this] {
        if (m_canvas)
            m_canvas->setZoom(nextZoom(m_canvas->zoom(), 1));
    });
    connect(m_zoomOut, &QAction::triggered, this, [this] {
        if (m_canvas)
            m_canvas->setZoom(nextZoom(m_canvas->zoom(), -1));
    });
    connect(m_actual, &QAction::triggered, this, [this] { setZoom(1); });
    connect(m_fit, &QAction::triggered, this, &ViewActions::fit);
    update();
}

void ViewActions::addTo(QMenu* menu)
{
    menu->addAction(m_zoomIn);
    menu->addAction(m_zoomOut);
    menu->addAction(m_actual);
    menu->addAction(m_fit);
}

void ViewActions::setCanvas(CanvasView* canvas)
{
    if (m_canvas)
        m_canvas->disconnect(this);
    m_canvas = canvas;
    if (canvas)
        connect(canvas, &CanvasView::zoomChanged, this, &ViewActions::update);
    update();
}

/// Enables what can act.
void ViewActions::update()
{
    const double zoom = m_canvas ? m_canvas->zoom() : 0;
    m_zoomIn->setEnabled(m_canvas && nextZoom(zoom, 1) > zoom);
    m_zoomOut->setEnabled(m_canvas && nextZoom(zoom, -1) < zoom);
    m_actual->setEnabled(m_canvas);
    m_fit->setEnabled(m_canvas);
}

double ViewActions::nextZoom(double zoom, int steps)
{
    constexpr double Noise = 1e-3;
    if (steps > 0) {
        for (const double step : Ladder) {
            if (step > zoom * (1 + Noise))
                return step;
        }
        return zoom;
    }
    double below = zoom;
    for (const double step : Ladder) {
        if (step < zoom * (1 - Noise))
            below = step;
    }
    return below;
}

void ViewActions::setZoom(double zoom)
{
    if (!m_canvas)
        return;
    m_canvas->setZoom(zoom);
    m_canvas->setFocus();
}

void ViewActions::fit()
{
    if (!m_canvas)
        return;
    m_canvas->zoomToFit();
    m_canvas->setFocus();
}

void ViewActions::showWhole()
{
    fit();
    if (m_canvas && m_canvas->zoom() > 1)
        m_canvas->setZoom(1);
}

void ViewActions::addEndTo(QMenu* menu)
{
    QMenu* appearance = menu->addMenu(coreText("App&earance"));
    struct Choice
    {
        Appearance::Scheme scheme;
        const char* name;
        const char* text;
    };
    static constexpr Choice choices[] = {
        {Appearance::Scheme::Desktop, "view.colorsOfDesktop", QT_TRANSLATE_NOOP("Core", "As the &Desktop")},
        {Appearance::Scheme::Light, "view.lightColors", QT_TRANSLATE_NOOP("Core", "&Light")},
        {Appearance::Scheme::Dark, "view.darkColors", QT_TRANSLATE_NOOP("Core", "Dar&k")},
    };
    auto* group = new QActionGroup(this);
    for (const Choice& choice : choices) {
        auto* action = new WindowAction({}, coreText(choice.text), QList<QKeySequence>(), group);
        action->setObjectName(QLatin1String(choice.name));
        action->setCheckable(true);
        action->setChecked(Appearance::stored() == choice.scheme);
        connect(action, &QAction::triggered, this, [scheme = choice.scheme] { Appearance::choose(scheme); });
        appearance->addAction(action);
    }
}

} // namespace Korvex::Meridane::Designer
