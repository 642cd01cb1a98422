#include "app/StartPage.h"

#include "app/CardGrid.h"
#include "app/CoreText.h"
#include "app/PanelIcon.h"
#include "app/PanelSizes.h"
#include "app/ProjectThumbnails.h"
#include "app/RecentFiles.h"
#include "app/ThemedIcon.h"

#include <QDir>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>
#include <QKeyEvent>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QTimer>
#include <QVBoxLayout>

namespace Korvex::Meridane::Designer {

namespace {

constexpr QSize PanelPicture(108, 54);
constexpr QSize ProjectPicture(176, 110);
constexpr int PageWidth = 880; // pixels, at most

QLabel* heading(const QString& text, QWidget* buddy)
{
    auto* label = new QLabel(text);
    QFont font = label->font();
    font.setPointSizeF(font.pointSizeF() * 1.15);
    font.setBold(true);
    label->setFont(font);
    label->setBuddy(buddy);
    return label;
}

/// The name that project.json in \a folder gives, or the folder's own.
QString nameOf(const QString& folder)
{
    QFile file(QDir(folder).filePath(QStringLiteral("project.json")));
    QString name;
    if (file.open(QIODevice::ReadOnly))
        name = QJsonDocument::fromJson(file.readAll()).object().value(QLatin1String("name")).toString();
    return name.isEmpty() ? QDir(folder).dirName() : name;
}

/// Shows \a picture on the card \a item, or a symbol where there is none.
void setPicture(QListWidgetItem* item, const QImage& picture)
{
    item->setIcon(picture.isNull() ? ThemedIcon::named(QStringLiteral("project"), QPalette::PlaceholderText)
                                   : QIcon(QPixmap::fromImage(picture)));
    item->setData(CardGrid::SymbolRole, picture.isNull());
}

bool isProject(const QString& folder)
{
    return QFileInfo(QDir(folder).filePath(QStringLiteral("project.json"))).isFile();
}

} // namespace

StartPage::StartPage(RecentFiles* recent, const QString& examplesFolder, QWidget* parent)
    : QScrollArea(parent)
    , m_recent(recent)
    , m_panels(new CardGrid(PanelPicture))
    , m_recentGrid(new CardGrid(ProjectPicture))
    , m_examples(new CardGrid(ProjectPicture))
    , m_noRecent(new QLabel(coreText("Projects that you save or open appear here.")))
{
    setObjectName(QStringLiteral("StartPage"));
    setAccessibleName(coreText("Start page"));
    setFrameShape(QFrame::NoFrame);
    setWidgetResizable(true);
    setFocusPolicy(Qt::NoFocus);
    m_panels->setAccessibleName(coreText("New project"));
    m_recentGrid->setAccessibleName(coreText("Recent projects"));
    m_examples->setAccessibleName(coreText("Examples"));
    m_noRecent->setForegroundRole(QPalette::PlaceholderText);

    auto* page = new QWidget;
    page->setMaximumWidth(PageWidth);
    auto* column = new QVBoxLayout(page);
    column->setContentsMargins(32, 32, 20, 24);
    column->setSpacing(8);
    column->addWidget(makeHeader());
    column->addSpacing(16);
    column->addWidget(heading(coreText("New Project"), m_panels));
    column->addWidget(m_panels);
    column->addSpacing(12);
    column->addWidget(heading(coreText("Recent Projects"), m_recentGrid));
    column->addWidget(m_noRecent);
    column->addWidget(m_recentGrid);
    auto* examplesHeading = heading(coreText("Examples"), m_examples);
    column->addSpacing(12);
    column->addWidget(examplesHeading);
    column->addWidget(m_examples);
    column->addStretch(1);
    auto* content = new QWidget;
    auto* row = new QHBoxLayout(content);
    row->setContentsMargins(0, 0, 0, 0);
    row->addStretch(1);
    row->addWidget(page, 1000);
    row->addStretch(1);
    setWidget(content);

    fillPanels();
    fillExamples(examplesFolder);
    fillRecent();
    examplesHeading->setVisible(m_examples->count() > 0);
    m_examples->setVisible(m_examples->count() > 0);
    connect(m_panels, &CardGrid::opened, this,
            [this](const QListWidgetItem* item) { Q_EMIT newRequested(item->data(CardGrid::ValueRole).toSize()); });
    connect(m_examples, &CardGrid::opened, this, [this](const QListWidgetItem* item) {
        Q_EMIT exampleRequested(item->data(CardGrid::ValueRole).toString());
    });
    connect(m_recentGrid, &CardGrid::opened, this, &StartPage::openRecent);
    connect(m_recentGrid, &CardGrid::removalRequested, this,
            [this](const QListWidgetItem* item) { m_recent->remove(item->data(CardGrid::ValueRole).toString()); });
    m_recentGrid->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(m_recentGrid, &QWidget::customContextMenuRequested, this, &StartPage::showRecentMenu);
    connect(m_recent, &RecentFiles::changed, this, &StartPage::fillRecent, Qt::QueuedConnection);
}

void StartPage::refresh()
{
    fillRecent();
    if (!m_withoutPicture.isEmpty())
        QTimer::singleShot(100, this, &StartPage::drawMissingPictures);
    CardGrid* first = m_recentGrid->count() > 0 ? m_recentGrid : m_panels;
    first->setFocus(Qt::TabFocusReason);
}

void StartPage::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Escape)
        Q_EMIT leaveRequested();
    else
        QScrollArea::keyPressEvent(event);
}

