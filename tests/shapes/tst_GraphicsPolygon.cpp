#include "tests/shapes/ShapeItemTest.h"

#include "host/core/commands/ChangeProperty.h"
#include "host/core/values/ValueConversion.h"

#include "host/common/PaintHelper.h"
#include "host/common/RegularPolygonGeometry.h"

#include <QtTest>

#include <cmath>

#include <rapidcheck.h>

using namespace Korvex::Meridane::Designer;
using Korvex::Meridane::Common::PaintHelper;

/// The regular polygon's canvas item: its copy of the values, its outline and its picture.
class tst_GraphicsPolygon : public Test::ShapeItemTest
{
    Q_OBJECT

public:
    tst_GraphicsPolygon()
        : ShapeItemTest("Polygon", {{QStringLiteral("edges"), QStringLiteral("5")},
                                    {QStringLiteral("edgeLength"), QStringLiteral("57.3")},
                                    {QStringLiteral("border"), QStringLiteral("width: 9; color: #000000;")}})
    {}

private Q_SLOTS:
    void theMitredBorderIsHalfOutside()
    {
        DesignerObject* polygon = addPolygon(4, 50, 0);
        const double diagonal = 50 * std::sqrt(2.0);
        QVERIFY(near(graphic(polygon)->boundingRect(), QRectF(0, 0, diagonal, diagonal)));
        QCOMPARE(polygon->graphicsItem()->minSize(), 1.0);
        set(polygon, "border", "width: 4; color: #000000;");
        const double out = 2 * std::sqrt(2.0);
        const QRectF outer(-out, -out, diagonal + 2 * out, diagonal + 2 * out);
        QVERIFY(near(graphic(polygon)->boundingRect(), outer));
        QVERIFY(near(graphic(polygon)->shape().boundingRect(), outer));
        QVERIFY(near(polygon->graphicsItem()->contentRect(), QRectF(0, 0, diagonal, diagonal)));
        QCOMPARE(polygon->graphicsItem()->minSize(), 5.0);
        // An odd width counts as the next even one, for the outline but not for the smallest side.
        set(polygon, "border", "width: 3; color: #ff0000;");
        QVERIFY(near(graphic(polygon)->boundingRect(), outer));
        QCOMPARE(polygon->graphicsItem()->minSize(), 4.0);
        // A colour that cannot be seen is one nevertheless.
        set(polygon, "border", "width: 4; color: #00000000;");
        QVERIFY(near(graphic(polygon)->boundingRect(), outer));
        set(polygon, "color", "#00000000");
        QVERIFY(near(graphic(polygon)->boundingRect(), outer));
        set(polygon, "border", "width: 0; color: #000000;");
        QVERIFY(near(graphic(polygon)->boundingRect(), QRectF(0, 0, diagonal, diagonal)));
        QCOMPARE(value(polygon, "edgeLength"), QStringLiteral("50"));
    }

    void withoutEdgesThereIsNothing_data()
    {
        QTest::addColumn<QByteArray>("property");
        QTest::addColumn<QString>("text");
        for (const char* length : {"0", "-0", "-5", "-1e300"})
            QTest::addRow("edge length %s", length) << QByteArray("edgeLength") << QString::fromLatin1(length);
        for (const char* edges : {"2", "0", "-5", "-2147483648"})
            QTest::addRow("edges %s", edges) << QByteArray("edges") << QString::fromLatin1(edges);
    }

