#include "tests/canvas/CanvasFixture.h"

#include "host/core/canvas/GraphicsRectangle.h"

#include "host/common/PaintHelper.h"

#include <QPainter>
#include <QStyleOptionGraphicsItem>
#include <QtTest>

using namespace Korvex::Meridane::Designer;
using Test::CanvasFixture;

/// The rectangle's canvas item: its copy of the values, its outline and its picture.
class tst_GraphicsRectangle : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void itsNames()
    {
        CanvasFixture canvas;
        const GraphicsItem* item = canvas.addRectangle(QRectF(0, 0, 10, 10))->graphicsItem();
        QCOMPARE(item->className(), QStringLiteral("GraphicsRectangle"));
        QCOMPARE(item->classNames(),
                 QStringList({QStringLiteral("GraphicsItem"), QStringLiteral("GraphicsRectangle")}));
    }

    void theBorderIsHalfOutside()
    {
        CanvasFixture canvas;
        DesignerObject* rectangle = canvas.addRectangle(QRectF(0, 0, 100, 75), 3);
        QCOMPARE(canvas.graphic(rectangle)->boundingRect(), QRectF(-1.5, -1.5, 103, 78));
        QCOMPARE(rectangle->graphicsItem()->contentRect(), QRectF(0, 0, 100, 75));
        QCOMPARE(rectangle->graphicsItem()->minSize(), 4.0);
        canvas.set(rectangle, "border", QStringLiteral("width: 0; color: #000000;"));
        QCOMPARE(canvas.graphic(rectangle)->boundingRect(), QRectF(0, 0, 100, 75));
        QCOMPARE(rectangle->graphicsItem()->minSize(), 1.0);
    }

    void withoutASizeThereIsNothing()
    {
        CanvasFixture canvas;
        DesignerObject* rectangle = canvas.addRectangle(QRectF(0, 0, 100, 75), 3);
        canvas.set(rectangle, "size", QStringLiteral("0,75"));
        QCOMPARE(canvas.graphic(rectangle)->boundingRect(), QRectF());
        QVERIFY(canvas.graphic(rectangle)->shape().isEmpty());
        QCOMPARE(canvas.value(rectangle, "boundingSize"), QStringLiteral("0,0"));
    }

    void aTextThatDoesNotConvertLeavesTheItemAsItIs()
    {
        CanvasFixture canvas;
        DesignerObject* rectangle = canvas.addRectangle(QRectF(0, 0, 100, 75), 3);
        for (const char* property : {"size", "color", "border", "cornerRadius", "position", "rotation"})
            canvas.set(rectangle, property, QStringLiteral("garbage"));
        QCOMPARE(canvas.graphic(rectangle)->boundingRect(), QRectF(-1.5, -1.5, 103, 78));
        QCOMPARE(canvas.graphic(rectangle)->pos(), QPointF(0, 0));
    }

    void roundCornersCannotBeHit()
    {
        CanvasFixture canvas;
        DesignerObject* rectangle = canvas.addRectangle(QRectF(0, 0, 100, 100));
        QVERIFY(canvas.graphic(rectangle)->shape().contains(QPointF(2, 2)));
        canvas.set(rectangle, "cornerRadius", QStringLiteral("40"));
        QVERIFY(!canvas.graphic(rectangle)->shape().contains(QPointF(2, 2)));
        QVERIFY(canvas.graphic(rectangle)->shape().contains(QPointF(50, 2)));
    }

    void itPaintsWhatThePaintHelperPaints()
    {
        CanvasFixture canvas;
        DesignerObject* rectangle = canvas.addRectangle(QRectF(10, 10, 60, 40), 4);
        canvas.set(rectangle, "cornerRadius", QStringLiteral("12"));
        canvas.set(rectangle, "color", QStringLiteral("#336699"));
        const auto blank = [] {
            QImage image(80, 60, QImage::Format_ARGB32_Premultiplied);
            image.fill(Qt::white);
            return image;
        };
        QImage expected = blank();
        QImage painted = blank();
        {
            QPainter painter(&expected);
            painter.translate(10, 10);
            Korvex::Meridane::Common::PaintHelper::paintRectangle(QSizeF(60, 40), 12, QPen(Qt::black, 4),
                                                                  QColor(0x33, 0x66, 0x99), &painter);
        }
        {
            QPainter painter(&painted);
            painter.translate(10, 10);
            const QStyleOptionGraphicsItem option;
            canvas.graphic(rectangle)->paint(&painter, &option, nullptr);
        }
        QCOMPARE(painted, expected);
    }
};

QTEST_MAIN(tst_GraphicsRectangle)
#include "tst_GraphicsRectangle.moc"
