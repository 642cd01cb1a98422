#include "app/ProjectTreePanel.h"

#include "app/CoreText.h"
#include "app/ProjectTree.h"
#include "app/ThemedIcon.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLineEdit>
#include <QToolButton>
#include <QVBoxLayout>

namespace Korvex::Meridane::Designer {

namespace {

QToolButton* button(const char* icon, const char* text)
{
    auto* made = new QToolButton;
    made->setIcon(ThemedIcon::named(QString::fromLatin1(icon)));
    made->setIconSize(QSize(18, 18));
    made->setAutoRaise(true);
    made->setFocusPolicy(Qt::TabFocus);
    made->setToolTip(coreText(text));
    made->setAccessibleName(made->toolTip());
    return made;
}

} // namespace

ProjectTreePanel::ProjectTreePanel(ProjectTree* tree, QWidget* parent)
    : QWidget(parent)
    , m_tree(tree)
    , m_filter(new QLineEdit)
{
    setObjectName(QStringLiteral("ProjectTreePanel"));
    m_filter->setPlaceholderText(coreText("Filter"));
    m_filter->setAccessibleName(coreText("Filter the project tree"));
    m_filter->setToolTip(coreText("Show only rows with this in their name or class (Ctrl+F in the tree)"));
    m_filter->setClearButtonEnabled(true);
    QToolButton* open = button("expand-all", "Expand all");
    QToolButton* close = button("collapse-all", "Collapse all");
    auto* row = new QHBoxLayout;
    row->setContentsMargins(6, 4, 6, 4);
    row->setSpacing(2);
    row->addWidget(m_filter, 1);
    row->addWidget(open);
    row->addWidget(close);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addLayout(row);
    layout->addWidget(tree, 1);
    setFocusProxy(tree);
    tree->installEventFilter(this);
    m_filter->installEventFilter(this);
    connect(m_filter, &QLineEdit::textChanged, tree, &ProjectTree::setFilter);
    connect(open, &QToolButton::clicked, tree, &ProjectTree::openAll);
    connect(close, &QToolButton::clicked, tree, &ProjectTree::closeAll);
}

bool ProjectTreePanel::eventFilter(QObject* watched, QEvent* event)
{
    const bool isKey = event->type() == QEvent::KeyPress || event->type() == QEvent::ShortcutOverride;
    const auto* key = isKey ? static_cast<QKeyEvent*>(event) : nullptr;
    const bool finds = key && watched == m_tree && key->matches(QKeySequence::Find);
    const bool leaves = key && watched == m_filter && key->key() == Qt::Key_Escape;
    const bool goesDown = key && watched == m_filter && key->key() == Qt::Key_Down;
    if (!finds && !leaves && !goesDown)
        return QWidget::eventFilter(watched, event);
    event->accept();
    if (event->type() == QEvent::KeyPress) {
        if (leaves)
            m_filter->clear();
        if (finds)
            m_filter->setFocus(Qt::ShortcutFocusReason);
        else
            m_tree->setFocus(Qt::ShortcutFocusReason);
    }
    return true;
}

} // namespace Korvex::Meridane::Designer
