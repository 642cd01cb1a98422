#include "app/ImageListModel.h"

#include "app/CoreText.h"

#include "host/core/canvas/EditSession.h"
#include "host/core/canvas/ImagePlacement.h"
#include "host/core/objects/Screen.h"
#include "host/core/project/ImageReferences.h"
#include "host/core/project/Project.h"
#include "host/core/properties/LinkProperty.h"

#include <QCollator>
#include <QDir>
#include <QFileInfo>
#include <QLocale>
#include <QMimeData>
#include <QUrl>

#include <algorithm>

namespace Korvex::Meridane::Designer {

using Common::PictureKind;

namespace {

constexpr int ThumbnailScale = 2; // sharp on screens with small pixels

} // namespace

ImageListModel::ImageListModel(EditSession* session, QObject* parent)
    : QAbstractListModel(parent)
    , m_session(session)
    , m_thumbnails(new ImageThumbnails(ThumbnailScale * ThumbnailSide, this))
{
    const Project* project = session->project();
    m_images = sortedImages();
    connect(m_thumbnails, &ImageThumbnails::loaded, this, &ImageListModel::show);
    connect(project, &Project::resourcesChanged, this, &ImageListModel::follow);
    connect(project, &Project::imageFileChanged, this, &ImageListModel::forgetFile);
    connect(project, &Project::folderChanged, this, [this] { m_requested.clear(); });
    connect(project, &Project::modifiedChanged, this, &ImageListModel::forgetUses);
    connect(project, &Project::objectAdded, this, &ImageListModel::forgetUses);
    connect(project, &Project::objectRemoved, this, &ImageListModel::forgetUses);
    connect(project, &Project::projectBrowserUpdateRequested, this, &ImageListModel::forgetUses);
    connect(project, &Project::objectPropertyChanged, this,
            [this](DesignerObject*, const QSharedPointer<DesignerProperty>& property) {
                const auto* link = dynamic_cast<const LinkProperty*>(property.data());
                if (link && ImageReferences::isImageLink(*link))
                    forgetUses();
            });
}

ImageListModel::~ImageListModel() = default;

QString ImageListModel::image(const QModelIndex& index) const
{
    return m_images.value(index.isValid() ? index.row() : -1);
}

QModelIndex ImageListModel::indexOf(const QString& image) const
{
    const qsizetype row = m_images.indexOf(image);
    return row < 0 ? QModelIndex() : index(int(row), 0);
}

int ImageListModel::useCount(const QString& image) const
{
    findUses();
    return m_usesCertain ? m_uses.value(image) : -1;
}

int ImageListModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : int(m_images.size());
}

QVariant ImageListModel::data(const QModelIndex& index, int role) const
{
    const QString name = image(index);
    if (name.isEmpty())
        return {};
    switch (role) {
    case Qt::DisplayRole:
    case Qt::EditRole:
        return name;
    case ThumbnailRole:
        if (!m_requested.contains(name)) {
            m_requested.insert(name);
            m_thumbnails->request(path(name));
        }
        return m_loaded.value(name).picture;
    case DetailRole:
        return detail(name);
    case UsesRole:
        return uses(name);
    case FaultRole:
        return m_loaded.contains(name) && m_loaded.value(name).info.kind == PictureKind::Unreadable;
    case Qt::ToolTipRole:
        return toolTip(name);
    case Qt::AccessibleDescriptionRole: {
        QStringList parts{detail(name), uses(name)};
        parts.removeAll(QString());
        return parts.join(QLatin1String(", "));
    }
    default:
        return {};
    }
}

bool ImageListModel::setData(const QModelIndex& index, const QVariant& value, int role)
{
    return role == Qt::EditRole && m_session->renameImage(image(index), value.toString().trimmed()).accepted;
}

Qt::ItemFlags ImageListModel::flags(const QModelIndex& index) const
{
    return index.isValid() ? QAbstractListModel::flags(index) | Qt::ItemIsEditable | Qt::ItemIsDragEnabled
                           : Qt::NoItemFlags;
}

QStringList ImageListModel::mimeTypes() const
{
    return {ImagePlacement::mimeType(), QStringLiteral("text/uri-list")};
}

QMimeData* ImageListModel::mimeData(const QModelIndexList& indexes) const
{
    QStringList names;
    QList<QUrl> urls;
    for (const QModelIndex& index : indexes) {
        names.append(image(index));
        urls.append(QUrl::fromLocalFile(path(names.last())));
    }
    if (names.isEmpty())
        return nullptr;
    auto* data = new QMimeData;
    data->setData(ImagePlacement::mimeType(), names.join(QLatin1Char('\n')).toUtf8());
    data->setUrls(urls); // for other programs
    return data;
}

Qt::DropActions ImageListModel::supportedDragActions() const
{
    return Qt::CopyAction;
}

