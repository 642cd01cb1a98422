#include "app/ScreenListModel.h"

#include "app/CoreText.h"
#include "app/ScreenThumbnails.h"

#include "host/core/canvas/EditSession.h"
#include "host/core/objects/Screen.h"
#include "host/core/project/Project.h"
#include "host/core/properties/DesignerProperty.h"

#include <QFont>
#include <QMimeData>

namespace Korvex::Meridane::Designer {

namespace {

constexpr int ThumbnailScale = 2; // sharp on screens with small pixels
const QString RowMimeType = QStringLiteral("application/x-meridane-screen-row");

} // namespace

ScreenListModel::ScreenListModel(EditSession* session, QObject* parent)
    : QAbstractListModel(parent)
    , m_session(session)
    , m_thumbnails(new ScreenThumbnails(session, ThumbnailScale * ThumbnailSide, this))
    , m_screens(session->project()->screens())
{
    const Project* project = session->project();
    const auto ifScreen = [this](DesignerObject* object) {
        if (qobject_cast<Screen*>(object))
            follow();
    };
    connect(project, &Project::objectAdded, this, ifScreen);
    connect(project, &Project::objectRemoved, this, ifScreen);
    connect(project, &Project::objectReordered, this, ifScreen);
    connect(project, &Project::objectRenamed, this, [this](DesignerObject* object) {
        if (const auto* screen = qobject_cast<Screen*>(object))
            refresh(screen);
    });
    connect(project, &Project::objectPropertyChanged, this,
            [this](DesignerObject* object, const QSharedPointer<DesignerProperty>&) {
                if (const auto* screen = qobject_cast<Screen*>(object))
                    refresh(screen);
            });
    connect(m_thumbnails, &ScreenThumbnails::changed, this, &ScreenListModel::refresh);
    connect(session, &EditSession::currentScreenChanged, this, [this] {
        if (!m_screens.isEmpty())
            Q_EMIT dataChanged(index(0), index(rowCount() - 1));
    });
}

ScreenListModel::~ScreenListModel() = default;

Screen* ScreenListModel::screen(const QModelIndex& index) const
{
    return m_screens.value(index.isValid() ? index.row() : -1);
}

QModelIndex ScreenListModel::indexOf(const Screen* screen) const
{
    const qsizetype row = m_screens.indexOf(const_cast<Screen*>(screen));
    return row < 0 ? QModelIndex() : index(int(row));
}

int ScreenListModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : int(m_screens.size());
}

QVariant ScreenListModel::data(const QModelIndex& index, int role) const
{
    Screen* shown = screen(index);
    if (!shown)
        return {};
    const QSizeF size = shown->size();
    const QString detail = coreText("%1 × %2 px").arg(size.width()).arg(size.height());
    switch (role) {
    case Qt::DisplayRole:
    case Qt::EditRole:
        return shown->getIdName();
    case Qt::ToolTipRole:
    case Qt::AccessibleDescriptionRole:
        return shown->contentError().isEmpty() ? detail : shown->contentError();
    case Qt::FontRole:
        if (shown == m_session->currentScreen()) {
            QFont font;
            font.setBold(true);
            return font;
        }
        return {};
    case ThumbnailRole:
        return m_thumbnails->thumbnail(shown);
    case DetailRole:
        return detail;
    case FaultRole:
        return !shown->contentError().isEmpty();
    case CurrentRole:
        return shown == m_session->currentScreen();
    default:
        return {};
    }
}

bool ScreenListModel::setData(const QModelIndex& index, const QVariant& value, int role)
{
    Screen* changed = screen(index);
    const QString text = value.toString().trimmed();
    if (role != Qt::EditRole || !changed)
        return false;
    if (text == changed->getIdName())
        return true;
    const EditResult result = m_session->rename(changed, text);
    if (!result.message.isEmpty())
        Q_EMIT refused(result.message);
    return result.accepted;
}

Qt::ItemFlags ScreenListModel::flags(const QModelIndex& index) const
{
    if (!index.isValid())
        return Qt::ItemIsDropEnabled; // between the rows
    Qt::ItemFlags flags = Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsDragEnabled | Qt::ItemNeverHasChildren;
    if (screen(index)->contentError().isEmpty())
        flags |= Qt::ItemIsEditable;
    return flags;
}

Qt::DropActions ScreenListModel::supportedDropActions() const
{
    return Qt::MoveAction;
}

QStringList ScreenListModel::mimeTypes() const
{
    return {RowMimeType};
}

QMimeData* ScreenListModel::mimeData(const QModelIndexList& indexes) const
{
    if (indexes.isEmpty())
        return nullptr;
    auto* data = new QMimeData;
    data->setData(RowMimeType, QByteArray::number(indexes.constFirst().row()));
    return data;
}

bool ScreenListModel::canDropMimeData(const QMimeData* data, Qt::DropAction action, int row, int,
                                      const QModelIndex& parent) const
{
    return action == Qt::MoveAction && data && data->hasFormat(RowMimeType) && (row >= 0 || !parent.isValid());
}

bool ScreenListModel::dropMimeData(const QMimeData* data, Qt::DropAction action, int row, int column,
                                   const QModelIndex& parent)
{
    if (!canDropMimeData(data, action, row, column, parent))
        return false;
    const int from = data->data(RowMimeType).toInt();
    Screen* moved = m_screens.value(from);
    if (!moved)
        return false;
    const int gap = row < 0 ? rowCount() : row;
    const EditResult result = m_session->reorder(moved, gap > from ? gap - 1 : gap);
    if (!result.message.isEmpty())
        Q_EMIT refused(result.message);
    return false;
}

/// Makes the rows those of the project, with the least changes: a view keeps its selection.
void ScreenListModel::follow()
{
    const QList<Screen*> wanted = m_session->project()->screens();
    for (qsizetype row = m_screens.size(); row-- > 0;) {
        if (wanted.contains(m_screens.at(row)))
            continue;
        beginRemoveRows({}, int(row), int(row));
        m_screens.removeAt(row);
        endRemoveRows();
    }
    for (qsizetype row = 0; row < wanted.size(); ++row) {
        const qsizetype present = m_screens.indexOf(wanted.at(row));
        if (present == row)
            continue;
        if (present < 0) {
            beginInsertRows({}, int(row), int(row));
            m_screens.insert(row, wanted.at(row));
            endInsertRows();
        } else {
            // What has gone forward, not what has made room for it, is the row that moves.
            const bool goesBack = m_screens.indexOf(wanted.at(row)) == row + 1 && row + 1 < m_screens.size();
            const qsizetype target = goesBack ? wanted.indexOf(m_screens.at(row)) : row;
            const qsizetype source = goesBack ? row : present;
            beginMoveRows({}, int(source), int(source), {}, int(target > source ? target + 1 : target));
            m_screens.move(source, target);
            endMoveRows();
            --row; // look at this place again
        }
    }
}

void ScreenListModel::refresh(const Screen* screen)
{
    const QModelIndex row = indexOf(screen);
    if (row.isValid())
        Q_EMIT dataChanged(row, row);
}

} // namespace Korvex::Meridane::Designer