    void withoutEdgesThereIsNothing()
    {
        QFETCH(QByteArray, property);
        QFETCH(QString, text);
        DesignerObject* polygon = addPolygon(3, 50, 3);
        const QString before = value(polygon, property);
        set(polygon, property, text);
        QCOMPARE(graphic(polygon)->boundingRect(), QRectF());
        QVERIFY(graphic(polygon)->shape().isEmpty());
        QVERIFY(polygon->graphicsItem()->getShape().isEmpty());
        QVERIFY(!polygon->graphicsItem()->hasFrameHandles());
        QCOMPARE(value(polygon, "boundingSize"), QStringLiteral("0,0"));
        QCOMPARE(picture(graphic(polygon)), blank());
        QVERIFY(!canvas().view->grab().isNull());
        set(polygon, property, before);
        QCOMPARE(graphic(polygon)->boundingRect(), PaintHelper::getPolygonBoundingRect(3, 50, 3));
        QCOMPARE(value(polygon, "edgeLength"), QStringLiteral("50"));
    }

    void absurdValuesAreDrawn_data()
    {
        QTest::addColumn<QString>("edges");
        QTest::addColumn<QString>("edgeLength");
        QTest::addColumn<int>("border");
        for (const char* edges : {"3", "2147483647"}) {
            for (const char* length : {"1e-310", "1e9", "1e300", "1.7e308"}) {
                for (const int border : {0, 2147483647}) {
                    QTest::addRow("%s edges of %s, border %d", edges, length, border)
                        << QString::fromLatin1(edges) << QString::fromLatin1(length) << border;
                }
            }
        }
    }

    void absurdValuesAreDrawn()
    {
        QFETCH(QString, edges);
        QFETCH(QString, edgeLength);
        QFETCH(int, border);
        DesignerObject* polygon = addPolygon(3, 50, border);
        set(polygon, "edges", edges);
        set(polygon, "edgeLength", edgeLength);
        QCOMPARE(picture(graphic(polygon), true).size(), QSize(200, 200));
        set(polygon, "rotation", "angle: 33; fixedPoint: BottomRight;");
        QCOMPARE(picture(graphic(polygon), true).size(), QSize(200, 200));
        QVERIFY(!canvas().view->grab().isNull());
        canvas().drag({150, 140}, {160, 150});
        QCOMPARE(value(polygon, "edges"), edges);
    }

    void onlyWhatDiffersIsTakenAndReported()
    {
        DesignerObject* polygon = addPolygon(3, 50, 4);
        // As long as nothing is reported a text stays.
        set(polygon, "boundingSize", "wide");
        set(polygon, "edgeLength", "50");
        set(polygon, "edgeLength", "50.0");
        set(polygon, "edges", "3");
        set(polygon, "border", "width: 4; color: #000000;");
        set(polygon, "color", "#f8971d");
        QCOMPARE(value(polygon, "boundingSize"), QStringLiteral("wide"));
        set(polygon, "edgeLength", "51");
        QCOMPARE(ValueConversion::toSize(value(polygon, "boundingSize")),
                 roundedTo6(graphic(polygon)->boundingRect().size()));
    }

    void theOuterSizeIsReportedOnlyWhereItDiffers()
    {
        DesignerObject* polygon = addPolygon(3, 50, 3);
        int changes = 0;
        connect(canvas().project, &Project::objectPropertyChanged, this, [&changes] { ++changes; });
        set(polygon, "border", "width: 4; color: #102030;"); // the same outline
        QCOMPARE(changes, 1);
        set(polygon, "edgeLength", "50.00000001");
        QCOMPARE(changes, 2);
        set(polygon, "edgeLength", "50.1");
        QCOMPARE(changes, 4);
    }

    void theCornersOfTheFrameAreNoneOfThePolygon()
    {
        DesignerObject* polygon = addPolygon(3, 100, 10);
        const QPainterPath shape = graphic(polygon)->shape();
        QVERIFY(shape.contains(QPointF(50, 40)));
        QVERIFY(shape.contains(QPointF(50, -9))); // the mitred tip
        QVERIFY(!shape.contains(QPointF(0, 0)));
        canvas().click({105, 105});
        QVERIFY(canvas().selected().isEmpty());
        canvas().click({150, 92});
        QCOMPARE(canvas().selected(), QList<DesignerObject*>({polygon}));
    }

