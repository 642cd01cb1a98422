#include "app/LivePreviewPanel.h"

#include "app/CoreText.h"
#include "app/LiveContent.h"
#include "app/LiveDisplay.h"
#include "app/LiveView.h"

#include "host/core/canvas/CanvasView.h"
#include "host/core/canvas/EditSession.h"
#include "host/core/project/Project.h"
#include "host/core/sheet/SheetColors.h"

#include <QFrame>
#include <QHBoxLayout>
#include <QLabel>
#include <QToolButton>
#include <QVBoxLayout>

namespace Korvex::Meridane::Designer {

namespace {

constexpr int ScaleDelay = 150; // ms; a panel that is being resized asks for many scales
constexpr int StopDelay = 10000; // ms that a display goes on unseen, for panels that come back

} // namespace

LivePreviewPanel::LivePreviewPanel(EditSession* session, CanvasView* canvas, const QString& program, QWidget* parent)
    : QWidget(parent)
    , m_session(session)
    , m_display(new LiveDisplay(program, this))
    , m_content(new LiveContent(session, canvas, m_display, this))
    , m_view(new LiveView)
{
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(makeNotice());
    layout->addWidget(m_view, 1);

    m_scaleTimer.setSingleShot(true);
    m_scaleTimer.setInterval(ScaleDelay);
    connect(&m_scaleTimer, &QTimer::timeout, this, &LivePreviewPanel::sendScale);
    m_stopTimer.setSingleShot(true);
    m_stopTimer.setInterval(StopDelay);
    connect(&m_stopTimer, &QTimer::timeout, m_display, &LiveDisplay::stop);

    // Sent before the content, which the display asks for with the same signal.
    connect(m_display, &LiveDisplay::started, this, [this] {
        setMessage({}, false);
        sendScale();
    });
    connect(m_display, &LiveDisplay::frameChanged, this, &LivePreviewPanel::showFrame);
    connect(m_display, &LiveDisplay::complained, this,
            [this](const QStringList& complaints) { setMessage(complaints.join(QLatin1Char('\n')), false); });
    connect(m_display, &LiveDisplay::failed, this, [this](const QString& message, bool givenUp) {
        setMessage(givenUp ? coreText("%1 It has been started several times in vain.").arg(message) : message, true);
    });
    connect(m_content, &LiveContent::unshowable, this, [this](const QString& message) {
        m_view->setFrame({}, m_session->project()->displaySize());
        setMessage(message, false);
    });
    connect(m_view, &LiveView::wantedScaleChanged, &m_scaleTimer, qOverload<>(&QTimer::start));
    connect(m_view, &LiveView::mouseMoved, m_display, &LiveDisplay::sendMouse);
    connect(m_view, &LiveView::wheelTurned, m_display, &LiveDisplay::sendWheel);
    m_view->setFrame({}, session->project()->displaySize());
}

LivePreviewPanel::~LivePreviewPanel() = default;

QWidget* LivePreviewPanel::makeNotice()
{
    m_notice = new QFrame;
    m_text = new QLabel;
    m_text->setTextFormat(Qt::PlainText);
    m_text->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    m_text->setWordWrap(true);
    m_text->setAccessibleName(coreText("Messages of the running display"));
    m_restart = new QToolButton;
    m_restart->setText(coreText("Restart"));
    m_restart->setFocusPolicy(Qt::StrongFocus);
    connect(m_restart, &QToolButton::clicked, m_display, &LiveDisplay::restart);
    auto* row = new QHBoxLayout(m_notice);
    row->setContentsMargins(8, 4, 4, 4);
    row->addWidget(m_text, 1);
    row->addWidget(m_restart, 0, Qt::AlignTop);
    m_notice->hide();
    return m_notice;
}

QString LivePreviewPanel::message() const
{
    return m_notice->isHidden() ? QString() : m_text->text();
}

void LivePreviewPanel::setMessage(const QString& message, bool offersRestart)
{
    constexpr int MostLines = 6;
    QStringList lines = message.split(QLatin1Char('\n'));
    if (lines.size() > MostLines)
        lines = lines.first(MostLines) << QStringLiteral("…");
    QPalette colors = palette();
    colors.setColor(QPalette::WindowText, errorColor(palette()));
    m_text->setPalette(colors);
    m_text->setText(lines.join(QLatin1Char('\n')));
    m_restart->setVisible(offersRestart);
    m_notice->setVisible(!message.isEmpty());
}

void LivePreviewPanel::showFrame()
{
    m_view->setFrame(m_display->frame(), m_session->project()->displaySize());
}

void LivePreviewPanel::sendScale()
{
    m_display->setScale(m_view->wantedScale());
}

void LivePreviewPanel::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    m_stopTimer.stop();
    m_content->setActive(true);
    m_display->start();
}

void LivePreviewPanel::hideEvent(QHideEvent* event)
{
    QWidget::hideEvent(event);
    m_content->setActive(false);
    m_stopTimer.start();
}

} // namespace Korvex::Meridane::Designer
