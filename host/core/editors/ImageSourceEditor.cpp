#include "host/core/editors/ImageSourceEditor.h"

#include "host/core/canvas/EditSession.h"
#include "host/core/editors/ImageThumbnails.h"
#include "host/core/project/Project.h"
#include "host/core/properties/DesignerProperty.h"
#include "host/core/widgets/ComboBox.h"

#include "host/common/LocalizationHelper.h"

#include <QAbstractItemView>
#include <QDir>
#include <QDragEnterEvent>
#include <QFileDialog>
#include <QHBoxLayout>
#include <QImageReader>
#include <QMimeData>
#include <QTimer>
#include <QToolButton>
#include <QUrl>

namespace Korvex::Meridane::Designer {

using Common::LocalizationHelper;

namespace {

/// The one local file of a drag, or empty.
QString draggedFile(const QMimeData* data)
{
    const QList<QUrl> urls = data ? data->urls() : QList<QUrl>();
    return urls.size() == 1 && urls.first().isLocalFile() ? urls.first().toLocalFile() : QString();
}

QString imageFileFilter()
{
    QStringList patterns;
    for (const QByteArray& format : QImageReader::supportedImageFormats())
        patterns.append(QStringLiteral("*.") + QString::fromLatin1(format));
    return LocalizationHelper::coreString(QStringLiteral("Images (%1)")).arg(patterns.join(QLatin1Char(' ')));
}

} // namespace

ImageSourceEditor::ImageSourceEditor(QWidget* parent)
    : LinkEditor(parent)
    , m_thumbnails(new QTimer(this))
{
    m_thumbnails->setInterval(0);
    connect(m_thumbnails, &QTimer::timeout, this, &ImageSourceEditor::loadNextThumbnail);
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
    fillChoices(id);
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
    m_nextThumbnail = 0;
    m_thumbnails->start();
}

void ImageSourceEditor::dragEnterEvent(QDragEnterEvent* event)
{
    if (session() && !draggedFile(event->mimeData()).isEmpty())
        event->acceptProposedAction();
}

void ImageSourceEditor::dropEvent(QDropEvent* event)
{
    event->acceptProposedAction();
    importFile(draggedFile(event->mimeData()));
}

void ImageSourceEditor::chooseFile()
{
    const QString file = QFileDialog::getOpenFileName(
        this, LocalizationHelper::coreString(QStringLiteral("Import Image")), QString(), imageFileFilter());
    if (!file.isEmpty())
        importFile(file);
}

void ImageSourceEditor::loadNextThumbnail()
{
    const Project* owner = project();
    if (!owner || m_nextThumbnail >= comboBox()->count()) {
        m_thumbnails->stop();
        return;
    }
    const QString id = comboBox()->itemData(m_nextThumbnail).toString();
    if (owner->imageResources().contains(id))
        comboBox()->setItemIcon(m_nextThumbnail, ImageThumbnails::thumbnail(QDir(owner->imagesPath()).filePath(id)));
    ++m_nextThumbnail;
}

} // namespace Korvex::Meridane::Designer
