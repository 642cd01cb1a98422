#include "host/core/values/ValueConversion.h"
#include "tests/values/ValueGenerators.h"

#include <QtTest/QtTest>

using namespace Korvex::Meridane::Designer;

/** Every writer and its parser are exact inverses. */
class tst_ValueRoundTrip : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { qputenv("RC_PARAMS", "max_success=1000"); }
    void integers();
    void reals();
    void realsAreWrittenWithoutNeedlessDigits();
    void booleans();
    void sizesAndPoints();
    void polygons();
    void colors();
    void gradientStops();
    void borders();
    void rotations();
    void fonts();
    void fontsReadFromTextStayEqual();
    void groups();
    void links();
    void qmlNumbersReadBackToTheirDecimals();
    void parsersSurviveAnyText();
};

void tst_ValueRoundTrip::integers()
{
    QVERIFY(rc::check("int", [] {
        const int value = *Generators::bits<int>();
        bool ok = false;
        RC_ASSERT(ValueConversion::toInt(ValueConversion::toString(value), &ok) == value);
        RC_ASSERT(ok);
    }));
}

void tst_ValueRoundTrip::reals()
{
    QVERIFY(rc::check("double", [] {
        const double value = *Generators::finiteReal();
        const QString text = ValueConversion::toString(value);
        bool ok = false;
        RC_ASSERT(ValueConversion::toReal(text, &ok) == value);
        RC_ASSERT(ok);
        RC_ASSERT(text != QLatin1String("-0"));
        RC_ASSERT(!text.contains(u'+') || text.contains(u'e'));
    }));
}

void tst_ValueRoundTrip::realsAreWrittenWithoutNeedlessDigits()
{
    QVERIFY(rc::check("typed decimals come back as typed", [] {
        const int units = *rc::gen::inRange(-10000000, 10000000);
        const int decimals = *rc::gen::inRange(0, 6);
        QString typed = QString::number(std::abs(units)).rightJustified(decimals + 1, u'0');
        if (decimals > 0) {
            typed.insert(typed.size() - decimals, u'.');
            while (typed.endsWith(u'0')) {
                typed.chop(1);
            }
            if (typed.endsWith(u'.')) {
                typed.chop(1);
            }
        }
        if (units < 0) {
            typed.prepend(u'-');
        }
        RC_ASSERT(ValueConversion::toString(ValueConversion::toReal(typed)) == typed);
    }));
}

void tst_ValueRoundTrip::booleans()
{
    for (const bool value : {true, false}) {
        bool ok = false;
        QCOMPARE(ValueConversion::toBool(ValueConversion::toString(value), &ok), value);
        QVERIFY(ok);
    }
}

void tst_ValueRoundTrip::sizesAndPoints()
{
    QVERIFY(rc::check("size and point", [] {
        const QPointF point = *Generators::point();
        bool ok = false;
        const QPointF read = ValueConversion::toPoint(ValueConversion::toString(point), &ok);
        RC_ASSERT(ok && read.x() == point.x() && read.y() == point.y());
        const QSizeF size(point.x(), point.y());
        const QSizeF readSize = ValueConversion::toSize(ValueConversion::toString(size), &ok);
        RC_ASSERT(ok && readSize.width() == size.width() && readSize.height() == size.height());
    }));
}

void tst_ValueRoundTrip::polygons()
{
    QVERIFY(rc::check("polygon", [] {
        const auto points = *rc::gen::container<std::vector<QPointF>>(Generators::point());
        const QPolygonF polygon(QList<QPointF>(points.begin(), points.end()));
        bool ok = false;
        const QPolygonF read = ValueConversion::toPolygon(ValueConversion::toString(polygon), &ok);
        RC_ASSERT(ok && read.size() == polygon.size());
        for (qsizetype i = 0; i < read.size(); ++i) {
            RC_ASSERT(read.at(i).x() == polygon.at(i).x() && read.at(i).y() == polygon.at(i).y());
        }
    }));
}

void tst_ValueRoundTrip::colors()
{
    QVERIFY(rc::check("colour", [] {
        const QColor color = *Generators::color();
        bool ok = false;
        RC_ASSERT(ValueConversion::toColor(ValueConversion::toString(color), &ok) == color);
        RC_ASSERT(ok);
    }));
}

void tst_ValueRoundTrip::gradientStops()
{
    QVERIFY(rc::check("gradient stops", [] {
        const auto list = *rc::gen::nonEmpty(rc::gen::container<std::vector<std::pair<double, QColor>>>(
            rc::gen::pair(Generators::finiteReal(), Generators::color())));
        QVector<QPair<double, QColor>> stops;
        for (const auto& stop : list) {
            stops.append({stop.first, stop.second});
        }
        bool ok = false;
        RC_ASSERT(ValueConversion::toGradientStops(ValueConversion::toString(stops), &ok) == stops);
        RC_ASSERT(ok);
    }));
}

