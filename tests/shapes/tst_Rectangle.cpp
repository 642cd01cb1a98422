#include "shapes/GraphicsEllipse.h"
#include "shapes/Rectangle.h"
#include "tests/shapes/FramedShapeTest.h"

#include "host/core/canvas/GraphicsRectangle.h"
#include "host/core/objects/BoundingSizeReaction.h"

#include <QtTest>

#include <rapidcheck.h>

using namespace Korvex::Meridane::Designer;

class tst_Rectangle : public Test::FramedShapeTest
{
    Q_OBJECT

private Q_SLOTS:
    void theIdentityIsThatOfARectangle()
    {
        QCOMPARE(shape().identity(),
                 QStringLiteral("Rectangle,Rectangle,Rectangle,Rectangle2,Screen,Rectangle,rectangle,rectangle")
                     .split(QLatin1Char(',')));
        QVERIFY(shape().element->classNames().contains(QLatin1String("VisualElement")));
    }

    void itsItemIsTheHostsAndCanBeEdited()
    {
        GraphicsItem* item = shape().element->createGraphicsItem();
        QVERIFY(item);
        const std::unique_ptr<QGraphicsItem> owner(item->graphic());
        QCOMPARE(item->className(), QStringLiteral("GraphicsRectangle"));
        QCOMPARE(owner->flags(), QGraphicsItem::ItemIsSelectable | QGraphicsItem::ItemIsMovable);
        QVERIFY(item->isResizable());
        QVERIFY(item->isRotatable());
    }

    void aRadiusAboveHalfTheSmallerSideIsRefusedWithTheLimitRoundedDown()
    {
        QString message;
        QVERIFY(!shape().set("cornerRadius", "50", &message));
        QCOMPARE(message, QStringLiteral("The corner radius must be smaller than or equal to 37 px."));
        QCOMPARE(shape().value("cornerRadius"), QStringLiteral("0"));
    }

    void aRadiusOfHalfTheSmallerSideRoundedDownIsAccepted()
    {
        QVERIFY(shape().set("cornerRadius", "37"));
        QCOMPARE(shape().value("cornerRadius"), QStringLiteral("37"));
    }

    void aRadiusOutside0To100IsRefused_data()
    {
        QTest::addColumn<QString>("radius");
        for (const char* radius : {"-1", "101", "-2147483648", "2147483647", "abc", "", "5.5", "nan", " 5"})
            QTest::newRow(radius) << QString::fromLatin1(radius);
    }

    void aRadiusOutside0To100IsRefused()
    {
        QFETCH(QString, radius);
        QString message;
        QVERIFY(!shape().set("cornerRadius", radius, &message));
        QCOMPARE(message, QStringLiteral("The corner radius must be between 0 and 100."));
        QCOMPARE(shape().value("cornerRadius"), QStringLiteral("0"));
    }

    void radius100IsAcceptedOnALargeEnoughRectangle()
    {
        QVERIFY(shape().set("size", "200,200"));
        QVERIFY(shape().set("cornerRadius", "100"));
    }

    void aRadiusOf0WritesNoLine()
    {
        QCOMPARE(shape().element->getProperty(QStringLiteral("cornerRadius"))->toQml(1), QString());
        QVERIFY(!shape().element->toQml(0).contains(QLatin1String("cornerRadius")));
    }

    void aRadiusOf12WritesTheIndentationAndTheLine()
    {
        QVERIFY(shape().set("cornerRadius", "12"));
        QCOMPARE(shape().element->getProperty(QStringLiteral("cornerRadius"))->toQml(2),
                 QStringLiteral("\t\tcornerRadius: 12"));
    }

