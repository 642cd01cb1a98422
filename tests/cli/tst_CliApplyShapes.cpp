#include "tests/cli/ProjectFixture.h"

#include <QJsonDocument>
#include <QRectF>
#include <QTest>

#include <cmath>
#include <memory>

namespace {

/// One of the nine points of a frame: row by row, 0 top left to 8 bottom right.
QPointF framePoint(const QRectF& frame, int number)
{
    return {frame.x() + 0.5 * (number % 3) * frame.width(), frame.y() + 0.5 * (number / 3) * frame.height()};
}

bool near(double a, double b)
{
    return std::abs(a - b) <= 1e-9;
}

bool near(const QPointF& a, const QPointF& b)
{
    return near(a.x(), b.x()) && near(a.y(), b.y());
}

QJsonArray json(const QPointF& point)
{
    return {point.x(), point.y()};
}

/// Edits, and what the program answers to each.
class Edits
{
public:
    /// Gives back the number of the edit's line in the answer.
    int add(const QJsonObject& edit)
    {
        m_edits.append(edit);
        return int(m_edits.size()) - 1;
    }
    int add(const char* op) { return add(QJsonObject{{QStringLiteral("op"), QString::fromLatin1(op)}}); }
    int add(const char* op, QJsonObject arguments)
    {
        arguments.insert(QStringLiteral("op"), QString::fromLatin1(op));
        arguments.insert(QStringLiteral("id"), QStringLiteral("shape"));
        return add(arguments);
    }
    int get(const QString& property) { return add("get", {{QStringLiteral("property"), property}}); }
    int drag(const QPointF& from, const QPointF& to)
    {
        return add({{QStringLiteral("op"), QStringLiteral("drag")},
                    {QStringLiteral("from"), json(from)},
                    {QStringLiteral("to"), json(to)}});
    }

    [[nodiscard]] QByteArray text() const { return QJsonDocument(m_edits).toJson(QJsonDocument::Compact); }

private:
    QJsonArray m_edits;
};

QString value(const MeridaneProgram::Result& result, int line)
{
    return result.line(line).value(QLatin1String("value")).toString(QStringLiteral("no value"));
}

QRectF rect(const MeridaneProgram::Result& result, int line)
{
    const QJsonArray numbers = result.line(line).value(QLatin1String("rect")).toArray();
    return numbers.size() == 4 ? QRectF(numbers.at(0).toDouble(), numbers.at(1).toDouble(), numbers.at(2).toDouble(),
                                        numbers.at(3).toDouble())
                               : QRectF();
}

QPointF point(const QString& text)
{
    return {text.section(QLatin1Char(','), 0, 0).toDouble(), text.section(QLatin1Char(','), 1, 1).toDouble()};
}

} // namespace

/// Dragging, turning and undoing ellipses and regular polygons.
class tst_CliApplyShapes : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void aDragOfAHandleKeepsTheOppositeCorner_data();
    void aDragOfAHandleKeepsTheOppositeCorner();
    void aDragOfAnEllipseKeepsItsRatio();
    void aDragOfAPolygonStaysWithinItsLimits();
    void aDragThatEndsWhereItBeganIsNoStep();
    void aTurnedShapeHasNoHandles_data();
    void aTurnedShapeHasNoHandles();
    void aWholeTurnKeepsTheHandles_data();
    void aWholeTurnKeepsTheHandles();
    void theKnobIsDraggedAndUndone_data();
    void theKnobIsDraggedAndUndone();

private:
    void addShapeRows();
    void addShape();

    std::unique_ptr<ProjectFixture> m_project;
};

void tst_CliApplyShapes::init()
{
    m_project = std::make_unique<ProjectFixture>();
    QVERIFY(m_project->isValid());
}

void tst_CliApplyShapes::addShapeRows()
{
    QTest::addColumn<QString>("className");
    QTest::addColumn<QString>("geometry"); // what a resize writes
    QTest::addColumn<QString>("start");
    QTest::addColumn<QRectF>("frame");
    QTest::addColumn<QString>("name");
    QTest::newRow("Ellipse") << QStringLiteral("Ellipse") << QStringLiteral("size") << QStringLiteral("80,40")
                             << QRectF(58.5, 28.5, 83, 43) << QStringLiteral("Ellipse: shape");
    // A square on its corner, (44 + 4) √2 wide with its border.
    const double side = 48 * std::sqrt(2);
    QTest::newRow("Polygon") << QStringLiteral("Polygon") << QStringLiteral("edgeLength") << QStringLiteral("44")
                             << QRectF(60 - 2 * std::sqrt(2), 30 - 2 * std::sqrt(2), side, side)
                             << QStringLiteral("Polygon (Regular): shape");
}

