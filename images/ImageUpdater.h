#pragma once

#include <QObject>
#include <QSizeF>

class QGraphicsItem;
class QPainter;

namespace Korvex::Meridane::Common {
class Picture;
}

namespace Korvex::Meridane::Designer {

/// Loads the picture of an image item, plays it when it moves, and repaints the item with each frame. A picture that cannot
/// be shown is replaced by a placeholder. Pictures are shared with the other items that show the same file.
class ImageUpdater : public QObject
{
    Q_OBJECT

public:
    /// Repaints \a item, which owns the updater.
    explicit ImageUpdater(QGraphicsItem* item);
    ~ImageUpdater() override;

    [[nodiscard]] const Common::Picture& picture() const { return *m_picture; }
    [[nodiscard]] bool showsPlaceholder() const { return m_placeholder; }

    void paint(const QSizeF& size, QPainter* painter) const;

public Q_SLOTS:
    /// An empty path is that of a picture that cannot be shown.
    void setImageFile(const QString& path);
    void startAnimation();
    /// Back to the first frame.
    void stopAnimation();
    void pauseAnimation();
    void resumeAnimation();
    /// Gives the animation up and keeps its current frame.
    void unload();

private Q_SLOTS:
    void onFrameChanged(int frameNumber);

private:
    QGraphicsItem* m_item;
    Common::Picture* m_picture;
    bool m_placeholder = false;
};

} // namespace Korvex::Meridane::Designer
