#include "tests/gradients/GradientStopsWindow.h"

#include <memory>
#include <rapidcheck.h>

using namespace Korvex::Meridane::Designer;
using namespace Korvex::Meridane::Designer::Test;

namespace {

const QString AddTitle = QStringLiteral("Add Gradient Stop");
const QString ModifyTitle = QStringLiteral("Modify Gradient Stops");

QString warning(const QString& title, int percent)
{
    return QStringLiteral("%1: Gradient stop at position %2% already exists.").arg(title).arg(percent);
}

} // namespace

/// The list of gradient stops: what its edits do.
class tst_GradientStopsWidget : public QObject, private GradientStopsWindow
{
    Q_OBJECT

private Q_SLOTS:
    void init() { open(); }
    void cleanup() { close(); }

    void aNewListShowsTheTwoDefaultStops()
    {
        QCOMPARE(stops()->gradientStops(), (QGradientStops{{0.33, Orange}, {0.67, QColor(Qt::white)}}));
        QCOMPARE(shown(), QStringLiteral("33 #f8971d, 67 #ffffff"));
        QCOMPARE(stops()->addRow()->gradientStop(), QGradientStop(1, Orange));
        QVERIFY(addButton()->isVisible());
    }

    void twoStopsCannotBeRemoved()
    {
        QCOMPARE(visibleRemoveButtons(), 0);
        row(0)->button()->click();
        Q_EMIT row(1)->requestRemove();
        QCOMPARE(row(0), stops()->rows().first());
        QCOMPARE(stops()->rows().size(), 2);
        QCOMPARE(m_modified->size(), 0);
    }

    void aThirdStopShowsTheRemoveButtonsAndItsRemovalHidesThem()
    {
        click(addButton());
        settle();
        QCOMPARE(shown(), QStringLiteral("33 #f8971d, 67 #ffffff, 100 #f8971d"));
        QCOMPARE(visibleRemoveButtons(), 3);
        QCOMPARE(m_modified->size(), 1);
        click(row(1)->button());
        settle();
        QCOMPARE(shown(), QStringLiteral("33 #f8971d, 100 #f8971d"));
        QCOMPARE(visibleRemoveButtons(), 0);
        QCOMPARE(m_modified->size(), 2);
    }

    void eachOfThreeStopsCanBeRemoved()
    {
        for (int i = 0; i < 3; ++i) {
            QGradientStops list = stopsAtEachPercent(3);
            stops()->setGradientStops(list);
            settle();
            click(row(i)->button());
            list.remove(i);
            QCOMPARE(stops()->gradientStops(), list);
            QCOMPARE(shownStops(), list);
        }
    }

    void aNewStopIsSortedIn()
    {
        enter(stops()->addRow()->positionField(), "50");
        pick(stops()->addRow()->colorPicker(), Qt::blue);
        QTRY_COMPARE(m_modified->size(), 1);
        // The key asked for the stop before the colour was picked.
        QCOMPARE(shown(), QStringLiteral("33 #f8971d, 50 #f8971d, 67 #ffffff"));
        type(stops()->addRow()->positionField(), "10");
        click(addButton());
        QCOMPARE(shown(), QStringLiteral("10 #0000ff, 33 #f8971d, 50 #f8971d, 67 #ffffff"));
        QCOMPARE(m_modified->size(), 2);
    }

    void addingWhereAStopIsWarns()
    {
        type(stops()->addRow()->positionField(), "33");
        click(addButton());
        QCOMPARE(m_warnings->texts, QStringList(warning(AddTitle, 33)));
        QCOMPARE(shown(), QStringLiteral("33 #f8971d, 67 #ffffff"));
        QCOMPARE(stops()->rows().size(), 2);
        QCOMPARE(stops()->addRow()->position(), 0.33);
        QCOMPARE(m_modified->size(), 0);
        QTest::keyClick(stops()->addRow()->positionField(), '+');
        QTRY_COMPARE(m_warnings->texts.size(), 2);
        QCOMPARE(m_modified->size(), 0);
    }

