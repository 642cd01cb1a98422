#include "tests/lines/PointListWindow.h"

#include "host/core/sheet/SheetColors.h"

#include <QElapsedTimer>

#include <memory>

using namespace Korvex::Meridane::Designer;
using namespace Korvex::Meridane::Designer::Test;

Q_DECLARE_METATYPE(QPolygonF)

/// What the widget shows, and what typing into its fields does.
class tst_PointListWidget : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_window = std::make_unique<PointListWindow>();
        m_widget = m_window->points;
    }
    void cleanup() { m_window.reset(); }

    void pointsAreShownInAsManyRows_data()
    {
        QTest::addColumn<int>("count");
        for (int count = Fewest; count <= Most; ++count)
            QTest::addRow("%d points", count) << count;
    }

    void pointsAreShownInAsManyRows()
    {
        QFETCH(int, count);
        m_widget->setPointList(regular(20));
        m_widget->setPointList(oddPoints(count));
        for (int i = 0; i < Most; ++i) {
            QCOMPARE(m_widget->xField(i)->isVisible(), i < count);
            QCOMPARE(m_widget->yField(i)->isVisible(), i < count);
            QCOMPARE(m_widget->removeButton(i)->isVisible(), i < count);
        }
        const auto numbers = m_widget->findChildren<QLabel*>(QStringLiteral("indexLabelSquare"));
        QCOMPARE(numbers.size(), Most);
        for (int i = 0; i < Most; ++i) {
            QCOMPARE(numbers.at(i)->text(), QString::number(i + 1));
            QCOMPARE(numbers.at(i)->isVisible(), i < count);
        }
        QCOMPARE(m_widget->xField(1)->text(), QStringLiteral("10.33 px"));
        QCOMPARE(m_widget->yField(1)->text(), QStringLiteral("192.88 px"));
        QVERIFY(same(m_window->shownPoints(), oddPoints(count)));
    }

    void settingPointsIsSilentAndExact()
    {
        QSignalSpy modified(m_widget, &PointListWidget::userModified);
        for (int count : {3, 20, 7, 3, 4}) {
            m_widget->setPointList(oddPoints(count));
            QVERIFY(same(m_widget->pointList(), oddPoints(count)));
        }
        const QPolygonF far{{-250000.125, 1e9}, {3, 1e300}, {5e-324, -1e12}};
        m_widget->setPointList(far);
        QVERIFY(same(m_widget->pointList(), far));
        QVERIFY(same(m_window->shownPoints(), far));
        QCOMPARE(modified.count(), 0);
    }

    void listsOfTooFewOrTooManyPointsAreIgnored_data()
    {
        QTest::addColumn<int>("count");
        for (int count : {0, 1, 2, 21, 22, 1000, 100000})
            QTest::addRow("%d points", count) << count;
    }

    void listsOfTooFewOrTooManyPointsAreIgnored()
    {
        QFETCH(int, count);
        m_widget->setPointList(oddPoints(5));
        QSignalSpy modified(m_widget, &PointListWidget::userModified);
        QElapsedTimer timer;
        timer.start();
        m_widget->setPointList(QPolygonF(QVector<QPointF>(count, QPointF(1, 2))));
        QVERIFY(timer.elapsed() < 100);
        QVERIFY(same(m_widget->pointList(), oddPoints(5)));
        QCOMPARE(m_window->visibleRows(), 5);
        QCOMPARE(m_widget->findChildren<SpinBox*>().size(), 2 * Most + 1);
        QCOMPARE(modified.count(), 0);
    }

    void hiddenRowsTakeNoSpace()
    {
        const auto height = [this](int count) {
            m_widget->setPointList(regular(count));
            QCoreApplication::processEvents();
            return m_widget->sizeHint().height();
        };
        const int three = height(3);
        const int row = height(4) - three;
        QVERIFY(row >= 32);
        QCOMPARE(height(20), three + 17 * row);
        QCOMPARE(height(3), three);

        // Nor does the message about the size.
        m_widget->setPointList({{0, 0}, {0.5, 0}, {0, 0.5}});
        QCoreApplication::processEvents();
        QVERIFY(m_widget->sizeHint().height() > three);
    }

    void theFieldsAreAsDeclared()
    {
        m_widget->setPointList(regular(20));
        for (int i = 0; i < Most; ++i) {
            for (SpinBox* field : {m_widget->xField(i), m_widget->yField(i)}) {
                QCOMPARE(field->minimum(), -99999.0);
                QCOMPARE(field->maximum(), 99999.0);
                QCOMPARE(field->decimals(), 2);
                QCOMPARE(field->suffix(), QStringLiteral(" px"));
                QCOMPARE(field->toolTip(),
                         QStringLiteral("The point's position uses an independent set of coordinates, \n"
                                        "it is not related to the polygon's position on canvas"));
            }
            QCOMPARE(m_widget->xField(i)->accessibleName(), QStringLiteral("X of point %1").arg(i + 1));
            QCOMPARE(m_widget->yField(i)->accessibleName(), QStringLiteral("Y of point %1").arg(i + 1));
            QCOMPARE(m_widget->removeButton(i)->objectName(), QStringLiteral("removeItem"));
            QCOMPARE(m_widget->removeButton(i)->toolTip(), QStringLiteral("Remove this point"));
            QVERIFY(!m_widget->removeButton(i)->accessibleName().isEmpty());
        }
        QCOMPARE(m_widget->addButton()->objectName(), QStringLiteral("addItem"));
        QCOMPARE(m_widget->rotationControl()->spinBox()->minimum(), 0.0);
        QCOMPARE(m_widget->rotationControl()->spinBox()->maximum(), 359.99);
        QCOMPARE(m_widget->rotationControl()->spinBox()->decimals(), 2);
        QVERIFY(m_widget->rotationControl()->slider()->isVisible());
        QStringList labels;
        for (const QLabel* label : m_widget->findChildren<QLabel*>()) {
            if (label->isVisible() && label->objectName().isEmpty())
                labels.append(label->text());
        }
        QCOMPARE(labels,
                 (QStringList{QStringLiteral("X:"), QStringLiteral("Y:"), QStringLiteral("Rotate Points Clockwise")}));
    }

    void aTypedCoordinateCountsOnEnter()
    {
        m_widget->setPointList(oddPoints(4));
        QSignalSpy modified(m_widget, &PointListWidget::userModified);
        type(m_widget->yField(2), "-12.345");
        QCOMPARE(modified.count(), 0);
        QTest::keyClick(focus(), Qt::Key_Return);
        QPolygonF expected = oddPoints(4);
        expected[2].setY(-12.35);
        QCOMPARE(modified.count(), 1);
        QVERIFY(same(m_widget->pointList(), expected));
        QCOMPARE(m_widget->lastEdit(), PointListWidget::Edit::Coordinate);
        QCOMPARE(m_widget->editedField(), m_widget->yField(2));
        QTest::keyClick(focus(), Qt::Key_Return);
        QCOMPARE(modified.count(), 1);

        enter(m_widget->xField(0), "+=10");
        QCOMPARE(m_widget->pointList().at(0).x(), 10.33);
    }

    void aTypedCoordinateCountsWhenTheFocusLeaves()
    {
        m_widget->setPointList(oddPoints(4));
        type(m_widget->xField(3), "1e3");
        m_widget->addButton()->setFocus();
        QCOMPARE(m_widget->pointList().at(3).x(), 1000.0);
    }

    void escapeTakesBackWhatWasTyped()
    {
        m_widget->setPointList(oddPoints(4));
        QSignalSpy modified(m_widget, &PointListWidget::userModified);
        type(m_widget->xField(3), "77");
        QTest::keyClick(focus(), Qt::Key_Escape);
        m_widget->addButton()->setFocus();
        QCOMPARE(modified.count(), 0);
        QVERIFY(same(m_widget->pointList(), oddPoints(4)));
    }

    void whatIsNoNumberChangesNothing_data()
    {
        QTest::addColumn<QString>("text");
        for (const char* text : {"nan", "inf", "-inf", "1e999", "1/0", "", "-", "."})
            QTest::newRow(*text ? text : "nothing") << QString::fromLatin1(text);
    }

    void whatIsNoNumberChangesNothing()
    {
        QFETCH(QString, text);
        m_widget->setPointList(oddPoints(4));
        QSignalSpy modified(m_widget, &PointListWidget::userModified);
        SpinBox* field = m_widget->xField(1);
        field->setFocus();
        field->selectAll();
        QTest::keyClick(field, Qt::Key_Delete);
        QTest::keyClicks(field, text);
        QTest::keyClick(field, Qt::Key_Return);
        m_widget->addButton()->setFocus();
        QCOMPARE(modified.count(), 0);
        QVERIFY(same(m_widget->pointList(), oddPoints(4)));
        QCOMPARE(field->text(), QStringLiteral("10.33 px"));
    }

    void coordinatesThatAreNotEditedStayExact()
    {
        m_widget->setPointList(oddPoints(8));
        for (int i = 0; i < 8; ++i) {
            for (SpinBox* field : {m_widget->xField(i), m_widget->yField(i)})
                field->setFocus();
        }
        enter(m_widget->xField(4), "40");
        QPolygonF expected = oddPoints(8);
        expected[4].setX(40);
        QVERIFY(same(m_widget->pointList(), expected));
    }

    void arrowKeysAndTheWheelStep()
    {
        m_widget->setPointList(regular(4));
        SpinBox* field = m_widget->yField(0);
        QSignalSpy modified(m_widget, &PointListWidget::userModified);
        field->setFocus();
        QTest::keyClick(field, Qt::Key_Up);
        QTest::keyClick(field, Qt::Key_Up);
        QCOMPARE(m_widget->pointList().at(0).y(), 2.0);
        QTest::keyClick(field, Qt::Key_PageDown);
        QCOMPARE(m_widget->pointList().at(0).y(), -8.0);
        const QPointF middle = QRectF(field->rect()).center();
        QWheelEvent wheel(middle, field->mapToGlobal(middle), {}, {0, 120}, Qt::NoButton, Qt::NoModifier,
                          Qt::NoScrollPhase, false);
        QApplication::sendEvent(field, &wheel);
        QCOMPARE(m_widget->pointList().at(0).y(), -7.0);
        QCOMPARE(modified.count(), 4);

        // A field without the focus lets the page scroll.
        SpinBox* other = m_widget->yField(1);
        QWheelEvent past(middle, other->mapToGlobal(middle), {}, {0, 120}, Qt::NoButton, Qt::NoModifier,
                         Qt::NoScrollPhase, false);
        QApplication::sendEvent(other, &past);
        QCOMPARE(modified.count(), 4);
    }

    void theSizeMessageIsShownBelowOnePixel_data()
    {
        QTest::addColumn<QPolygonF>("points");
        QTest::addColumn<bool>("shown");
        const auto triangle = [](double width, double height) {
            return QPolygonF{{100, 200}, {100 + width, 200}, {100, 200 + height}};
        };
        QTest::newRow("large") << triangle(50, 50) << false;
        QTest::newRow("1 by 1") << triangle(1, 1) << false;
        QTest::newRow("1 by 1 and noise") << QPolygonF{{0.1, 0.1}, {1.0999999999999999, 0.1}, {0.1, 1.1}} << false;
        QTest::newRow("narrow") << triangle(0.99, 50) << true;
        QTest::newRow("low") << triangle(50, 0.99) << true;
        QTest::newRow("flat") << triangle(50, 0) << true;
        QTest::newRow("one place") << triangle(0, 0) << true;
    }

    void theSizeMessageIsShownBelowOnePixel()
    {
        QFETCH(QPolygonF, points);
        QFETCH(bool, shown);
        QVERIFY(m_window->sizeMessage());
        QCOMPARE(m_window->sizeMessage()->text(), QStringLiteral("The size is too small."));
        QVERIFY(!m_window->sizeMessage()->isVisible());
        m_widget->setPointList(points);
        QCOMPARE(m_window->sizeMessage()->isVisible(), shown);
        m_widget->setPointList(regular(3));
        QVERIFY(!m_window->sizeMessage()->isVisible());

        // By hand it comes and goes too.
        m_widget->setPointList(points);
        for (int i = 0; i < 3; ++i) {
            enter(m_widget->xField(i), "7");
        }
        QVERIFY(m_window->sizeMessage()->isVisible());
        click(m_widget->removeButton(0));
        QVERIFY(!m_window->sizeMessage()->isVisible());
    }

    void theSizeMessageFollowsTheTheme()
    {
        m_widget->setPointList({{0, 0}, {0.5, 0}, {0, 0.5}});
        const QColor onLight = m_window->sizeMessage()->palette().color(QPalette::WindowText);
        QPalette dark;
        dark.setColor(QPalette::Window, QColor(0x20, 0x21, 0x24));
        dark.setColor(QPalette::WindowText, Qt::white);
        m_window->setPalette(dark);
        const QColor onDark = m_window->sizeMessage()->palette().color(QPalette::WindowText);
        QCOMPARE(onDark, errorColor(dark));
        QVERIFY(onDark != onLight);
    }

    void tabGoesRowByRow()
    {
        m_widget->setPointList(oddPoints(4));
        m_widget->addButton()->setFocus();
        for (int i = 0; i < 4; ++i) {
            for (QWidget* expected :
                 std::initializer_list<QWidget*>{m_widget->xField(i), m_widget->yField(i), m_widget->removeButton(i)}) {
                QTest::keyClick(focus(), Qt::Key_Tab);
                QCOMPARE(focus(), expected);
            }
        }
        QTest::keyClick(focus(), Qt::Key_Tab);
        QCOMPARE(focus(), m_widget->rotationControl()->spinBox());
        QTest::keyClick(focus(), Qt::Key_Backtab);
        QCOMPARE(focus(), m_widget->removeButton(3));
    }

    void theFocusedPointIsAnnounced()
    {
        m_widget->setPointList(oddPoints(5));
        m_widget->addButton()->setFocus();
        QSignalSpy modified(m_widget, &PointListWidget::userModified);
        QSignalSpy selected(m_widget, &PointListWidget::pointSelected);
        for (int i = 0; i < 5; ++i) {
            for (SpinBox* field : {m_widget->xField(i), m_widget->yField(i)}) {
                field->setFocus();
                QCOMPARE(selected.last().first().toInt(), i);
            }
        }
        m_widget->rotationControl()->spinBox()->setFocus();
        QCOMPARE(selected.last().first().toInt(), -1);
        QCOMPARE(modified.count(), 0);
    }

    void withoutPointsThereIsNothingToEdit()
    {
        m_widget->setPointList(oddPoints(5));
        QSignalSpy modified(m_widget, &PointListWidget::userModified);
        type(m_widget->xField(1), "99");
        m_widget->showNoPoints(QStringLiteral("There are none."));
        QVERIFY(m_widget->pointList().isEmpty());
        QCOMPARE(m_window->visibleRows(), 0);
        QVERIFY(!m_widget->addButton()->isVisible());
        QVERIFY(!m_widget->addButton()->isEnabled());
        QVERIFY(!m_widget->rotationControl()->isVisible());
        QVERIFY(!m_window->sizeMessage()->isVisible());
        QStringList shown;
        for (const QLabel* label : m_widget->findChildren<QLabel*>()) {
            if (label->isVisible())
                shown.append(label->text());
        }
        QCOMPARE(shown, QStringList{QStringLiteral("There are none.")});

        // Whatever is operated all the same, nothing comes of it.
        m_widget->addButtonClicked();
        m_widget->removeButton(0)->click();
        m_widget->xField(0)->editValue(3);
        m_widget->rotationControl()->spinBox()->editValue(30);
        QVERIFY(m_widget->pointList().isEmpty());
        QCOMPARE(modified.count(), 0);

        m_widget->setPointList(oddPoints(3));
        QVERIFY(same(m_window->shownPoints(), oddPoints(3)));
        QCOMPARE(m_widget->rotationControl()->value(), 0.0);
        QVERIFY(m_widget->addButton()->isVisible());
        QVERIFY(m_widget->rotationControl()->isEnabled());
    }

    void aRowThatGoesAwayAnnouncesNothing()
    {
        m_widget->setPointList(oddPoints(8));
        QSignalSpy modified(m_widget, &PointListWidget::userModified);
        type(m_widget->xField(7), "99");
        m_widget->setPointList(oddPoints(4));
        QCOMPARE(modified.count(), 0);
        QVERIFY(same(m_widget->pointList(), oddPoints(4)));
    }

    void twentyRowsAreThereAtOnce()
    {
        constexpr qint64 Limit = 50; // ms
        qint64 building = Limit * 10;
        qint64 growing = Limit * 10;
        for (int attempt = 0; attempt < 5; ++attempt) {
            QElapsedTimer timer;
            timer.start();
            auto* widget = new PointListWidget;
            building = std::min(building, timer.elapsed());
            delete widget;
            m_widget->setPointList(regular(3));
            QCoreApplication::processEvents();
            timer.restart();
            m_widget->setPointList(regular(20));
            QCoreApplication::processEvents();
            growing = std::min(growing, timer.elapsed());
        }
        QVERIFY2(building < Limit, qPrintable(QString::number(building)));
        QVERIFY2(growing < Limit, qPrintable(QString::number(growing)));
    }

private:
    std::unique_ptr<PointListWindow> m_window;
    PointListWidget* m_widget = nullptr;
};

QTEST_MAIN(tst_PointListWidget)
#include "tst_PointListWidget.moc"
