#pragma once

#include "host/common/CommonExport.h"

#include <QtCore/QObject>
#include <QtGui/QImage>

#include <memory>

QT_BEGIN_NAMESPACE
class QMovie;
class QPainter;
class QSvgRenderer;
QT_END_NAMESPACE

namespace Korvex::Meridane::Common {
/**
 * The picture in a file, ready to be painted: pixels, vectors, or an animation that can be played.
 *
 * What kind of picture a file holds is told by pictureInfo(). An animation stands on its first frame until it is started;
 * while it stands, it costs nothing.
 */
class MERIDANE_COMMON_EXPORT Picture : public QObject
{
    Q_OBJECT

public:
    explicit Picture(QObject* parent = nullptr);
    ~Picture() override;

    /** Loads \p file. A file that cannot be shown leaves the picture empty; see isNull(). */
    void setFile(const QString& file);
    /** Shows the drawing \p file, for instance one of the program's own, without asking whether it is harmless. */
    void setDrawing(const QString& file);

    [[nodiscard]] bool isNull() const { return !m_movie && !m_drawing && m_still.isNull(); }
    [[nodiscard]] bool holdsMovie() const { return m_movie != nullptr; }
    [[nodiscard]] bool holdsDrawing() const { return m_drawing != nullptr; }
    /** Whether the animation is being played. */
    [[nodiscard]] bool isRunning() const;
    /** The number of the frame that is shown, from 0; 0 without an animation. */
    [[nodiscard]] int frame() const;

    /** Plays the animation unless it is being played. */
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
    void clear();

    std::unique_ptr<QMovie> m_movie;
    std::unique_ptr<QSvgRenderer> m_drawing;
    quint64 m_drawingId = 0; // of PictureCache
    QImage m_still;
};
} // namespace Korvex::Meridane::Common
