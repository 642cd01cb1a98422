#include "tests/runtime/DisplaySheet.h"

#include "host/common/TransformOrigin.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QDir>
#include <QtGui/QPainter>
#include <QtQml/QQmlComponent>
#include <QtQml/QQmlEngine>
#include <QtQuick/QQuickItem>

using namespace Korvex::Meridane;

namespace {
/** How @p item, which turns about a point of @p content, lies in its parent. */
QTransform elementTransform(const QQuickItem* item, const QRectF& content)
{
    const auto origin = Common::transformOriginFromName(item->property("fixedPoint").toString());
    return Common::rotationAbout(origin, content, item->rotation()) * QTransform::fromTranslate(item->x(), item->y());
}

/** The largest difference of a channel; both pictures have the size and 32 bits a pixel. */
int pixelDifference(const QImage& a, const QImage& b, int x, int y)
{
    const QRgb first = reinterpret_cast<const QRgb*>(a.constScanLine(y))[x];
    const QRgb second = reinterpret_cast<const QRgb*>(b.constScanLine(y))[x];
    return qMax(qAbs(qRed(first) - qRed(second)),
                qMax(qAbs(qGreen(first) - qGreen(second)), qAbs(qBlue(first) - qBlue(second))));
}
} // namespace

DisplaySheet::DisplaySheet(const QString& type)
{
    m_view.engine()->addImportPath(importPath());
    QQmlComponent component(m_view.engine());
    const QString file = QStringLiteral(
        "import Meridane.Display\n"
        "Screen { width: 300; height: 200; color: \"#e0f0ff\"; Group { objectName: \"group\"; %1 { objectName: \"item\" } } }\n");
    component.setData(file.arg(type).toUtf8(),
                      QUrl::fromLocalFile(QDir::current().filePath(QStringLiteral("sheet.qml"))));
    QObject* root = component.create();
    if (!root) {
        qWarning("%s", qPrintable(component.errorString()));
        return;
    }
    m_view.setContent(QUrl(), nullptr, root);
    m_group = root->findChild<QQuickItem*>(QStringLiteral("group"));
    m_item = root->findChild<QQuickItem*>(QStringLiteral("item"));
    m_view.show();
}

bool DisplaySheet::isValid() const
{
    return m_item != nullptr;
}

QQuickItem* DisplaySheet::screen() const
{
    return m_view.rootObject();
}

QQuickItem* DisplaySheet::group() const
{
    return m_group;
}

QQuickItem* DisplaySheet::item() const
{
    return m_item;
}

QImage DisplaySheet::running()
{
    QCoreApplication::processEvents();
    return m_view.grabWindow().convertToFormat(QImage::Format_ARGB32_Premultiplied);
}

QImage DisplaySheet::painted(const QRectF& content, const std::function<void(QPainter*)>& paint) const
{
    const double pixelRatio = m_view.effectiveDevicePixelRatio();
    QImage image((QSizeF(m_view.size()) * pixelRatio).toSize(), QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(pixelRatio);
    image.fill(screen()->property("color").value<QColor>());
    QPainter painter(&image);
    const QRectF group(QPointF(0, 0), m_group->size());
    painter.setTransform(elementTransform(m_item, content) * elementTransform(m_group, group), true);
    paint(&painter);
    return image;
}

int DisplaySheet::difference(const QImage& a, const QImage& b)
{
    if (a.size() != b.size()) {
        return 255;
    }
    int largest = 0;
    for (int y = 0; y < a.height(); ++y) {
        for (int x = 0; x < a.width(); ++x) {
            largest = qMax(largest, pixelDifference(a, b, x, y));
        }
    }
    return largest;
}

int DisplaySheet::pixelsThatDiffer(const QImage& a, const QImage& b, int tolerance)
{
    if (a.size() != b.size()) {
        return a.width() * a.height();
    }
    int count = 0;
    for (int y = 0; y < a.height(); ++y) {
        for (int x = 0; x < a.width(); ++x) {
            count += pixelDifference(a, b, x, y) > tolerance;
        }
    }
    return count;
}

QString DisplaySheet::importPath()
{
    return QCoreApplication::applicationDirPath() + QLatin1String("/../qml");
}
