#include "tests/lines/PolygonCanvas.h"

#include "host/core/project/ProjectStore.h"

#include <QTemporaryDir>
#include <QtTest>

#include <cmath>

using namespace Korvex::Meridane::Designer;
using Test::PolygonCanvas;

namespace {

QString list(int count, const std::function<QPointF(int)>& point)
{
    QPolygonF points;
    for (int i = 0; i < count; ++i)
        points << point(i);
    return ValueConversion::toString(points);
}

QPointF onCircle(int i, int count)
{
    const double angle = 2 * M_PI * i / count;
    return {150 + 140 * std::cos(angle), 150 + 140 * std::sin(angle)};
}

} // namespace

/// Irregular polygons with lists that nobody draws by hand: the canvas goes on, and no point is lost.
class tst_PolygonLists : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theCanvasStaysUsableWithAnyList_data()
    {
        QTest::addColumn<QString>("text");
        QTest::newRow("none") << QString();
        QTest::newRow("one") << QStringLiteral("50,40");
        QTest::newRow("two") << QStringLiteral("0,0 150,140");
        QTest::newRow("three at one place") << QStringLiteral("50,40 50,40 50,40");
        QTest::newRow("level") << QStringLiteral("0,0 150,0 30,0");
        QTest::newRow("upright") << QStringLiteral("0,0 0,150 0,30");
        QTest::newRow("twenty") << list(20, [](int i) { return onCircle(i, 20); });
        QTest::newRow("twenty-one") << list(21, [](int i) { return onCircle(i, 21); });
        QTest::newRow("a thousand") << list(1000, [](int i) { return onCircle(i, 1000); });
        QTest::newRow("100 000 about a circle") << list(100000, [](int i) { return onCircle(i, 100000); });
        QTest::newRow("20 000 to and fro") << list(20000, [](int i) { return QPointF(0.015 * i, i % 2 * 300); });
        QTest::newRow("100 000 at one place") << list(100000, [](int) { return QPointF(50, 40); });
        QTest::newRow("tiny") << QStringLiteral("0,0 1e-310,0 0,1e-310");
        QTest::newRow("far away") << QStringLiteral("1e12,1e12 1.1e12,1e12 1e12,1.1e12");
        QTest::newRow("huge") << QStringLiteral("-1e300,-1e300 1e300,0 0,1e300");
        QTest::newRow("hugest") << QStringLiteral("-1.7e308,-1.7e308 1.7e308,0 0,1.7e308");
        QTest::newRow("not a number") << QStringLiteral("0,0 nan,20 30,40");
        QTest::newRow("infinite") << QStringLiteral("0,0 inf,20 30,-inf");
        QTest::newRow("beyond all numbers") << QStringLiteral("0,0 1e400,20 30,40");
        QTest::newRow("half a point") << QStringLiteral("0,0 10,20 30");
        QTest::newRow("no points at all") << QStringLiteral("triangle");
    }

    void theCanvasStaysUsableWithAnyList()
    {
        QFETCH(QString, text);
        PolygonCanvas canvas;
        DesignerObject* polygon =
            canvas.add("IrregularPolygon", {{QStringLiteral("position"), QStringLiteral("100,100")}});
        QVERIFY(canvas.session->setProperty(polygon, QStringLiteral("pointList"), text).accepted);
        const QString written = canvas.value(polygon, "pointList");
        const bool converts = polygon->getProperty(QStringLiteral("pointList"))->isConverted();
        QCOMPARE(ValueConversion::toString(PolygonCanvas::points(polygon)), converts ? written : QString());
        DesignerObject* rectangle = canvas.addRectangle(QRectF(500, 300, 80, 60));
        canvas.stack()->clear();
        const auto before = canvas.values();

        // Looked at, selected, hovered over and turned, at several zooms.
        for (const double zoom : {1.0, 0.2, 20.0}) {
            canvas.view->setZoom(zoom);
            for (const bool selected : {false, true}) {
                canvas.select(selected ? QList<DesignerObject*>{polygon} : QList<DesignerObject*>{});
                QVERIFY(!canvas.view->grab().isNull());
                for (const QPointF& there : {QPointF(250, 250), QPointF(390, 250), QPointF(100, 100), QPointF(10, 470)})
                    canvas.move(there);
            }
        }
        canvas.view->setZoom(1);
        canvas.set(polygon, "rotation", QStringLiteral("angle: 33; fixedPoint: BottomRight;"));
        QVERIFY(!canvas.view->grab().isNull());
        canvas.set(polygon, "rotation", before.value(QStringLiteral("irregularPolygon1.rotation")));
        QCOMPARE(canvas.values(), before);

        // Moved, resized and reshaped, and each of that taken back.
        canvas.select({polygon});
        canvas.key(Qt::Key_Right);
        QCOMPARE(canvas.value(polygon, "position"), QStringLiteral("101,100"));
        QCOMPARE(canvas.value(polygon, "pointList"), written);
        canvas.session->undo();
        for (const QPointF& from : {QPointF(250, 250), QPointF(390, 250), QPointF(100, 100), QPointF(390, 390)})
            canvas.drag(from, from + QPointF(13, -7));
        canvas.session->setProperty(polygon, QStringLiteral("boundingSize"), QStringLiteral("60,50"));
        QVERIFY(!canvas.view->grab().isNull());
        while (canvas.stack()->index() > 0)
            canvas.session->undo();
        QCOMPARE(canvas.values(), before);

        // The others are reached as ever.
        canvas.select({});
        canvas.drag({540, 330}, {560, 340});
        QCOMPARE(canvas.value(rectangle, "position"), QStringLiteral("520,310"));
        canvas.drag({5, 5}, {790, 470}); // spans a selection over everything
        QVERIFY(canvas.selected().contains(rectangle));
        QCOMPARE(canvas.value(polygon, "pointList"), written);
        QVERIFY(!polygon->toQml(0).isEmpty());
    }

    void everyListComesBackFromAFile_data() { theCanvasStaysUsableWithAnyList_data(); }

    void everyListComesBackFromAFile()
    {
        QFETCH(QString, text);
        PolygonCanvas canvas;
        const DesignerObject* polygon = canvas.add("IrregularPolygon", {{QStringLiteral("pointList"), text}});
        const QString written = canvas.value(polygon, "pointList");
        QTemporaryDir folder;
        const QString path = folder.filePath(QStringLiteral("project"));
        QString message;
        QVERIFY2(ProjectStore::save(canvas.project, path, &message), qPrintable(message));
        ProjectStore::Loaded loaded = ProjectStore::load(path);
        QVERIFY(loaded.project);
        EditSession session(std::move(loaded.project));
        DesignerObject* again = session.project()->screens().constFirst()->element(QStringLiteral("irregularPolygon1"));
        QVERIFY(again);
        // A list that does not convert is kept in words.
        QCOMPARE(again->getProperty(QStringLiteral("pointList"))->valueString(), written);
        session.setSelection({again});
        QVERIFY(again->graphicsItem());
        QVERIFY(session.setProperty(again, QStringLiteral("position"), QStringLiteral("7,8")).accepted);
        QVERIFY2(ProjectStore::save(session.project(), path, &message), qPrintable(message));
        QCOMPARE(again->getProperty(QStringLiteral("pointList"))->valueString(), written);
    }

    void onePointOf100000IsDraggedAlone()
    {
        constexpr int Count = 100000;
        PolygonCanvas canvas;
        const QPolygonF points = ValueConversion::toPolygon(list(Count, [](int i) { return onCircle(i, Count); }));
        const DesignerObject* polygon = canvas.addAlone(points, {200, 100});
        const auto before = canvas.values();
        canvas.drag({490, 250}, {540, 270}); // the first point of the circle
        QCOMPARE(canvas.steps(), 1);
        QPolygonF expected = points;
        expected[0] = QPointF(340, 170);
        QVERIFY(PolygonCanvas::points(polygon) == expected);
        QCOMPARE(canvas.value(polygon, "position"), QStringLiteral("200,100"));
        canvas.session->undo();
        QCOMPARE(canvas.values(), before);
    }
};

QTEST_MAIN(tst_PolygonLists)
#include "tst_PolygonLists.moc"
