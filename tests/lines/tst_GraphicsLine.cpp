#include "lines/GraphicsLine.h"
#include "lines/Line.h"
#include "tests/canvas/CanvasFixture.h"
#include "tests/lines/AnyNumber.h"
#include "tests/shapes/ShapeFixture.h"

#include "host/core/commands/ChangeProperty.h"

#include "host/common/LineGeometry.h"
#include "host/common/PaintHelper.h"

#include <QPainter>
#include <QStyleOptionGraphicsItem>
#include <QtTest>

#include <cmath>

#include <rapidcheck.h>

using namespace Korvex::Meridane::Designer;
using namespace Korvex::Meridane::Common;
using namespace Korvex::Meridane::Designer::Test;

namespace {

constexpr int NoPoint = -1;
constexpr int NoHandle = 4;

QImage blank()
{
    QImage image(200, 200, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::white);
    return image;
}

/// What \a paint draws on a white ground of 200 x 200 pixels, the origin of its coordinates being in the middle.
template <typename Paint>
QImage painted(Paint paint)
{
    QImage image = blank();
    QPainter painter(&image);
    painter.translate(100, 100);
    paint(&painter);
    return image;
}

QImage picture(QGraphicsItem* item, bool selected = false)
{
    return painted([=](QPainter* painter) {
        QStyleOptionGraphicsItem option;
        option.state.setFlag(QStyle::State_Selected, selected);
        item->paint(painter, &option, nullptr);
    });
}

/// The smallest rectangle that holds everything that is not white, in the coordinates of the painter.
QRect drawnRect(const QImage& image)
{
    QRect drawn;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (image.pixel(x, y) != qRgb(255, 255, 255))
                drawn |= QRect(x - 100, y - 100, 1, 1);
        }
    }
    return drawn;
}

QString point(double x, double y)
{
    return QStringLiteral("%1,%2").arg(x).arg(y);
}

} // namespace

