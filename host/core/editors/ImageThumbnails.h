#pragma once

#include "host/core/CoreExport.h"

#include "host/common/PictureFile.h"

#include <QImage>
#include <QObject>
#include <QPixmap>
#include <QStringList>
#include <QThread>

namespace Korvex::Meridane::Designer {

/// What a list shows of an image file.
struct ImageThumbnail
{
    Common::PictureInfo info; ///< kind and natural size
    QString reason; ///< why the file cannot be shown, in English; empty when it can
    QImage picture; ///< as large as fits into the square, in the ratio of the picture; null when it cannot be shown
};

/**
 * Makes small pictures of image files for lists, one at a time and beside the work of the program, so that nothing waits
 * for them. What has been made is kept as long as the file does not change.
 */
class MERIDANE_CORE_EXPORT ImageThumbnails : public QObject
{
    Q_OBJECT

public:
    /// The side of a thumbnail in the lists of editors, in pixels.
    static constexpr int Side = 32;

    /// Thumbnails that fit into a square of \a side pixels.
    explicit ImageThumbnails(int side = Side, QObject* parent = nullptr);
    /// Waits for the thumbnail that is being made.
    ~ImageThumbnails() override;

    /// Asks for the thumbnail of \a file: loaded() follows, never from within the call.
    void request(const QString& file);
    /// Forgets what was asked for and has not been begun.
    void cancel();

    /// \a thumbnail in the middle of a square of \a side pixels at \a scale, for widgets that centre nothing themselves.
    [[nodiscard]] static QPixmap squarePixmap(const QImage& thumbnail, int side, qreal scale);

Q_SIGNALS:
    void loaded(const QString& file, const Korvex::Meridane::Designer::ImageThumbnail& thumbnail);

private:
    void loadNext();
    void finish(const QString& file, const ImageThumbnail& thumbnail);

    int m_side;
    QStringList m_waiting;
    bool m_loading = false;
    QThread m_thread;
    QObject* m_worker = nullptr; // lives in the thread
};

} // namespace Korvex::Meridane::Designer
