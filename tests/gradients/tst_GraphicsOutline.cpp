#include "tests/gradients/OutlineCanvas.h"

#include "host/core/canvas/GraphicsOutline.h"
#include "host/core/commands/ChangeProperty.h"

#include "host/common/PaintHelper.h"

#include <QImage>
#include <QPainter>
#include <QStyleOptionGraphicsItem>
#include <QtTest>

using namespace Korvex::Meridane::Designer;
using namespace Korvex::Meridane::Common;
using Test::OutlineCanvas;

namespace {

const QPolygonF Kite({{40, 0}, {90, 50}, {40, 80.5}, {0, 50}});

QString rotation(double angle, const QString& fixedPoint)
{
    return QStringLiteral("angle: %1; fixedPoint: %2;").arg(ValueConversion::toString(angle), fixedPoint);
}

QImage picture(QGraphicsItem* item, bool selected)
{
    QImage image(200, 200, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.translate(50, 50);
    QStyleOptionGraphicsItem option;
    option.state.setFlag(QStyle::State_Selected, selected);
    item->paint(&painter, &option, nullptr);
    return image;
}

} // namespace

/// What the canvas items of the path and of the gradients have in common. Every test runs with each of them.
class tst_GraphicsOutline : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase_data()
    {
        QTest::addColumn<QByteArray>("className");
        for (const QByteArray& name : OutlineCanvas::elements())
            QTest::newRow(name) << name;
    }

    void cleanupTestCase() { m_canvas.reset(); }

    void itCanBeSelectedMovedResizedAndRotated()
    {
        const GraphicsItem* item = add(Kite)->graphicsItem();
        QFETCH_GLOBAL(QByteArray, className);
        QByteArray kind = className;
        kind.replace("Element", className == "PathElement" ? "Item" : "");
        const QString name = QLatin1String("Graphics") + QString::fromLatin1(kind);
        QCOMPARE(item->className(), name);
        QCOMPARE(item->classNames(), QStringList({QStringLiteral("GraphicsItem"), name}));
        QCOMPARE(item->graphic()->flags(), QGraphicsItem::ItemIsSelectable | QGraphicsItem::ItemIsMovable);
        QVERIFY(item->isResizable());
        QVERIFY(item->isRotatable());
        QCOMPARE(item->minSize(), 1.0);
    }

    void itIsSelectedWhereItIsFilledAndMovedFromThere()
    {
        DesignerObject* element = add(Kite);
        m_canvas->select({});
        m_canvas->click({105, 105}); // in the frame, beside the kite
        QVERIFY(m_canvas->selected().isEmpty());
        m_canvas->click({140, 150});
        QCOMPARE(m_canvas->selected(), QList<DesignerObject*>({element}));
        m_canvas->drag({140, 150}, {170, 130});
        QCOMPARE(m_canvas->value(element, "position"), QStringLiteral("130,80"));
        QCOMPARE(OutlineCanvas::points(element), Kite);
        QCOMPARE(m_canvas->stack()->undoText(), QStringLiteral("Move ") + element->getIdName());
        QCOMPARE(m_canvas->steps(), 1);
    }

    void whereItCrossesItselfItIsNotFilled()
    {
        const DesignerObject* element = add({{50, 0}, {80, 90}, {0, 35}, {100, 35}, {20, 90}});
        QVERIFY(graphic(element)->shape().contains(QPointF(50, 15)));
        QVERIFY(!graphic(element)->shape().contains(QPointF(50, 50)));
        const QImage image = picture(graphic(element), false);
        QVERIFY(image.pixel(100, 70) != QColor(Qt::white).rgb());
        QCOMPARE(image.pixel(100, 100), QColor(Qt::white).rgb());
        m_canvas->select({});
        m_canvas->click({150, 150});
        QVERIFY(m_canvas->selected().isEmpty());
    }

