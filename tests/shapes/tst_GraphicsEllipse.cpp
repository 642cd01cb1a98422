#include "tests/shapes/ShapeItemTest.h"

#include "host/core/commands/ChangeProperty.h"
#include "host/core/values/ValueConversion.h"

#include "host/common/PaintHelper.h"

#include <QtTest>

#include <cmath>

#include <rapidcheck.h>

using namespace Korvex::Meridane::Designer;
using Korvex::Meridane::Common::PaintHelper;
using Test::CanvasFixture;

/// The ellipse's canvas item: its copy of the values, its outline and its picture.
class tst_GraphicsEllipse : public Test::ShapeItemTest
{
    Q_OBJECT

public:
    tst_GraphicsEllipse()
        : ShapeItemTest("Ellipse", {{QStringLiteral("size"), QStringLiteral("97.5,73.3")},
                                    {QStringLiteral("border"), QStringLiteral("width: 10; color: #000000;")}})
    {}

private Q_SLOTS:
    void theBorderIsHalfOutside()
    {
        DesignerObject* ellipse = addEllipse(QSizeF(100, 75), 3);
        QCOMPARE(graphic(ellipse)->boundingRect(), QRectF(-1.5, -1.5, 103, 78));
        QCOMPARE(graphic(ellipse)->shape().boundingRect(), QRectF(-1.5, -1.5, 103, 78));
        QCOMPARE(ellipse->graphicsItem()->contentRect(), QRectF(0, 0, 100, 75));
        QCOMPARE(ellipse->graphicsItem()->minSize(), 4.0);
        QCOMPARE(value(ellipse, "boundingSize"), QStringLiteral("103,78"));
        set(ellipse, "border", "width: 0; color: #ff0000;");
        QCOMPARE(graphic(ellipse)->boundingRect(), QRectF(0, 0, 100, 75));
        QCOMPARE(ellipse->graphicsItem()->minSize(), 1.0);
        QCOMPARE(value(ellipse, "boundingSize"), QStringLiteral("100,75"));
        // A colour that cannot be seen is one nevertheless.
        set(ellipse, "border", "width: 4; color: #00000000;");
        QCOMPARE(graphic(ellipse)->boundingRect(), QRectF(-2, -2, 104, 79));
        set(ellipse, "color", "#00000000");
        QCOMPARE(graphic(ellipse)->boundingRect(), QRectF(-2, -2, 104, 79));
        QCOMPARE(value(ellipse, "size"), QStringLiteral("100,75"));
    }

    void withoutASizeThereIsNothing_data()
    {
        QTest::addColumn<QString>("size");
        for (const char* size : {"0,75", "100,0", "0,0", "-0,75", "-5,75", "100,-1e300", "-1,-1"})
            QTest::newRow(size) << QString::fromLatin1(size);
    }

    void withoutASizeThereIsNothing()
    {
        QFETCH(QString, size);
        DesignerObject* ellipse = addEllipse(QSizeF(100, 75), 3);
        set(ellipse, "size", size);
        QCOMPARE(graphic(ellipse)->boundingRect(), QRectF());
        QVERIFY(graphic(ellipse)->shape().isEmpty());
        QVERIFY(ellipse->graphicsItem()->getShape().isEmpty());
        QVERIFY(!ellipse->graphicsItem()->hasFrameHandles());
        QCOMPARE(value(ellipse, "boundingSize"), QStringLiteral("0,0"));
        QCOMPARE(picture(graphic(ellipse)), blank());
        set(ellipse, "size", "20,10");
        QCOMPARE(graphic(ellipse)->boundingRect(), QRectF(-1.5, -1.5, 23, 13));
    }

    void absurdSizesAndBordersAreMeasuredAndDrawn_data()
    {
        QTest::addColumn<QString>("size");
        QTest::addColumn<int>("border");
        QTest::addColumn<QString>("outer");
        const auto row = [](const char* name, const char* size, int border, const char* outer) {
            QTest::newRow(name) << QString::fromLatin1(size) << border << QString::fromLatin1(outer);
        };
        row("huge", "1e300,1e300", 0, "1e+300,1e+300");
        row("hugest", "1.7e308,5", 3, "1.7e+308,8");
        row("tiny", "1e-310,1e-310", 0, "0,0");
        row("thick", "100,75", 2147483647, "2147483747,2147483722");
    }

