#pragma once

#include <QAbstractListModel>

namespace Korvex::Meridane::Designer {

class EditSession;
class Screen;
class ScreenThumbnails;

/// The screens of the open project in their order, a row each. Rows are renamed in place and dragged to other places, each
/// time as one undo step.
class ScreenListModel : public QAbstractListModel
{
    Q_OBJECT

public:
    enum Role
    {
        ThumbnailRole = Qt::UserRole, ///< QImage; null while there is none
        DetailRole, ///< the size of the screen, in words
        FaultRole, ///< whether the screen cannot be read
        CurrentRole ///< whether the screen is the one that is shown
    };

    /// The longer side of a thumbnail in device-independent pixels.
    static constexpr int ThumbnailSide = 96;

    /// \a session outlives the model.
    explicit ScreenListModel(EditSession* session, QObject* parent = nullptr);
    ~ScreenListModel() override;

    [[nodiscard]] Screen* screen(const QModelIndex& index) const;
    [[nodiscard]] QModelIndex indexOf(const Screen* screen) const;
    [[nodiscard]] ScreenThumbnails* thumbnails() const { return m_thumbnails; }

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role = Qt::EditRole) override;
    [[nodiscard]] Qt::ItemFlags flags(const QModelIndex& index) const override;
    [[nodiscard]] Qt::DropActions supportedDropActions() const override;
    [[nodiscard]] QStringList mimeTypes() const override;
    [[nodiscard]] QMimeData* mimeData(const QModelIndexList& indexes) const override;
    [[nodiscard]] bool canDropMimeData(const QMimeData* data, Qt::DropAction action, int row, int column,
                                       const QModelIndex& parent) const override;
    /// Moves; always false, because the rows have been moved and the view must not remove the dragged ones.
    bool dropMimeData(const QMimeData* data, Qt::DropAction action, int row, int column,
                      const QModelIndex& parent) override;

Q_SIGNALS:
    /// A name or a move was refused; \a message is for the user.
    void refused(const QString& message);

private:
    void follow();
    void refresh(const Screen* screen);

    EditSession* m_session;
    ScreenThumbnails* m_thumbnails;
    QList<Screen*> m_screens; // in the order of the rows
};

} // namespace Korvex::Meridane::Designer