    void itsToolTipNamesItAndItsHandles()
    {
        DesignerObject* element = add(Kite);
        const QString name = element->displayName() + QStringLiteral(": ") + element->getIdName();
        static_cast<void>(picture(graphic(element), false));
        QCOMPARE(graphic(element)->toolTip(), name);
        const QRectF frame = OutlineCanvas::outerRect(element);
        for (const int handle : OutlineCanvas::Handles) {
            const bool corner = handleChangesWidth(handle) && handleChangesHeight(handle);
            QCOMPARE(handleAt(element, OutlineCanvas::handlePoint(frame, handle)), handle);
            QCOMPARE(graphic(element)->toolTip(),
                     corner ? QStringLiteral("Drag this point to resize") : QStringLiteral("Drag this line to resize"));
        }
        QCOMPARE(handleAt(element, frame.center()), int(Center));
        QCOMPARE(graphic(element)->toolTip(), name);
        m_canvas->select({});
        QCOMPARE(handleAt(element, frame.topLeft()), int(TopLeft));
        QCOMPARE(graphic(element)->toolTip(), name);
    }

    void aRotatedOneHasNoHandlesButAWholeTurnIsNone()
    {
        DesignerObject* element = add(Kite);
        const QPointF corner = OutlineCanvas::outerRect(element).bottomRight();
        for (const double angle : {45.0, 0.1, -90.0, 720.0}) {
            m_canvas->set(element, "rotation", rotation(angle, QStringLiteral("BottomRight")));
            QVERIFY(!element->graphicsItem()->hasFrameHandles());
            QCOMPARE(handleAt(element, corner), int(Center));
        }
        for (const double angle : {360.0, -360.0, 0.0}) {
            m_canvas->set(element, "rotation", rotation(angle, QStringLiteral("BottomRight")));
            QVERIFY(element->graphicsItem()->hasFrameHandles());
            QCOMPARE(handleAt(element, corner), int(BottomRight));
        }
    }

    void anEmptyOneHasNoBoundsAndNoHandles()
    {
        for (const QPolygonF& none : {QPolygonF(), QPolygonF({{20, 30}})}) {
            DesignerObject* element = add(none);
            QCOMPARE(graphic(element)->boundingRect().size(), QSizeF(0, 0));
            QCOMPARE(m_canvas->value(element, "boundingSize"), QStringLiteral("0,0"));
            QVERIFY(!element->graphicsItem()->hasFrameHandles());
            QCOMPARE(handleAt(element, graphic(element)->mapToScene(graphic(element)->boundingRect().topLeft())),
                     int(Center));
            QCOMPARE(graphic(element)->toolTip(), element->graphicsItem()->nameToolTip());
            // A drag there draws a rubber band and changes nothing.
            const auto before = m_canvas->values();
            m_canvas->drag({100, 100}, {150, 150});
            QCOMPARE(m_canvas->values(), before);
        }
    }

    void oneThatIsSmallOnTheScreenHasNoHandles()
    {
        DesignerObject* element = add({{0, 0}, {10, 0}, {10, 20}});
        QVERIFY(!element->graphicsItem()->hasFrameHandles());
        m_canvas->view->setZoom(1.2);
        QVERIFY(element->graphicsItem()->hasFrameHandles());
        m_canvas->set(element, "boundingSize", QStringLiteral("30,20"));
        m_canvas->view->setZoom(1);
        QVERIFY(element->graphicsItem()->hasFrameHandles());
        m_canvas->view->setZoom(0.5);
        QVERIFY(!element->graphicsItem()->hasFrameHandles());
    }

    void numbersThatAreNoHandleChangeNothing()
    {
        const DesignerObject* element = add(Kite);
        for (const int none : {4, -1, 9, 2147483647}) {
            element->graphicsItem()->resizeGraphicsItem(none, QSizeF(20, 20), QPointF(3, 4));
            element->graphicsItem()->resizeByMouse(none, QPointF(3, 4));
            QCOMPARE(outline(element)->polygon(), Kite);
            QCOMPARE(graphic(element)->pos(), QPointF(100, 100));
        }
    }