    void aStopWithDecimalsHoldsItsWholePercent()
    {
        stops()->setGradientStops({{0.335, Qt::red}, {0.8, Qt::blue}});
        type(stops()->addRow()->positionField(), "33");
        click(addButton());
        QCOMPARE(m_warnings->texts, QStringList(warning(AddTitle, 33)));
        enter(row(1)->positionField(), "33");
        QCOMPARE(m_warnings->texts.last(), warning(ModifyTitle, 33));
        QCOMPARE(m_modified->size(), 0);
    }

    void movingToAnotherStopWarnsAndPutsTheRowBack()
    {
        enter(row(0)->positionField(), "67");
        QCOMPARE(m_warnings->texts, QStringList(warning(ModifyTitle, 67)));
        QCOMPARE(shown(), QStringLiteral("33 #f8971d, 67 #ffffff"));
        QCOMPARE(m_modified->size(), 0);
        // Also when the focus leaves, and by a step.
        type(row(1)->positionField(), "33");
        QTest::keyClick(row(1)->positionField(), Qt::Key_Tab);
        stops()->setGradientStops({{0.33, Orange}, {0.34, Qt::white}});
        row(0)->positionField()->setFocus();
        QTest::keyClick(row(0)->positionField(), Qt::Key_Up);
        QCOMPARE(m_warnings->texts.mid(1), (QStringList{warning(ModifyTitle, 33), warning(ModifyTitle, 34)}));
        QCOMPARE(shown(), QStringLiteral("33 #f8971d, 34 #ffffff"));
        QCOMPARE(m_modified->size(), 0);
    }

    void anOpenWarningTakesNoFurtherEdits()
    {
        stops()->setGradientStops({{0.33, Orange}, {0.34, Qt::white}});
        m_warnings->whileOpen = [this] {
            // What a step button that is held down does.
            row(0)->positionField()->stepUp();
            row(0)->positionField()->stepUp();
            addButton()->click();
        };
        row(0)->positionField()->setFocus();
        QTest::keyClick(row(0)->positionField(), Qt::Key_Up);
        QCOMPARE(m_warnings->texts, QStringList(warning(ModifyTitle, 34)));
        QCOMPARE(shown(), QStringLiteral("33 #f8971d, 34 #ffffff"));
        QCOMPARE(m_modified->size(), 0);
        m_warnings->whileOpen = {};
        QTest::keyClick(row(0)->positionField(), Qt::Key_Down);
        QCOMPARE(shown(), QStringLiteral("32 #f8971d, 34 #ffffff"));
    }

    void theListMayGoWhileAWarningIsOpen()
    {
        const QPointer<GradientStopsWidget> list(stops());
        m_warnings->whileOpen = [this] { m_window.reset(); };
        type(stops()->addRow()->positionField(), "33");
        addButton()->click();
        QVERIFY(!list);
        QCOMPARE(m_warnings->texts.size(), 1);
    }

    void movingPastANeighbourSorts()
    {
        stops()->setGradientStops({{0.1, Qt::red}, {0.5, Qt::green}, {0.9, Qt::blue}});
        enter(row(0)->positionField(), "60");
        QCOMPARE(shown(), QStringLiteral("50 #00ff00, 60 #ff0000, 90 #0000ff"));
        enter(row(2)->positionField(), "0");
        QCOMPARE(shown(), QStringLiteral("0 #0000ff, 50 #00ff00, 60 #ff0000"));
        QCOMPARE(m_modified->size(), 2);
        QCOMPARE(stops()->gradientStops().first().first, 0.0);
    }

    void aButtonPressedAfterTypingIsThatOfItsOwnStop()
    {
        // The press takes the typed position over, which moves the row away.
        stops()->setGradientStops({{0.1, Qt::red}, {0.5, Qt::green}, {0.9, Qt::blue}});
        settle();
        type(row(0)->positionField(), "60");
        click(row(0)->button());
        QCOMPARE(shown(), QStringLiteral("50 #00ff00, 90 #0000ff"));
        QCOMPARE(m_modified->size(), 2);
    }

