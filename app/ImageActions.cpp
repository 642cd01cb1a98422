#include "app/ImageActions.h"

#include "app/AppSettings.h"
#include "app/CoreText.h"
#include "app/ImageData.h"
#include "app/ImageList.h"
#include "app/ImagePanel.h"
#include "app/LongWork.h"
#include "app/MessageBar.h"
#include "app/UserPrompts.h"
#include "app/WindowAction.h"
#include "app/Workspace.h"

#include "host/core/canvas/CanvasView.h"
#include "host/core/canvas/EditSession.h"
#include "host/core/canvas/ImagePlacement.h"

#include <QDir>
#include <QFileInfo>
#include <QMenu>
#include <QMimeData>
#include <QStandardPaths>

namespace Korvex::Meridane::Designer {

namespace {

const QString FolderKey = QStringLiteral("paths/images");

} // namespace

ImageActions::ImageActions(UserPrompts* prompts, MessageBar* messages, QObject* parent)
    : QObject(parent)
    , m_prompts(prompts)
    , m_messages(messages)
{}

void ImageActions::addTo(QMenu* menu)
{
    auto* import =
        new WindowAction(QStringLiteral("image-add"), coreText("Import I&mages…"), QList<QKeySequence>(), this);
    import->setObjectName(QStringLiteral("project.importImages"));
    connect(import, &QAction::triggered, this, &ImageActions::importFiles);
    menu->addAction(import);
}

void ImageActions::setWorkspace(Workspace* workspace)
{
    m_workspace = workspace;
}

void ImageActions::importFiles()
{
    const QStringList files = m_prompts->chooseImages(startFolder());
    if (files.isEmpty() || !m_workspace)
        return;
    AppSettings().setValue(FolderKey, QFileInfo(files.constFirst()).absolutePath());
    QStringList refused;
    QStringList images;
    {
        LongWork work(coreText("Importing the images…"));
        images = ImageData::takeFiles(m_workspace->session(), files, &refused,
                                      [&work](int done, int total) { return work.step(done, total); });
    }
    showImported(images, refused);
}

void ImageActions::replaceFile(const QString& image)
{
    const QString file = m_prompts->chooseReplacement(image, startFolder());
    if (file.isEmpty() || !m_workspace)
        return;
    AppSettings().setValue(FolderKey, QFileInfo(file).absolutePath());
    QString name;
    if (!m_workspace->session()->replaceImage(image, file, &name).accepted || name == image)
        return; // a refusal is shown
    m_messages->showMessage(
        coreText("\"%1\" is called \"%2\" now: the new picture is of another format.").arg(image, name),
        MessageBar::Kind::Information);
}

void ImageActions::importData(const QMimeData* data)
{
    if (!m_workspace)
        return;
    QStringList refused;
    const QStringList images = ImageData::take(m_workspace->session(), data, &refused);
    showImported(images, refused);
}

void ImageActions::placeData(const QMimeData* data)
{
    if (!m_workspace)
        return;
    QStringList refused;
    const QStringList images = ImageData::take(m_workspace->session(), data, &refused);
    placeImages(images);
    reportRefused(refused);
}

void ImageActions::placeDataAt(const QMimeData* data, const QPointF& place)
{
    if (!m_workspace)
        return;
    QStringList refused;
    EditSession* session = m_workspace->session();
    const QStringList images = ImageData::take(session, data, &refused);
    if (!images.isEmpty()) {
        const EditResult result = ImagePlacement::place(session, images, place, ImagePlacement::Anchor::TopLeft);
        if (!result.accepted)
            refused.prepend(result.message);
    }
    reportRefused(refused);
}

void ImageActions::placeImages(const QStringList& images)
{
    if (!m_workspace || images.isEmpty())
        return;
    const CanvasView* canvas = m_workspace->canvas();
    const QPointF center = canvas->mapToScene(canvas->viewport()->rect().center());
    const EditResult result =
        ImagePlacement::place(m_workspace->session(), images, center, ImagePlacement::Anchor::Center);
    reportRefused(result.accepted ? QStringList() : QStringList{result.message});
}

void ImageActions::explainRefusedRemoval(const QString& message)
{
    m_messages->showMessage(message, MessageBar::Kind::Error, coreText("Show Uses"), [workspace = m_workspace] {
        if (workspace)
            workspace->images()->showUses();
    });
}

void ImageActions::showImported(const QStringList& images, const QStringList& refused)
{
    if (!images.isEmpty()) {
        m_workspace->images()->list()->selectImages(images);
        Q_EMIT imported();
    }
    reportRefused(refused);
}

void ImageActions::reportRefused(const QStringList& refused)
{
    if (refused.isEmpty())
        return;
    const QString more =
        refused.size() == 1 ? QString() : coreText(" (And %n more.)", " (And %n more.)", int(refused.size()) - 1);
    m_messages->showMessage(refused.constFirst() + more, MessageBar::Kind::Error);
}

QString ImageActions::startFolder() const
{
    QString known = AppSettings().value(FolderKey).toString();
    if (!known.isEmpty() && QDir(known).exists())
        return known;
    const QString pictures = QStandardPaths::writableLocation(QStandardPaths::PicturesLocation);
    return QDir(pictures).exists() ? pictures : QDir::homePath();
}

} // namespace Korvex::Meridane::Designer