    void theSceneFindsItWhereItHasGrown()
    {
        DesignerObject* polygon = addPolygon(4, 20, 0);
        canvas().click({240, 240});
        QVERIFY(canvas().selected().isEmpty());
        set(polygon, "edgeLength", "200");
        canvas().click({240, 240});
        QCOMPARE(canvas().selected(), QList<DesignerObject*>({polygon}));
        canvas().select({});
        canvas().click({94, 241});
        QVERIFY(canvas().selected().isEmpty());
        set(polygon, "border", "width: 20; color: #000000;");
        canvas().click({94, 241});
        QCOMPARE(canvas().selected(), QList<DesignerObject*>({polygon}));
        canvas().select({});
        set(polygon, "edges", "3");
        canvas().click({241, 370});
        QVERIFY(canvas().selected().isEmpty());
        set(polygon, "edges", "5");
        canvas().click({241, 370});
        QCOMPARE(canvas().selected(), QList<DesignerObject*>({polygon}));
    }

    void itPaintsWhatThePaintHelperPaints_data()
    {
        QTest::addColumn<int>("edges");
        QTest::addColumn<double>("edgeLength");
        QTest::addColumn<int>("border");
        QTest::addColumn<QColor>("color");
        QTest::addColumn<QColor>("borderColor");
        QTest::newRow("plain") << 3 << 50.0 << 0 << QColor(248, 151, 29) << QColor(Qt::black);
        QTest::newRow("bordered") << 4 << 60.5 << 4 << QColor(0x33, 0x66, 0x99) << QColor(Qt::red);
        QTest::newRow("an odd border") << 7 << 31.25 << 7 << QColor(Qt::white) << QColor(Qt::blue);
        QTest::newRow("translucent") << 20 << 15.0 << 10 << QColor(0, 128, 0, 100) << QColor(0, 0, 255, 40);
        QTest::newRow("a border alone") << 6 << 40.0 << 5 << QColor(0, 0, 0, 0) << QColor(Qt::black);
        QTest::newRow("thicker than wide") << 3 << 8.0 << 20 << QColor(Qt::green) << QColor(Qt::black);
        QTest::newRow("round") << 2147483647 << 0.8 << 2 << QColor(Qt::green) << QColor(Qt::black);
    }

    void itPaintsWhatThePaintHelperPaints()
    {
        QFETCH(int, edges);
        QFETCH(double, edgeLength);
        QFETCH(int, border);
        QFETCH(QColor, color);
        QFETCH(QColor, borderColor);
        DesignerObject* polygon = addPolygon(edges, edgeLength, 0);
        set(polygon, "color", ValueConversion::toString(color));
        set(polygon, "border", ValueConversion::toString(BorderInfo(border, borderColor)));
        const QPen pen = border > 0 ? QPen(borderColor, border) : QPen(Qt::NoPen);
        const QImage expected =
            picture([&](QPainter* painter) { PaintHelper::paintPolygon(edgeLength, edges, pen, color, painter); });
        QVERIFY(expected != blank());
        QCOMPARE(picture(graphic(polygon)), expected);
    }

    void aResizeChangesTheEdgesWithinTheirLimits()
    {
        DesignerObject* polygon = addPolygon(3, 50, 0);
        GraphicsItem* item = polygon->graphicsItem();
        const auto resized = [&](int handle, double width, double height) {
            item->resizeGraphicsItem(handle, QSizeF(width, height), {});
            return roundedTo6(item->outerRect().size());
        };
        // The width decides, for top and bottom the height.
        for (const int handle : {0, 2, 3, 5, 6, 8})
            QCOMPARE(resized(handle, 60 + handle, 1000),
                     roundedTo6(QSizeF(60 + handle, (60 + handle) * std::sqrt(0.75))));
        for (const int handle : {1, 7})
            QCOMPARE(resized(handle, 1000, 60 + handle),
                     roundedTo6(QSizeF((60 + handle) / std::sqrt(0.75), 60 + handle)));
        QCOMPARE(resized(8, 400, 1), QSizeF(320, 277.128129));
        QCOMPARE(resized(7, 1, 1e300), QSizeF(320, 277.128129));
        QCOMPARE(resized(8, 0.5, 400), QSizeF(1, 0.866025));
        QCOMPARE(resized(1, 400, -1e300), QSizeF(1, 0.866025));
        // A resize changes only the item and the outer size that is shown.
        QCOMPARE(value(polygon, "edgeLength"), QStringLiteral("50"));
        QCOMPARE(value(polygon, "boundingSize"), QStringLiteral("1,0.866025"));
    }