/// The row's shape at (60, 30) with a border of 3 pixels.
void tst_CliApplyShapes::addShape()
{
    QFETCH(QString, className);
    QFETCH(QString, geometry);
    QFETCH(QString, start);
    QJsonObject properties{{QStringLiteral("position"), QStringLiteral("60,30")},
                           {QStringLiteral("border"), QStringLiteral("width: 3; color: #000000;")},
                           {geometry, start}};
    if (className == QLatin1String("Polygon"))
        properties.insert(QStringLiteral("edges"), QStringLiteral("4"));
    Edits edits;
    edits.add("add", {{QStringLiteral("class"), className}, {QStringLiteral("properties"), properties}});
    const auto result = m_project->apply(edits.text());
    QVERIFY2(result.status == 0, result.errors.constData());
}

void tst_CliApplyShapes::aDragOfAHandleKeepsTheOppositeCorner_data()
{
    addShapeRows();
}

void tst_CliApplyShapes::aDragOfAHandleKeepsTheOppositeCorner()
{
    QFETCH(QString, className);
    QFETCH(QString, start);
    QFETCH(QRectF, frame);
    QFETCH(QString, geometry);
    addShape();
    for (const int handle : {0, 1, 2, 3, 5, 6, 7, 8}) {
        const QPointF grab = framePoint(frame, handle);
        const QPointF out(handle % 3 - 1, handle / 3 - 1);
        Edits edits;
        edits.add("select", {});
        const int found = edits.add("handle", {{QStringLiteral("at"), json(grab)}});
        edits.drag(grab, grab + 12 * out);
        const int count = edits.add("undo-count");
        const int position = edits.get(QStringLiteral("position"));
        const int resized = edits.get(geometry);
        const int bounds = edits.add("bounds", {});
        const int outer = edits.get(QStringLiteral("boundingSize"));
        const int undone = edits.add("undo");
        const int positionBack = edits.get(QStringLiteral("position"));
        const int resizedBack = edits.get(geometry);
        const int boundsBack = edits.add("bounds", {});
        edits.add("redo");
        const int positionAgain = edits.get(QStringLiteral("position"));
        const int resizedAgain = edits.get(geometry);
        const int outerAgain = edits.get(QStringLiteral("boundingSize"));
        const auto result = m_project->apply(edits.text(), {QStringLiteral("--dry-run")});
        QVERIFY2(result.status == 0, result.errors.constData());

        QCOMPARE(result.line(found).value(QLatin1String("handle")).toInt(-1), handle);
        QCOMPARE(result.line(found).value(QLatin1String("pointHandle")).toInt(0), -1);
        QCOMPARE(result.line(found).value(QLatin1String("tooltip")).toString(),
                 handle % 2 == 0 ? QStringLiteral("Drag this point to resize")
                                 : QStringLiteral("Drag this line to resize"));
        QCOMPARE(result.line(count).value(QLatin1String("count")).toInt(), 1);
        QCOMPARE(result.line(undone).value(QLatin1String("text")).toString(), QStringLiteral("Resize shape"));

        const QRectF after = rect(result, bounds).translated(point(value(result, position)));
        // The polygon grows in both directions: a square stays one.
        const bool polygon = className == QLatin1String("Polygon");
        QVERIFY(near(after.width(), frame.width() + (polygon || out.x() != 0 ? 12 : 0)));
        QVERIFY(near(after.height(), frame.height() + (polygon || out.y() != 0 ? 12 : 0)));
        const int kept = (out.x() < 0 ? 2 : 0) + (out.y() < 0 ? 6 : 0);
        QVERIFY(near(framePoint(after, kept), framePoint(frame, kept)));

        QCOMPARE(value(result, positionBack), QStringLiteral("60,30"));
        QCOMPARE(value(result, resizedBack), start);
        QCOMPARE(rect(result, boundsBack), frame.translated(-60, -30));
        QCOMPARE(value(result, positionAgain), value(result, position));
        QCOMPARE(value(result, resizedAgain), value(result, resized));
        QCOMPARE(value(result, outerAgain), value(result, outer));
    }
}