    void theSmallestOuterSideIsOnePixelOfContent_data()
    {
        addReactionColumns();
        addReactionRow("border 3, the width", "97,47", 3, "0", "2,50", "1,47", "4,50");
        addReactionRow("border 3, the height", "97,47", 3, "0", "100,3.9", "97,1", "100,4");
        addReactionRow("border 50, both", "50,50", 50, "0", "10,70", "1,20", "51,70");
        addReactionRow("border 3, kept ratio", "97,47", 3, "4", "12,50", "13,1", "16,4");
        addReactionRow("the thickest border", "100,75", 2147483647, "0", "5,5", "1,1", "2147483648,2147483648");
    }

    void theSmallestOuterSideIsOnePixelOfContent() { checkReaction(); }

    void theRuntimePropertiesFollowThoseOfTheBase()
    {
        QCOMPARE(shape().runtimeRows(),
                 (QStringList{QStringLiteral("color|Color|6|1"), QStringLiteral("width|Width|3|1"),
                              QStringLiteral("height|Height|3|1"), QStringLiteral("cornerRadius|Corner Radius|2|1"),
                              QStringLiteral("borderWidth|Border Width|2|1"),
                              QStringLiteral("borderColor|Border Color|6|1")}));
    }

    void theQmlHoldsEveryExportedPropertyInOrderOfRank()
    {
        QVERIFY(shape().element->setIdName(QStringLiteral("lamp")));
        QVERIFY(shape().set("position", "10,20.5"));
        QVERIFY(shape().set("cornerRadius", "5"));
        QCOMPARE(shape().element->toQml(1), QStringLiteral("\tRectangle2 {\n"
                                                           "\t\tid: lamp\n"
                                                           "\t\tx: 10\n"
                                                           "\t\ty: 20.5\n"
                                                           "\t\trotation: 0\n"
                                                           "\t\twidth: 100\n"
                                                           "\t\theight: 75\n"
                                                           "\t\tcolor: \"#f8971d\"\n"
                                                           "\t\tborderWidth: 0\n"
                                                           "\t\tborderColor: \"#000000\"\n"
                                                           "\t\tcornerRadius: 5\n"
                                                           "\t}"));
    }

    void theReactionKeepsItsRules()
    {
        QVERIFY(rc::check("bounding size reaction", [] {
            const auto side = rc::gen::map(rc::gen::inRange(0, 40000), [](int n) { return n / 100.0; });
            const QSizeF before(*side, *side);
            const QSizeF wanted(*side, *side);
            const double smallest = *rc::gen::inRange(1, 52);
            const double ratio = *rc::gen::map(rc::gen::inRange(-100, 1000), [](int n) { return n / 100.0; });
            const auto outer = reactToBoundingSize(before, wanted, smallest, ratio);
            const bool widthChanged = before.width() != wanted.width();
            const bool heightChanged = before.height() != wanted.height();
            RC_ASSERT(outer.has_value() == (widthChanged || heightChanged));
            if (!outer)
                return;
            if (ratio > 0) {
                RC_ASSERT(qAbs(outer->width() - outer->height() * ratio) <= 1e-6 * std::max(1.0, ratio)
                          || qAbs(outer->width() / ratio - outer->height()) <= 1e-6);
                RC_ASSERT(std::min(outer->width() / std::min(ratio, 1.0), outer->height() * std::max(ratio, 1.0))
                          >= smallest * (1 - 1e-12));
            } else {
                RC_ASSERT(outer->width() == (widthChanged ? std::max(wanted.width(), smallest) : wanted.width()));
                RC_ASSERT(outer->height() == (heightChanged ? std::max(wanted.height(), smallest) : wanted.height()));
            }
        }));
    }

private:
    std::unique_ptr<VisualElement> makeElement() const override { return std::make_unique<Rectangle>(); }
    void place() const override { shape().place<GraphicsRectangle>(); }
    void placeItemOfAnotherShape() const override { shape().place<GraphicsEllipse>(); }
    double smallestSide(int border) const override { return border + 1; }
};

QTEST_MAIN(tst_Rectangle)
#include "tst_Rectangle.moc"
