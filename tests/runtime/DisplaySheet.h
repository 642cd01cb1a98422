#pragma once

#include <QtGui/QImage>
#include <QtQuick/QQuickView>

#include <functional>

/**
 * A running screen with one display item in a group, beside the picture that the painting functions make of the same.
 *
 * Rendered by the software backend; the pixels a unit are those of the platform (QT_SCALE_FACTOR).
 */
class DisplaySheet
{
public:
    /** A screen of 300 × 200, a file in the current folder, with an item of @p type, for instance "Rectangle2". Fails the
     *  test when there is none. */
    explicit DisplaySheet(const QString& type);

    [[nodiscard]] bool isValid() const;
    [[nodiscard]] QQuickItem* screen() const;
    [[nodiscard]] QQuickItem* group() const;
    [[nodiscard]] QQuickItem* item() const;

    /** What is shown now. */
    [[nodiscard]] QImage running();

    /** What @p paint draws at the item's place, turned about its fixed point on @p content (item coordinates). */
    [[nodiscard]] QImage painted(const QRectF& content, const std::function<void(QPainter*)>& paint) const;

    /** The largest difference of a channel in the two pictures; 255 when their sizes differ. */
    [[nodiscard]] static int difference(const QImage& a, const QImage& b);

    /** The number of pixels of which a channel differs by more than @p tolerance; all when the sizes differ. */
    [[nodiscard]] static int pixelsThatDiffer(const QImage& a, const QImage& b, int tolerance);

    /** The import path of the display types in the build folder. */
    [[nodiscard]] static QString importPath();

private:
    QQuickView m_view;
    QQuickItem* m_group = nullptr;
    QQuickItem* m_item = nullptr;
};
