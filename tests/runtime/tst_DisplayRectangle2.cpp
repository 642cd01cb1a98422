#include "host/common/PaintHelper.h"
#include "tests/runtime/BorderedShape.h"

#include <QQuickItem>
#include <QTest>

#include <rapidcheck.h>

using namespace Korvex::Meridane;

namespace {
DisplayType rectangle2()
{
    DisplayType type = BorderedShape::type(QStringLiteral("Rectangle2"));
    BorderedShape::addSize(&type);
    type.defaults.insert(QStringLiteral("cornerRadius"), 0);
    type.sample.insert(QStringLiteral("cornerRadius"), 6);
    type.changes.insert(QStringLiteral("cornerRadius"), 17);
    for (int radius : {-1, 1000, 2147483647}) {
        type.extremes.append({QStringLiteral("cornerRadius"), radius});
    }
    type.someValues = [] {
        QVariantMap values = BorderedShape::someValues();
        values.insert(BorderedShape::someSize());
        values.insert(QStringLiteral("cornerRadius"), *rc::gen::inRange(0, 101));
        return values;
    };
    type.paint = [](const QQuickItem& item, QPainter* painter) {
        Common::PaintHelper::paintRectangle(item.size(), item.property("cornerRadius").toInt(),
                                            BorderedShape::pen(item), BorderedShape::color(item), painter);
    };
    return type;
}
} // namespace

class TestDisplayRectangle2 : public DisplayTypeTest
{
    Q_OBJECT

public:
    TestDisplayRectangle2()
        : DisplayTypeTest(rectangle2())
    {}

private Q_SLOTS:
    void theRadiusIsLimitedToHalfTheSmallerSide();
};

void TestDisplayRectangle2::theRadiusIsLimitedToHalfTheSmallerSide()
{
    setValues(
        {{QStringLiteral("width"), 60.0}, {QStringLiteral("height"), 40.0}, {QStringLiteral("cornerRadius"), 20}});
    const QImage limit = sheet().running();
    item().setProperty("cornerRadius", 21);
    QCOMPARE(sheet().running(), limit);
    item().setProperty("cornerRadius", 19);
    QVERIFY(sheet().running() != limit);
}

QTEST_MAIN(TestDisplayRectangle2)
#include "tst_DisplayRectangle2.moc"
