#include "tests/gradients/GradientStopsWindow.h"

#include <QAccessible>
#include <QToolTip>

#include <memory>

using namespace Korvex::Meridane::Designer;
using namespace Korvex::Meridane::Designer::Test;

/// One row of the list of gradient stops.
class tst_GradientStopWidget : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aNewRowShowsZeroPercentAndTheDefaultColor()
    {
        const GradientStopWidget row(true);
        QCOMPARE(row.gradientStop(), QGradientStop(0, QColor(248, 151, 29, 255)));
        QCOMPARE(row.positionField()->text(), QStringLiteral("0%"));
        QCOMPARE(row.positionField()->minimum(), 0.0);
        QCOMPARE(row.positionField()->maximum(), 100.0);
        QCOMPARE(row.positionField()->singleStep(), 1.0);
    }

    void theButtonsHaveTheNamesOfWhatTheyDo()
    {
        QCOMPARE(GradientStopWidget(true).button()->objectName(), QStringLiteral("removeItem"));
        QCOMPARE(GradientStopWidget(false).button()->objectName(), QStringLiteral("addItem"));
    }

    void everyWholePercentIsShownAndGivenBack()
    {
        GradientStopWidget row(true);
        for (int percent = 0; percent <= 100; ++percent) {
            row.setPosition(percent / 100.0);
            QCOMPARE(row.positionField()->text(), QStringLiteral("%1%").arg(percent));
            QCOMPARE(row.position(), percent / 100.0);
        }
    }

    void decimalsAreNotShown()
    {
        GradientStopWidget row(true);
        row.setPosition(0.335);
        QCOMPARE(row.positionField()->text(), QStringLiteral("33%"));
        row.setPosition(0.9999);
        QCOMPARE(row.positionField()->text(), QStringLiteral("99%"));
    }

    void positionsBeyondTheRangeAreIgnored()
    {
        GradientStopWidget row(true);
        row.setPosition(0.5);
        for (const double position : {-0.02, 1.01, 2.0, -1e300, 1e300}) {
            row.setPosition(position);
            QCOMPARE(row.position(), 0.5);
        }
    }

    void settingAnnouncesNothing()
    {
        GradientStopWidget row(true);
        const QSignalSpy modified(&row, &GradientStopWidget::userModified);
        row.setGradientStop({0.4, Qt::red});
        row.setPosition(0.6);
        row.setColor(Qt::blue);
        row.setButtonVisible(false);
        QCOMPARE(row.gradientStop(), QGradientStop(0.6, Qt::blue));
        QCOMPARE(modified.size(), 0);
    }

    void thePartsAreMetaProperties()
    {
        GradientStopWidget row(true);
        QVERIFY(row.setProperty("stop", QVariant::fromValue(QGradientStop(0.4, Qt::red))));
        QCOMPARE(row.gradientStop(), QGradientStop(0.4, Qt::red));
        QVERIFY(row.setProperty("position", 0.7));
        QVERIFY(row.setProperty("color", QColor(Qt::green)));
        QCOMPARE(row.property("stop").value<QGradientStop>(), QGradientStop(0.7, Qt::green));
        QCOMPARE(row.property("position").toDouble(), 0.7);
        QCOMPARE(row.property("color").value<QColor>(), QColor(Qt::green));
        QVERIFY(row.property("visible").toBool());
        QVERIFY(row.setProperty("visible", false));
        QVERIFY(row.button()->isHidden());
        QVERIFY(!row.property("visible").toBool());
    }

    void anEditOfThePositionAnnouncesThePositionThenTheRow()
    {
        WindowOf window(new GradientStopWidget(true));
        const QStringList heard = heardDuring(window.widget, [&] { enter(window.widget->positionField(), "42"); });
        QCOMPARE(heard, (QStringList{QStringLiteral("position"), QStringLiteral("row")}));
        QCOMPARE(window.widget->position(), 0.42);
    }

    void anEditOfTheColorAnnouncesTheColorThenTheRow()
    {
        GradientStopWidget row(true);
        const QStringList heard = heardDuring(&row, [&] { pick(row.colorPicker(), Qt::cyan); });
        QCOMPARE(heard, (QStringList{QStringLiteral("color"), QStringLiteral("row")}));
        QCOMPARE(row.color(), QColor(Qt::cyan));
    }

    void theButtonAsksToRemoveOrToAdd()
    {
        for (const bool removable : {true, false}) {
            WindowOf window(new GradientStopWidget(removable));
            const QStringList heard = heardDuring(window.widget, [&] { click(window.widget->button()); });
            QCOMPARE(heard, QStringList(removable ? QStringLiteral("remove") : QStringLiteral("add")));
        }
    }

    void enterReturnAndPlusAddAMomentLater_data()
    {
        QTest::addColumn<int>("key");
        QTest::addRow("Return") << int(Qt::Key_Return);
        QTest::addRow("Enter") << int(Qt::Key_Enter);
        QTest::addRow("+") << int(Qt::Key_Plus);
    }

    void enterReturnAndPlusAddAMomentLater()
    {
        QFETCH(const int, key);
        WindowOf window(new GradientStopWidget(false));
        GradientStopWidget* row = window.widget;
        const QSignalSpy added(row, &GradientStopWidget::requestAdd);
        type(row->positionField(), "30");
        press(row->positionField(), key);
        QVERIFY(row->button()->isDown());
        QCOMPARE(added.size(), 0);
        QTRY_COMPARE(added.size(), 1);
        QVERIFY(!row->button()->isDown());
        QCOMPARE(row->positionField()->text(), QStringLiteral("30%"));
        QCOMPARE(row->position(), 0.3);
        // The key reached the field, too: the number is taken over and the next one replaces it.
        QTest::keyClicks(row->positionField(), QStringLiteral("7"));
        QCOMPARE(row->positionField()->text(), QStringLiteral("7%"));
    }

    void thePlusLeavesNoTraceInTheField()
    {
        WindowOf window(new GradientStopWidget(false));
        SpinBox* field = window.widget->positionField();
        window.widget->setPosition(1);
        for (const bool select : {true, false}) {
            field->setFocus();
            if (select)
                field->selectAll();
            press(field, Qt::Key_Plus);
            settle();
            QCOMPARE(field->text(), QStringLiteral("100%"));
            QVERIFY2(!QToolTip::isVisible(), qPrintable(QToolTip::text()));
        }
    }

    void theKeysDoNothingInTheRowOfAStop()
    {
        WindowOf window(new GradientStopWidget(true));
        const QSignalSpy added(window.widget, &GradientStopWidget::requestAdd);
        const QSignalSpy removed(window.widget, &GradientStopWidget::requestRemove);
        for (const int key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Plus}) {
            window.widget->positionField()->setFocus();
            press(window.widget->positionField(), key);
        }
        QTest::qWait(150);
        QCOMPARE(added.size() + removed.size(), 0);
    }

    void whatIsTypedAfterTheKeyBelongsToTheNextStop()
    {
        WindowOf window(new GradientStopWidget(false));
        GradientStopWidget* row = window.widget;
        QList<QGradientStop> asked;
        connect(row, &GradientStopWidget::requestAdd, this, [&] { asked.append(row->requestedStop()); });
        enter(row->positionField(), "30");
        QTest::keyClicks(row->positionField(), QStringLiteral("4"));
        QTRY_COMPARE(asked.size(), 1);
        QCOMPARE(asked.first().first, 0.3);
        QTest::keyClicks(row->positionField(), QStringLiteral("5"));
        click(row->button());
        QCOMPARE(asked.size(), 2);
        QCOMPARE(asked.last().first, 0.45);
    }

    void aKeyIsAnsweredAtTheLatestWhenTheFocusLeaves()
    {
        WindowOf window(new GradientStopWidget(false));
        GradientStopWidget* row = window.widget;
        const QSignalSpy added(row, &GradientStopWidget::requestAdd);
        enter(row->positionField(), "30");
        QTest::keyClick(row->positionField(), Qt::Key_Tab);
        QCOMPARE(added.size(), 1);
        QTRY_VERIFY(!row->button()->isDown());
        QCOMPARE(added.size(), 1);
        click(row->button());
        QCOMPARE(added.size(), 2);
        row->positionField()->setFocus();
        QTest::keyClick(row->positionField(), Qt::Key_Tab);
        QCOMPARE(added.size(), 2);
    }

    void aKeyAndAClickAreTwoRequests()
    {
        WindowOf window(new GradientStopWidget(false));
        GradientStopWidget* row = window.widget;
        QList<double> asked;
        connect(row, &GradientStopWidget::requestAdd, this, [&] { asked.append(row->requestedStop().first); });
        enter(row->positionField(), "30");
        QTest::keyClicks(row->positionField(), QStringLiteral("40"));
        click(row->button());
        QTRY_COMPARE(asked, (QList<double>{0.3, 0.4}));
    }

    void theAddButtonTakesTheTypedPositionOverFirst()
    {
        WindowOf window(new GradientStopWidget(false));
        type(window.widget->positionField(), "45");
        const QStringList heard = heardDuring(window.widget, [&] { window.widget->button()->click(); });
        QCOMPARE(heard, (QStringList{QStringLiteral("position"), QStringLiteral("row"), QStringLiteral("add")}));
        QCOMPARE(window.widget->position(), 0.45);
    }

    void aHiddenButtonKeepsItsPlace()
    {
        WindowOf window(new GradientStopWidget(true));
        GradientStopWidget* row = window.widget;
        const QRect field = row->positionField()->geometry();
        const QRect color = row->colorPicker()->geometry();
        QVERIFY(row->isButtonVisible());
        row->setButtonVisible(false);
        settle();
        QVERIFY(!row->button()->isVisible());
        QVERIFY(!row->isButtonVisible());
        QCOMPARE(row->positionField()->geometry(), field);
        QCOMPARE(row->colorPicker()->geometry(), color);
        row->setButtonVisible(true);
        QVERIFY(row->button()->isVisible());
    }

    void theHeightIsThatOfTheSizeHint()
    {
        WindowOf window(new GradientStopWidget(true));
        const int before = window.widget->height();
        QCOMPARE(before, window.widget->sizeHint().height());
        QFont large = window.font();
        large.setPixelSize(30);
        window.setFont(large);
        settle();
        QCOMPARE(window.widget->height(), window.widget->sizeHint().height());
        QVERIFY(window.widget->height() > before);
    }

    void theFieldTakesTheWidthThatIsLeft()
    {
        WindowOf window(new GradientStopWidget(true));
        GradientStopWidget* row = window.widget;
        const int color = row->colorPicker()->width();
        const int field = row->positionField()->width();
        window.resize(window.width() + 100, window.height());
        settle();
        QCOMPARE(row->colorPicker()->width(), color);
        QCOMPARE(row->positionField()->width(), field + 100);
        QCOMPARE(row->button()->geometry().right(), row->rect().right());
        QCOMPARE(row->positionField()->x(), 0);
    }

    void everyPartHasAnAccessibleName()
    {
        GradientStopWidget stop(true);
        stop.setNumber(3);
        QCOMPARE(names(stop),
                 (QStringList{QStringLiteral("Position of gradient stop 3"), QStringLiteral("Color of gradient stop 3"),
                              QStringLiteral("Remove gradient stop 3")}));
        const GradientStopWidget add(false);
        QCOMPARE(names(add), (QStringList{QStringLiteral("Position of the new gradient stop"),
                                          QStringLiteral("Color of the new gradient stop"),
                                          QStringLiteral("Add this gradient stop")}));
    }