    void theStoredPointsAgainNeitherChangeNorRepaint()
    {
        DesignerObject* element = add(Kite);
        QApplication::processEvents();
        QSignalSpy repaints(m_canvas->scene(), &QGraphicsScene::changed);
        m_canvas->set(element, "points", m_canvas->value(element, "points"));
        m_canvas->set(element, "points", QStringLiteral("40.0,0 9e1,50 40,80.50 0,50"));
        QApplication::processEvents();
        QCOMPARE(repaints.size(), 0);
        m_canvas->set(element, "points", QStringLiteral("40,0 90,50 40,80 0,50"));
        QTRY_COMPARE(repaints.size(), 1);
    }

    void pointsThatDifferByNoiseAreTakenToo()
    {
        // Qt takes them for equal; but what the item keeps is what it writes back.
        DesignerObject* element = add({{0, 0}, {0.3, 50}, {100, 50}});
        m_canvas->set(element, "points", QStringLiteral("0,0 0.30000000000000004,50 100,50"));
        QCOMPARE(outline(element)->polygon().at(1).x(), 0.1 + 0.2);
        const auto before = m_canvas->values();
        m_canvas->drag({150, 140}, {160, 140});
        auto expected = before;
        expected.insert(element->getIdName() + QStringLiteral(".position"), QStringLiteral("110,100"));
        QCOMPARE(m_canvas->values(), expected);
    }

    void anUntouchedItemWritesNothingBack()
    {
        const DesignerObject* element = add(Kite);
        UndoCommand parent;
        for (const auto& property : element->properties())
            QVERIFY2(!element->graphicsItem()->updateDataObject(property, &parent), qPrintable(property->id()));
        QVERIFY(!element->graphicsItem()->updateDataObject({}, &parent));
        QCOMPARE(parent.childCommandCount(), 0);
    }

    void onlyItsPointsAndItsPlaceAreWrittenBack()
    {
        const DesignerObject* element = add(Kite);
        GraphicsItem* item = element->graphicsItem();
        item->resizeGraphicsItem(TopLeft, QSizeF(180, 161), {});
        QCOMPARE(item->outerRect().size(), QSizeF(180, 161));
        QMap<QString, QString> written;
        UndoCommand parent;
        for (const auto& property : element->properties()) {
            const UndoCommand* command = item->updateDataObject(property, &parent);
            if (!command)
                continue;
            const auto* change = dynamic_cast<const ChangeProperty*>(command);
            QVERIFY(change);
            QCOMPARE(change->property(), property);
            QCOMPARE(change->selectedItems().size(), 1);
            written.insert(property->id(), change->value());
        }
        const QMap<QString, QString> expected{{QStringLiteral("position"), QStringLiteral("10,19.5")},
                                              {QStringLiteral("points"), QStringLiteral("80,0 180,100 80,161 0,100")}};
        QCOMPARE(written, expected);
        QCOMPARE(parent.childCommandCount(), 2);
        // A resize changes only the item.
        QCOMPARE(OutlineCanvas::points(element), Kite);
        QCOMPARE(m_canvas->value(element, "position"), QStringLiteral("100,100"));
    }

    void aResizeKeepsTheSmallestSide()
    {
        const DesignerObject* element = add(QPolygonF(QRectF(0, 0, 100, 75)));
        GraphicsItem* item = element->graphicsItem();
        item->resizeGraphicsItem(BottomRight, QSizeF(60, 70), {});
        QCOMPARE(item->outerRect().size(), QSizeF(60, 70));
        item->resizeGraphicsItem(BottomRight, QSizeF(0, -5), {});
        QCOMPARE(item->outerRect().size(), QSizeF(1, 1));
        item->resizeGraphicsItem(Right, QSizeF(20, 30), {});
        QCOMPARE(item->outerRect().size(), QSizeF(20, 75));
        item->resizeGraphicsItem(Bottom, QSizeF(20, 30), {});
        QCOMPARE(item->outerRect().size(), QSizeF(100, 30));
    }

    void textsThatDoNotConvertLeaveTheItemAsItIs()
    {
        DesignerObject* element = add(Kite);
        const QImage before = picture(graphic(element), false);
        for (const auto& property : element->properties())
            element->changePropertyValue(property, QStringLiteral("garbage"));
        QCOMPARE(outline(element)->polygon(), Kite);
        QCOMPARE(graphic(element)->pos(), QPointF(100, 100));
        QCOMPARE(picture(graphic(element), false), before);
        QCOMPARE(m_canvas->value(element, "boundingSize"), QStringLiteral("garbage"));
    }

