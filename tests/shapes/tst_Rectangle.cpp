#include "shapes/Rectangle.h"

#include "host/core/canvas/GraphicsItem.h"
#include "host/core/objects/BoundingSizeReaction.h"
#include "host/core/properties/DesignerProperty.h"
#include "host/core/properties/RuntimeProperty.h"
#include "host/core/values/ValueConversion.h"

#include <QGraphicsItem>
#include <QRegularExpression>
#include <QtTest>

#include <rapidcheck.h>

using namespace Korvex::Meridane::Designer;

class tst_Rectangle : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_rectangle = std::make_unique<Rectangle>();
        QVERIFY(m_rectangle->initialize());
        m_item.reset();
    }

    void cleanup()
    {
        m_item.reset();
        m_rectangle.reset();
    }

    void theIdentityIsThatOfARectangle()
    {
        QCOMPARE(m_rectangle->className(), QStringLiteral("Rectangle"));
        QCOMPARE(m_rectangle->classNames().last(), QStringLiteral("Rectangle"));
        QVERIFY(m_rectangle->classNames().contains(QLatin1String("VisualElement")));
        QCOMPARE(m_rectangle->displayName(), QStringLiteral("Rectangle"));
        QCOMPARE(m_rectangle->qmlName(), QStringLiteral("Rectangle2"));
        QCOMPARE(m_rectangle->idInfo().scopeType(), QStringLiteral("Screen"));
        QCOMPARE(m_rectangle->idInfo().filterType(), QStringLiteral("Rectangle"));
        QCOMPARE(m_rectangle->idInfo().base(), QStringLiteral("rectangle"));
        QCOMPARE(m_rectangle->idInfo().name(), QStringLiteral("rectangle"));
    }

    void aRadiusAboveHalfTheSmallerSideIsRefusedWithTheLimitRoundedDown()
    {
        QString message;
        QVERIFY(!set("cornerRadius", "50", &message));
        QCOMPARE(message, QStringLiteral("The corner radius must be smaller than or equal to 37 px."));
        QCOMPARE(value("cornerRadius"), QStringLiteral("0"));
    }

    void aRadiusOfHalfTheSmallerSideRoundedDownIsAccepted()
    {
        QVERIFY(set("cornerRadius", "37"));
        QCOMPARE(value("cornerRadius"), QStringLiteral("37"));
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
        QVERIFY(!m_rectangle->changePropertyValue(m_rectangle->getProperty(QStringLiteral("cornerRadius")), radius,
                                                  &message));
        QCOMPARE(message, QStringLiteral("The corner radius must be between 0 and 100."));
        QCOMPARE(value("cornerRadius"), QStringLiteral("0"));
    }

    void radius100IsAcceptedOnALargeEnoughRectangle()
    {
        QVERIFY(set("size", "200,200"));
        QVERIFY(set("cornerRadius", "100"));
    }

    void aRadiusOf0WritesNoLine()
    {
        QCOMPARE(m_rectangle->getProperty(QStringLiteral("cornerRadius"))->toQml(1), QString());
        QVERIFY(!m_rectangle->toQml(0).contains(QLatin1String("cornerRadius")));
    }

    void aRadiusOf12WritesTheIndentationAndTheLine()
    {
        QVERIFY(set("cornerRadius", "12"));
        QCOMPARE(m_rectangle->getProperty(QStringLiteral("cornerRadius"))->toQml(2),
                 QStringLiteral("\t\tcornerRadius: 12"));
    }

    void theHeightFollowsTheWidthUnderAKeptRatio()
    {
        QVERIFY(set("size", "100,50"));
        place();
        QVERIFY(set("keepRatio", "2"));
        QVERIFY(set("boundingSize", "120,50"));
        QCOMPARE(value("size"), QStringLiteral("120,60"));
    }

    void aTypedHeightStaysAsTypedWhenItsWidthWasCompletedAndRounded()
    {
        QVERIFY(set("size", "100,300"));
        place();
        QVERIFY(set("keepRatio", "0.3333333333333333"));
        QVERIFY(set("boundingSize", "66.666667,200"));
        QCOMPARE(value("size"), QStringLiteral("66.666667,200"));
        QCOMPARE(value("boundingSize"), QStringLiteral("66.666667,200"));
    }

    void onlyTheSideThatWasTouchedIsRaisedToTheSmallest()
    {
        QVERIFY(set("border", "width: 3; color: #000000;"));
        QVERIFY(set("size", "97,47"));
        place();
        QCOMPARE(value("boundingSize"), QStringLiteral("100,50"));
        QVERIFY(set("boundingSize", "2,50"));
        QCOMPARE(value("size"), QStringLiteral("1,47"));
        QCOMPARE(value("boundingSize"), QStringLiteral("4,50"));
    }

    void settingTheSameBoundingSizeChangesNothing()
    {
        place();
        QTest::ignoreMessage(QtDebugMsg, "Should not reach here");
        set("boundingSize", "100,75");
        QCOMPARE(value("size"), QStringLiteral("100,75"));
    }

    void aBoundingSizeThatDoesNotConvertIsInert()
    {
        place();
        QVERIFY(set("boundingSize", "wide"));
        QCOMPARE(value("boundingSize"), QStringLiteral("wide"));
        QCOMPARE(value("size"), QStringLiteral("100,75"));
    }

    void withoutACanvasItemABoundingSizeChangesNothing()
    {
        QVERIFY(set("boundingSize", "50,50"));
        QCOMPARE(value("size"), QStringLiteral("100,75"));
    }

    void whileTheItemChangesSizeTheElementDoesNotReact()
    {
        place();
        m_rectangle->graphicsItem()->setChangingSize(true);
        QVERIFY(set("boundingSize", "50,50"));
        m_rectangle->graphicsItem()->setChangingSize(false);
        QCOMPARE(value("size"), QStringLiteral("100,75"));
    }

    void theBoundingRectangleIsGrownByHalfTheBorder()
    {
        QVERIFY(set("border", "width: 4; color: #000000;"));
        QCOMPARE(m_rectangle->getBoundingRect(), QRectF(-2, -2, 104, 79));
        QVERIFY(set("size", "broken"));
        QCOMPARE(m_rectangle->getBoundingRect(), QRectF());
    }

    void theRuntimePropertiesFollowThoseOfTheBase()
    {
        const QList<RuntimeProperty> all = m_rectangle->runtimeProperties();
        const QList<RuntimeProperty> base = m_rectangle->VisualElement::runtimeProperties();
        QStringList rows;
        for (const RuntimeProperty& property : all.mid(base.size())) {
            rows << QStringLiteral("%1|%2|%3|%4")
                        .arg(property.name(), property.label())
                        .arg(int(property.type()))
                        .arg(property.isWritable());
        }
        QCOMPARE(rows,
                 (QStringList{QStringLiteral("color|Color|6|1"), QStringLiteral("width|Width|3|1"),
                              QStringLiteral("height|Height|3|1"), QStringLiteral("cornerRadius|Corner Radius|2|1"),
                              QStringLiteral("borderWidth|Border Width|2|1"),
                              QStringLiteral("borderColor|Border Color|6|1")}));
    }

    void theQmlHoldsEveryExportedPropertyInOrderOfRank()
    {
        QVERIFY(m_rectangle->setIdName(QStringLiteral("lamp")));
        QVERIFY(set("position", "10,20.5"));
        QVERIFY(set("cornerRadius", "5"));
        QCOMPARE(m_rectangle->toQml(1), QStringLiteral("\tRectangle2 {\n"
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

    void valuesThatDoNotConvertWriteNoLine()
    {
        QVERIFY(set("color", "chartreusish"));
        QCOMPARE(value("color"), QStringLiteral("chartreusish"));
        QVERIFY(!m_rectangle->toQml(0).contains(QLatin1String("color:")));
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
    bool set(const char* id, const char* newValue, QString* message = nullptr)
    {
        return m_rectangle->changePropertyValue(m_rectangle->getProperty(QLatin1String(id)),
                                                QString::fromLatin1(newValue), message);
    }

    QString value(const char* id) const { return m_rectangle->getProperty(QLatin1String(id))->valueString(); }

    /// Gives the element its canvas item, filled as a canvas fills it.
    void place()
    {
        GraphicsItem* item = m_rectangle->createGraphicsItem();
        QVERIFY(item);
        m_item.reset(item->graphic());
        QVERIFY(item->initialize());
        m_rectangle->setGraphicsItem(item);
        for (const auto& property : m_rectangle->properties())
            item->updateGraphicsItem(property);
    }

    std::unique_ptr<Rectangle> m_rectangle;
    std::unique_ptr<QGraphicsItem> m_item;
};

QTEST_MAIN(tst_Rectangle)
#include "tst_Rectangle.moc"