    void onlyItsEdgeLengthAndItsPlaceAreWrittenBack()
    {
        DesignerObject* polygon = addPolygon(4, 50, 4);
        GraphicsItem* item = polygon->graphicsItem();
        canvas().select({polygon});
        const double side = 104 * std::sqrt(2.0);
        item->resizeGraphicsItem(0, QSizeF(side, side), {});
        QMap<QString, QString> written;
        UndoCommand parent;
        for (const auto& property : polygon->properties()) {
            const UndoCommand* command = item->updateDataObject(property, &parent);
            if (!command)
                continue;
            const auto* change = dynamic_cast<const ChangeProperty*>(command);
            QVERIFY(change);
            QCOMPARE(change->property(), property);
            QCOMPARE(change->selectedItems(), QList<DesignerObject*>({polygon}));
            written.insert(property->id(), change->value());
        }
        QCOMPARE(written.keys(), QStringList({QStringLiteral("edgeLength"), QStringLiteral("position")}));
        QCOMPARE(written.value(QStringLiteral("edgeLength")), QStringLiteral("100"));
        QCOMPARE(parent.childCommandCount(), 2);
        QCOMPARE(value(polygon, "edgeLength"), QStringLiteral("50"));
    }

    void undoOfATypedOuterSizeRestoresNoise()
    {
        DesignerObject* polygon = addPolygon(7, 100.0 / 3, 5);
        compareUndoOfOuterSize(polygon, QStringLiteral("99.9,31.571429"));
        canvas().stack()->clear();
        compareUndoOfOuterSize(polygon, QStringLiteral("1000,1000"));
    }

private:
    static bool near(const QRectF& a, const QRectF& b)
    {
        return std::abs(a.x() - b.x()) <= 1e-9 && std::abs(a.y() - b.y()) <= 1e-9
               && std::abs(a.width() - b.width()) <= 1e-9 && std::abs(a.height() - b.height()) <= 1e-9;
    }

    static QSizeF roundedTo6(const QSizeF& size)
    {
        return {std::round(size.width() * 1e6) / 1e6, std::round(size.height() * 1e6) / 1e6};
    }

    static Values polygonValues(int edges, double edgeLength, int width)
    {
        Values values = border(width);
        values.insert(QStringLiteral("edges"), QString::number(edges));
        values.insert(QStringLiteral("edgeLength"), ValueConversion::toString(edgeLength));
        return values;
    }

    DesignerObject* addPolygon(int edges, double edgeLength, int width) const
    {
        return add(polygonValues(edges, edgeLength, width));
    }

    QSizeF contentSize(const Values& values) const override
    {
        const int edges = values.value(QStringLiteral("edges")).toInt();
        return Korvex::Meridane::Common::regularPolygonSize(edges,
                                                            values.value(QStringLiteral("edgeLength")).toDouble());
    }

    Values someValues() const override
    {
        const int edges = *rc::gen::inRange(3, 21);
        const double width = *rc::gen::inRange(20, 1000) / 10.0;
        return polygonValues(edges, width * std::sin(M_PI / edges), *rc::gen::inRange(0, 21));
    }

    double outlineExcess(const Values&) const override { return 0; }
};

QTEST_MAIN(tst_GraphicsPolygon)
#include "tst_GraphicsPolygon.moc"