    void aButtonThatIsPressedWithoutTheFocusTakesTypedTextOver()
    {
        stops()->setGradientStops({{0.1, Qt::red}, {0.5, Qt::green}, {0.9, Qt::blue}});
        type(row(0)->positionField(), "60");
        row(2)->button()->click(); // as assistive programs do
        QCOMPARE(shown(), QStringLiteral("50 #00ff00, 60 #ff0000"));
        type(row(0)->positionField(), "70");
        addButton()->click();
        QCOMPARE(shown(), QStringLiteral("60 #ff0000, 70 #00ff00, 100 #f8971d"));
    }

    void aChangeOfColorDoesNotSort()
    {
        const QGradientStops unsorted{{0.9, Qt::red}, {0.1, Qt::green}, {0.5, Qt::blue}};
        stops()->setGradientStops(unsorted);
        pick(row(1)->colorPicker(), Qt::white);
        QCOMPARE(shown(), QStringLiteral("90 #ff0000, 10 #ffffff, 50 #0000ff"));
        QCOMPARE(m_modified->size(), 1);
        enter(row(2)->positionField(), "51");
        QCOMPARE(shown(), QStringLiteral("10 #ffffff, 51 #0000ff, 90 #ff0000"));
    }

    void ofStopsAtTheSamePercentTheLastOneStaysWhenSorted()
    {
        stops()->setGradientStops({{0.331, Qt::red}, {0.5, Qt::green}, {0.339, Qt::blue}});
        QCOMPARE(shown(), QStringLiteral("33 #ff0000, 50 #00ff00, 33 #0000ff"));
        enter(row(1)->positionField(), "60");
        QCOMPARE(stops()->gradientStops(), (QGradientStops{{0.339, Qt::blue}, {0.6, Qt::green}}));
        QCOMPARE(shownStops(), (QGradientStops{{0.33, Qt::blue}, {0.6, Qt::green}}));
        QCOMPARE(visibleRemoveButtons(), 0);
    }

    void decimalsStayUntilThePositionIsEdited()
    {
        stops()->setGradientStops({{0.335, Qt::red}, {0.6789, Qt::green}, {1.0 / 3 + 0.5, Qt::blue}});
        pick(row(0)->colorPicker(), Qt::white);
        click(addButton());
        click(row(3)->button());
        enter(row(1)->positionField(), "67"); // as it is shown already
        QCOMPARE(stops()->gradientStops(),
                 (QGradientStops{{0.335, Qt::white}, {0.6789, Qt::green}, {1.0 / 3 + 0.5, Qt::blue}}));
        enter(row(1)->positionField(), "68");
        QCOMPARE(stops()->gradientStops(),
                 (QGradientStops{{0.335, Qt::white}, {0.68, Qt::green}, {1.0 / 3 + 0.5, Qt::blue}}));
    }

    void everyWholePercentIsTakenFromTheFields()
    {
        stops()->setGradientStops({{0.005, Qt::red}, {0.015, Qt::green}});
        enter(row(1)->positionField(), "100");
        for (int percent = 0; percent < 100; ++percent) {
            enter(row(0)->positionField(), QByteArray::number(percent).constData());
            QCOMPARE(row(0)->positionField()->text(), QStringLiteral("%1%").arg(percent));
            if (percent > 0)
                QCOMPARE(stops()->gradientStops().first().first, percent / 100.0);
        }
        QCOMPARE(m_warnings->texts, QStringList());
    }

