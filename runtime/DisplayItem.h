#pragma once

#include "runtime/DisplayElement.h"

#include <QtCore/QPointer>
#include <QtCore/QSizeF>
#include <QtGui/QTransform>

QT_BEGIN_NAMESPACE
class QPainter;
QT_END_NAMESPACE

namespace Korvex::Meridane::Display {
class OutlinePainter;

/**
 * Base of the elements that are drawn.
 *
 * The item itself has the size of the element's content. What it paints may reach beyond (a border, a line that points
 * left) and is drawn by a child of its own, which the base keeps on whole pixels of the screen: the picture is the one
 * that the design canvas shows at the same place, fractions included. Wherever the item goes, by itself or with one of
 * its ancestors, the child follows before the next frame; it repaints only when its pixels change.
 *
 * A derived type implements outerRect() and paintContent(), and calls contentChanged() when a property changes that
 * either depends on. Its base class is written with the whole namespace: the registrar of Qt 6.4 finds it only so, and
 * without it qmllint knows none of the inherited properties.
 */
class DisplayItem : public Korvex::Meridane::Display::DisplayElement
{
    Q_OBJECT
    QML_ANONYMOUS

public:
    explicit DisplayItem(QQuickItem* parent = nullptr);

protected:
    /** The rectangle, in item coordinates, outside which paintContent() draws nothing; empty when it draws nothing. */
    [[nodiscard]] virtual QRectF outerRect() const = 0;

    /**
     * Draws the element in item coordinates. Called while the scene is rendered, maybe on another thread, but then the
     * item's own thread waits.
     */
    virtual void paintContent(QPainter* painter) const = 0;

    /** To be called when what is painted, or the outer rectangle, may have changed. */
    void contentChanged();

    void componentComplete() override;
    void geometryChange(const QRectF& newGeometry, const QRectF& oldGeometry) override;
    void itemChange(ItemChange change, const ItemChangeData& value) override;
    void updatePolish() override;

private:
    friend class OutlinePainter;

    void placePainter();

    OutlinePainter* m_painter;
    QPointer<QQuickWindow> m_window;
    bool m_contentChanged = true;
    QTransform m_itemToScene;
    double m_pixelRatio = 0;
    QSizeF m_windowSize;
};
} // namespace Korvex::Meridane::Display
