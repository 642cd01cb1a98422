#include "tests/gradients/OutlineElements.h"

#include "host/core/canvas/GraphicsRectangle.h"
#include "host/core/commands/ChangeRecording.h"

#include <QtTest>

#include <cmath>

#include <rapidcheck.h>

using namespace Korvex::Meridane::Designer;
using Test::OutlineElement;

namespace {

const char* const NewOutline = "0,0 100,0 100,75 0,75 0,0";

/// Hears of every call of the reaction.
class WatchedGradient : public LinearGradientElement
{
public:
    void afterPropertyChanged(const DesignerProperty* property, const QString& oldValue) override
    {
        if (property && property->id() == QLatin1String("boundingSize"))
            reactions.append(oldValue + QLatin1String(" -> ") + property->valueString());
        LinearGradientElement::afterPropertyChanged(property, oldValue);
    }

    QStringList reactions;
};

} // namespace

/// What the three gradients and the path have in common: an outline of points that follows the outer size.
class tst_GradientElements : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_element.reset(); }

    void aNewOneHasTheOutlineOfARectangle_data() { addElements(); }
    void aNewOneHasTheOutlineOfARectangle()
    {
        make();
        QCOMPARE(value("points"), QString::fromLatin1(NewOutline));
        QCOMPARE(value("boundingSize"), QStringLiteral("100,75"));
        QCOMPARE(value("keepRatio"), QStringLiteral("0"));
        QCOMPARE(m_element->element->getBoundingRect(), QRectF(0, 0, 100, 75));
        QCOMPARE(m_element->points(), QPolygonF(QRectF(0, 0, 100, 75)));
        const GraphicsOutline* item = m_element->place();
        QCOMPARE(item->polygon(), QPolygonF(QRectF(0, 0, 100, 75)));
        QCOMPARE(item->boundingRect(), QRectF(0, 0, 100, 75));
    }

    void theyTellWhatTheyAre_data() { addElements(); }
    void theyTellWhatTheyAre()
    {
        make();
        QFETCH(QString, className);
        QString displayName = className;
        for (const char* word : {"Gradient", "Element"})
            displayName.replace(QLatin1String(word), QLatin1Char(' ') + QLatin1String(word));
        QString base = className;
        base[0] = base.at(0).toLower();
        QCOMPARE(m_element->identity(), QStringList({className, className, displayName, className,
                                                     QStringLiteral("Screen"), className, base, base}));
        const QStringList names = m_element->element->classNames();
        QCOMPARE(names.contains(QLatin1String("GradientElement")), className != QLatin1String("PathElement"));
        QVERIFY(names.contains(QLatin1String("VisualElement")));
        QVERIFY(!m_element->element->createGraphicsItem()); // without the plug-in
    }

    void theBaseOfTheGradientsIsNamedWithoutBeingOne()
    {
        const LinearGradientElement gradient;
        QCOMPARE(gradient.GradientElement::className(), QStringLiteral("GradientElement"));
        QCOMPARE(gradient.GradientElement::displayName(), QStringLiteral("Gradient Element"));
    }

    void theOutlineFollowsTheOuterSize_data()
    {
        QTest::addColumn<QString>("className");
        QTest::addColumn<QString>("ratio");
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("points");
        QTest::addColumn<QString>("outer");
        const auto row = [](const char* name, const char* ratio, const char* typed, const char* points,
                            const char* outer) {
            for (const QByteArray& className : Test::outlineElements()) {
                QTest::addRow("%s, %s", className.constData(), name)
                    << QString::fromLatin1(className) << QString::fromLatin1(ratio) << QString::fromLatin1(typed)
                    << QString::fromLatin1(points) << QString::fromLatin1(outer);
            }
        };
        row("the width", "0", "200,75", "0,0 200,0 200,75 0,75 0,0", "200,75");
        row("the height", "0", "100,150", "0,0 100,0 100,150 0,150 0,0", "100,150");
        row("both", "0", "50,150", "0,0 50,0 50,150 0,150 0,0", "50,150");
        row("below a pixel", "0", "0.5,75", "0,0 0.5,0 0.5,75 0,75 0,0", "0.5,75");
        row("a ratio that is no number is none", "wide", "200,75", "0,0 200,0 200,75 0,75 0,0", "200,75");
        row("a negative ratio is none", "-1.5", "200,75", "0,0 200,0 200,75 0,75 0,0", "200,75");
        // The outer size stays as it was written, whatever the ratio made of the outline.
        row("kept ratio, the width", "1.3333", "200,75", "0,0 200,0 200,150 0,150 0,0", "200,75");
        row("kept ratio, the height", "1.3333", "100,150", "0,0 200,0 200,150 0,150 0,0", "100,150");
        row("kept ratio, both: the width decides", "1", "200,600", "0,0 200,0 200,150 0,150 0,0", "200,600");
        row("kept ratio, both, the width too small: the height decides", "10", "9,150", "0,0 200,0 200,150 0,150 0,0",
            "9,150");
        row("kept ratio, the width too small", "10", "5,75", NewOutline, "100,75");
        row("kept ratio, the width just enough", "10", "10,75", "0,0 10,0 10,7.5 0,7.5 0,0", "10,75");
        row("kept ratio, the height too small", "0.25", "100,3", NewOutline, "100,75");
        row("kept ratio, both too small", "10", "9,0.05", NewOutline, "100,75");
        row("to no width", "0", "0,75", NewOutline, "100,75");
        row("to a negative height", "0", "100,-75", NewOutline, "100,75");
        row("to less than can be told from nothing", "0", "1e-20,75", NewOutline, "100,75");
        row("huge", "0", "1e300,75", "0,0 1e+300,0 1e+300,75 0,75 0,0", "1e+300,75");
        row("a text that is no size", "0", "wide", NewOutline, "wide");
        row("what is no list of points stays away", "0", "inf,75", NewOutline, "inf,75");
    }

    void theOutlineFollowsTheOuterSize()
    {
        make();
        QFETCH(QString, ratio);
        QFETCH(QString, typed);
        QFETCH(QString, points);
        QFETCH(QString, outer);
        const GraphicsOutline* item = m_element->place();
        m_element->set("keepRatio", ratio);
        QVERIFY(m_element->set("boundingSize", typed));
        QCOMPARE(value("points"), points);
        QCOMPARE(value("boundingSize"), outer);
        QCOMPARE(item->polygon(), m_element->points());
        QCOMPARE(m_element->element->getBoundingRect(), m_element->points().boundingRect());
        QCOMPARE(value("position"), QStringLiteral("0,0"));
        QCOMPARE(value("keepRatio"), ratio);
    }

    void theSizeThatIsThereAlreadyIsReportedAndChangesNothing_data() { addElements(); }
    void theSizeThatIsThereAlreadyIsReportedAndChangesNothing()
    {
        make();
        m_element->place();
        QTest::ignoreMessage(QtDebugMsg, "Should not reach here");
        QVERIFY(m_element->set("boundingSize", "100,75"));
        QCOMPARE(value("points"), QString::fromLatin1(NewOutline));
        QCOMPARE(value("boundingSize"), QStringLiteral("100,75"));
    }

    void withoutACanvasItemTheOutlineStays_data() { addElements(); }
    void withoutACanvasItemTheOutlineStays()
    {
        make();
        QVERIFY(m_element->set("boundingSize", "200,75"));
        QCOMPARE(value("points"), QString::fromLatin1(NewOutline));
        QCOMPARE(value("boundingSize"), QStringLiteral("200,75"));
    }

    void anItemOfAnotherKindIsNotFollowed_data() { addElements(); }
    void anItemOfAnotherKindIsNotFollowed()
    {
        make();
        m_element->ShapeFixture::place<GraphicsRectangle>();
        QVERIFY(m_element->set("boundingSize", "200,75"));
        QCOMPARE(value("points"), QString::fromLatin1(NewOutline));
    }

    void whileTheItemChangesSizeTheOutlineStays_data() { addElements(); }
    void whileTheItemChangesSizeTheOutlineStays()
    {
        make();
        GraphicsOutline* item = m_element->place();
        item->setChangingSize(true);
        QVERIFY(m_element->set("boundingSize", "200,75"));
        QCOMPARE(value("points"), QString::fromLatin1(NewOutline));
        item->setChangingSize(false);
        QVERIFY(m_element->set("boundingSize", "200,150"));
        QCOMPARE(value("points"), QStringLiteral("0,0 100,0 100,150 0,150 0,0"));
    }

    void otherPropertiesDoNotTouchTheOutline_data() { addElements(); }
    void otherPropertiesDoNotTouchTheOutline()
    {
        make();
        m_element->place();
        m_element->set("keepRatio", "3");
        m_element->set("position", "4,5");
        m_element->set("rotation", "angle: 33; fixedPoint: TopLeft;");
        QCOMPARE(value("points"), QString::fromLatin1(NewOutline));
        QCOMPARE(value("boundingSize"), QStringLiteral("100,75"));
        m_element->element->afterPropertyChanged(nullptr, QStringLiteral("1,1"));
        QCOMPARE(value("points"), QString::fromLatin1(NewOutline));
    }

    void theItemReportsTheOuterSizeAgainAtTheNextChangeOfTheOutline_data() { addElements(); }
    void theItemReportsTheOuterSizeAgainAtTheNextChangeOfTheOutline()
    {
        make();
        m_element->place();
        m_element->set("keepRatio", "2");
        m_element->set("boundingSize", "200,75");
        QCOMPARE(value("boundingSize"), QStringLiteral("200,75"));
        // What the outline does not depend on leaves it at that.
        m_element->set("position", "7,8");
        QCOMPARE(value("boundingSize"), QStringLiteral("200,75"));
        m_element->set("points", "0,0 60,0 30,40.5");
        QCOMPARE(value("boundingSize"), QStringLiteral("60,40.5"));
    }

    void theWrittenSizeIsWhatTheNextOneIsMeasuredBy_data() { addElements(); }
    void theWrittenSizeIsWhatTheNextOneIsMeasuredBy()
    {
        make();
        m_element->place();
        m_element->set("keepRatio", "2");
        m_element->set("boundingSize", "200,75");
        m_element->set("keepRatio", "0");
        // From 75 to 150 by 2, though the outline has been 150 high already.
        m_element->set("boundingSize", "200,150");
        QCOMPARE(value("points"), QStringLiteral("0,0 200,0 200,300 0,300 0,0"));
        QCOMPARE(value("boundingSize"), QStringLiteral("200,150"));
    }

    void theOutlineBecomesTheVerySizeThatWasTyped_data() { addElements(); }
    void theOutlineBecomesTheVerySizeThatWasTyped()
    {
        make();
        m_element->place();
        // The outer size is written with six decimals, which are not all that the points have.
        m_element->set("points", "0,0 33.3333333333,0 33.3333333333,66.6666666667");
        QCOMPARE(value("boundingSize"), QStringLiteral("33.333333,66.666667"));
        m_element->set("boundingSize", "100,66.666667");
        QCOMPARE(value("points"), QStringLiteral("0,0 100,0 100,66.6666666667"));
        m_element->set("boundingSize", "100,1000000");
        QCOMPARE(value("points"), QStringLiteral("0,0 100,0 100,1000000"));
    }

    void aSizeThatDoesNotConvertIsInertAndTheNextOneIsNot_data() { addElements(); }
    void aSizeThatDoesNotConvertIsInertAndTheNextOneIsNot()
    {
        make();
        m_element->place();
        m_element->set("boundingSize", "wide");
        m_element->set("boundingSize", "200,75");
        QCOMPARE(value("points"), QStringLiteral("0,0 200,0 200,75 0,75 0,0"));
        // Back to what it is: nothing has to be scaled.
        m_element->set("boundingSize", "wide");
        m_element->set("boundingSize", "200,75");
        QCOMPARE(value("points"), QStringLiteral("0,0 200,0 200,75 0,75 0,0"));
        QCOMPARE(value("boundingSize"), QStringLiteral("200,75"));
    }

    void aRefusedSizeIsTakenBackWithoutAnotherReaction()
    {
        auto made = std::make_unique<WatchedGradient>();
        WatchedGradient* gradient = made.get();
        Test::ShapeFixture fixture(std::move(made));
        fixture.place<GraphicsLinearGradient>();
        fixture.set("keepRatio", "10");
        gradient->reactions.clear();
        ChangeRecording recording;
        QVERIFY(fixture.set("boundingSize", "5,75"));
        QCOMPARE(gradient->reactions, QStringList({QStringLiteral("100,75 -> 5,75")}));
        QCOMPARE(fixture.value("boundingSize"), QStringLiteral("100,75"));
        QCOMPARE(fixture.value("points"), QString::fromLatin1(NewOutline));
        QVERIFY(recording.take().isEmpty());
    }

    void anOutlineWithoutExtentIsNotScaled_data()
    {
        QTest::addColumn<QString>("className");
        QTest::addColumn<QString>("points");
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("scaled");
        for (const QByteArray& name : Test::outlineElements()) {
            const auto row = [&name](const char* what, const char* points, const char* typed, const char* scaled) {
                QTest::addRow("%s, %s", name.constData(), what)
                    << QString::fromLatin1(name) << QString::fromLatin1(points) << QString::fromLatin1(typed)
                    << QString::fromLatin1(scaled);
            };
            row("upright", "3,0 3,50", "20,100", "3,0 3,100");
            row("flat", "0,3 50,3", "100,20", "0,3 100,3");
            row("a point", "3,4", "100,20", "3,4");
            row("nothing", "", "100,20", "");
        }
    }

    void anOutlineWithoutExtentIsNotScaled()
    {
        make();
        QFETCH(QString, points);
        QFETCH(QString, typed);
        QFETCH(QString, scaled);
        m_element->place();
        m_element->set("points", points);
        m_element->set("boundingSize", typed);
        QCOMPARE(value("points"), scaled);
        QCOMPARE(value("boundingSize"), typed);
        // Points that have an extent again are measured by it.
        m_element->set("points", "0,0 10,0 10,10");
        m_element->set("boundingSize", "20,10");
        QCOMPARE(value("points"), QStringLiteral("0,0 20,0 20,10"));
    }

    void theCornerOfTheOutlineStaysInPlace_data() { addElements(); }
    void theCornerOfTheOutlineStaysInPlace()
    {
        make();
        m_element->place();
        m_element->set("points", "10,-20 60,-20 60,20");
        m_element->set("position", "100,100");
        m_element->set("boundingSize", "100,40");
        QCOMPARE(value("points"), QStringLiteral("20,-20 120,-20 120,20"));
        QCOMPARE(value("position"), QStringLiteral("90,100"));
        m_element->set("boundingSize", "100,10");
        QCOMPARE(value("points"), QStringLiteral("20,-5 120,-5 120,5"));
        QCOMPARE(value("position"), QStringLiteral("90,85"));
        // A position that does not convert is left alone.
        m_element->set("position", "there");
        m_element->set("boundingSize", "50,10");
        QCOMPARE(value("points"), QStringLiteral("10,-5 60,-5 60,5"));
        QCOMPARE(value("position"), QStringLiteral("there"));
    }

    void pointsThatDoNotConvertAreKeptAndInert_data() { addElements(); }
    void pointsThatDoNotConvertAreKeptAndInert()
    {
        make();
        const GraphicsOutline* item = m_element->place();
        for (const char* text : {"somewhere", "0,0 100", "0,0  10,10", "nan,0 1,1", "0,0,1,1"}) {
            QVERIFY(m_element->set("points", text));
            QCOMPARE(value("points"), QString::fromLatin1(text));
            QCOMPARE(m_element->element->getBoundingRect(), QRectF(0, 0, 0, 0));
            QCOMPARE(item->boundingRect(), QRectF(0, 0, 100, 75));
            QCOMPARE(value("boundingSize"), QStringLiteral("100,75"));
            QVERIFY(!m_element->element->toQml(0).contains(QLatin1String("points")));
        }
        // A new size is one of the outline that is seen.
        QVERIFY(m_element->set("boundingSize", "200,75"));
        QCOMPARE(value("points"), QStringLiteral("0,0 200,0 200,75 0,75 0,0"));
    }

    void anyTypedSizesFollowTheRules()
    {
        const bool held = rc::check("sizes", [this] {
            m_element = std::make_unique<OutlineElement>(Test::outlineElements().at(*rc::gen::inRange(0, 4)));
            m_element->place();
            const auto length = [] { return *rc::gen::inRange(4, 1600) / 4.0; };
            const QSizeF before(length(), length());
            m_element->setPoints(QPolygonF(QRectF(QPointF(0, 0), before)));
            const double ratio = *rc::gen::element(0.0, 0.0, 0.5, 1.0, 2.0, 16.0);
            m_element->set("keepRatio", ValueConversion::toString(ratio));
            QSizeF written = before;
            QSizeF outline = before;
            for (int i = *rc::gen::inRange(1, 6); i > 0; --i) {
                const QSizeF typed(*rc::gen::element(written.width(), length()),
                                   *rc::gen::element(written.height(), length()));
                const bool widthChanged = typed.width() != written.width();
                const bool heightChanged = typed.height() != written.height();
                if (!widthChanged && !heightChanged)
                    continue;
                RC_ASSERT(m_element->set("boundingSize", ValueConversion::toString(typed)));
                double x = widthChanged ? typed.width() / written.width() : 1;
                double y = heightChanged ? typed.height() / written.height() : 1;
                bool refused = false;
                if (ratio > 0) {
                    const bool widthDecides = widthChanged && typed.width() / ratio >= 1;
                    refused = !widthDecides && (!heightChanged || typed.height() * ratio < 1);
                    x = y = refused ? 1 : widthDecides ? x : y;
                }
                outline = QSizeF(outline.width() * x, outline.height() * y);
                written = refused ? written : typed;
                RC_ASSERT(m_element->value("boundingSize") == ValueConversion::toString(written));
                const QSizeF now = m_element->points().boundingRect().size();
                RC_ASSERT(std::abs(now.width() - outline.width()) < 1e-6 * std::max(1.0, outline.width()));
                RC_ASSERT(std::abs(now.height() - outline.height()) < 1e-6 * std::max(1.0, outline.height()));
            }
        });
        QVERIFY(held);
    }

private:
    static void addElements()
    {
        QTest::addColumn<QString>("className");
        for (const QByteArray& name : Test::outlineElements())
            QTest::newRow(name) << QString::fromLatin1(name);
    }

    /// The element of the row.
    void make()
    {
        QFETCH(QString, className);
        m_element = std::make_unique<OutlineElement>(className.toLatin1());
    }

    [[nodiscard]] QString value(const char* id) const { return m_element->value(id); }

    std::unique_ptr<OutlineElement> m_element;
};

QTEST_MAIN(tst_GradientElements)
#include "tst_GradientElements.moc"