void tst_CliApplyShapes::aDragOfAnEllipseKeepsItsRatio()
{
    const auto result = m_project->apply(
        R"([{"op":"add","class":"Ellipse","id":"shape","properties":{"position":"60,30","size":"80,40"}},
            {"op":"set","id":"shape","property":"keepRatio","value":"2"},
            {"op":"select","id":"shape"},
            {"op":"drag","from":[140,50],"to":[160,50]},
            {"op":"get","id":"shape","property":"size"},
            {"op":"drag","from":[110,30],"to":[110,20]},
            {"op":"get","id":"shape","property":"size"},
            {"op":"get","id":"shape","property":"position"},
            {"op":"drag","from":[60,20],"to":[300,20]},
            {"op":"get","id":"shape","property":"size"},
            {"op":"get","id":"shape","property":"position"}])");
    QVERIFY2(result.status == 0, result.errors.constData());
    QCOMPARE(value(result, 4), QStringLiteral("100,50"));
    QCOMPARE(value(result, 6), QStringLiteral("120,60"));
    QCOMPARE(value(result, 7), QStringLiteral("60,20"));
    QCOMPARE(value(result, 9), QStringLiteral("2,1"));
    QCOMPARE(value(result, 10), QStringLiteral("178,79"));
}

void tst_CliApplyShapes::aDragOfAPolygonStaysWithinItsLimits()
{
    const auto result = m_project->apply(
        R"([{"op":"add","class":"Polygon","id":"shape","properties":{"position":"60,30","edgeLength":"60"}},
            {"op":"select","id":"shape"},
            {"op":"drag","from":[120,50],"to":[2000,50],"via":[[900,50],[100,50]]},
            {"op":"get","id":"shape","property":"edgeLength"},
            {"op":"get","id":"shape","property":"boundingSize"},
            {"op":"get","id":"shape","property":"position"},
            {"op":"drag","from":[380,150],"to":[500,150]},
            {"op":"undo-count"},
            {"op":"drag","from":[60,150],"to":[900,150]},
            {"op":"get","id":"shape","property":"edgeLength"},
            {"op":"get","id":"shape","property":"position"},
            {"op":"undo-count"}])");
    QVERIFY2(result.status == 0, result.errors.constData());
    QCOMPARE(value(result, 3), QStringLiteral("320"));
    QCOMPARE(value(result, 4), QStringLiteral("320,277.128129"));
    QCOMPARE(value(result, 5), QStringLiteral("60,30"));
    QCOMPARE(result.line(7).value(QLatin1String("count")).toInt(), 2);
    QCOMPARE(value(result, 9), QStringLiteral("1"));
    QCOMPARE(value(result, 10), QStringLiteral("379,30"));
    QCOMPARE(result.line(11).value(QLatin1String("count")).toInt(), 3);
}

void tst_CliApplyShapes::aDragThatEndsWhereItBeganIsNoStep()
{
    QVERIFY(m_project
                ->apply(R"([{"op":"add","class":"Polygon","id":"shape",
                             "properties":{"position":"60,30","edges":"7","edgeLength":"33.3"}},
                            {"op":"add","class":"Ellipse","id":"other","properties":{"position":"10,10","size":"40,40"}}])")
                .status
            == 0);
    const auto before = m_project->content();
    const auto result = m_project->apply(
        R"([{"op":"select","id":"shape"},
            {"op":"drag","from":[60,30],"to":[60,30],"via":[[10,80],[-900,3]]},
            {"op":"select","id":"other"},
            {"op":"drag","from":[50,50],"to":[50,50],"via":[[10,80],[-900,3]]},
            {"op":"undo-count"}])");
    QVERIFY2(result.status == 0, result.errors.constData());
    QCOMPARE(result.line(4).value(QLatin1String("count")).toInt(-1), 0);
    QCOMPARE(m_project->content(), before);
}

void tst_CliApplyShapes::aTurnedShapeHasNoHandles_data()
{
    addShapeRows();
}

void tst_CliApplyShapes::aTurnedShapeHasNoHandles()
{
    QFETCH(QString, start);
    QFETCH(QString, geometry);
    QFETCH(QRectF, frame);
    QFETCH(QString, name);
    addShape();
    Edits edits;
    edits.add("rotate", {{QStringLiteral("angle"), 180}, {QStringLiteral("fixedPoint"), QStringLiteral("Center")}});
    edits.add("select", {});
    // Half a turn about the centre: the corners lie where they lay.
    QList<int> found;
    for (int handle = 0; handle <= 8; ++handle)
        found.append(edits.add("handle", {{QStringLiteral("at"), json(framePoint(frame, handle))}}));
    const QPointF middle = frame.center();
    edits.drag(middle, middle + QPointF(10, 5));
    const int position = edits.get(QStringLiteral("position"));
    edits.drag(framePoint(frame, 0) + QPointF(10, 5), framePoint(frame, 0) - QPointF(10, 15));
    const int size = edits.get(geometry);
    const int rotation = edits.get(QStringLiteral("rotation"));
    const auto result = m_project->apply(edits.text());
    QVERIFY2(result.status == 0, result.errors.constData());
    for (const int line : std::as_const(found)) {
        QCOMPARE(result.line(line).value(QLatin1String("handle")).toInt(-1), 4);
        QCOMPARE(result.line(line).value(QLatin1String("tooltip")).toString(), name);
    }
    QCOMPARE(value(result, position), QStringLiteral("70,35"));
    QCOMPARE(value(result, size), start);
    QCOMPARE(value(result, rotation), QStringLiteral("angle: 180; fixedPoint: Center;"));
}

