#include "app/FontPanel.h"

#include "app/CoreText.h"
#include "app/FontDelegate.h"
#include "app/ThemedIcon.h"

#include "host/core/canvas/EditSession.h"
#include "host/core/project/FontReferences.h"
#include "host/core/project/Project.h"

#include <QAction>
#include <QContextMenuEvent>
#include <QHBoxLayout>
#include <QListWidget>
#include <QMenu>
#include <QMimeData>
#include <QToolButton>
#include <QUrl>
#include <QVBoxLayout>

namespace Korvex::Meridane::Designer {

namespace {

/// The font files among what \a data holds, judged by their names.
QStringList fontFiles(const QMimeData* data)
{
    QStringList files;
    const QList<QUrl> urls = data ? data->urls() : QList<QUrl>();
    for (const QUrl& url : urls) {
        const QString file = url.toLocalFile();
        for (const char* ending : {".ttf", ".otf", ".ttc"}) {
            if (file.endsWith(QLatin1String(ending), Qt::CaseInsensitive))
                files.append(file);
        }
    }
    return files;
}

} // namespace

FontPanel::FontPanel(EditSession* session, QWidget* parent)
    : QWidget(parent)
    , m_session(session)
    , m_list(new QListWidget)
    , m_import(make("add", "Import…", "Copy font files into the project", &FontPanel::importRequested))
    , m_uses(make("uses", "Show Uses", "List the places that use the font", &FontPanel::showUses))
    , m_remove(make("delete", "Remove", "Remove the font from the project (Del)", &FontPanel::remove))
{
    setObjectName(QStringLiteral("FontPanel"));
    setAcceptDrops(true);
    m_list->setObjectName(QStringLiteral("FontList"));
    m_list->setAccessibleName(coreText("Fonts"));
    m_list->setFrameShape(QFrame::NoFrame);
    m_list->setItemDelegate(new FontDelegate(this));
    m_list->setMouseTracking(true);
    m_list->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    m_list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_list->installEventFilter(this);

    auto* row = new QHBoxLayout;
    row->setContentsMargins(6, 3, 6, 3);
    row->setSpacing(2);
    for (QAction* action : {m_import, m_uses, m_remove}) {
        auto* button = new QToolButton;
        button->setDefaultAction(action);
        button->setAutoRaise(true);
        button->setIconSize(QSize(18, 18));
        button->setFocusPolicy(Qt::TabFocus);
        button->setAccessibleName(action->text());
        if (action == m_import)
            button->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
        row->addWidget(button);
        if (action == m_import)
            row->addStretch(1);
    }
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addLayout(row);
    layout->addWidget(m_list, 1);

    const Project* project = session->project();
    connect(project, &Project::resourcesChanged, this, &FontPanel::refill);
    connect(project, &Project::folderChanged, this, &FontPanel::refill);
    connect(m_list, &QListWidget::itemSelectionChanged, this, &FontPanel::updateActions);
    connect(m_list, &QListWidget::itemActivated, this, &FontPanel::showUses);
    refill();
}

QString FontPanel::selectedFont() const
{
    const QList<QListWidgetItem*> items = m_list->selectedItems();
    return items.isEmpty() ? QString() : items.constFirst()->text();
}

void FontPanel::selectFont(const QString& font)
{
    const QList<QListWidgetItem*> items = m_list->findItems(font, Qt::MatchExactly);
    if (!items.isEmpty())
        m_list->setCurrentItem(items.constFirst());
}

void FontPanel::importFiles(const QStringList& files)
{
    QStringList messages;
    QString last;
    for (const QString& file : files) {
        const EditResult result = m_session->importFont(file, &last);
        if (!result.accepted)
            messages.append(result.message);
    }
    selectFont(last);
    if (!messages.isEmpty())
        Q_EMIT refused(messages.join(QLatin1Char('\n')));
}

void FontPanel::contextMenuEvent(QContextMenuEvent* event)
{
    QMenu menu(this);
    menu.addActions({m_uses, m_remove});
    menu.addSeparator();
    menu.addAction(m_import);
    menu.exec(event->globalPos());
}

bool FontPanel::eventFilter(QObject* watched, QEvent* event)
{
    // The key belongs to the rows while the list has the focus, else to the elements of the canvas.
    const bool isKey = event->type() == QEvent::ShortcutOverride || event->type() == QEvent::KeyPress;
    if (!isKey || !static_cast<QKeyEvent*>(event)->matches(QKeySequence::Delete))
        return QWidget::eventFilter(watched, event);
    event->accept();
    if (event->type() == QEvent::KeyPress && m_remove->isEnabled())
        remove();
    return true;
}

void FontPanel::dragEnterEvent(QDragEnterEvent* event)
{
    if (!fontFiles(event->mimeData()).isEmpty()) {
        event->setDropAction(Qt::CopyAction);
        event->accept();
    }
}

void FontPanel::dropEvent(QDropEvent* event)
{
    event->setDropAction(Qt::CopyAction);
    event->accept();
    importFiles(fontFiles(event->mimeData()));
}

QSize FontPanel::sizeHint() const
{
    return {260, 300};
}

QAction* FontPanel::make(const char* icon, const char* text, const char* hint, void (FontPanel::*run)())
{
    auto* action = new QAction(ThemedIcon::named(QString::fromLatin1(icon)), coreText(text), this);
    action->setToolTip(coreText(hint));
    connect(action, &QAction::triggered, this, run);
    return action;
}

void FontPanel::refill()
{
    const QString selected = selectedFont();
    const int row = m_list->currentRow();
    QStringList fonts = m_session->project()->fontResources();
    fonts.sort(Qt::CaseInsensitive);
    m_list->clear();
    for (const QString& font : std::as_const(fonts)) {
        const QStringList families = FontReferences::families(m_session->project(), font);
        auto* item = new QListWidgetItem(font, m_list);
        item->setData(FontDelegate::FamiliesRole, families);
        item->setToolTip(families.isEmpty() ? coreText("The file holds no font that can be used.")
                                            : families.join(QLatin1String(", ")));
        item->setData(Qt::AccessibleDescriptionRole, item->toolTip());
    }
    selectFont(selected);
    if (!selected.isEmpty() && selectedFont().isEmpty() && m_list->count() > 0)
        m_list->setCurrentRow(qBound(0, row, m_list->count() - 1));
    updateActions();
}

void FontPanel::remove()
{
    const QString font = selectedFont();
    if (font.isEmpty())
        return;
    const EditResult result = m_session->removeFont(font);
    if (!result.accepted)
        Q_EMIT refused(result.message);
}

void FontPanel::showUses()
{
    if (!selectedFont().isEmpty())
        Q_EMIT usesRequested(selectedFont());
}

void FontPanel::updateActions()
{
    const bool one = !selectedFont().isEmpty();
    m_uses->setEnabled(one);
    m_remove->setEnabled(one);
}

} // namespace Korvex::Meridane::Designer
