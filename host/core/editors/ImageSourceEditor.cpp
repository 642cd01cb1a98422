#include "host/core/editors/ImageSourceEditor.h"

#include "host/core/canvas/EditSession.h"
#include "host/core/canvas/ImagePlacement.h"
#include "host/core/editors/ImageThumbnails.h"
#include "host/core/project/ImageFormats.h"
#include "host/core/project/Project.h"
#include "host/core/properties/DesignerProperty.h"
#include "host/core/widgets/ComboBox.h"

#include "host/common/LocalizationHelper.h"

#include <QAbstractItemView>
#include <QDir>
#include <QDragEnterEvent>
#include <QFileDialog>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QMimeData>
#include <QToolButton>
#include <QUrl>

namespace Korvex::Meridane::Designer {

using Common::LocalizationHelper;

namespace {

constexpr int ThumbnailScale = 2; // sharp on screens with small pixels

/// The one local file of a drag, or empty.
QString draggedFile(const QMimeData* data)
{
    const QList<QUrl> urls = data ? data->urls() : QList<QUrl>();
    return urls.size() == 1 && urls.first().isLocalFile() ? urls.first().toLocalFile() : QString();
}

/// The one image of the project's list that is dragged, or empty.
QString draggedImage(const QMimeData* data)
{
    const QList<QByteArray> names = data ? data->data(ImagePlacement::mimeType()).split('\n') : QList<QByteArray>();
    return names.size() == 1 ? QString::fromUtf8(names.first()) : QString();
}

} // namespace

ImageSourceEditor::ImageSourceEditor(QWidget* parent)
    : LinkEditor(parent)
    , m_thumbnails(new ImageThumbnails(ThumbnailScale * ImageThumbnails::Side, this))
{
    connect(m_thumbnails, &ImageThumbnails::loaded, this, &ImageSourceEditor::showThumbnail);
}

ImageSourceEditor::~ImageSourceEditor() = default;

QString ImageSourceEditor::className() const
{
    return QStringLiteral("ImageSourceEditor");
}

bool ImageSourceEditor::createEditorWidget()
{
    if (!LinkEditor::createEditorWidget())
        return false;
    // Small in the field, which is as high as every other one; larger in the list.
    comboBox()->setIconSize(QSize(ImageThumbnails::Side / 2, ImageThumbnails::Side / 2));
    comboBox()->view()->setIconSize(QSize(ImageThumbnails::Side, ImageThumbnails::Side));
    m_button = new QToolButton(this);
    m_button->setText(LocalizationHelper::coreString(QStringLiteral("Import\u2026")));
    m_button->setToolTip(LocalizationHelper::coreString(QStringLiteral("Copy an image file into the project")));
    m_button->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Minimum);
    m_button->setFocusPolicy(Qt::StrongFocus);
    connect(m_button, &QToolButton::clicked, this, &ImageSourceEditor::chooseFile);
    layout()->addWidget(m_button);
    layout()->setSpacing(4);
    setAcceptDrops(true);
    propertyReplaced();
    return true;
}

void ImageSourceEditor::propertyReplaced()
{
    if (m_button)
        m_button->setEnabled(session() != nullptr);
    disconnect(m_fileChanges);
    if (const Project* owner = project())
        m_fileChanges = connect(owner, &Project::imageFileChanged, this, &ImageSourceEditor::requestThumbnail);
}

void ImageSourceEditor::importFile(const QString& file)
{
    if (!session())
        return;
    QString id;
    const EditResult result = session()->importImage(file, &id);
    if (!result.accepted) {
        refuse(result.message);
        return;
    }
    linkTo(id);
}

void ImageSourceEditor::linkTo(const QString& image)
{
    fillChoices(image);
    edit();
}

QStringList ImageSourceEditor::candidates() const
{
    const Project* owner = project();
    return owner ? owner->imageResources() : QStringList();
}

bool ImageSourceEditor::isCandidate(const QString& id) const
{
    return candidates().contains(id);
}

void ImageSourceEditor::choicesReplaced()
{
    m_thumbnails->cancel();
    for (int index = 0; index < comboBox()->count(); ++index)
        requestThumbnail(comboBox()->itemData(index).toString());
}

void ImageSourceEditor::dragEnterEvent(QDragEnterEvent* event)
{
    if (!isCandidate(draggedImage(event->mimeData())) && (!session() || draggedFile(event->mimeData()).isEmpty()))
        return;
    // A copy, whatever is proposed: the program that a file is moved from would delete it.
    event->setDropAction(Qt::CopyAction);
    event->accept();
}

void ImageSourceEditor::dropEvent(QDropEvent* event)
{
    event->setDropAction(Qt::CopyAction);
    event->accept();
    const QString image = draggedImage(event->mimeData());
    if (isCandidate(image))
        linkTo(image);
    else
        importFile(draggedFile(event->mimeData()));
}

void ImageSourceEditor::chooseFile()
{
    const QString file = QFileDialog::getOpenFileName(
        this, LocalizationHelper::coreString(QStringLiteral("Import Image")), QString(), ImageFormats::fileFilter());
    if (!file.isEmpty())
        importFile(file);
}

void ImageSourceEditor::requestThumbnail(const QString& image)
{
    if (isCandidate(image) && comboBox()->findData(image) >= 0)
        m_thumbnails->request(QDir(project()->imagesPath()).filePath(image));
}

void ImageSourceEditor::showThumbnail(const QString& file, const ImageThumbnail& thumbnail)
{
    const int index = comboBox()->findData(QFileInfo(file).fileName());
    if (index < 0)
        return;
    const bool empty = thumbnail.picture.isNull();
    comboBox()->setItemIcon(
        index, empty ? QIcon()
                     : QIcon(ImageThumbnails::squarePixmap(thumbnail.picture, ImageThumbnails::Side, ThumbnailScale)));
}

} // namespace Korvex::Meridane::Designer
