#include "lines/RegularPolygonPoints.h"

#include "host/core/widgets/ItemButton.h"
#include "host/core/widgets/NumberSlider.h"
#include "host/core/widgets/NumberWidget.h"

#include "tests/lines/PolygonSheet.h"

#include <cmath>
#include <memory>

using namespace Korvex::Meridane::Designer;
using namespace Korvex::Meridane::Designer::Test;

namespace {

constexpr int Most = PointListWidget::MostPoints;
constexpr double Tolerance = 1e-8; // pixels

} // namespace

/// The editor while several polygons are selected.
class tst_PointListSeveral : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_sheet = std::make_unique<PolygonSheet>();
        const QString list = QStringLiteral("10,20 110,20 60,80 15,70");
        const auto add = [&](const char* position, const char* ratio, const char* rotation) {
            m_polygons.append(m_sheet->add({{QStringLiteral("pointList"), list},
                                            {QStringLiteral("position"), QString::fromLatin1(position)},
                                            {QStringLiteral("keepRatio"), QString::fromLatin1(ratio)},
                                            {QStringLiteral("rotation"), QString::fromLatin1(rotation)}}));
        };
        add("0.1,0.2", "0", "angle: 0; fixedPoint: Center;");
        add("300,-40", "1.5", "angle: 30; fixedPoint: Center;");
        add("-7,123.456", "0.25", "angle: -90; fixedPoint: TopLeft;");
        m_before = states();
        selectAll();
    }

    void cleanup()
    {
        m_polygons.clear();
        m_sheet.reset();
    }

    void anEditOfAllIsOneStep()
    {
        QList<QPolygonF> places;
        for (const IrregularPolygon* polygon : m_polygons)
            places.append(PolygonSheet::onCanvas(polygon));
        SheetFixture::enter(widget()->yField(2), "95.5");
        QCOMPARE(stack()->count(), 1);
        QCOMPARE(stack()->text(0), QStringLiteral("Change Point List"));
        for (int i = 0; i < m_polygons.size(); ++i) {
            QCOMPARE(value(i, "pointList"), QStringLiteral("10,20 110,20 60,95.5 15,70"));
            const QPolygonF place = PolygonSheet::onCanvas(m_polygons.at(i));
            for (int point : {0, 1, 3})
                QVERIFY(QLineF(place.at(point), places.at(i).at(point)).length() < Tolerance);
        }
        QCOMPARE(value(0, "keepRatio"), QStringLiteral("0"));
        QCOMPARE(value(1, "keepRatio"), value(2, "keepRatio"));
        QVERIFY(std::abs(value(1, "keepRatio").toDouble() - 100 / 75.5) < 1e-9);
        undoIsExact();
        QCOMPARE(widget()->yField(2)->text(), QStringLiteral("80 px"));
    }

    void eachKeepsItsCornerWhenAllAreReplaced()
    {
        QList<QPointF> corners;
        for (const IrregularPolygon* polygon : m_polygons)
            corners.append(PolygonSheet::cornerOnCanvas(polygon));
        QTest::mouseClick(widget()->addButton(), Qt::LeftButton);
        QCOMPARE(stack()->count(), 1);
        for (int i = 0; i < m_polygons.size(); ++i) {
            QCOMPARE(m_polygons.at(i)->polygon(), regularPolygonPoints(5, Most));
            QVERIFY(QLineF(corners.at(i), PolygonSheet::cornerOnCanvas(m_polygons.at(i))).length() < Tolerance);
        }
        QVERIFY(widget()->xField(4)->isVisible());
        undoIsExact();
        QVERIFY(!widget()->xField(4)->isVisible());
    }

    void aDragOfTheSliderTurnsAllInOneStep()
    {
        const QPolygonF start = m_polygons.first()->polygon();
        NumberSlider* slider = widget()->rotationControl()->slider();
        const int y = slider->height() / 2;
        QTest::mousePress(slider, Qt::LeftButton, {}, QPoint(5, y));
        for (int x = 6; x < 60; ++x) {
            QTest::mouseMove(slider, QPoint(x, y));
            const QTransform turn = QTransform().rotate(widget()->rotationControl()->value());
            for (const IrregularPolygon* polygon : m_polygons)
                QCOMPARE(polygon->polygon(), turn.map(start));
        }
        QTest::mouseRelease(slider, Qt::LeftButton, {}, QPoint(60, y));
        QCOMPARE(stack()->count(), 1);
        SheetFixture::enter(widget()->rotationControl()->spinBox(), "0");
        QCOMPARE(states(), m_before);
        QCOMPARE(stack()->count(), 2);
        m_sheet->session->undo();
        undoIsExact();
    }

    void aDragThatEscapeTakesBackLeavesNoStep()
    {
        NumberSlider* slider = widget()->rotationControl()->slider();
        const int y = slider->height() / 2;
        QTest::mousePress(slider, Qt::LeftButton, {}, QPoint(5, y));
        for (int x = 6; x < 60; ++x)
            QTest::mouseMove(slider, QPoint(x, y));
        QTest::keyClick(slider, Qt::Key_Escape);
        QCOMPARE(states(), m_before);
        QCOMPARE(stack()->count(), 0);
    }

    void aButtonJoinsNoStepBefore()
    {
        widget()->xField(0)->setFocus();
        QTest::keyClick(widget()->xField(0), Qt::Key_Up);
        QTest::keyClick(widget()->xField(0), Qt::Key_Up);
        QCOMPARE(stack()->count(), 1);
        widget()->removeButton(1)->click();
        widget()->removeButton(1)->click();
        QCOMPARE(stack()->count(), 3);
        for (const IrregularPolygon* polygon : m_polygons)
            QCOMPARE(polygon->polygon(), regularPolygonPoints(3, Most));
    }

    void differentPointsCannotBeEdited()
    {
        m_sheet->session->setProperty(m_polygons.at(1), QStringLiteral("pointList"), QStringLiteral("0,0 9,0 0,9"));
        stack()->clear();
        m_before = states();
        QCoreApplication::processEvents();
        QCOMPARE(m_sheet->notice(),
                 QStringLiteral("These elements have different points. Select one of them to edit its points."));
        QVERIFY(!widget()->xField(0)->isVisible());
        widget()->addButton()->click();
        widget()->addButtonClicked();
        widget()->removeButton(0)->click();
        widget()->xField(0)->editValue(5);
        widget()->rotationControl()->spinBox()->editValue(5);
        QCOMPARE(states(), m_before);
        QCOMPARE(stack()->count(), 0);

        m_sheet->session->setProperty(m_polygons.at(1), QStringLiteral("pointList"), value(0, "pointList"));
        QCoreApplication::processEvents();
        QCOMPARE(widget()->pointList(), m_polygons.first()->polygon());
    }

    void oneListThatIsTooLongIsNotOverwritten()
    {
        const QString list = ValueConversion::toString(QPolygonF(QVector<QPointF>(21, QPointF(1, 2))));
        m_sheet->session->setProperty(m_polygons.at(2), QStringLiteral("pointList"), list);
        selectAll();
        QCoreApplication::processEvents();
        widget()->addButtonClicked();
        widget()->xField(0)->editValue(5);
        QCOMPARE(value(2, "pointList"), list);
        QCOMPARE(value(0, "pointList"), QStringLiteral("10,20 110,20 60,80 15,70"));
    }

private:
    void selectAll() { m_sheet->select(QList<DesignerObject*>(m_polygons.begin(), m_polygons.end())); }
    void undoIsExact()
    {
        m_sheet->session->undo();
        QCoreApplication::processEvents();
        QCOMPARE(states(), m_before);
    }
    [[nodiscard]] QList<QStringList> states() const
    {
        QList<QStringList> all;
        for (const IrregularPolygon* polygon : m_polygons)
            all.append(PolygonSheet::state(polygon));
        return all;
    }
    [[nodiscard]] QString value(int index, const char* id) const
    {
        return PolygonSheet::value(m_polygons.at(index), id);
    }
    [[nodiscard]] PointListWidget* widget() const { return m_sheet->widget(); }
    [[nodiscard]] UndoStack* stack() const { return m_sheet->stack(); }

    std::unique_ptr<PolygonSheet> m_sheet;
    QList<IrregularPolygon*> m_polygons;
    QList<QStringList> m_before;
};

QTEST_MAIN(tst_PointListSeveral)
#include "tst_PointListSeveral.moc"