void tst_CliApplyShapes::aWholeTurnKeepsTheHandles_data()
{
    addShapeRows();
}

void tst_CliApplyShapes::aWholeTurnKeepsTheHandles()
{
    QFETCH(QString, start);
    QFETCH(QString, geometry);
    QFETCH(QRectF, frame);
    addShape();
    for (const int angle : {360, -360}) {
        Edits edits;
        edits.add("rotate", {{QStringLiteral("angle"), angle}});
        edits.add("select", {});
        const int found = edits.add("handle", {{QStringLiteral("at"), json(frame.bottomRight())}});
        edits.drag(frame.bottomRight(), frame.bottomRight() + QPointF(20, 20));
        const int size = edits.get(geometry);
        const int position = edits.get(QStringLiteral("position"));
        const auto result = m_project->apply(edits.text(), {QStringLiteral("--dry-run")});
        QVERIFY2(result.status == 0, result.errors.constData());
        QCOMPARE(result.line(found).value(QLatin1String("handle")).toInt(-1), 8);
        QVERIFY(value(result, size) != start);
        QCOMPARE(value(result, position), QStringLiteral("60,30"));
    }
}

void tst_CliApplyShapes::theKnobIsDraggedAndUndone_data()
{
    addShapeRows();
}

void tst_CliApplyShapes::theKnobIsDraggedAndUndone()
{
    QFETCH(QRectF, frame);
    addShape();
    const QByteArray before = m_project->read("screens/main.json");
    const QPointF center = frame.center();
    const double arm = 0.5 * frame.height() + 22;
    const QPointF knob = center - QPointF(0, arm);
    Edits edits;
    edits.add("select", {});
    edits.drag(knob, center + QPointF(arm, 0));
    const int quarter = edits.get(QStringLiteral("rotation"));
    // Shift takes the step next to 70 degrees.
    const double angle = 70 * M_PI / 180;
    edits.add({{QStringLiteral("op"), QStringLiteral("drag")},
               {QStringLiteral("from"), json(center + QPointF(arm, 0))},
               {QStringLiteral("to"), json(center + arm * QPointF(std::sin(angle), -std::cos(angle)))},
               {QStringLiteral("modifiers"), QStringLiteral("Shift")}});
    const int shifted = edits.get(QStringLiteral("rotation"));
    edits.add("rotate", {{QStringLiteral("angle"), 12.5}, {QStringLiteral("fixedPoint"), QStringLiteral("TopLeft")}});
    const int turned = edits.get(QStringLiteral("rotation"));
    const int position = edits.get(QStringLiteral("position"));
    const int count = edits.add("undo-count");
    edits.add("undo");
    const int undone = edits.get(QStringLiteral("rotation"));
    edits.add("undo");
    edits.add("undo");
    const int start = edits.get(QStringLiteral("rotation"));
    const auto result = m_project->apply(edits.text());
    QVERIFY2(result.status == 0, result.errors.constData());
    QCOMPARE(value(result, quarter), QStringLiteral("angle: 90; fixedPoint: Center;"));
    QCOMPARE(value(result, shifted), QStringLiteral("angle: 75; fixedPoint: Center;"));
    QCOMPARE(value(result, turned), QStringLiteral("angle: 12.5; fixedPoint: TopLeft;"));
    QCOMPARE(value(result, position), QStringLiteral("60,30"));
    QCOMPARE(result.line(count).value(QLatin1String("count")).toInt(), 3);
    QCOMPARE(value(result, undone), value(result, shifted));
    QCOMPARE(value(result, start), QStringLiteral("angle: 0; fixedPoint: Center;"));
    QCOMPARE(m_project->read("screens/main.json"), before);
}

QTEST_GUILESS_MAIN(tst_CliApplyShapes)
#include "tst_CliApplyShapes.moc"
