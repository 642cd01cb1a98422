#include "app/ProjectThumbnails.h"

#include "host/core/canvas/CanvasScene.h"
#include "host/core/canvas/EditSession.h"
#include "host/core/canvas/ScreenRenderer.h"
#include "host/core/objects/Screen.h"
#include "host/core/project/Project.h"
#include "host/core/project/ProjectStore.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFileInfo>
#include <QSaveFile>
#include <QStandardPaths>

namespace Korvex::Meridane::Designer {

namespace {

QImage pictureOf(EditSession* session)
{
    const QVector<Screen*> screens = session->project()->screens();
    if (screens.isEmpty() || !screens.first()->contentError().isEmpty() || screens.first()->size().isEmpty())
        return {};
    const QSizeF size = screens.first()->size();
    const QSizeF wanted = size.scaled(ProjectThumbnails::LargestSize, Qt::KeepAspectRatio);
    const double scale = qMin(1., wanted.width() / size.width());
    return ScreenRenderer::render(session->scene(screens.first()), scale);
}

void write(const QImage& picture, const QString& folder)
{
    const QString path = ProjectThumbnails::file(folder);
    if (picture.isNull() || !QDir().mkpath(QFileInfo(path).path()))
        return;
    QSaveFile target(path);
    if (target.open(QIODevice::WriteOnly) && picture.save(&target, "PNG"))
        target.commit();
}

} // namespace

QImage ProjectThumbnails::stored(const QString& folder)
{
    return QImage(file(folder));
}

void ProjectThumbnails::store(EditSession* session, const QString& folder)
{
    write(pictureOf(session), folder);
}

QImage ProjectThumbnails::draw(const QString& folder)
{
    ProjectStore::Loaded loaded = ProjectStore::loadCopy(folder);
    if (!loaded.project)
        return {};
    EditSession session(std::move(loaded.project));
    QImage picture = pictureOf(&session);
    write(picture, folder);
    return picture;
}

QString ProjectThumbnails::file(const QString& folder)
{
    const QByteArray path = QDir::cleanPath(QDir(folder).absolutePath()).toUtf8();
    const QString name =
        QString::fromLatin1(QCryptographicHash::hash(path, QCryptographicHash::Sha256).toHex().left(32));
    return QStandardPaths::writableLocation(QStandardPaths::GenericCacheLocation)
           + QStringLiteral("/meridane/thumbnails/%1.png").arg(name);
}

} // namespace Korvex::Meridane::Designer