/// The line's canvas item: its copy of the values, its picture with the dot, and its handles.
class tst_GraphicsLine : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_line = std::make_unique<ShapeFixture>(std::make_unique<Line>());
        m_item = m_line->place<GraphicsLine>();
    }

    void cleanup()
    {
        m_line.reset();
        m_canvas.reset();
    }

    void aNewItemIsALineOf100()
    {
        Line unread;
        GraphicsLine item(&unread);
        QCOMPARE(item.line().length, 100.0);
        QCOMPARE(item.line().angle, 0.0);
        QCOMPARE(item.line().thickness, 2.0);
        QCOMPARE(item.boundingRect(), QRectF(0, -1, 100, 2));
        QVERIFY(!item.isChangingSize());
        QVERIFY(!item.showsStartPoint());
        QCOMPARE(item.minSize(), 1.0);
        QVERIFY(item.initialize());
        const QImage drawn = picture(&item);
        QCOMPARE(drawn.pixelColor(150, 100), QColor(248, 151, 29));
    }

    void itsClassNamesAreThoseOfTheHost()
    {
        QCOMPARE(m_item->className(), QStringLiteral("GraphicsLine"));
        QCOMPARE(m_item->classNames(), m_item->GraphicsItem::classNames());
    }

    void onTheCanvasItCanBeSelectedMovedResizedAndRotated()
    {
        const GraphicsItem* item = addLine({})->graphicsItem();
        QCOMPARE(item->className(), QStringLiteral("GraphicsLine"));
        QCOMPARE(item->graphic()->flags(), QGraphicsItem::ItemIsSelectable | QGraphicsItem::ItemIsMovable);
        QVERIFY(item->isResizable());
        QVERIFY(item->isRotatable());
    }

    void theDotGrowsOnlyWhatIsRepainted_data()
    {
        QTest::addColumn<int>("thickness");
        QTest::addColumn<QString>("angle");
        QTest::addColumn<QRectF>("bounds");
        const auto row = [](int thickness, const char* angle, const QRectF& bounds) {
            QTest::addRow("%d thick, %s degrees", thickness, angle)
                << thickness << QString::fromLatin1(angle) << bounds;
        };
        row(1, "0", QRectF(-3, -3, 103, 6));
        row(2, "0", QRectF(-4, -4, 104, 8));
        row(3, "0", QRectF(-5, -5, 105, 10));
        row(9, "0", QRectF(-5, -5, 105, 10));
        row(20, "0", QRectF(-5, -10, 105, 20));
        row(2, "90", QRectF(-4, -4, 8, 104));
        row(2, "180", QRectF(-100, -4, 104, 8));
        row(20, "270", QRectF(-10, -100, 20, 105));
    }

    void theDotGrowsOnlyWhatIsRepainted()
    {
        QFETCH(int, thickness);
        QFETCH(QString, angle);
        QFETCH(QRectF, bounds);
        m_line->set("width", QString::number(thickness));
        m_line->set("angle", angle);
        m_line->set("keepRatio", "3");
        const QRectF outline = m_item->boundingRect();
        const QStringList before = values();
        m_item->setShowStartPoint(true);
        QVERIFY(m_item->showsStartPoint());
        QCOMPARE(m_item->boundingRect(), bounds);
        QCOMPARE(m_item->outerRect(), outline);
        QCOMPARE(values(), before);
        m_item->setShowStartPoint(false);
        QCOMPARE(m_item->boundingRect(), outline);
        QCOMPARE(values(), before);
    }

    void theDotFollowsTheLine()
    {
        m_item->setShowStartPoint(true);
        m_line->set("width", "1");
        QCOMPARE(m_item->boundingRect(), QRectF(-3, -3, 103, 6));
        m_line->set("width", "5");
        QCOMPARE(m_item->boundingRect(), QRectF(-5, -5, 105, 10));
        m_line->set("length", "200");
        QCOMPARE(m_item->boundingRect(), QRectF(-5, -5, 205, 10));
        QCOMPARE(m_line->value("boundingSize"), QStringLiteral("200,5"));
        m_line->set("boundingSize", "50,5");
        QCOMPARE(m_item->boundingRect(), QRectF(-5, -5, 55, 10));
        // Also where there is no line to be seen.
        m_line->set("length", "0");
        QCOMPARE(m_item->boundingRect(), QRectF(-5, -5, 10, 10));
        QCOMPARE(m_line->value("boundingSize"), QStringLiteral("0,0"));
    }

    void everythingThatIsDrawnLiesWithinTheBounds()
    {
        QVERIFY(rc::check("any line with its dot", [this] {
            m_line->set("length", QString::number(anyNumber(1, 80)));
            m_line->set("angle", QString::number(anyNumber(0, 36000) / 100.0));
            m_line->set("width", QString::number(anyNumber(1, 30)));
            m_item->setShowStartPoint(*rc::gen::arbitrary<bool>());
            const QRect drawn = drawnRect(picture(m_item));
            RC_ASSERT(m_item->boundingRect().toAlignedRect().contains(drawn));
            RC_ASSERT(!drawn.isEmpty());
        }));
    }

    void theDotContrastsWithEachChannelOfTheLine_data()
    {
        QTest::addColumn<int>("thickness");
        QTest::addColumn<QString>("color");
        QTest::addColumn<QColor>("dot");
        QTest::addColumn<double>("diameter");
        QTest::newRow("1 thick") << 1 << QStringLiteral("#f8971d") << QColor(0, 0, 255) << 6.0;
        QTest::newRow("2 thick") << 2 << QStringLiteral("#000000") << QColor(255, 255, 255) << 8.0;
        QTest::newRow("3 thick") << 3 << QStringLiteral("#7f807f") << QColor(255, 0, 255) << 10.0;
        QTest::newRow("20 thick") << 20 << QStringLiteral("#10ff8000") << QColor(0, 0, 255) << 10.0;
    }

    void theDotContrastsWithEachChannelOfTheLine()
    {
        QFETCH(int, thickness);
        QFETCH(QString, color);
        QFETCH(QColor, dot);
        QFETCH(double, diameter);
        m_line->set("width", QString::number(thickness));
        m_line->set("color", color);
        m_item->setShowStartPoint(true);
        const QImage expected = painted([&](QPainter* painter) {
            PaintHelper::paintIrregularPolygon(lineOutline(100, 0, thickness), QColor(color), painter);
            PaintHelper::paintDot(QPointF(0, 0), diameter, dot, painter);
        });
        QCOMPARE(picture(m_item), expected);
        QCOMPARE(expected.pixelColor(100, 100), dot);
    }

    void theDotIsDrawnOverTheFrameOfASelectedLine()
    {
        m_line->set("width", "20");
        m_item->setShowStartPoint(true);
        const QImage expected = painted([](QPainter* painter) {
            PaintHelper::paintIrregularPolygon(lineOutline(100, 0, 20), QColor(248, 151, 29), painter);
            QStyleOptionGraphicsItem option;
            option.state = QStyle::State_Selected;
            PaintHelper::paintHighlightSelected(QRectF(0, -10, 100, 20), painter, &option);
            PaintHelper::paintDot(QPointF(0, 0), 10, QColor(0, 0, 255), painter);
        });
        QCOMPARE(picture(m_item, true), expected);
        QVERIFY(picture(m_item, false) != expected);
    }

    void whatIsNoLineIsNotDrawn_data()
    {
        QTest::addColumn<QString>("id");
        QTest::addColumn<QString>("value");
        QTest::newRow("no thickness") << QStringLiteral("width") << QStringLiteral("0");
        QTest::newRow("negative thickness") << QStringLiteral("width") << QStringLiteral("-3");
        QTest::newRow("no length") << QStringLiteral("length") << QStringLiteral("0");
        QTest::newRow("negative length") << QStringLiteral("length") << QStringLiteral("-100");
    }

    void whatIsNoLineIsNotDrawn()
    {
        QFETCH(QString, id);
        QFETCH(QString, value);
        m_line->set(id.toLatin1().constData(), value);
        QCOMPARE(picture(m_item), blank());
        QCOMPARE(m_item->boundingRect(), QRectF());
        QVERIFY(m_item->getShape().isEmpty());
        QVERIFY(m_item->pointHandles().isEmpty());
        bool handled = false;
        QCOMPARE(m_item->getResizePointHandle({0, 0}, &handled), NoPoint);
        QVERIFY(handled);
        QCOMPARE(m_item->getResizeHandle({0, 0}, &handled), NoHandle);
        QCOMPARE(m_line->value("boundingSize"), QStringLiteral("0,0"));
    }

    void paintingNamesItInItsToolTip()
    {
        QVERIFY(m_line->element->setIdName(QStringLiteral("hand")));
        QVERIFY(!picture(m_item).isNull());
        QCOMPARE(m_item->toolTip(), QStringLiteral("Line: hand"));
    }

    void theOutlineTurnsAboutTheStartWhateverTheFixedPoint()
    {
        m_line->set("angle", "30");
        m_line->set("width", "10");
        for (const char* fixedPoint : {"TopLeft", "Center", "BottomRight"}) {
            m_line->set("rotation", QStringLiteral("angle: 50; fixedPoint: %1;").arg(QLatin1String(fixedPoint)));
            QTransform turned;
            turned.rotate(50);
            const QPolygonF expected = turned.map(lineOutline(100, 30, 10));
            const QPainterPath shape = m_item->getShape();
            QCOMPARE(shape.elementCount(), expected.size() + 1);
            for (int i = 0; i < expected.size(); ++i) {
                QVERIFY((QPointF(shape.elementAt(i)) - expected.at(i)).manhattanLength() < 1e-9);
                QVERIFY((m_item->mapToScene(m_item->shape().elementAt(i)) - expected.at(i)).manhattanLength() < 1e-9);
            }
        }
    }

    void textsThatDoNotConvertLeaveTheItemAsItIs()
    {
        m_line->set("angle", "30");
        const QImage before = picture(m_item);
        for (const auto& property : m_line->element->properties()) {
            if (property->id() == QLatin1String("boundingSize"))
                continue;
            QVERIFY(m_line->element->changePropertyValue(property, QStringLiteral("garbage")));
        }
        QCOMPARE(picture(m_item), before);
        QCOMPARE(m_item->line().length, 100.0);
        QCOMPARE(m_item->line().angle, 30.0);
        QCOMPARE(m_item->line().thickness, 2.0);
    }

    void onlyAnotherColourIsRepainted()
    {
        CanvasFixture& canvas = this->canvas();
        DesignerObject* line = addLine({});
        QSignalSpy repaints(canvas.scene(), &QGraphicsScene::changed);
        const auto isRepainted = [&](const char* color) {
            QApplication::processEvents();
            repaints.clear();
            canvas.set(line, "color", QString::fromLatin1(color));
            QApplication::processEvents();
            return !repaints.isEmpty();
        };
        QVERIFY(isRepainted("#102030"));
        QVERIFY(!isRepainted("#ff102030"));
        QVERIFY(isRepainted("#80102030"));
        QVERIFY(!isRepainted("no colour"));
        QVERIFY(isRepainted("#102030"));
    }

    void theDotIsNotCoveredByAHandle()
    {
        QCOMPARE(m_item->pointHandles(), QVector<QPointF>({QPointF(0, 0), QPointF(100, 0)}));
        m_item->setShowStartPoint(true);
        QCOMPARE(m_item->pointHandles(), QVector<QPointF>({QPointF(100, 0)}));
        // The start can be dragged all the same.
        bool handled = false;
        QCOMPARE(m_item->getResizePointHandle({2, 1}, &handled), 0);
    }

    void askedAgainForTheDotNothingIsRepainted()
    {
        QGraphicsScene scene;
        scene.addItem(m_item);
        QSignalSpy repaints(&scene, &QGraphicsScene::changed);
        const auto isRepainted = [&](bool show) {
            QApplication::processEvents();
            repaints.clear();
            m_item->setShowStartPoint(show);
            QApplication::processEvents();
            return !repaints.isEmpty();
        };
        QVERIFY(isRepainted(true));
        QVERIFY(!isRepainted(true));
        QVERIFY(isRepainted(false));
        QVERIFY(!isRepainted(false));
        scene.removeItem(m_item);
    }

    void itWritesBackWhatDiffers()
    {
        UndoCommand parent;
        for (const auto& property : m_line->element->properties())
            QVERIFY2(!m_item->updateDataObject(property, &parent), qPrintable(property->id()));
        QVERIFY(!m_item->updateDataObject({}, &parent));
        m_item->setSelected(true);
        m_item->resizeByMouse(1, {30, -40});
        QStringList written;
        for (const auto& property : m_line->element->properties()) {
            const auto* command = dynamic_cast<ChangeProperty*>(m_item->updateDataObject(property, &parent));
            if (command)
                written.append(property->id() + QLatin1Char('=') + command->value());
        }
        QCOMPARE(written.size(), 2);
        QCOMPARE(written.at(0), QStringLiteral("length=50"));
        QVERIFY(written.at(1).startsWith(QStringLiteral("angle=306.869897645844")));
        QCOMPARE(parent.childCommandCount(), 2);
        QCOMPARE(m_line->value("length"), QStringLiteral("100"));
    }

    void theEndOfAGestureWritesWhatItsHandleChanges_data()
    {
        QTest::addColumn<int>("handle");
        QTest::addColumn<QStringList>("ids");
        QTest::newRow("start") << 0
                               << QStringList{QStringLiteral("position"), QStringLiteral("length"),
                                              QStringLiteral("angle")};
        QTest::newRow("end") << 1 << QStringList{QStringLiteral("length"), QStringLiteral("angle")};
        QTest::newRow("none") << -1 << QStringList();
        QTest::newRow("another number") << 2 << QStringList();
    }

    void theEndOfAGestureWritesWhatItsHandleChanges()
    {
        QFETCH(int, handle);
        QFETCH(QStringList, ids);
        m_item->resizeByMouse(0, {20, 30});
        UndoCommand parent;
        m_item->updateResizedDataObjects(handle, &parent);
        QStringList written;
        for (int i = 0; i < parent.childCommandCount(); ++i)
            written.append(dynamic_cast<const ChangeProperty*>(parent.childCommand(i))->property()->id());
        QCOMPARE(written, ids);
    }

    void withoutARealChangeTheEndOfAGestureWritesNothing()
    {
        UndoCommand parent;
        m_item->resizeByMouse(1, {70, 20});
        m_item->resizeByMouse(1, {100, 0});
        m_item->updateResizedDataObjects(0, &parent);
        m_item->updateResizedDataObjects(1, &parent);
        QCOMPARE(parent.childCommandCount(), 0);
    }

    void otherNumbersAreNoHandle()
    {
        for (const int handle : {-1, 2, 4, 8, 2147483647}) {
            m_item->resizeByMouse(handle, {20, 30});
            QCOMPARE(m_item->line().length, 100.0);
            QCOMPARE(m_item->pos(), QPointF(0, 0));
        }
        for (const int handle : {4, -1, 9}) {
            m_item->resizeGraphicsItem(handle, {50, 50}, {});
            QCOMPARE(m_item->line().length, 100.0);
        }
    }

    void aDragOfAnEndGivesExactRightAngles_data()
    {
        QTest::addColumn<int>("handle");
        QTest::addColumn<QPointF>("to");
        QTest::addColumn<double>("length");
        QTest::addColumn<double>("angle");
        // The line goes from (0, 0) to (100, 0).
        QTest::newRow("end, right") << 1 << QPointF(50, 0) << 50.0 << 0.0;
        QTest::newRow("end, down") << 1 << QPointF(0, 50) << 50.0 << 90.0;
        QTest::newRow("end, left") << 1 << QPointF(-50, 0) << 50.0 << 180.0;
        QTest::newRow("end, up") << 1 << QPointF(0, -50) << 50.0 << 270.0;
        QTest::newRow("start, right") << 0 << QPointF(30, 0) << 70.0 << 0.0;
        QTest::newRow("start, above the end") << 0 << QPointF(100, -50) << 50.0 << 90.0;
        QTest::newRow("start, beyond the end") << 0 << QPointF(150, 0) << 50.0 << 180.0;
        QTest::newRow("start, below the end") << 0 << QPointF(100, 50) << 50.0 << 270.0;
        QTest::newRow("end, down to 2 decimals") << 1 << QPointF(0.004, 50) << 50.00000016 << 90.0;
        QTest::newRow("end, first quadrant") << 1 << QPointF(40, 30) << 50.0 << 36.8698976458;
        QTest::newRow("end, second quadrant") << 1 << QPointF(-40, 30) << 50.0 << 143.1301023542;
        QTest::newRow("end, third quadrant") << 1 << QPointF(-40, -30) << 50.0 << 216.8698976458;
        QTest::newRow("end, fourth quadrant") << 1 << QPointF(40, -30) << 50.0 << 323.1301023542;
        QTest::newRow("start, first quadrant") << 0 << QPointF(60, -30) << 50.0 << 36.8698976458;
        QTest::newRow("start, fourth quadrant") << 0 << QPointF(60, 30) << 50.0 << 323.1301023542;
    }

    void aDragOfAnEndGivesExactRightAngles()
    {
        QFETCH(int, handle);
        QFETCH(QPointF, to);
        QFETCH(double, length);
        QFETCH(double, angle);
        m_item->resizeByMouse(handle, to);
        QVERIFY(std::abs(m_item->line().length - length) < 1e-9);
        QVERIFY(std::abs(m_item->line().angle - angle) < 1e-9);
        if (angle == 0 || angle == 90 || angle == 180 || angle == 270)
            QVERIFY(m_item->line().angle == angle);
        QCOMPARE(m_item->pos(), handle == 0 ? to : QPointF(0, 0));
        QVERIFY(m_item->line().thickness == 2);
    }

    void aLineIsNotDraggedShorterThan1()
    {
        m_item->resizeByMouse(0, {99.01, 0});
        m_item->resizeByMouse(0, {100, 0.9});
        m_item->resizeByMouse(1, {0.7, 0.7});
        m_item->resizeByMouse(1, {0, 0});
        QCOMPARE(m_item->line().length, 100.0);
        QCOMPARE(m_item->pos(), QPointF(0, 0));
        m_item->resizeByMouse(1, {0, 1});
        QCOMPARE(m_item->line().length, 1.0);
        QCOMPARE(m_item->line().angle, 90.0);
    }

private:
    CanvasFixture& canvas()
    {
        if (!m_canvas)
            m_canvas = std::make_unique<CanvasFixture>();
        return *m_canvas;
    }

    /// A line on the canvas that starts at (200, 100), not selected.
    DesignerObject* addLine(const QMap<QString, QString>& values)
    {
        QMap<QString, QString> all = values;
        all.insert(QStringLiteral("position"), point(200, 100));
        DesignerObject* line = canvas().add("Line", all);
        canvas().select({});
        return line;
    }

    [[nodiscard]] QStringList values() const
    {
        QStringList values;
        for (const auto& property : m_line->element->properties())
            values.append(property->id() + QLatin1Char('=') + property->valueString());
        return values;
    }

    /// A line without a project and its item, which the tests talk to directly.
    std::unique_ptr<ShapeFixture> m_line;
    GraphicsLine* m_item = nullptr;
    /// A real canvas with the lines of the real plug-in, for the tests that ask for it.
    std::unique_ptr<CanvasFixture> m_canvas;
};

QTEST_MAIN(tst_GraphicsLine)
#include "tst_GraphicsLine.moc"
