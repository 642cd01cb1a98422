#pragma once

#include <QObject>
#include <QPointF>

class QDropEvent;
class QMimeData;

namespace Korvex::Meridane::Designer {

class CanvasView;

/// Lets images be dropped on the canvas: files from a file manager, pictures from other programs, images of the list.
class CanvasImageDrop : public QObject
{
    Q_OBJECT

public:
    /// A child of \a view.
    explicit CanvasImageDrop(CanvasView* view);

    bool eventFilter(QObject* watched, QEvent* event) override;

Q_SIGNALS:
    /// \a data lives until the slots return; \a place is in pixels of the screen.
    void dropped(const QMimeData* data, const QPointF& place);

private:
    [[nodiscard]] bool accepts(QDropEvent* event) const;

    CanvasView* m_view;
};

} // namespace Korvex::Meridane::Designer