    void withAHundredAndOneStopsNothingCanBeAdded()
    {
        stops()->setGradientStops(stopsAtEachPercent(Most - 1));
        settle();
        QVERIFY(addButton()->isVisible());
        addButton()->setFocus();
        QTest::keyClick(addButton(), Qt::Key_Space);
        QCOMPARE(stops()->rows().size(), Most);
        QVERIFY(!addButton()->isVisible());
        QCOMPARE(focus(), stops()->addRow()->positionField());
        QCOMPARE(m_modified->size(), 1);

        for (const int key : {Qt::Key_Return, Qt::Key_Enter}) {
            QTest::keyClick(focus(), Qt::Key(key));
            QVERIFY(addButton()->isDown());
            QTRY_VERIFY(!addButton()->isDown()); // it has been clicked
        }
        QTest::keyClick(focus(), '+');
        QTRY_VERIFY(!addButton()->isDown());
        QCOMPARE(stops()->rows().size(), Most);
        QCOMPARE(m_warnings->texts, QStringList());
        QCOMPARE(m_modified->size(), 1);
        QCOMPARE(shownStops(), stops()->gradientStops());

        row(50)->button()->click();
        QVERIFY(addButton()->isVisible());
        type(stops()->addRow()->positionField(), "50");
        click(addButton());
        QCOMPARE(stops()->rows().size(), Most);
        QCOMPARE(row(50)->gradientStop(), QGradientStop(0.5, Orange));
    }

    void listsOfOtherLengthsAreIgnored()
    {
        const QGradientStops list = stopsAtEachPercent(5);
        stops()->setGradientStops(list);
        stops()->setGradientStops({});
        stops()->setGradientStops({{0.5, Qt::red}});
        stops()->setGradientStops(QGradientStops(Most + 1, {0.5, Qt::red}));
        QCOMPARE(stops()->gradientStops(), list);
        QCOMPARE(shownStops(), list);
    }

    void anEqualListRebuildsNothing()
    {
        const QGradientStops list = stopsAtEachPercent(5);
        stops()->setGradientStops(list);
        const QList<GradientStopWidget*> rows = stops()->rows();
        const QSignalSpy added(stops(), &GradientStopsWidget::rowAdded);
        stops()->setGradientStops(list);
        QCOMPARE(stops()->rows(), rows);
        QCOMPARE(added.size(), 0);
        QCOMPARE(m_modified->size(), 0);
    }

    void settingAListAnnouncesNothing()
    {
        for (const int count : {3, Most, 2, 50})
            stops()->setGradientStops(stopsAtEachPercent(count));
        QVERIFY(stops()->setProperty("stops", QVariant::fromValue(stopsAtEachPercent(4))));
        QCOMPARE(stops()->property("stops").value<QGradientStops>(), stopsAtEachPercent(4));
        QCOMPARE(shownStops(), stopsAtEachPercent(4));
        QCOMPARE(m_modified->size(), 0);
    }

    void aSetListShowsTheButtonsOfItsLength()
    {
        for (const auto& [count, removable, addable] :
             {std::tuple(3, true, true), std::tuple(Most, true, false), std::tuple(2, false, true)}) {
            stops()->setGradientStops(stopsAtEachPercent(count));
            QCOMPARE(visibleRemoveButtons(), removable ? count : 0);
            QCOMPARE(addButton()->isVisible(), addable);
            QCOMPARE(shownStops(), stopsAtEachPercent(count));
        }
    }

    void removedRowsLeaveNoWidgetBehind()
    {
        const qsizetype before = stops()->findChildren<QWidget*>().size();
        for (int round = 0; round < 2; ++round) {
            stops()->setGradientStops(stopsAtEachPercent(Most));
            QVERIFY(stops()->findChildren<QWidget*>().size() > before + 99);
            stops()->setGradientStops(stopsAtEachPercent(2));
            settle();
            QCOMPARE(stops()->findChildren<QWidget*>().size(), before);
        }
        for (const char* percent : {"50", "60", "70"}) {
            type(stops()->addRow()->positionField(), percent);
            click(addButton());
        }
        while (stops()->rows().size() > 2)
            stops()->rows().last()->button()->click();
        settle();
        QCOMPARE(stops()->findChildren<QWidget*>().size(), before);
    }