    void aMoveKeepsPointsThatDoNotConvert()
    {
        DesignerObject* element = add(Kite);
        m_canvas->set(element, "points", QStringLiteral("garbage"));
        m_canvas->drag({140, 150}, {150, 150});
        QCOMPARE(m_canvas->value(element, "position"), QStringLiteral("110,100"));
        QCOMPARE(m_canvas->value(element, "points"), QStringLiteral("garbage"));
        const auto before = m_canvas->values();
        m_canvas->drag({200, 180.5}, {250, 180.5});
        QCOMPARE(OutlineCanvas::points(element).boundingRect(), QRectF(0, 0, 140, 80.5));
        m_canvas->session->undo();
        QCOMPARE(m_canvas->values(), before);
    }

    void aSelectedOneHasAFrame()
    {
        const DesignerObject* element = add(Kite);
        QImage framed = picture(graphic(element), false);
        {
            QPainter painter(&framed);
            painter.translate(50, 50);
            QStyleOptionGraphicsItem option;
            option.state = QStyle::State_Selected;
            PaintHelper::paintHighlightSelected(QRectF(0, 0, 90, 80.5), &painter, &option);
        }
        QVERIFY(framed != picture(graphic(element), false));
        QCOMPARE(picture(graphic(element), true), framed);
    }

    void itsOutlineTurnsAboutEachFixedPointOfItsBounds()
    {
        const QPolygonF off = Kite.translated(-20, 35);
        DesignerObject* element = add(off);
        const QRectF bounds = off.boundingRect();
        for (const QString& name : RotationInfo::fixedPointNames()) {
            const QPointF fixed = fixedPointPosition(transformOriginFromName(name), bounds);
            for (const double angle : {0.0, 30.0, 90.0, -137.5, 360.0}) {
                m_canvas->set(element, "rotation", rotation(angle, name));
                QTransform turn = QTransform::fromTranslate(fixed.x(), fixed.y());
                turn.rotate(angle);
                turn.translate(-fixed.x(), -fixed.y());
                const QPainterPath shape = element->graphicsItem()->getShape();
                for (int i = 0; i < off.size(); ++i) {
                    QVERIFY2(OutlineCanvas::near(shape.elementAt(i), turn.map(off.at(i))), qPrintable(name));
                    // That is also where the canvas shows it.
                    QVERIFY(OutlineCanvas::near(shape.elementAt(i) + graphic(element)->pos(),
                                                graphic(element)->mapToScene(off.at(i))));
                }
            }
        }
    }

    void aTurnedOneTurnsAboutItsNewBounds()
    {
        DesignerObject* element = add(Kite);
        m_canvas->set(element, "rotation", rotation(90, QStringLiteral("BottomRight")));
        m_canvas->set(element, "boundingSize", QStringLiteral("180,161"));
        QCOMPARE(m_canvas->value(element, "boundingSize"), QStringLiteral("180,161"));
        QVERIFY(OutlineCanvas::near(graphic(element)->mapToScene(QPointF(180, 161)), {280, 261}));
        m_canvas->set(element, "points", QStringLiteral("0,0 60,0 60,50"));
        QVERIFY(OutlineCanvas::near(graphic(element)->mapToScene(QPointF(60, 50)), {160, 150}));
    }

    void itsGroupGrowsWithIt()
    {
        DesignerObject* element = add(Kite);
        const DesignerObject* group = m_canvas->addGroup({50, 60}, {element});
        QCOMPARE(group->graphicsItem()->outerRect(), QRectF(50, 40, 90, 80.5));
        m_canvas->set(element, "boundingSize", QStringLiteral("180,161"));
        QCOMPARE(group->graphicsItem()->outerRect(), QRectF(50, 40, 180, 161));
        m_canvas->set(element, "points", QStringLiteral("0,0 10,0 10,10"));
        QCOMPARE(group->graphicsItem()->outerRect(), QRectF(50, 40, 10, 10));
    }

