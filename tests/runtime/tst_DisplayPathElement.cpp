#include "host/common/PaintHelper.h"
#include "tests/runtime/BorderedShape.h"
#include "tests/runtime/OutlineShape.h"

#include <QQuickItem>
#include <QTest>

using namespace Korvex::Meridane;

namespace {
DisplayType path()
{
    DisplayType type = OutlineShape::type(QStringLiteral("PathElement"));
    type.defaults.insert(QStringLiteral("color"), QColor(248, 151, 29));
    type.changes.insert(QStringLiteral("color"), QColor(0, 80, 160, 200));
    type.extremes.append({QStringLiteral("color"), QColor()});
    type.someValues = [] {
        QVariantMap values = OutlineShape::somePoints();
        values.insert(QStringLiteral("color"), BorderedShape::someValues().value(QStringLiteral("color")));
        return values;
    };
    type.paint = [](const QQuickItem& item, QPainter* painter) {
        Common::PaintHelper::paintIrregularPolygon(OutlineShape::points(item), item.property("color").value<QColor>(),
                                                   painter);
    };
    return type;
}
} // namespace

/** The path on the display. */
class TestDisplayPathElement : public DisplayTypeTest
{
    Q_OBJECT

public:
    TestDisplayPathElement()
        : DisplayTypeTest(path())
    {}

private Q_SLOTS:
    void itTakesWhatAnExportWrites()
    {
        QVERIFY(OutlineShape::run(&item(), QStringLiteral("points = [ [0, 0], [80.5, -3], [41.1235, 60] ]")));
        QVERIFY(OutlineShape::run(&item(), QStringLiteral("color = \"#8000ff00\"")));
        QCOMPARE(OutlineShape::points(item()), QPolygonF({{0, 0}, {80.5, -3}, {41.1235, 60}}));
        QCOMPARE(item().property("color").value<QColor>(), QColor(0, 255, 0, 128));
        QVERIFY(!isBlank());
        QVERIFY(looksAsPainted());
    }
};

QTEST_MAIN(TestDisplayPathElement)
#include "tst_DisplayPathElement.moc"
