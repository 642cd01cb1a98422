#include "app/CanvasPanel.h"

#include "app/CoreText.h"
#include "app/ScreenTabs.h"
#include "app/ThemedIcon.h"

#include "host/core/canvas/CanvasView.h"
#include "host/core/canvas/EditSession.h"
#include "host/core/objects/Screen.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QStackedWidget>
#include <QToolButton>
#include <QVBoxLayout>

namespace Korvex::Meridane::Designer {

CanvasPanel::CanvasPanel(EditSession* session, QWidget* parent)
    : QWidget(parent)
    , m_session(session)
    , m_view(new CanvasView(session))
    , m_tabs(new ScreenTabs(session))
    , m_pages(new QStackedWidget)
    , m_invitation(makeInvitation())
{
    auto* add = new QToolButton;
    add->setIcon(ThemedIcon::named(QStringLiteral("add")));
    add->setIconSize(QSize(16, 16));
    add->setAutoRaise(true);
    add->setToolTip(coreText("Add a screen"));
    add->setAccessibleName(add->toolTip());
    connect(add, &QToolButton::clicked, this, &CanvasPanel::addScreenRequested);

    auto* row = new QHBoxLayout;
    row->setContentsMargins(4, 2, 4, 0);
    row->setSpacing(2);
    row->addWidget(m_tabs);
    row->addWidget(add);
    row->addStretch(1);

    m_view->setFrameShape(QFrame::NoFrame);
    m_view->setAccessibleName(coreText("Canvas"));
    m_pages->addWidget(m_view);
    m_pages->addWidget(m_invitation);

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addLayout(row);
    layout->addWidget(m_pages, 1);

    connect(session, &EditSession::currentScreenChanged, this, &CanvasPanel::showRightPage);
    showRightPage();
}

QWidget* CanvasPanel::makeInvitation() const
{
    auto* page = new QWidget;
    auto* text = new QLabel(coreText("This project has no screen yet."));
    text->setAlignment(Qt::AlignCenter);
    text->setForegroundRole(QPalette::PlaceholderText);
    auto* button = new QPushButton(ThemedIcon::named(QStringLiteral("screen-add")), coreText("Add a Screen"));
    connect(button, &QPushButton::clicked, this, &CanvasPanel::addScreenRequested);
    auto* layout = new QVBoxLayout(page);
    layout->setSpacing(12);
    layout->addStretch(1);
    layout->addWidget(text);
    layout->addWidget(button, 0, Qt::AlignHCenter);
    layout->addStretch(1);
    return page;
}

void CanvasPanel::showRightPage()
{
    m_pages->setCurrentWidget(m_session->currentScreen() ? static_cast<QWidget*>(m_view) : m_invitation);
}

} // namespace Korvex::Meridane::Designer