/// Brings the rows in line with the images of the project. One that is renamed keeps its row, and so its selection.
void ImageListModel::follow()
{
    const QStringList wanted = sortedImages();
    const QSet<QString> before(m_images.cbegin(), m_images.cend());
    const QSet<QString> after(wanted.cbegin(), wanted.cend());
    const QSet<QString> gone = before - after;
    const QSet<QString> added = after - before;
    forgetUses();
    if (gone.size() == 1 && added.size() == 1) {
        const int from = int(m_images.indexOf(*gone.cbegin()));
        const int to = int(wanted.indexOf(*added.cbegin()));
        if (m_loaded.contains(*gone.cbegin()))
            m_loaded.insert(*added.cbegin(), m_loaded.take(*gone.cbegin()));
        m_requested.remove(*gone.cbegin());
        m_images[from] = *added.cbegin();
        if (from != to) {
            beginMoveRows({}, from, from, {}, to > from ? to + 1 : to);
            m_images.move(from, to);
            endMoveRows();
        }
        Q_EMIT dataChanged(index(to, 0), index(to, 0));
        return;
    }
    for (const QString& image : gone) {
        const int row = int(m_images.indexOf(image));
        beginRemoveRows({}, row, row);
        m_images.removeAt(row);
        m_loaded.remove(image);
        m_requested.remove(image);
        endRemoveRows();
    }
    for (int row = 0; row < wanted.size(); ++row) {
        if (!added.contains(wanted.at(row)))
            continue;
        beginInsertRows({}, row, row);
        m_images.insert(row, wanted.at(row));
        endInsertRows();
    }
}

/// The file of \a image has changed; what is shown of it stays until the new picture is there.
void ImageListModel::forgetFile(const QString& image)
{
    m_requested.remove(image);
    const QModelIndex row = indexOf(image);
    if (row.isValid())
        Q_EMIT dataChanged(row, row);
}

void ImageListModel::show(const QString& file, const ImageThumbnail& thumbnail)
{
    const QModelIndex row = indexOf(QFileInfo(file).fileName());
    if (!row.isValid() || path(image(row)) != file)
        return;
    m_loaded.insert(image(row), thumbnail);
    Q_EMIT dataChanged(row, row);
}

void ImageListModel::forgetUses()
{
    m_usesKnown = false;
    // Thousands of elements may come and go at a time; the rows are shown anew once.
    if (std::exchange(m_refreshPending, true))
        return;
    const auto refresh = [this] {
        m_refreshPending = false;
        if (!m_images.isEmpty())
            Q_EMIT dataChanged(index(0, 0), index(rowCount() - 1, 0));
    };
    QMetaObject::invokeMethod(this, refresh, Qt::QueuedConnection);
}

void ImageListModel::findUses() const
{
    if (std::exchange(m_usesKnown, true))
        return;
    const Project* project = m_session->project();
    const auto screens = project->screens();
    m_uses = ImageReferences::useCounts(project);
    m_leaving = ImageEdits::droppedBySave(project);
    m_usesCertain =
        std::all_of(screens.cbegin(), screens.cend(), [](const Screen* screen) { return screen->isContentRead(); });
}

QStringList ImageListModel::sortedImages() const
{
    QStringList images = m_session->project()->imageResources();
    // Without a language there is no order by numbers.
    const QLocale locale;
    QCollator order(locale.language() == QLocale::C ? QLocale(QLocale::English) : locale);
    order.setCaseSensitivity(Qt::CaseInsensitive);
    order.setNumericMode(true);
    std::sort(images.begin(), images.end(), [&order](const QString& one, const QString& other) {
        const int result = order.compare(one, other);
        return result == 0 ? one < other : result < 0;
    });
    return images;
}

QString ImageListModel::path(const QString& image) const
{
    return QDir(m_session->project()->imagesPath()).filePath(image);
}

QString ImageListModel::detail(const QString& image) const
{
    const auto known = m_loaded.constFind(image);
    if (known == m_loaded.cend())
        return {};
    const Common::PictureInfo& info = known->info;
    if (info.kind == PictureKind::Unreadable)
        return QFileInfo::exists(path(image)) ? coreText("cannot be shown") : coreText("the file is missing");
    QString kind = QString::fromLatin1(info.format).toUpper();
    if (info.kind == PictureKind::Animation)
        kind = coreText("%1, %n frame", "%1, %n frames", info.frames).arg(kind);
    return coreText("%1 × %2 · %3").arg(info.size.width()).arg(info.size.height()).arg(kind);
}

QString ImageListModel::uses(const QString& image) const
{
    const int count = useCount(image);
    if (count < 0)
        return {};
    if (count == 0)
        return coreText("not used");
    return coreText("%n use", "%n uses", int(count));
}

QString ImageListModel::toolTip(const QString& image) const
{
    QStringList lines{QStringLiteral("<b>%1</b>").arg(image.toHtmlEscaped())};
    const auto known = m_loaded.constFind(image);
    const QString reason = known == m_loaded.cend() ? QString() : known->reason;
    for (const QString& line : {detail(image), reason, uses(image)}) {
        if (!line.isEmpty())
            lines.append(line.toHtmlEscaped());
    }
    if (m_leaving.contains(image))
        lines.append(coreText("Nothing shows it any more: it leaves the project with the next save.").toHtmlEscaped());
    return QStringLiteral("<html>%1</html>").arg(lines.join(QLatin1String("<br>")));
}

} // namespace Korvex::Meridane::Designer