    void absurdSizesAndBordersAreMeasuredAndDrawn()
    {
        QFETCH(QString, size);
        QFETCH(int, border);
        QFETCH(QString, outer);
        DesignerObject* ellipse = addEllipse(QSizeF(100, 75), border);
        set(ellipse, "size", size);
        QCOMPARE(value(ellipse, "boundingSize"), outer);
        set(ellipse, "rotation", "angle: 33; fixedPoint: BottomRight;");
        QVERIFY(std::isfinite(ellipse->graphicsItem()->getShape().boundingRect().width()));
        QCOMPARE(picture(graphic(ellipse), true).size(), QSize(200, 200));
        QVERIFY(!canvas().view->grab().isNull());
        canvas().drag({150, 140}, {160, 150});
        QCOMPARE(value(ellipse, "size"), size.replace(QLatin1String("e3"), QLatin1String("e+3")));
    }

    void theCornersOfTheFrameAreNoneOfTheEllipse()
    {
        DesignerObject* ellipse = addEllipse(QSizeF(100, 80), 10);
        const QPainterPath shape = graphic(ellipse)->shape();
        QVERIFY(shape.contains(QPointF(50, -4)));
        QVERIFY(shape.contains(QPointF(104, 40)));
        QVERIFY(!shape.contains(QPointF(5, 5)));
        canvas().click({105, 105});
        QVERIFY(canvas().selected().isEmpty());
        canvas().click({150, 97});
        QCOMPARE(canvas().selected(), QList<DesignerObject*>({ellipse}));
    }

    void theSceneFindsItWhereItHasGrown()
    {
        DesignerObject* ellipse = addEllipse(QSizeF(20, 20), 0);
        canvas().click({300, 260});
        QVERIFY(canvas().selected().isEmpty());
        set(ellipse, "size", "400,320");
        canvas().click({300, 260});
        QCOMPARE(canvas().selected(), QList<DesignerObject*>({ellipse}));
        canvas().select({});
        canvas().click({94, 260});
        QVERIFY(canvas().selected().isEmpty());
        set(ellipse, "border", "width: 20; color: #000000;");
        canvas().click({94, 260});
        QCOMPARE(canvas().selected(), QList<DesignerObject*>({ellipse}));
    }

    void itPaintsWhatThePaintHelperPaints_data()
    {
        QTest::addColumn<QSizeF>("size");
        QTest::addColumn<int>("border");
        QTest::addColumn<QColor>("color");
        QTest::addColumn<QColor>("borderColor");
        QTest::newRow("plain") << QSizeF(100, 75) << 0 << QColor(248, 151, 29) << QColor(Qt::black);
        QTest::newRow("bordered") << QSizeF(60.5, 40.25) << 4 << QColor(0x33, 0x66, 0x99) << QColor(Qt::red);
        QTest::newRow("an odd border") << QSizeF(61, 41) << 7 << QColor(Qt::white) << QColor(Qt::blue);
        QTest::newRow("translucent") << QSizeF(90, 90) << 10 << QColor(0, 128, 0, 100) << QColor(0, 0, 255, 40);
        QTest::newRow("a border alone") << QSizeF(90, 30) << 5 << QColor(0, 0, 0, 0) << QColor(Qt::black);
        QTest::newRow("thicker than wide") << QSizeF(10, 8) << 30 << QColor(Qt::green) << QColor(Qt::black);
    }

    void itPaintsWhatThePaintHelperPaints()
    {
        QFETCH(QSizeF, size);
        QFETCH(int, border);
        QFETCH(QColor, color);
        QFETCH(QColor, borderColor);
        DesignerObject* ellipse = addEllipse(size, 0);
        set(ellipse, "color", ValueConversion::toString(color));
        set(ellipse, "border", ValueConversion::toString(BorderInfo(border, borderColor)));
        const QPen pen = border > 0 ? QPen(borderColor, border) : QPen(Qt::NoPen);
        const QImage expected =
            picture([&](QPainter* painter) { PaintHelper::paintEllipse(size, pen, color, painter); });
        QVERIFY(expected != blank());
        QCOMPARE(picture(graphic(ellipse)), expected);
    }

