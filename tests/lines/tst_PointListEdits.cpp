#include "tests/lines/PointListWindow.h"

#include <rapidcheck.h>

#include <QTransform>

#include <cmath>
#include <memory>

using namespace Korvex::Meridane::Designer;
using namespace Korvex::Meridane::Designer::Test;

/// The buttons and the rotation of the point list widget.
class tst_PointListEdits : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_window = std::make_unique<PointListWindow>();
        m_widget = m_window->points;
    }
    void cleanup() { m_window.reset(); }

    void theAddButtonNamesTheNextShape_data()
    {
        QTest::addColumn<int>("count");
        QTest::addColumn<QString>("toolTip");
        const char* const shapes[] = {
            "a square",      "a pentagon",     "a hexagon",      "a heptagon",      "an octagon",     "a nonagon",
            "a decagon",     "a hendecagon",   "a dodecagon",    "a tridecagon",    "a tetradecagon", "a pentadecagon",
            "a hexadecagon", "a heptadecagon", "an octadecagon", "an enneadecagon", "an icosagon"};
        int count = Fewest;
        for (const char* shape : shapes) {
            QTest::addRow("%d points", count)
                << count << QStringLiteral("Add a new point to form ") + QString::fromLatin1(shape);
            ++count;
        }
        QCOMPARE(count, Most);
        QTest::newRow("20 points") << Most << QStringLiteral("You cannot have more than 20 points");
    }

    void theAddButtonNamesTheNextShape()
    {
        QFETCH(int, count);
        QFETCH(QString, toolTip);
        m_widget->setPointList(regular(count));
        QCOMPARE(m_widget->addButton()->toolTip(), toolTip);
    }

    void addingMakesTheRegularPolygonWithOneMorePoint()
    {
        m_widget->setPointList(oddPoints(3));
        QSignalSpy modified(m_widget, &PointListWidget::userModified);
        for (int count = 4; count <= Most; ++count) {
            click(m_widget->addButton());
            QCOMPARE(modified.count(), count - 3);
            QVERIFY(same(m_widget->pointList(), regular(count)));
            QVERIFY(same(m_window->shownPoints(), regular(count)));
        }
    }

    void withTwentyPointsNothingIsAdded()
    {
        m_widget->setPointList(oddPoints(20));
        QSignalSpy modified(m_widget, &PointListWidget::userModified);
        click(m_widget->addButton());
        m_widget->addButtonClicked();
        QCOMPARE(modified.count(), 0);
        QVERIFY(same(m_widget->pointList(), oddPoints(20)));
        QCOMPARE(m_widget->addButton()->toolTip(), QStringLiteral("You cannot have more than 20 points"));
        QVERIFY(!m_widget->addButton()->isEnabled());
        click(m_widget->removeButton(0));
        QVERIFY(m_widget->addButton()->isEnabled());
    }

    void removingTakesOutThePointOfTheRow_data()
    {
        QTest::addColumn<int>("count");
        QTest::addColumn<int>("row");
        for (int count : {4, 8, 20}) {
            for (int row = 0; row < count; ++row)
                QTest::addRow("%d of %d", row, count) << count << row;
        }
    }

    void removingTakesOutThePointOfTheRow()
    {
        QFETCH(int, count);
        QFETCH(int, row);
        m_widget->setPointList(oddPoints(count));
        QSignalSpy modified(m_widget, &PointListWidget::userModified);
        click(m_widget->removeButton(row));
        QPolygonF left = oddPoints(count);
        left.remove(row);
        QVERIFY(same(m_widget->pointList(), left));
        QVERIFY(same(m_window->shownPoints(), left));
        QCOMPARE(modified.count(), 1);
    }

    void removingFromATriangleGivesTheRegularTriangle()
    {
        for (int row = 0; row < 3; ++row) {
            m_widget->setPointList(oddPoints(3));
            QSignalSpy modified(m_widget, &PointListWidget::userModified);
            click(m_widget->removeButton(row));
            QCOMPARE(modified.count(), 1);
            QVERIFY(same(m_widget->pointList(), regular(3)));
            const QPointF side = m_widget->pointList().at(2) - m_widget->pointList().at(1);
            QCOMPARE(std::hypot(side.x(), side.y()), 157.0);
        }
    }

    void removingTheLastRowKeepsTheFocusOnItsNeighbour()
    {
        m_widget->setPointList(oddPoints(6));
        m_widget->removeButton(5)->setFocus();
        for (int left : {5, 4, 3}) {
            QTest::keyClick(focus(), Qt::Key_Space);
            QCOMPARE(m_widget->pointList().size(), left);
            QCOMPARE(focus(), m_widget->removeButton(left - 1));
        }
        m_widget->setPointList(oddPoints(6));
        m_widget->removeButton(2)->setFocus();
        QTest::keyClick(focus(), Qt::Key_Space);
        QCOMPARE(focus(), m_widget->removeButton(2));
    }

    void typedTextIsTakenOverBeforeAButtonActs_data()
    {
        QTest::addColumn<bool>("mouse");
        QTest::newRow("clicked") << true;
        QTest::newRow("pressed by a program") << false;
    }

    void typedTextIsTakenOverBeforeAButtonActs()
    {
        QFETCH(bool, mouse);
        const auto press = [mouse](QToolButton* button) {
            if (mouse)
                click(button);
            else
                button->click();
        };
        m_widget->setPointList(oddPoints(5));
        QSignalSpy modified(m_widget, &PointListWidget::userModified);
        type(m_widget->xField(0), "5");
        press(m_widget->removeButton(4));
        QCOMPARE(modified.count(), 2);
        QPolygonF expected = oddPoints(4);
        expected[0].setX(5);
        QVERIFY(same(m_widget->pointList(), expected));

        // The text does not come back into the regular polygon.
        type(m_widget->xField(0), "6");
        press(m_widget->addButton());
        QVERIFY(same(m_widget->pointList(), regular(5)));
        m_widget->xField(1)->setFocus();
        QVERIFY(same(m_widget->pointList(), regular(5)));
        QVERIFY(same(m_window->shownPoints(), regular(5)));
    }

    void turningByNinetyDegreesGoesClockwise()
    {
        m_widget->setPointList({{10, 0}, {20, 5}, {0, 30}});
        QSignalSpy modified(m_widget, &PointListWidget::userModified);
        m_window->turn("90");
        QCOMPARE(modified.count(), 1);
        QCOMPARE(m_widget->lastEdit(), PointListWidget::Edit::Rotation);
        QVERIFY(same(m_widget->pointList(), {{0, 10}, {-5, 20}, {-30, 0}}));
        QVERIFY(same(m_window->shownPoints(), m_widget->pointList()));
        QCOMPARE(m_widget->rotationControl()->value(), 90.0);
        // The angle counts from the points as they were, not from those of the last turn.
        m_window->turn("180");
        QVERIFY(same(m_widget->pointList(), {{-10, 0}, {-20, -5}, {0, -30}}));
    }

    void turningBackToZeroRestoresThePointsExactly()
    {
        m_widget->setPointList(oddPoints(7));
        for (const char* angle : {"33.33", "359.99", "120", "0.01", "0"}) {
            m_window->turn(angle);
        }
        QVERIFY(same(m_widget->pointList(), oddPoints(7)));
        QVERIFY(same(m_window->shownPoints(), oddPoints(7)));
    }

    void theSliderTurnsThePoints()
    {
        m_widget->setPointList(oddPoints(7));
        QSignalSpy modified(m_widget, &PointListWidget::userModified);
        NumberSlider* slider = m_widget->rotationControl()->slider();
        const int y = slider->height() / 2;
        QTest::mousePress(slider, Qt::LeftButton, {}, QPoint(3, y));
        for (int x = 5; x < slider->width(); x += 10) {
            QTest::mouseMove(slider, QPoint(x, y));
            const double angle = m_widget->rotationControl()->value();
            QVERIFY(same(m_widget->pointList(), QTransform().rotate(angle).map(oddPoints(7))));
        }
        QVERIFY(modified.count() > 5);
        QVERIFY(m_widget->rotationControl()->value() > 300);
        QTest::mouseMove(slider, QPoint(0, y));
        QTest::mouseRelease(slider, Qt::LeftButton, {}, QPoint(0, y));
        QCOMPARE(m_widget->rotationControl()->value(), 0.0);
        QVERIFY(same(m_widget->pointList(), oddPoints(7)));
    }

    void anEditedCoordinateEndsTheTurn()
    {
        m_widget->setPointList({{10, 0}, {20, 5}, {0, 30}});
        m_window->turn("90");
        enter(m_widget->xField(0), "1");
        const QPolygonF edited{{1, 10}, {-5, 20}, {-30, 0}};
        QVERIFY(same(m_widget->pointList(), edited));
        QCOMPARE(m_widget->rotationControl()->value(), 0.0);
        m_window->turn("180");
        QVERIFY(same(m_widget->pointList(), {{-1, -10}, {5, -20}, {30, 0}}));
    }

    void aNewListEndsTheTurn()
    {
        m_widget->setPointList(oddPoints(5));
        m_window->turn("45");
        QSignalSpy modified(m_widget, &PointListWidget::userModified);
        m_widget->setPointList(oddPoints(6));
        QCOMPARE(m_widget->rotationControl()->value(), 0.0);
        QCOMPARE(m_widget->rotationControl()->slider()->value(), 0);
        QVERIFY(same(m_widget->pointList(), oddPoints(6)));
        QCOMPARE(modified.count(), 0);
    }

    void anyTurnLeadsBack()
    {
        QVERIFY(rc::check("turning and turning back", [this](const std::vector<int>& hundredths) {
            QPolygonF points;
            const int count = *rc::gen::inRange(Fewest, Most + 1);
            for (int i = 0; i < count; ++i)
                points.append(
                    {*rc::gen::inRange(-10000000, 10000000) / 997.0, *rc::gen::inRange(-10000, 10000) / 100.0});
            m_widget->setPointList(points);
            SpinBox* angle = m_widget->rotationControl()->spinBox();
            for (int value : hundredths) {
                angle->editValue(std::abs(value % 36000) / 100.0);
                RC_ASSERT(same(m_widget->pointList(), QTransform().rotate(angle->value()).map(points)));
                RC_ASSERT(same(m_window->shownPoints(), m_widget->pointList()));
            }
            angle->editValue(0);
            RC_ASSERT(same(m_widget->pointList(), points));
        }));
    }

    void anyEditsKeepTheRowsAndThePointsTogether()
    {
        QVERIFY(rc::check("edits", [this] {
            m_widget->setPointList(oddPoints(*rc::gen::inRange(Fewest, Most + 1)));
            QSignalSpy modified(m_widget, &PointListWidget::userModified);
            const auto edits = *rc::gen::container<std::vector<int>>(rc::gen::inRange(0, 100));
            for (int edit : edits) {
                const QPolygonF before = m_widget->pointList();
                const int row = edit % int(before.size());
                modified.clear();
                switch (edit % 4) {
                case 0:
                    m_widget->addButton()->click();
                    RC_ASSERT(m_widget->pointList().size() == std::min<qsizetype>(before.size() + 1, Most));
                    RC_ASSERT(modified.count() == (before.size() < Most ? 1 : 0));
                    break;
                case 1:
                    m_widget->removeButton(row)->click();
                    RC_ASSERT(m_widget->pointList().size() == std::max<qsizetype>(before.size() - 1, Fewest));
                    RC_ASSERT(modified.count() == 1);
                    break;
                case 2:
                    m_widget->rotationControl()->spinBox()->editValue(edit);
                    RC_ASSERT(m_widget->pointList().size() == before.size());
                    break;
                default:
                    m_widget->xField(row)->editValue(edit);
                    RC_ASSERT(m_widget->pointList().at(row).x() == edit);
                    RC_ASSERT(m_widget->pointList().size() == before.size());
                    break;
                }
                RC_ASSERT(same(m_window->shownPoints(), m_widget->pointList()));
            }
        }));
    }

private:
    std::unique_ptr<PointListWindow> m_window;
    PointListWidget* m_widget = nullptr;
};

QTEST_MAIN(tst_PointListEdits)
#include "tst_PointListEdits.moc"