    void theSceneFindsItWhereItHasGrown()
    {
        DesignerObject* element = add({{0, 0}, {20, 0}, {20, 20}, {0, 20}});
        m_canvas->select({});
        m_canvas->click({400, 300});
        QVERIFY(m_canvas->selected().isEmpty());
        m_canvas->set(element, "boundingSize", QStringLiteral("400,320"));
        m_canvas->click({400, 300});
        QCOMPARE(m_canvas->selected(), QList<DesignerObject*>({element}));
    }

    void undoOfATypedSizeRestoresEveryValue_data()
    {
        QTest::addColumn<QString>("ratio");
        QTest::addColumn<QString>("typed");
        QTest::addColumn<bool>("changes");
        const auto row = [](const char* ratio, const char* typed, bool changes) {
            QTest::addRow("ratio %s, %s", ratio, typed)
                << QString::fromLatin1(ratio) << QString::fromLatin1(typed) << changes;
        };
        for (const char* typed : {"140,80.5", "99.9,31.571429", "1,1", "0.25,700", "1e300,1e300", "wide"})
            row("0", typed, true);
        row("1.1499999999999999", "31.3,80.5", true);
        row("1.1499999999999999", "90,31.3", true);
        for (const char* typed : {"0,0", "-5,300", "90,0"})
            row("0", typed, false);
        row("10", "5,80.5", false);
    }

    void undoOfATypedSizeRestoresEveryValue()
    {
        QFETCH(QString, ratio);
        QFETCH(QString, typed);
        QFETCH(bool, changes);
        DesignerObject* element = add(Kite.translated(100.0 / 3, -200.0 / 7));
        m_canvas->set(element, "keepRatio", ratio);
        const auto before = m_canvas->values();
        const QRectF frame = OutlineCanvas::shownFrame(element);
        QVERIFY(m_canvas->session->setProperty(element, QStringLiteral("boundingSize"), typed).accepted);
        const auto after = m_canvas->values();
        QCOMPARE(after != before, changes);
        QCOMPARE(m_canvas->steps(), changes ? 1 : 0);
        const QRectF newFrame = OutlineCanvas::shownFrame(element);
        for (int i = 0; i < 3 && changes; ++i) {
            m_canvas->session->undo();
            QCOMPARE(m_canvas->values(), before);
            QCOMPARE(OutlineCanvas::shownFrame(element), frame);
            m_canvas->session->redo();
            QCOMPARE(m_canvas->values(), after);
            QCOMPARE(OutlineCanvas::shownFrame(element), newFrame);
        }
    }

    void anOuterSizeThatIsThereAlreadyMakesNoStep()
    {
        DesignerObject* element = add(Kite);
        QTest::ignoreMessage(QtDebugMsg, "Should not reach here");
        QVERIFY(m_canvas->session
                    ->setProperty(element, QStringLiteral("boundingSize"), m_canvas->value(element, "boundingSize"))
                    .accepted);
        QCOMPARE(m_canvas->steps(), 0);
    }

private:
    /// The only element of the canvas, at (100, 100), selected.
    DesignerObject* add(const QPolygonF& points)
    {
        QFETCH_GLOBAL(QByteArray, className);
        if (!m_canvas)
            m_canvas = std::make_unique<OutlineCanvas>();
        return m_canvas->addAlone(className, points, {100, 100});
    }

    static QGraphicsItem* graphic(const DesignerObject* element) { return OutlineCanvas::graphic(element); }
    static const GraphicsOutline* outline(const DesignerObject* element)
    {
        return dynamic_cast<const GraphicsOutline*>(element->graphicsItem());
    }

    static int handleAt(const DesignerObject* element, const QPointF& scenePos)
    {
        bool handled = false;
        const int handle = element->graphicsItem()->getResizeHandle(scenePos, &handled);
        return handled ? handle : -2;
    }

    std::unique_ptr<OutlineCanvas> m_canvas;
};

QTEST_MAIN(tst_GraphicsOutline)
#include "tst_GraphicsOutline.moc"