    void aResizeKeepsTheRatioOfTheOuterSizeAndTheSmallestSide()
    {
        DesignerObject* ellipse = addEllipse(QSizeF(97, 47), 3);
        GraphicsItem* item = ellipse->graphicsItem();
        item->resizeGraphicsItem(8, QSizeF(60, 70), {});
        QCOMPARE(item->contentRect().size(), QSizeF(57, 67));
        item->resizeGraphicsItem(8, QSizeF(0, -5), {});
        QCOMPARE(item->contentRect().size(), QSizeF(1, 1));
        for (const char* none : {"-2", "0", "wide"}) {
            set(ellipse, "keepRatio", none);
            item->resizeGraphicsItem(8, QSizeF(60, 70), {});
            QCOMPARE(item->outerRect().size(), QSizeF(60, 70));
        }
        set(ellipse, "keepRatio", "2");
        item->resizeGraphicsItem(8, QSizeF(60, 70), {});
        QCOMPARE(item->outerRect().size(), QSizeF(60, 30));
        item->resizeGraphicsItem(7, QSizeF(60, 70), {});
        QCOMPARE(item->outerRect().size(), QSizeF(140, 70));
        // A resize changes only the item.
        QCOMPARE(value(ellipse, "size"), QStringLiteral("97,47"));
    }

    void onlyItsSizeAndItsPlaceAreWrittenBack()
    {
        const DesignerObject* ellipse = addEllipse(QSizeF(100, 75), 3);
        GraphicsItem* item = ellipse->graphicsItem();
        canvas().select({const_cast<DesignerObject*>(ellipse)});
        item->resizeGraphicsItem(0, QSizeF(203, 103), {});
        QMap<QString, QString> written;
        UndoCommand parent;
        for (const auto& property : ellipse->properties()) {
            const UndoCommand* command = item->updateDataObject(property, &parent);
            if (!command)
                continue;
            const auto* change = dynamic_cast<const ChangeProperty*>(command);
            QVERIFY(change);
            QCOMPARE(change->property(), property);
            QCOMPARE(change->selectedItems().size(), 1);
            written.insert(property->id(), change->value());
        }
        const QMap<QString, QString> expected{{QStringLiteral("position"), QStringLiteral("0,75")},
                                              {QStringLiteral("size"), QStringLiteral("200,100")}};
        QCOMPARE(written, expected);
        QCOMPARE(parent.childCommandCount(), 2);
        QCOMPARE(value(ellipse, "size"), QStringLiteral("100,75"));
    }

    void undoOfATypedOuterSizeRestoresAKeptRatioAndNoise()
    {
        DesignerObject* ellipse = addEllipse(QSizeF(100.0 / 3, 200.0 / 7), 3);
        set(ellipse, "keepRatio", "1.1499999999999999");
        compareUndoOfOuterSize(ellipse, QStringLiteral("99.9,31.571429"));
    }

private:
    DesignerObject* addEllipse(const QSizeF& size, int width) const
    {
        Values values = border(width);
        values.insert(QStringLiteral("size"), ValueConversion::toString(size));
        return add(values);
    }

    QSizeF contentSize(const Values& values) const override
    {
        return ValueConversion::toSize(values.value(QStringLiteral("size")));
    }

    Values someValues() const override
    {
        const auto side = rc::gen::map(rc::gen::inRange(20, 1000), [](int n) { return n / 10.0; });
        Values values = border(*rc::gen::inRange(0, 21));
        values.insert(QStringLiteral("size"), ValueConversion::toString(QSizeF(*side, *side)));
        return values;
    }

    /// getShape() is an ellipse; the outer edge of a border, everywhere as wide, is a little rounder, which shows when it
    /// is turned.
    double outlineExcess(const Values& values) const override
    {
        const QSizeF half = 0.5 * contentSize(values);
        const double out = 0.5 * ValueConversion::toBorderInfo(values.value(QStringLiteral("border"))).width();
        double excess = 0;
        for (int degrees = 0; degrees <= 90; ++degrees) {
            const auto reach = [degrees](double a, double b) {
                return std::hypot(a * std::cos(qDegreesToRadians(degrees)), b * std::sin(qDegreesToRadians(degrees)));
            };
            excess = std::max(excess, reach(half.width(), half.height()) + out
                                          - reach(half.width() + out, half.height() + out));
        }
        return excess < 1e-9 ? 0 : excess;
    }
};

QTEST_MAIN(tst_GraphicsEllipse)
#include "tst_GraphicsEllipse.moc"
