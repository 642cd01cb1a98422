#include "host/common/PaintHelper.h"
#include "tests/runtime/BorderedShape.h"

#include <QQuickItem>
#include <QTest>

using namespace Korvex::Meridane;

namespace {
DisplayType ellipse()
{
    DisplayType type = BorderedShape::type(QStringLiteral("Ellipse"));
    BorderedShape::addSize(&type);
    type.someValues = [] {
        QVariantMap values = BorderedShape::someValues();
        values.insert(BorderedShape::someSize());
        return values;
    };
    type.paint = [](const QQuickItem& item, QPainter* painter) {
        Common::PaintHelper::paintEllipse(item.size(), BorderedShape::pen(item), BorderedShape::color(item), painter);
    };
    return type;
}
} // namespace

class TestDisplayEllipse : public DisplayTypeTest
{
    Q_OBJECT

public:
    TestDisplayEllipse()
        : DisplayTypeTest(ellipse())
    {}

private Q_SLOTS:
    void itTouchesTheFourSidesOfItsContent();
};

void TestDisplayEllipse::itTouchesTheFourSidesOfItsContent()
{
    item().setSize(QSizeF(120, 80));
    const QImage picture = sheet().running();
    const double ratio = picture.width() / sheet().screen()->width();
    const auto at = [&](const QPointF& point) {
        const int middle = qRound(ratio) / 2;
        return picture.pixelColor((point * ratio).toPoint() + QPoint(middle, middle));
    };
    const QColor screen = at(QPointF(5, 5));
    const QRectF content(40, 30, 119, 79); // from the first pixel to the last
    const QPointF middle = content.center();
    for (const QPointF& side : {QPointF(middle.x(), content.top()), QPointF(middle.x(), content.bottom()),
                                QPointF(content.left(), middle.y()), QPointF(content.right(), middle.y())}) {
        const QLineF outwards(middle, side);
        QVERIFY(at(side) != screen);
        QCOMPARE(at(outwards.pointAt(1 - 2 / outwards.length())), QColor(248, 151, 29));
        QCOMPARE(at(outwards.pointAt(1 + 1 / outwards.length())), screen);
    }
    for (const QPointF& corner : {content.topLeft(), content.topRight(), content.bottomLeft(), content.bottomRight()}) {
        QCOMPARE(at(corner), screen);
    }
}

QTEST_MAIN(TestDisplayEllipse)
#include "tst_DisplayEllipse.moc"
