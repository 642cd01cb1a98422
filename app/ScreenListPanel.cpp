#include "app/ScreenListPanel.h"

#include "app/CoreText.h"
#include "app/ScreenActions.h"
#include "app/ScreenListModel.h"
#include "app/ScreensPanel.h"
#include "app/ThemedIcon.h"

#include <QHBoxLayout>
#include <QItemSelectionModel>
#include <QToolButton>
#include <QVBoxLayout>

namespace Korvex::Meridane::Designer {

ScreenListPanel::ScreenListPanel(ScreensPanel* list, ScreenActions* actions, QWidget* parent)
    : QWidget(parent)
    , m_list(list)
{
    auto* row = new QHBoxLayout;
    row->setContentsMargins(6, 3, 6, 3);
    row->setSpacing(2);
    m_add = addButton("add", coreText("Add a Screen"), [actions](Screen*) { actions->add(); });
    m_buttons = {
        addButton("screen-duplicate", coreText("Duplicate"), [actions](Screen* it) { actions->duplicate(it); }),
        addButton("screen-resize", coreText("Resize…"), [actions](Screen* it) { actions->resize(it); }),
        addButton("rename", coreText("Rename"), [list](Screen* it) { list->rename(it); }),
        addButton("delete", coreText("Remove"), [actions](Screen* it) { actions->remove(it); }),
    };
    m_add->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    row->addWidget(m_add);
    row->addStretch(1);
    for (QToolButton* button : std::as_const(m_buttons))
        row->addWidget(button);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addLayout(row);
    layout->addWidget(list, 1);
    setFocusProxy(list);
    connect(list->selectionModel(), &QItemSelectionModel::currentChanged, this, &ScreenListPanel::update);
    connect(list->screenModel(), &QAbstractItemModel::rowsRemoved, this, &ScreenListPanel::update);
    update();
}

QToolButton* ScreenListPanel::addButton(const char* icon, const QString& text, const std::function<void(Screen*)>& run)
{
    auto* button = new QToolButton;
    button->setIcon(ThemedIcon::named(QString::fromLatin1(icon)));
    button->setIconSize(QSize(18, 18));
    button->setText(text);
    button->setToolTip(text);
    button->setAccessibleName(text);
    button->setAutoRaise(true);
    button->setFocusPolicy(Qt::TabFocus);
    connect(button, &QToolButton::clicked, this, [this, button, run] {
        if (m_list->currentRow() || button == m_add)
            run(m_list->currentRow());
    });
    return button;
}

void ScreenListPanel::update()
{
    for (QToolButton* button : std::as_const(m_buttons))
        button->setEnabled(m_list->currentRow());
}

} // namespace Korvex::Meridane::Designer