void tst_ValueRoundTrip::borders()
{
    QVERIFY(rc::check("border", [] {
        const BorderInfo border(*Generators::bits<int>() & std::numeric_limits<int>::max(), *Generators::color());
        bool ok = false;
        RC_ASSERT(ValueConversion::toBorderInfo(ValueConversion::toString(border), &ok) == border);
        RC_ASSERT(ok);
    }));
}

void tst_ValueRoundTrip::rotations()
{
    QVERIFY(rc::check("rotation", [] {
        RotationInfo rotation;
        rotation.setAngle(*Generators::finiteReal());
        rotation.setFixedPoint(RotationInfo::fixedPointNames().at(*rc::gen::inRange(0, 9)));
        bool ok = false;
        RC_ASSERT(ValueConversion::toRotationInfo(ValueConversion::toString(rotation), &ok) == rotation);
        RC_ASSERT(ok);
    }));
}

void tst_ValueRoundTrip::fonts()
{
    QVERIFY(rc::check("font", [] {
        const QFont font = *Generators::font();
        const QString text = ValueConversion::toString(font);
        bool ok = false;
        const QFont read = ValueConversion::toFont(text, &ok);
        RC_ASSERT(ok);
        RC_ASSERT(read == font);
        RC_ASSERT(read.family() == font.family());
        RC_ASSERT(ValueConversion::toString(read) == text);
    }));
}

void tst_ValueRoundTrip::fontsReadFromTextStayEqual()
{
    QVERIFY(rc::check("font from text", [] {
        const QString text = ValueConversion::groupToString({
            {QStringLiteral("family"), *Generators::text()},
            {QStringLiteral("pointSize"), QString::number(*rc::gen::inRange(1, 100000) / 100.0)},
            {QStringLiteral("letterSpacing"), QString::number(*rc::gen::inRange(-10000, 10000) / 1000.0)},
            {QStringLiteral("wordSpacing"), QString::number(*rc::gen::inRange(-10000, 10000) / 1000.0)},
        });
        bool ok = false;
        const QFont font = ValueConversion::toFont(text, &ok);
        RC_ASSERT(ok);
        RC_ASSERT(ValueConversion::toFont(ValueConversion::toString(font), &ok) == font);
        RC_ASSERT(ok);
    }));
}

void tst_ValueRoundTrip::groups()
{
    QVERIFY(rc::check("group", [] {
        const auto values = *rc::gen::nonEmpty(rc::gen::container<std::vector<QString>>(Generators::text()));
        QList<QPair<QString, QString>> pairs;
        QMap<QString, QString> expected;
        for (const QString& value : values) {
            const QString key = QStringLiteral("key_%1").arg(pairs.size());
            pairs.append({key, value});
            expected.insert(key, value);
        }
        bool ok = false;
        RC_ASSERT(ValueConversion::toGroupProperties(ValueConversion::groupToString(pairs), &ok) == expected);
        RC_ASSERT(ok);
    }));
}

void tst_ValueRoundTrip::links()
{
    QVERIFY(rc::check("link", [] {
        const ObjectLinkInfo link(*Generators::text());
        bool ok = false;
        const ObjectLinkInfo read = ValueConversion::toLinkInfo(ValueConversion::toString(link), &ok);
        RC_ASSERT(ok == link.isValid());
        RC_ASSERT(read == (ok ? link : ObjectLinkInfo()));
    }));
}

void tst_ValueRoundTrip::qmlNumbersReadBackToTheirDecimals()
{
    QVERIFY(rc::check("QML number", [] {
        const double value = *Generators::finiteReal();
        const int decimals = *rc::gen::inRange(0, 8);
        const QString text = ValueConversion::toQmlString(value, decimals);
        RC_ASSERT(!text.contains(u'e') && text != QLatin1String("-0"));
        const qsizetype point = text.indexOf(u'.');
        RC_ASSERT(point < 0 || (text.size() - point - 1 <= decimals && !text.endsWith(u'0') && !text.endsWith(u'.')));
        bool ok = false;
        const double read = ValueConversion::toReal(text, &ok);
        RC_ASSERT(ok);
        RC_ASSERT(std::abs(read - value) <= 0.5 * std::pow(10, -decimals) * (1 + 1e-12) + std::abs(value) * 1e-15);
    }));
}

void tst_ValueRoundTrip::parsersSurviveAnyText()
{
    QVERIFY(rc::check("any text", [] {
        const QString text = *Generators::text();
        bool ok = true;
        ValueConversion::toInt(text, &ok);
        ValueConversion::toReal(text, nullptr);
        ValueConversion::toSize(text, nullptr);
        ValueConversion::toPolygon(text, nullptr);
        ValueConversion::toColor(text, nullptr);
        ValueConversion::toFont(text, nullptr);
        ValueConversion::toBorderInfo(text, nullptr);
        ValueConversion::toRotationInfo(text, nullptr);
        ValueConversion::toGradientStops(text, nullptr);
        ValueConversion::toGroupProperties(text, nullptr);
    }));
}

QTEST_MAIN(tst_ValueRoundTrip)
#include "tst_ValueRoundTrip.moc"
