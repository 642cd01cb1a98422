#include "tests/lines/LineCanvas.h"

using namespace Korvex::Meridane::Designer;
using namespace Korvex::Meridane::Common;
using namespace Korvex::Meridane::Designer::Test;

/// Resizing a line by the eight handles of its frame: its length and angle follow, with a kept ratio its thickness.
class tst_LineFrame : public QObject, private LineCanvas
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup()
    {
        if (m_canvas)
            clear();
    }

    void cleanupTestCase() { m_canvas.reset(); }

    void theCornerOppositeAFrameHandleStays_data()
    {
        QTest::addColumn<int>("handle");
        QTest::addColumn<double>("angle");
        QTest::addColumn<bool>("ratio");
        QTest::addColumn<double>("zoom");
        for (const int handle : Handles) {
            for (const double angle : {30.0, 150.0, 210.0, 330.0, 45.0, 0.0, 90.0, 180.0, 270.0}) {
                const bool level = angle == 0 || angle == 180;
                const bool plumb = angle == 90 || angle == 270;
                if ((level && (handle == Left || handle == Right)) || (plumb && (handle == Top || handle == Bottom)))
                    continue; // there are its ends
                for (const bool ratio : {false, true}) {
                    for (const double zoom : {0.25, 0.5, 1.0, 4.0, 16.0}) {
                        QTest::addRow("handle %d, %g degrees, %s, zoom %g", handle, angle,
                                      ratio ? "kept ratio" : "free", zoom)
                            << handle << angle << ratio << zoom;
                    }
                }
            }
        }
    }

    void theCornerOppositeAFrameHandleStays()
    {
        QFETCH(int, handle);
        QFETCH(double, angle);
        QFETCH(bool, ratio);
        QFETCH(double, zoom);
        const double large = std::max(1.0, 1 / zoom);
        DesignerObject* line = addLine({310.1, 190.7}, ValueConversion::toString(150.3 * large),
                                       ValueConversion::toString(angle), QString::number(int(20 * large)));
        const QRectF before = CanvasFixture::outerRect(line);
        if (ratio)
            m_canvas->set(line, "keepRatio", ValueConversion::toString(before.width() / before.height()));
        const auto valuesBefore = m_canvas->values();
        m_canvas->view->setZoom(zoom);

        const QPointF grab = handlePoint(before, handle);
        const QPointF out = grab - before.center();
        const QPointF way(std::round(0.3 * out.x()), std::round(0.3 * out.y()));
        m_canvas->press(grab);
        for (int i = 1; i <= 7; ++i) {
            m_canvas->move(grab + QPointF((way * i / 7.0).toPoint()));
            const QRectF now = m_canvas->graphic(line)->sceneBoundingRect();
            QVERIFY(near(handlePoint(now, cornerKeptBy(handle)), handlePoint(before, cornerKeptBy(handle))));
        }
        m_canvas->release(grab + way);
        QCOMPARE(m_canvas->stack()->undoText(), QStringLiteral("Resize line1"));
        QCOMPARE(m_canvas->steps(), 1);

        const QRectF after = CanvasFixture::outerRect(line);
        QVERIFY(near(handlePoint(after, cornerKeptBy(handle)), handlePoint(before, cornerKeptBy(handle))));
        const double factor = handle == Top || handle == Bottom ? 1 + std::abs(way.y()) / before.height()
                                                                : 1 + std::abs(way.x()) / before.width();
        if (ratio) {
            QVERIFY(near(real(line, "length"), 150.3 * large * factor, 1e-6));
            QCOMPARE(CanvasFixture::value(line, "width"), QString::number(qRound(int(20 * large) * factor)));
            QCOMPARE(CanvasFixture::value(line, "angle"), ValueConversion::toString(angle));
            QVERIFY(near(after.width(), before.width() * factor, Pixel));
            QVERIFY(near(after.height(), before.height() * factor, Pixel));
            QVERIFY(near(real(line, "keepRatio"), after.width() / after.height(), 1e-12));
        } else {
            QVERIFY(near(after.width(), before.width() + (handleChangesWidth(handle) ? std::abs(way.x()) : 0), Pixel));
            QVERIFY(
                near(after.height(), before.height() + (handleChangesHeight(handle) ? std::abs(way.y()) : 0), Pixel));
            QCOMPARE(CanvasFixture::value(line, "width"), QString::number(int(20 * large)));
            QCOMPARE(std::floor(real(line, "angle") / 90), std::floor(angle / 90));
        }
        compareUndo(valuesBefore);
    }

    void aLevelLineThatGoesAstrayAndBackIsLevelAgain()
    {
        DesignerObject* line = addLine({300, 200}, "100", "0", "20");
        m_canvas->press({400, 210});
        m_canvas->move({410, 210});
        m_canvas->move({420, 216});
        QVERIFY(near(CanvasFixture::outerRect(line).height(), 20)); // the values wait for the release
        m_canvas->move({425, 210});
        m_canvas->release({425, 210});
        QCOMPARE(CanvasFixture::value(line, "length"), QStringLiteral("125"));
        QCOMPARE(CanvasFixture::value(line, "angle"), QStringLiteral("0"));
        QCOMPARE(CanvasFixture::value(line, "position"), QStringLiteral("300,200"));
        QCOMPARE(CanvasFixture::value(line, "boundingSize"), QStringLiteral("125,20"));
    }

    void theDimensionThatAHandleLeavesAloneDoesNotCreep_data()
    {
        QTest::addColumn<int>("handle");
        QTest::addColumn<QString>("width");
        for (const int handle : {int(Left), int(Right), int(Top), int(Bottom)}) {
            for (const char* width : {"2", "20", "100"})
                QTest::addRow("handle %d, %s thick", handle, width) << handle << QString::fromLatin1(width);
        }
    }

    void theDimensionThatAHandleLeavesAloneDoesNotCreep()
    {
        QFETCH(int, handle);
        QFETCH(QString, width);
        DesignerObject* line = addLine({310.1, 190.7}, QStringLiteral("283.37"), QStringLiteral("41.3"), width);
        const QRectF before = CanvasFixture::outerRect(line);
        const QPointF grab = handlePoint(before, handle);
        m_canvas->press(grab);
        for (int i = 0; i < 2000; ++i)
            m_canvas->move(grab + QPointF((i % 97) * 0.913, (i % 89) * 1.177) * (handle < 4 ? -1 : 1));
        const QPointF way = QPointF(20, 20) * (handle < 4 ? -1 : 1);
        m_canvas->release(grab + way);
        const QRectF after = CanvasFixture::outerRect(line);
        QVERIFY(near(handlePoint(after, cornerKeptBy(handle)), handlePoint(before, cornerKeptBy(handle))));
        constexpr double OneSearch = 0.02; // as exact as one search is for a line 100 pixels thick
        if (handleChangesWidth(handle))
            QVERIFY(near(after.height(), before.height(), OneSearch));
        else
            QVERIFY(near(after.width(), before.width(), OneSearch));
    }

    void whereNoLineFitsItStaysAsItWas()
    {
        // Narrower than this no line of its thickness is as high.
        DesignerObject* line = addLine({300, 200}, "120", "45", "100");
        const auto valuesBefore = m_canvas->values();
        const QRectF before = CanvasFixture::outerRect(line);
        const QPointF grab = handlePoint(before, Right);
        m_canvas->press(grab);
        double narrowest = before.width();
        for (int x = 0; x > -260; x -= 3) {
            m_canvas->move(grab + QPointF(x, 0));
            const QRectF now = m_canvas->graphic(line)->sceneBoundingRect();
            QVERIFY2(near(now.height(), before.height(), Pixel), qPrintable(QString::number(now.height())));
            QVERIFY(now.width() <= narrowest + Pixel);
            narrowest = std::min(narrowest, now.width());
            QVERIFY(near(now.topLeft(), before.topLeft()));
        }
        QVERIFY(narrowest > 100 && narrowest < 110);
        m_canvas->release(grab - QPointF(260, 0));
        compareUndo(valuesBefore);
    }

    void aDragAlongASideMakesNoStep()
    {
        DesignerObject* line = addLine({310.1, 190.7}, "150.3", "37", "20");
        const auto before = m_canvas->values();
        for (const int handle : {int(Left), int(Right), int(Top), int(Bottom)}) {
            const QPointF grab = handlePoint(CanvasFixture::outerRect(line), handle);
            m_canvas->drag(grab, grab + (handleChangesWidth(handle) ? QPointF(0, 13) : QPointF(-13, 0)));
            QCOMPARE(m_canvas->values(), before);
            QCOMPARE(m_canvas->steps(), 0);
        }
    }

    void backAtTheStartOfAFrameDragItIsExactlyAsItWas()
    {
        DesignerObject* line = addLine({310.0 / 3, 500.0 / 3}, "133.33333333333334", "33.3", "20");
        for (const char* ratio : {"0", "1.5"}) {
            m_canvas->set(line, "keepRatio", QString::fromLatin1(ratio));
            const auto before = m_canvas->values();
            for (const int handle : Handles) {
                const QPointF grab = handlePoint(CanvasFixture::outerRect(line), handle);
                m_canvas->press(grab);
                m_canvas->move(grab + QPointF(31, 17));
                m_canvas->move(grab);
                m_canvas->release(grab);
                QCOMPARE(m_canvas->values(), before);
                QCOMPARE(m_canvas->steps(), 0);
            }
        }
    }

    void withAKeptRatioSmallStepsAddUp()
    {
        DesignerObject* line = addLine({300, 200}, "100", "0", "20");
        m_canvas->set(line, "keepRatio", QStringLiteral("5"));
        m_canvas->press({400, 210});
        for (int x = 1; x <= 100; ++x)
            m_canvas->move({400.0 + x, 210});
        m_canvas->release({500, 210});
        QCOMPARE(CanvasFixture::value(line, "length"), QStringLiteral("200"));
        QCOMPARE(CanvasFixture::value(line, "width"), QStringLiteral("40"));
        QCOMPARE(CanvasFixture::value(line, "boundingSize"), QStringLiteral("200,40"));
    }

    void withAKeptRatioThicknessAndLengthStayWithinTheirLimits_data()
    {
        QTest::addColumn<QPointF>("way");
        QTest::addColumn<QString>("length");
        QTest::addColumn<QString>("width");
        QTest::newRow("out") << QPointF(4000, 0) << QStringLiteral("500") << QStringLiteral("100");
        QTest::newRow("in") << QPointF(-400, 0) << QStringLiteral("5") << QStringLiteral("1");
    }

    void withAKeptRatioThicknessAndLengthStayWithinTheirLimits()
    {
        QFETCH(QPointF, way);
        QFETCH(QString, length);
        QFETCH(QString, width);
        DesignerObject* line = addLine({300, 200}, "100", "0", "20");
        m_canvas->set(line, "keepRatio", QStringLiteral("5"));
        const auto before = m_canvas->values();
        m_canvas->press({400, 210});
        for (const double part : {0.5, 1.0, 0.9, 1.0})
            m_canvas->move(QPointF(400, 210) + part * way);
        m_canvas->release(QPointF(400, 210) + way);
        QCOMPARE(CanvasFixture::value(line, "length"), length);
        QCOMPARE(CanvasFixture::value(line, "width"), width);
        QVERIFY(near(CanvasFixture::outerRect(line).topLeft(), QPointF(300, 190)));
        compareUndo(before);
    }

    void aFrameIsNotDraggedLongerThan9999()
    {
        DesignerObject* line = addLine({300, 200}, "9000", "30", "20");
        const QRectF before = CanvasFixture::outerRect(line);
        m_canvas->drag(before.bottomLeft(), before.bottomLeft() + QPointF(-3000, 3000));
        QCOMPARE(CanvasFixture::value(line, "length"), QStringLiteral("9999"));
        QVERIFY(near(CanvasFixture::outerRect(line).topRight(), before.topRight()));
    }
};

QTEST_MAIN(tst_LineFrame)
#include "tst_LineFrame.moc"