    void anEditMeetsTheListThatItIsAnnouncedTo()
    {
        const QGradientStops before{{0.1, Qt::red}, {0.5, Qt::green}, {0.9, Qt::blue}};
        const QGradientStops now{{0.3, Qt::white}, {0.5, Qt::green}, {0.6, Qt::black}, {0.9, Qt::blue}};
        QGradientStops fresh = now;
        connect(stops(), &GradientStopsWidget::aboutToModify, this, [&] { stops()->setGradientStops(fresh); });
        const auto edited = [&](const std::function<void()>& edit) {
            fresh = before;
            stops()->setGradientStops(before);
            fresh = now;
            edit();
            return shown();
        };
        QCOMPARE(edited([&] { enter(row(2)->positionField(), "95"); }),
                 QStringLiteral("30 #ffffff, 50 #00ff00, 60 #000000, 95 #0000ff"));
        QCOMPARE(edited([&] { enter(row(2)->positionField(), "60"); }),
                 QStringLiteral("30 #ffffff, 50 #00ff00, 60 #000000, 90 #0000ff"));
        QCOMPARE(m_warnings->texts, QStringList(warning(ModifyTitle, 60)));
        QCOMPARE(edited([&] { enter(row(0)->positionField(), "95"); }), // the red stop is gone
                 QStringLiteral("30 #ffffff, 50 #00ff00, 60 #000000, 90 #0000ff"));
        QCOMPARE(edited([&] { pick(row(2)->colorPicker(), Qt::cyan); }),
                 QStringLiteral("30 #ffffff, 50 #00ff00, 60 #000000, 90 #00ffff"));
        QCOMPARE(edited([&] { row(2)->button()->click(); }), QStringLiteral("30 #ffffff, 50 #00ff00, 60 #000000"));
        QCOMPARE(edited([&] { row(0)->button()->click(); }),
                 QStringLiteral("30 #ffffff, 50 #00ff00, 60 #000000, 90 #0000ff"));
        QCOMPARE(edited([&] { addButton()->click(); }),
                 QStringLiteral("30 #ffffff, 50 #00ff00, 60 #000000, 90 #0000ff, 100 #f8971d"));
        QCOMPARE(m_modified->size(), 4);
    }

    void anyEditsLeaveSortedStopsThatTheRowsShow()
    {
        QVERIFY(rc::check("rows and stops agree", [this] {
            stops()->setGradientStops(stopsAtEachPercent(*rc::gen::inRange(2, 6)));
            const auto edits = *rc::gen::container<std::vector<int>>(rc::gen::inRange(0, 100000));
            for (const int edit : edits) {
                const int index = edit / 4 % int(stops()->rows().size());
                const QByteArray percent = QByteArray::number(edit / 7 % 101);
                const QGradientStops before = stops()->gradientStops();
                switch (edit % 4) {
                case 0:
                    type(stops()->addRow()->positionField(), percent.constData());
                    addButton()->click();
                    break;
                case 1:
                    row(index)->button()->click();
                    break;
                case 2:
                    enter(row(index)->positionField(), percent.constData());
                    break;
                default:
                    pick(row(index)->colorPicker(), QColor::fromRgb(QRgb(edit)));
                    break;
                }
                const QGradientStops now = stops()->gradientStops();
                RC_ASSERT(now.size() >= 2 && std::abs(now.size() - before.size()) <= 1);
                RC_ASSERT(shownStops() == now);
                RC_ASSERT(stops()->preview()->gradientStops() == now);
                RC_ASSERT(std::is_sorted(now.begin(), now.end(), [](const auto& a, const auto& b) {
                    return wholePercent(a.first) < wholePercent(b.first);
                }));
                for (qsizetype i = 1; i < now.size(); ++i)
                    RC_ASSERT(wholePercent(now.at(i).first) != wholePercent(now.at(i - 1).first));
            }
        }));
    }
};

QTEST_MAIN(tst_GradientStopsWidget)
#include "tst_GradientStopsWidget.moc"
