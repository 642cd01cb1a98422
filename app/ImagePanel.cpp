#include "app/ImagePanel.h"

#include "app/CoreText.h"
#include "app/ImageData.h"
#include "app/ImageList.h"
#include "app/ImageListModel.h"
#include "app/ThemedIcon.h"

#include "host/core/canvas/EditSession.h"
#include "host/core/objects/Screen.h"
#include "host/core/project/ImageReferences.h"
#include "host/core/project/ObjectTree.h"
#include "host/core/project/Project.h"

#include <QAction>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QMenu>
#include <QMimeData>
#include <QPainter>
#include <QPushButton>
#include <QSet>
#include <QStackedWidget>
#include <QToolButton>
#include <QVBoxLayout>

namespace Korvex::Meridane::Designer {

namespace {

constexpr int MostListedUses = 20; // of a menu

/// What stands where the images will be, in the colour of a hint.
class EmptyPicture : public QWidget
{
public:
    EmptyPicture() { setFixedSize(48, 48); }

protected:
    void paintEvent(QPaintEvent*) override
    {
        QPainter painter(this);
        m_icon.paint(&painter, rect());
    }

private:
    QIcon m_icon = ThemedIcon::named(QStringLiteral("image"), QPalette::PlaceholderText);
};

} // namespace

ImagePanel::ImagePanel(EditSession* session, QWidget* parent)
    : QWidget(parent)
    , m_session(session)
    , m_model(new ImageListModel(session, this))
    , m_list(new ImageList(m_model))
    , m_pages(new QStackedWidget)
    , m_import(make("add", "Import…", "Copy image files into the project", &ImagePanel::importRequested))
    , m_place(make("place", "Place on the Screen", "Place the image on the screen (Enter)", &ImagePanel::place))
    , m_replace(
          make("replace", "Replace File…", "Show another picture wherever the image is used", &ImagePanel::replace))
    , m_rename(make("rename", "Rename", "Rename the image (F2)", &ImagePanel::rename))
    , m_remove(make("delete", "Remove", "Remove the image from the project (Del)", &ImagePanel::removeSelected))
    , m_showUses(make("uses", "Show Uses", "Select the elements that show the image", &ImagePanel::showUses))
{
    setObjectName(QStringLiteral("ImagePanel"));
    setAcceptDrops(true);
    setBackgroundRole(QPalette::Base);
    setAutoFillBackground(true);
    m_invitation = makeInvitation();
    m_pages->addWidget(m_list);
    m_pages->addWidget(m_invitation);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(makeToolRow());
    layout->addWidget(m_pages, 1);

    connect(m_list, &ImageList::selectedImagesChanged, this, &ImagePanel::updateActions);
    connect(m_list, &ImageList::activated, this, &ImagePanel::place);
    connect(m_list, &ImageList::removeRequested, this, &ImagePanel::removeSelected);
    connect(m_list, &ImageList::pasteRequested, this, [this] {
        const QMimeData* data = QGuiApplication::clipboard()->mimeData();
        if (ImageData::holdsNewImages(data))
            Q_EMIT dataOffered(data);
    });
    connect(m_model, &QAbstractItemModel::rowsInserted, this, &ImagePanel::showRightPage);
    connect(m_model, &QAbstractItemModel::rowsRemoved, this, &ImagePanel::showRightPage);
    connect(m_model, &QAbstractItemModel::dataChanged, this, [this] {
        // Uses come and go while somebody looks.
        if (!m_list->viewport()->visibleRegion().isEmpty())
            updateActions();
    });
    showRightPage();
}

QAction* ImagePanel::make(const char* icon, const char* text, const char* hint, void (ImagePanel::*run)())
{
    auto* action = new QAction(ThemedIcon::named(QString::fromLatin1(icon)), coreText(text), this);
    action->setToolTip(coreText(hint));
    connect(action, &QAction::triggered, this, run);
    return action;
}

QWidget* ImagePanel::makeToolRow()
{
    auto* row = new QWidget;
    row->setAutoFillBackground(true);
    row->setBackgroundRole(QPalette::Window);
    auto* layout = new QHBoxLayout(row);
    layout->setContentsMargins(6, 3, 6, 3);
    layout->setSpacing(2);
    for (QAction* action : {m_import, m_place, m_showUses, m_replace, m_rename, m_remove}) {
        auto* button = new QToolButton;
        button->setDefaultAction(action);
        button->setAutoRaise(true);
        button->setIconSize(QSize(18, 18));
        button->setFocusPolicy(Qt::TabFocus);
        button->setAccessibleName(action->text());
        if (action == m_import)
            button->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
        layout->addWidget(button);
        if (action == m_import)
            layout->addStretch(1);
    }
    return row;
}

QWidget* ImagePanel::makeInvitation() const
{
    auto* page = new QWidget;
    auto* text = new QLabel(coreText("No images yet. Drop image files here or on the screen, or import them."));
    text->setAlignment(Qt::AlignCenter);
    text->setWordWrap(true);
    text->setForegroundRole(QPalette::PlaceholderText);
    auto* button = new QPushButton(ThemedIcon::named(QStringLiteral("add")), coreText("Import Images…"));
    connect(button, &QPushButton::clicked, this, &ImagePanel::importRequested);
    auto* layout = new QVBoxLayout(page);
    layout->setContentsMargins(24, 12, 24, 12);
    layout->setSpacing(12);
    layout->addStretch(2);
    layout->addWidget(new EmptyPicture, 0, Qt::AlignHCenter);
    layout->addWidget(text);
    layout->addWidget(button, 0, Qt::AlignHCenter);
    layout->addStretch(3);
    return page;
}

void ImagePanel::fillMenu(QMenu* menu)
{
    const QStringList images = m_list->selectedImages();
    if (!images.isEmpty()) {
        menu->addAction(m_place);
        menu->setDefaultAction(m_place);
        menu->addAction(m_showUses);
        if (images.size() == 1)
            addUses(menu, images.constFirst());
        menu->addSeparator();
        menu->addActions({m_rename, m_replace, m_remove});
        menu->addSeparator();
    }
    menu->addAction(m_import);
}

/// The ways to the single elements that show \a image.
void ImagePanel::addUses(QMenu* menu, const QString& image)
{
    const QList<DesignerObject*> objects = users(image);
    if (objects.isEmpty())
        return;
    QMenu* uses = menu->addMenu(coreText("Used By"));
    for (DesignerObject* object : objects.first(qMin<qsizetype>(objects.size(), MostListedUses))) {
        const QString name = ObjectTree::screenOf(object)->getIdName() + QLatin1Char('/') + object->getIdName();
        connect(uses->addAction(name), &QAction::triggered, this,
                [this, object] { Q_EMIT objectsRequested({object}); });
    }
    if (objects.size() > MostListedUses)
        uses->addAction(coreText("and %n more", "and %n more", int(objects.size()) - MostListedUses))
            ->setEnabled(false);
}

void ImagePanel::removeSelected()
{
    const QStringList images = m_list->selectedImages();
    const int row = m_list->currentIndex().row();
    bool removed = false;
    for (const QString& image : images) {
        const EditResult result = m_session->removeImage(image);
        if (!result.accepted) {
            m_list->selectImages({image});
            if (!users(image).isEmpty())
                Q_EMIT removalRefused(result.message);
            return;
        }
        removed = true;
    }
    if (removed && m_list->selectedImages().isEmpty())
        m_list->selectImages({m_model->image(m_model->index(qMin(row, m_model->rowCount() - 1), 0))});
}

void ImagePanel::showUses()
{
    const QStringList images = m_list->selectedImages();
    if (images.size() != 1)
        return;
    // Screens in their order, each with what is to be selected on it.
    QList<QList<DesignerObject*>> screens;
    for (DesignerObject* object : users(images.constFirst())) {
        if (screens.isEmpty() || ObjectTree::screenOf(screens.constLast().constFirst()) != ObjectTree::screenOf(object))
            screens.append(QList<DesignerObject*>());
        screens.last().append(object);
    }
    if (screens.isEmpty())
        return;
    qsizetype shown = 0;
    for (qsizetype i = 0; i < screens.size(); ++i) {
        if (ObjectTree::screenOf(screens.at(i).constFirst()) != m_session->currentScreen())
            continue;
        const QList<DesignerObject*>& selection = m_session->selection();
        const bool seen = QSet<DesignerObject*>(selection.cbegin(), selection.cend())
                          == QSet<DesignerObject*>(screens.at(i).cbegin(), screens.at(i).cend());
        shown = seen ? (i + 1) % screens.size() : i;
    }
    Q_EMIT objectsRequested(screens.at(shown));
}

void ImagePanel::dragEnterEvent(QDragEnterEvent* event)
{
    if (!ImageData::holdsNewImages(event->mimeData()))
        return;
    event->setDropAction(Qt::CopyAction);
    event->accept();
}

void ImagePanel::dropEvent(QDropEvent* event)
{
    event->setDropAction(Qt::CopyAction);
    event->accept();
    Q_EMIT dataOffered(event->mimeData());
}

void ImagePanel::contextMenuEvent(QContextMenuEvent* event)
{
    QMenu menu(this);
    fillMenu(&menu);
    menu.exec(event->globalPos());
}

QSize ImagePanel::sizeHint() const
{
    return {260, 300};
}

void ImagePanel::place()
{
    const QStringList images = m_list->selectedImages();
    if (!images.isEmpty())
        Q_EMIT placeRequested(images);
}

void ImagePanel::replace()
{
    const QStringList images = m_list->selectedImages();
    if (images.size() == 1)
        Q_EMIT replaceRequested(images.constFirst());
}

void ImagePanel::rename()
{
    const QStringList images = m_list->selectedImages();
    if (images.size() != 1)
        return;
    m_list->setFocus();
    m_list->edit(m_model->indexOf(images.constFirst()));
}

void ImagePanel::updateActions()
{
    const QStringList images = m_list->selectedImages();
    const bool one = images.size() == 1;
    m_place->setEnabled(!images.isEmpty());
    m_replace->setEnabled(one);
    m_rename->setEnabled(one);
    m_remove->setEnabled(!images.isEmpty());
    m_showUses->setEnabled(one && m_model->useCount(images.constFirst()) != 0);
}

void ImagePanel::showRightPage()
{
    m_pages->setCurrentWidget(m_model->rowCount() > 0 ? static_cast<QWidget*>(m_list) : m_invitation);
    updateActions();
}

/// The elements that show \a image, in the order of the tree, each once.
QList<DesignerObject*> ImagePanel::users(const QString& image) const
{
    QList<DesignerObject*> objects;
    const QList<ImageUse> uses = ImageReferences::uses(m_session->project(), image);
    for (const ImageUse& use : uses) {
        if (ObjectTree::screenOf(use.object) && !objects.contains(use.object))
            objects.append(use.object);
    }
    return objects;
}

} // namespace Korvex::Meridane::Designer
