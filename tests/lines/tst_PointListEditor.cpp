#include "lines/RegularPolygonPoints.h"

#include "host/core/commands/UndoCommand.h"
#include "host/core/widgets/ItemButton.h"
#include "host/core/widgets/NumberSlider.h"
#include "host/core/widgets/NumberWidget.h"

#include "tests/lines/PolygonSheet.h"

#include <rapidcheck.h>

#include <QElapsedTimer>
#include <QSignalSpy>

#include <memory>

using namespace Korvex::Meridane::Designer;
using namespace Korvex::Meridane::Designer::Test;

namespace {

constexpr int Most = PointListWidget::MostPoints;

using Values = QMap<QString, QString>;

Values points(const char* list)
{
    return {{QStringLiteral("pointList"), QString::fromLatin1(list)}};
}

Values with(Values values, const char* id, const char* value)
{
    values.insert(QString::fromLatin1(id), QString::fromLatin1(value));
    return values;
}

constexpr const char* Offset = "10,20 110,20 60,80 15,70"; // does not begin at the origin

} // namespace

/// The editor in the property sheet: what it shows, and the steps that it makes.
class tst_PointListEditor : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_sheet = std::make_unique<PolygonSheet>(); }
    void cleanup() { m_sheet.reset(); }

    void aNewPolygonShowsItsTriangle()
    {
        const auto* polygon = m_sheet->addAndSelect();
        QCOMPARE(widget()->pointList(), regularPolygonPoints(3, 10));
        QCOMPARE(widget()->xField(0)->text(), QStringLiteral("78.5 px"));
        QCOMPARE(widget()->yField(1)->text(), QStringLiteral("135.97 px"));
        QCOMPARE(m_sheet->editor()->className(), QStringLiteral("PointListEditor"));
        QCOMPARE(m_sheet->editor()->editorValue(), value(polygon, "pointList"));
    }

    void loadingChangesNothing()
    {
        auto* other = m_sheet->add(points(Offset));
        auto* polygon = m_sheet->addAndSelect(points("0.123456789012345,1e-7 1e15,3 -250000,0.1"));
        const QStringList before = PolygonSheet::state(polygon);
        QSignalSpy modified(widget(), &PointListWidget::userModified);
        for (int i = 0; i < 10; ++i) {
            m_sheet->select({other});
            m_sheet->select({polygon, other});
            m_sheet->select({polygon});
            m_sheet->editor()->load();
            m_sheet->editor()->save();
            widget()->xField(i % 3)->setFocus();
            QTest::keyClick(focus(), Qt::Key_Return);
        }
        QCOMPARE(modified.count(), 0);
        QCOMPARE(stack()->count(), 0);
        QCOMPARE(PolygonSheet::state(polygon), before);
    }

    void aTypedCoordinateIsOneStep()
    {
        auto* polygon = m_sheet->addAndSelect(points(Offset));
        const QStringList before = PolygonSheet::state(polygon);
        enter(widget()->xField(1), "200.25");
        QCOMPARE(value(polygon, "pointList"), QStringLiteral("10,20 200.25,20 60,80 15,70"));
        QCOMPARE(value(polygon, "boundingSize"), QStringLiteral("190.25,60"));
        QCOMPARE(stack()->count(), 1);
        QCOMPARE(stack()->text(0), QStringLiteral("Change Point List"));
        const QStringList after = PolygonSheet::state(polygon);
        m_sheet->session->undo();
        QCOMPARE(PolygonSheet::state(polygon), before);
        m_sheet->session->redo();
        QCOMPARE(PolygonSheet::state(polygon), after);
    }

    void theStepHoldsPositionAndRatio()
    {
        const auto* polygon = m_sheet->addAndSelect(points(Offset));
        const auto list = polygon->getProperty(QStringLiteral("pointList"));
        const QString wanted = QStringLiteral("0,0 50,0 0,25");
        const std::unique_ptr<UndoCommand> free(m_sheet->editor()->createUpdateCommand(list, wanted, nullptr));
        QCOMPARE(free->text(), QStringLiteral("Change Point List"));
        QCOMPARE(free->childCommandCount(), 1);

        m_sheet->session->setProperty(m_sheet->session->selection().first(), QStringLiteral("keepRatio"),
                                      QStringLiteral("1.5"));
        UndoCommand parent;
        UndoCommand* kept = m_sheet->editor()->createUpdateCommand(list, wanted, &parent);
        QCOMPARE(parent.childCommandCount(), 1);
        QCOMPARE(kept->childCommandCount(), 2);
        QCOMPARE(value(polygon, "pointList"), QString::fromLatin1(Offset));
        parent.redo();
        QCOMPARE(value(polygon, "pointList"), wanted);
        QCOMPARE(value(polygon, "position"), QStringLiteral("10,20"));
        QCOMPARE(value(polygon, "keepRatio"), QStringLiteral("2"));
    }

    void aDragOfTheSliderIsOneStep()
    {
        auto* polygon = m_sheet->addAndSelect(points(Offset));
        const QStringList before = PolygonSheet::state(polygon);
        const QPolygonF start = polygon->polygon();
        NumberSlider* slider = widget()->rotationControl()->slider();
        const int y = slider->height() / 2;
        for (int drag = 1; drag <= 2; ++drag) {
            QTest::mousePress(slider, Qt::LeftButton, {}, QPoint(5, y));
            for (int x = 6; x < 20 * drag; ++x) {
                QTest::mouseMove(slider, QPoint(x, y));
                const double angle = widget()->rotationControl()->value();
                QCOMPARE(polygon->polygon(), QTransform().rotate(angle).map(start));
            }
            QTest::mouseRelease(slider, Qt::LeftButton, {}, QPoint(20 * drag, y));
            QCOMPARE(stack()->count(), drag);
            QCOMPARE(stack()->text(drag - 1), QStringLiteral("Change Point List"));
        }
        m_sheet->session->undo();
        m_sheet->session->undo();
        QCOMPARE(PolygonSheet::state(polygon), before);
    }

    void aDragThatEndsWhereItBeganIsNoStep()
    {
        auto* polygon = m_sheet->addAndSelect(with(points(Offset), "keepRatio", "1.7"));
        const QStringList before = PolygonSheet::state(polygon);
        NumberSlider* slider = widget()->rotationControl()->slider();
        const int y = slider->height() / 2;
        QTest::mousePress(slider, Qt::LeftButton, {}, QPoint(4, y));
        for (int x = 5; x < 60; x += 2)
            QTest::mouseMove(slider, QPoint(x, y));
        QVERIFY(PolygonSheet::state(polygon) != before);
        QTest::keyClick(slider, Qt::Key_Escape);
        QTest::mouseRelease(slider, Qt::LeftButton, {}, QPoint(60, y));
        QCOMPARE(PolygonSheet::state(polygon), before);
        QCOMPARE(stack()->count(), 0);
    }

    void stepsOfOneFieldJoinAndNothingElseDoes()
    {
        auto* polygon = m_sheet->addAndSelect(points("0,0 100,0 100,100 0,100"));
        const auto press = [](QWidget* field, Qt::Key key, int times) {
            field->setFocus();
            for (int i = 0; i < times; ++i)
                QTest::keyClick(field, key);
        };
        press(widget()->xField(0), Qt::Key_Up, 5);
        QCOMPARE(stack()->count(), 1);
        press(widget()->yField(0), Qt::Key_Up, 5);
        QCOMPARE(stack()->count(), 2);
        press(widget()->yField(1), Qt::Key_PageDown, 2);
        QCOMPARE(stack()->count(), 3);
        // A button joins nothing, pressed with the keyboard or without taking the focus away.
        widget()->removeButton(3)->click();
        QCOMPARE(stack()->count(), 4);
        press(widget()->yField(1), Qt::Key_Up, 1);
        QCOMPARE(stack()->count(), 5);
        enter(widget()->yField(1), "7");
        enter(widget()->yField(1), "8");
        QCOMPARE(stack()->count(), 7);
        press(widget()->rotationControl()->spinBox(), Qt::Key_Up, 5);
        QCOMPARE(stack()->count(), 8);
        widget()->addButton()->click();
        widget()->addButton()->click();
        QCOMPARE(stack()->count(), 10);
        QCOMPARE(polygon->polygon().size(), 5);
        for (int i = 0; i < 10; ++i)
            m_sheet->session->undo();
        QCOMPARE(value(polygon, "pointList"), QStringLiteral("0,0 100,0 100,100 0,100"));
        // Steps that lead back leave none.
        press(widget()->xField(0), Qt::Key_Up, 2);
        press(widget()->xField(0), Qt::Key_Down, 2);
        QCOMPARE(stack()->index(), 0);
    }

    void undoneEditsAreShown()
    {
        auto* polygon = m_sheet->addAndSelect(points(Offset));
        click(widget()->addButton());
        click(widget()->addButton());
        QVERIFY(widget()->yField(5)->isVisible());
        m_sheet->session->undo();
        QVERIFY(!widget()->yField(5)->isVisible());
        QCOMPARE(widget()->pointList(), regularPolygonPoints(5, Most));
        m_sheet->session->undo();
        QCOMPARE(widget()->pointList(), polygon->polygon());
        QCOMPARE(widget()->xField(2)->text(), QStringLiteral("60 px"));
        m_sheet->session->redo();
        QCOMPARE(widget()->pointList(), regularPolygonPoints(5, Most));
    }

    void anUndoneTurnBeginsAnew()
    {
        auto* polygon = m_sheet->addAndSelect(points(Offset));
        const QPolygonF start = polygon->polygon();
        turn("90");
        turn("120");
        m_sheet->session->undo();
        QCOMPARE(widget()->rotationControl()->value(), 0.0);
        const QPolygonF turned = QTransform().rotate(90).map(start);
        QCOMPARE(polygon->polygon(), turned);
        turn("90");
        QCOMPARE(polygon->polygon(), QTransform().rotate(90).map(turned));
    }

    void listsThatCannotBeEditedAreLeftAlone_data()
    {
        QTest::addColumn<QString>("list");
        QTest::addColumn<QString>("notice");
        const auto many = [](int count) {
            return ValueConversion::toString(QPolygonF(QVector<QPointF>(count, QPointF(12.5, -3))));
        };
        for (int count : {0, 1, 2, 21, 100000}) {
            QTest::addRow("%d points", count)
                << many(count)
                << QStringLiteral("Points in this list: %1. Lists of 3 to 20 points can be edited here.").arg(count);
        }
        for (const char* text : {"1,2 3", "0,0 nan,1 2,2", "0,0 inf,1 2,2", "points"})
            QTest::newRow(text) << QString::fromLatin1(text) << QStringLiteral("These points cannot be read.");
    }

    void listsThatCannotBeEditedAreLeftAlone()
    {
        QFETCH(QString, list);
        QFETCH(QString, notice);
        auto* bad = m_sheet->add({{QStringLiteral("pointList"), list}});
        auto* good = m_sheet->addAndSelect(points(Offset));
        QCOMPARE(value(bad, "pointList"), list);
        // The rows of the element before hold a text that is still being typed.
        SheetFixture::type(widget()->xField(3), "99");
        QElapsedTimer timer;
        timer.start();
        m_sheet->select({bad});
        QVERIFY(timer.elapsed() < 1000);
        QCOMPARE(value(good, "pointList"), QStringLiteral("10,20 110,20 60,80 99,70"));
        stack()->clear();

        QCOMPARE(m_sheet->notice(), notice);
        QVERIFY(!widget()->xField(0)->isVisible());
        QVERIFY(widget()->pointList().isEmpty());
        QCOMPARE(m_sheet->editor()->editorValue(), list);
        widget()->addButton()->click();
        widget()->removeButton(0)->click();
        widget()->xField(0)->editValue(5);
        widget()->rotationControl()->spinBox()->editValue(5);
        m_sheet->editor()->save();
        m_sheet->editor()->load();
        m_sheet->select({});
        QCOMPARE(value(bad, "pointList"), list);
        QCOMPARE(stack()->count(), 0);

        m_sheet->select({good});
        QCOMPARE(widget()->pointList(), good->polygon());
        enter(widget()->xField(3), "98");
        QCOMPARE(value(good, "pointList"), QStringLiteral("10,20 110,20 60,80 98,70"));
        QCOMPARE(value(bad, "pointList"), list);
    }

    void aListThatBecomesTooLongLeavesNothingToEdit()
    {
        auto* polygon = m_sheet->addAndSelect(points(Offset));
        const QString list = ValueConversion::toString(QPolygonF(QVector<QPointF>(21, QPointF(1, 2))));
        m_sheet->session->setProperty(polygon, QStringLiteral("pointList"), list);
        QVERIFY(!widget()->addButton()->isVisible());
        widget()->addButtonClicked();
        QCOMPARE(value(polygon, "pointList"), list);
        m_sheet->session->undo();
        QCOMPARE(widget()->pointList(), polygon->polygon());
        QVERIFY(widget()->addButton()->isVisible());
    }

    void typedTextMeetsPointsThatChangedElsewhere()
    {
        auto* polygon = m_sheet->addAndSelect(points(Offset));
        SheetFixture::type(widget()->xField(0), "5");
        m_sheet->session->setProperty(polygon, QStringLiteral("pointList"), QStringLiteral("1,1 2,200 300,3 4,4 5,5"));
        QTest::keyClick(focus(), Qt::Key_Return);
        QCOMPARE(value(polygon, "pointList"), QStringLiteral("5,1 2,200 300,3 4,4 5,5"));
        QCOMPARE(widget()->pointList(), polygon->polygon());
        QCOMPARE(stack()->count(), 2);
    }

    void typedTextForAPointThatIsGoneIsDropped()
    {
        auto* polygon = m_sheet->addAndSelect(points(Offset));
        SheetFixture::type(widget()->xField(3), "5");
        m_sheet->session->setProperty(polygon, QStringLiteral("pointList"), QStringLiteral("1,1 2,200 300,3"));
        QTest::keyClick(focus(), Qt::Key_Return);
        QCOMPARE(value(polygon, "pointList"), QStringLiteral("1,1 2,200 300,3"));
        QCOMPARE(widget()->pointList(), polygon->polygon());
        QCOMPARE(stack()->count(), 1);
    }

    void aBlockedHistoryRefusesAndEscapeShowsThePoints()
    {
        auto* polygon = m_sheet->addAndSelect(points(Offset));
        stack()->setBlocked(true);
        enter(widget()->xField(0), "5");
        stack()->setBlocked(false);
        QCOMPARE(value(polygon, "pointList"), QString::fromLatin1(Offset));
        QCOMPARE(value(polygon, "position"), QStringLiteral("0,0"));
        QVERIFY(!m_sheet->message("pointList").isEmpty());
        QTest::keyClick(focus(), Qt::Key_Escape);
        QVERIFY(m_sheet->message("pointList").isEmpty());
        QCOMPARE(widget()->pointList(), polygon->polygon());
        QCOMPARE(stack()->count(), 0);
    }

    void anotherElementIsShownWithoutTheTurnOfTheOneBefore()
    {
        auto* first = m_sheet->add(points(Offset));
        auto* second = m_sheet->add(points(Offset));
        m_sheet->select({first});
        turn("90");
        m_sheet->session->setProperty(second, QStringLiteral("pointList"), value(first, "pointList"));
        m_sheet->select({second});
        QCOMPARE(widget()->rotationControl()->value(), 0.0);
        const QPolygonF start = second->polygon();
        turn("90");
        QCOMPARE(second->polygon(), QTransform().rotate(90).map(start));
    }

    void anyEditsAreUndoneAndRedoneExactly()
    {
        QVERIFY(rc::check("undo all, redo all", [this] {
            m_sheet.reset();
            m_sheet = std::make_unique<PolygonSheet>();
            QPolygonF list;
            const int count = *rc::gen::inRange(3, Most + 1);
            for (int i = 0; i < count; ++i)
                list.append({*rc::gen::inRange(-100000, 100000) / 7.0, *rc::gen::inRange(-100000, 100000) / 100.0});
            const int angle = *rc::gen::inRange(-1, 3) * 37;
            auto* polygon = m_sheet->addAndSelect(
                {{QStringLiteral("pointList"), ValueConversion::toString(list)},
                 {QStringLiteral("position"), QStringLiteral("12.345678901234567,-0.1")},
                 {QStringLiteral("keepRatio"), *rc::gen::element(QStringLiteral("0"), QStringLiteral("1.25"))},
                 {QStringLiteral("rotation"), QStringLiteral("angle: %1; fixedPoint: Right;").arg(angle)}});
            QList<QStringList> states{PolygonSheet::state(polygon)};
            const auto edits = *rc::gen::container<std::vector<int>>(rc::gen::inRange(0, 1000));
            for (int edit : edits) {
                const int steps = stack()->index();
                const int row = edit % int(polygon->polygon().size());
                switch (edit % 5) {
                case 0:
                    widget()->addButton()->click();
                    break;
                case 1:
                    widget()->removeButton(row)->click();
                    break;
                case 2:
                    turn(QByteArray::number(edit % 360).constData());
                    break;
                case 3:
                    enter(widget()->yField(row), QByteArray::number(edit / 3.0).constData());
                    break;
                default:
                    m_sheet->session->undo();
                    break;
                }
                RC_ASSERT(widget()->pointList() == polygon->polygon());
                RC_ASSERT(m_sheet->editor()->editorValue() == value(polygon, "pointList"));
                const int now = stack()->index();
                states = states.mid(0, std::min(steps, now) + 1);
                if (now > steps)
                    states.append(PolygonSheet::state(polygon));
                RC_ASSERT(now < states.size());
                RC_ASSERT(PolygonSheet::state(polygon) == states.at(now));
            }
            const int top = stack()->index();
            for (int step = top - 1; step >= 0; --step) {
                m_sheet->session->undo();
                RC_ASSERT(PolygonSheet::state(polygon) == states.at(step));
            }
            for (int step = 1; step <= top; ++step) {
                m_sheet->session->redo();
                RC_ASSERT(PolygonSheet::state(polygon) == states.at(step));
                RC_ASSERT(widget()->pointList() == polygon->polygon());
            }
        }));
    }

private:
    static QWidget* focus() { return QApplication::focusWidget(); }
    static void enter(SpinBox* field, const char* text) { SheetFixture::enter(field, text); }
    static void click(QWidget* button) { QTest::mouseClick(button, Qt::LeftButton); }
    void turn(const char* angle) const { enter(widget()->rotationControl()->spinBox(), angle); }
    PointListWidget* widget() const { return m_sheet->widget(); }
    UndoStack* stack() const { return m_sheet->stack(); }
    static QString value(const DesignerObject* object, const char* id) { return PolygonSheet::value(object, id); }

    std::unique_ptr<PolygonSheet> m_sheet;
};

QTEST_MAIN(tst_PointListEditor)
#include "tst_PointListEditor.moc"
