#pragma once

#include "host/common/CommonExport.h"

#include <QtCore/QObject>
#include <QtGui/QImage>

#include <memory>

QT_BEGIN_NAMESPACE
class QBuffer;
class QMovie;
class QPainter;
QT_END_NAMESPACE

namespace Korvex::Meridane::Common {
struct PictureContent;

/**
 * The picture in a file, ready to be painted: pixels, vectors, or an animation that can be played.
 *
 * What kind of picture a file holds is told by pictureInfo(); its content is shared with all pictures of the same file. An
 * animation stands on its first frame until it is started; while it stands it has neither a timer nor frames of its own.
 */
class MERIDANE_COMMON_EXPORT Picture : public QObject
{
    Q_OBJECT

public:
    explicit Picture(QObject* parent = nullptr);
    ~Picture() override;

    /** Loads \p file, anew also when it is the present one. A file that cannot be shown leaves the picture empty; see
     *  isNull(). */
    void setFile(const QString& file);
    /** Shows the drawing \p file, whatever it is called, for instance one of the program's own. */
    void setDrawing(const QString& file);

    [[nodiscard]] bool isNull() const;
    /** Whether the picture is an animation, playing or not. */
    [[nodiscard]] bool holdsMovie() const;
    [[nodiscard]] bool holdsDrawing() const;
    /** Whether the animation is being played. */
    [[nodiscard]] bool isRunning() const;
    /** The number of the frame that is shown, from 0; 0 without an animation. */
    [[nodiscard]] int frame() const;

    /** Plays the animation unless it is being played; goes on with one that is paused. */
    void start();
    /** Stops the animation and goes back to its first frame. */
    void stop();
    void pause();
    void resume();
    /** Gives the animation up and keeps the frame that is shown as a still picture. */
    void freeze();

    /** Stretches the picture over a content of \p size. */
    void paint(const QSizeF& size, QPainter* painter) const;

Q_SIGNALS:
    /** Another picture or frame is shown. */
    void changed();

private:
    void show(const std::shared_ptr<const PictureContent>& content);
    void endMovie();

    std::shared_ptr<const PictureContent> m_content; // never null
    QImage m_frozen;
    std::unique_ptr<QBuffer> m_frames; // of the movie
    std::unique_ptr<QMovie> m_movie; // while the animation plays or pauses
};
} // namespace Korvex::Meridane::Common