private:
    /// A key press with the character that goes with it.
    static void press(SpinBox* field, int key)
    {
        if (key == Qt::Key_Plus)
            QTest::keyClick(field, '+');
        else
            QTest::keyClick(field, Qt::Key(key));
    }

    static QStringList heardDuring(GradientStopWidget* row, const std::function<void()>& action)
    {
        QStringList heard;
        QObject context;
        connect(row, &GradientStopWidget::userModified, &context, [&] { heard << QStringLiteral("row"); });
        connect(row, &GradientStopWidget::userModifiedPosition, &context, [&] { heard << QStringLiteral("position"); });
        connect(row, &GradientStopWidget::userModifiedColor, &context, [&] { heard << QStringLiteral("color"); });
        connect(row, &GradientStopWidget::requestAdd, &context, [&] { heard << QStringLiteral("add"); });
        connect(row, &GradientStopWidget::requestRemove, &context, [&] { heard << QStringLiteral("remove"); });
        action();
        return heard;
    }

    static QStringList names(const GradientStopWidget& row)
    {
        QStringList names;
        for (QWidget* part :
             std::initializer_list<QWidget*>{row.positionField(), row.colorPicker()->swatch(), row.button()})
            names.append(QAccessible::queryAccessibleInterface(part)->text(QAccessible::Name));
        return names;
    }
};

QTEST_MAIN(tst_GradientStopWidget)
#include "tst_GradientStopWidget.moc"
