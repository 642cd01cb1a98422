#include "shapes/Ellipse.h"
#include "shapes/GraphicsEllipse.h"
#include "tests/shapes/FramedShapeTest.h"

#include "host/core/canvas/GraphicsRectangle.h"

#include <QtTest>

using namespace Korvex::Meridane::Designer;

class tst_Ellipse : public Test::FramedShapeTest
{
    Q_OBJECT

private Q_SLOTS:
    void theIdentityIsThatOfAnEllipse()
    {
        QCOMPARE(
            shape().identity(),
            QStringLiteral("Ellipse,Ellipse,Ellipse,Ellipse,Screen,Ellipse,ellipse,ellipse").split(QLatin1Char(',')));
        QVERIFY(shape().element->classNames().contains(QLatin1String("VisualElement")));
    }

    void theSmallestOuterSideIsTwiceAThickBorder_data()
    {
        addReactionColumns();
        addReactionRow("border 2, both", "98,48", 2, "0", "0,0", "2,2", "4,4");
        addReactionRow("border 3, the width", "97,47", 3, "0", "2,50", "3,47", "6,50");
        addReactionRow("border 3, the height", "97,47", 3, "0", "100,5.9", "97,3", "100,6");
        addReactionRow("border 3, just enough", "97,47", 3, "0", "100,6", "97,3", "100,6");
        addReactionRow("border 50, both", "50,50", 50, "0", "10,70", "50,50", "100,100");
        addReactionRow("border 3, kept ratio", "97,47", 3, "4", "20,50", "21,3", "24,6");
        addReactionRow("border 3, kept ratio, the width gets too small", "97,47", 3, "0.25", "100,8", "3,21", "6,24");
        addReactionRow("the thickest border", "100,75", 2147483647, "0", "5,5", "2147483647,2147483647",
                       "4294967294,4294967294");
        // The content of an ellipse that is small already is taken as it stands.
        addReactionRow("border 3, the height being small already", "97,1", 3, "0", "90,4", "87,1", "90,4");
    }

    void theSmallestOuterSideIsTwiceAThickBorder() { checkReaction(); }

    void withoutThePlugInThereIsNoItem() { QVERIFY(!shape().element->createGraphicsItem()); }

    void theRuntimePropertiesFollowThoseOfTheBase()
    {
        QCOMPARE(shape().runtimeRows(),
                 (QStringList{QStringLiteral("color|Color|6|1"), QStringLiteral("width|Width|3|1"),
                              QStringLiteral("height|Height|3|1"), QStringLiteral("borderWidth|Border Width|2|1"),
                              QStringLiteral("borderColor|Border Color|6|1")}));
    }

    void theQmlHoldsEveryExportedPropertyInOrderOfRank()
    {
        QVERIFY(shape().element->setIdName(QStringLiteral("lamp")));
        shape().set("position", "10,20.5");
        shape().set("size", "33.33333333,75");
        shape().set("color", "#80f8971d");
        shape().set("border", "width: 4; color: #102030;");
        shape().set("keepRatio", "2");
        QCOMPARE(shape().element->toQml(1), QStringLiteral("\tEllipse {\n"
                                                           "\t\tid: lamp\n"
                                                           "\t\tx: 10\n"
                                                           "\t\ty: 20.5\n"
                                                           "\t\trotation: 0\n"
                                                           "\t\twidth: 33.3333\n"
                                                           "\t\theight: 75\n"
                                                           "\t\tcolor: \"#80f8971d\"\n"
                                                           "\t\tborderWidth: 4\n"
                                                           "\t\tborderColor: \"#102030\"\n"
                                                           "\t}"));
    }

private:
    std::unique_ptr<VisualElement> makeElement() const override { return std::make_unique<Ellipse>(); }
    void place() const override { shape().place<GraphicsEllipse>(); }
    void placeItemOfAnotherShape() const override { shape().place<GraphicsRectangle>(); }
    double smallestSide(int border) const override { return border > 1 ? 2 * border : border + 1; }
};

QTEST_MAIN(tst_Ellipse)
#include "tst_Ellipse.moc"
