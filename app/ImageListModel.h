#pragma once

#include "host/core/editors/ImageThumbnails.h"

#include <QAbstractListModel>
#include <QHash>
#include <QSet>

namespace Korvex::Meridane::Designer {

class EditSession;

/**
 * The image resources of the open project, a row each, by name.
 *
 * Thumbnails, sizes and uses are found out when a view asks for them, so that a list that nobody sees costs nothing. A row
 * is renamed in place, as one undo step.
 */
class ImageListModel : public QAbstractListModel
{
    Q_OBJECT

public:
    enum Role
    {
        ThumbnailRole = Qt::UserRole, ///< QImage; null while there is none
        DetailRole, ///< size and kind, or why the image cannot be shown; empty until that is known
        UsesRole, ///< how often the image is used, in words; empty until that is known
        FaultRole ///< whether the image cannot be shown
    };

    /// The side of a thumbnail in device-independent pixels.
    static constexpr int ThumbnailSide = 40;

    /// \a session outlives the model.
    explicit ImageListModel(EditSession* session, QObject* parent = nullptr);
    ~ImageListModel() override;

    /// The name of the image in a row; empty for an invalid index.
    [[nodiscard]] QString image(const QModelIndex& index) const;
    [[nodiscard]] QModelIndex indexOf(const QString& image) const;
    /// The number of links to \a image; -1 while screens have not been read.
    [[nodiscard]] int useCount(const QString& image) const;

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role = Qt::EditRole) override;
    [[nodiscard]] Qt::ItemFlags flags(const QModelIndex& index) const override;
    [[nodiscard]] QStringList mimeTypes() const override;
    [[nodiscard]] QMimeData* mimeData(const QModelIndexList& indexes) const override;
    [[nodiscard]] Qt::DropActions supportedDragActions() const override;

private:
    void follow();
    void forgetFile(const QString& image);
    void show(const QString& file, const ImageThumbnail& thumbnail);
    void forgetUses();
    void findUses() const;
    [[nodiscard]] QStringList sortedImages() const;
    [[nodiscard]] QString path(const QString& image) const;
    [[nodiscard]] QString detail(const QString& image) const;
    [[nodiscard]] QString uses(const QString& image) const;
    [[nodiscard]] QString toolTip(const QString& image) const;

    EditSession* m_session;
    ImageThumbnails* m_thumbnails;
    QStringList m_images; // in the order of the rows
    QHash<QString, ImageThumbnail> m_loaded;
    mutable QSet<QString> m_requested; // that need not be asked for again
    mutable QHash<QString, int> m_uses;
    mutable QSet<QString> m_leaving; // with the next save
    mutable bool m_usesKnown = false; // as far as screens have been read
    mutable bool m_usesCertain = false;
    bool m_refreshPending = false;
};

} // namespace Korvex::Meridane::Designer