void StartPage::focusInEvent(QFocusEvent* event)
{
    QScrollArea::focusInEvent(event);
    m_panels->setFocus(event->reason());
}

QWidget* StartPage::makeHeader()
{
    auto* header = new QWidget;
    auto* icon = new QLabel;
    icon->setPixmap(
        QIcon(QStringLiteral(":/meridane/designer/icons/application.svg")).pixmap(QSize(56, 56), devicePixelRatioF()));
    auto* name = new QLabel(coreText("Meridane Designer"));
    QFont font = name->font();
    font.setPointSizeF(font.pointSizeF() * 1.8);
    font.setWeight(QFont::DemiBold);
    name->setFont(font);
    auto* words = new QLabel(coreText("Screens for small panel displays"));
    words->setForegroundRole(QPalette::PlaceholderText);
    auto* open = new QPushButton(ThemedIcon::named(QStringLiteral("file-open")), coreText("Open Project…"));
    auto* leave = new QPushButton(coreText("Go to the Canvas"));
    leave->setToolTip(coreText("Leave the start page (Esc)"));
    for (QPushButton* button : {open, leave})
        button->setAutoDefault(true); // Enter works as Space does
    connect(open, &QPushButton::clicked, this, &StartPage::openRequested);
    connect(leave, &QPushButton::clicked, this, &StartPage::leaveRequested);

    auto* text = new QVBoxLayout;
    text->setSpacing(2);
    text->addStretch(1);
    text->addWidget(name);
    text->addWidget(words);
    text->addStretch(1);
    auto* row = new QHBoxLayout(header);
    row->setContentsMargins(0, 0, 12, 0);
    row->setSpacing(16);
    row->addWidget(icon);
    row->addLayout(text, 1);
    row->addWidget(open);
    row->addWidget(leave);
    return header;
}

void StartPage::fillPanels()
{
    for (const QSize& size : PanelSizes) {
        m_panels->addCard(PanelIcon::of(size), coreText("%1 × %2").arg(size.width()).arg(size.height()),
                          coreText("pixels"), size);
    }
    m_panels->addCard(PanelIcon::of({}), coreText("Other Size…"), coreText("name and size"), QSize());
}

void StartPage::fillExamples(const QString& folder)
{
    if (folder.isEmpty())
        return;
    const QFileInfoList entries = QDir(folder).entryInfoList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name);
    for (const QFileInfo& entry : entries) {
        const QString path = entry.absoluteFilePath();
        if (!isProject(path))
            continue;
        const QImage picture = ProjectThumbnails::stored(path);
        QListWidgetItem* item = m_examples->addCard({}, nameOf(path), coreText("opens as a copy"), path);
        setPicture(item, picture);
        if (picture.isNull())
            m_withoutPicture.append(item);
    }
}

void StartPage::fillRecent()
{
    const int row = m_recentGrid->currentRow();
    m_recentGrid->clear();
    const QStringList folders = m_recent->folders();
    for (const QString& folder : folders) {
        const bool missing = !isProject(folder);
        const QString place = QDir::toNativeSeparators(folder);
        QListWidgetItem* item = m_recentGrid->addCard({}, missing ? QDir(folder).dirName() : nameOf(folder),
                                                      missing ? coreText("Missing: remove from list")
                                                              : QDir::toNativeSeparators(QFileInfo(folder).path()),
                                                      folder);
        setPicture(item, ProjectThumbnails::stored(folder));
        item->setData(CardGrid::DimmedRole, missing);
        item->setToolTip(missing ? coreText("There is no project in \"%1\" any more.").arg(place)
                                 : coreText("%1 (Del takes it off the list)").arg(place));
    }
    m_recentGrid->setCurrentRow(qMin(row, m_recentGrid->count() - 1));
    m_recentGrid->setVisible(!folders.isEmpty());
    m_noRecent->setVisible(folders.isEmpty());
}

void StartPage::drawMissingPictures()
{
    if (!isVisible() || m_withoutPicture.isEmpty())
        return;
    QListWidgetItem* item = m_withoutPicture.takeFirst();
    const QImage picture = ProjectThumbnails::draw(item->data(CardGrid::ValueRole).toString());
    if (!picture.isNull())
        setPicture(item, picture);
    // One after the other, so that the page answers in between.
    QTimer::singleShot(0, this, &StartPage::drawMissingPictures);
}

void StartPage::showRecentMenu(const QPoint& place)
{
    const QListWidgetItem* item = m_recentGrid->itemAt(place);
    if (!item)
        return;
    const QString folder = item->data(CardGrid::ValueRole).toString();
    auto* menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    QAction* open = menu->addAction(coreText("O&pen"));
    open->setEnabled(!item->data(CardGrid::DimmedRole).toBool());
    connect(open, &QAction::triggered, this, [this, folder] { Q_EMIT projectRequested(folder); });
    connect(menu->addAction(coreText("&Remove from List")), &QAction::triggered, this,
            [this, folder] { m_recent->remove(folder); });
    menu->popup(m_recentGrid->viewport()->mapToGlobal(place));
}

void StartPage::openRecent(const QListWidgetItem* item)
{
    const QString folder = item->data(CardGrid::ValueRole).toString();
    if (item->data(CardGrid::DimmedRole).toBool())
        m_recent->remove(folder);
    else
        Q_EMIT projectRequested(folder);
}

} // namespace Korvex::Meridane::Designer
