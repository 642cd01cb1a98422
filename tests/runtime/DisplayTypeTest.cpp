#include "tests/runtime/DisplayTypeTest.h"

#include <QtCore/QJsonDocument>
#include <QtCore/QMetaProperty>
#include <QtCore/QRegularExpression>
#include <QtCore/QSet>
#include <QtGui/QPainter>
#include <QtQuick/QQuickItem>
#include <QtTest/QSignalSpy>
#include <QtTest/QTest>

#include <rapidcheck.h>

namespace {
double real(int from, int to)
{
    return *rc::gen::inRange(from * 100, to * 100) / 100.0;
}

QString someFixedPoint()
{
    static const std::vector<QString> names = {
        QStringLiteral("TopLeft"), QStringLiteral("Top"),        QStringLiteral("TopRight"),
        QStringLiteral("Left"),    QStringLiteral("Center"),     QStringLiteral("Right"),
        QStringLiteral("Bottom"),  QStringLiteral("BottomLeft"), QStringLiteral("BottomRight")};
    return *rc::gen::elementOf(names);
}

/** The names of what @p item declares beyond the properties of every element. */
QStringList declaredProperties(const QQuickItem& item)
{
    QStringList names;
    const QMetaObject* meta = item.metaObject();
    for (int i = QQuickItem::staticMetaObject.propertyCount(); i < meta->propertyCount(); ++i) {
        names.append(QString::fromLatin1(meta->property(i).name()));
    }
    names.removeAll(QStringLiteral("fixedPoint"));
    names.sort();
    return names;
}

QMetaProperty metaProperty(const QQuickItem& item, const QString& name)
{
    return item.metaObject()->property(item.metaObject()->indexOfProperty(name.toLatin1()));
}

/** Counts the notifications of @p property. */
std::unique_ptr<QSignalSpy> spyOn(QQuickItem& item, const QMetaProperty& property)
{
    const QByteArray signal = QByteArray::number(QSIGNAL_CODE) + property.notifySignal().methodSignature();
    return std::make_unique<QSignalSpy>(&item, signal);
}

void addValues(const QList<std::pair<QString, QVariant>>& values)
{
    QTest::addColumn<QString>("property");
    QTest::addColumn<QVariant>("value");
    for (const auto& [property, value] : values) {
        const QString text = value.canConvert<QString>()
                                 ? value.toString()
                                 : QString::fromUtf8(QJsonDocument::fromVariant(value).toJson(QJsonDocument::Compact));
        QTest::addRow("%s %s", qPrintable(property), qPrintable(text)) << property << value;
    }
}
} // namespace

DisplayTypeTest::DisplayTypeTest(DisplayType type)
    : m_type(std::move(type))
{}

DisplayTypeTest::~DisplayTypeTest() = default;

void DisplayTypeTest::initTestCase()
{
    QQuickWindow::setSceneGraphBackend(QStringLiteral("software"));
}

void DisplayTypeTest::init()
{
    m_sheet = std::make_unique<DisplaySheet>(m_type.name);
    QVERIFY(m_sheet->isValid());
    item().setPosition(QPointF(40, 30));
}

void DisplayTypeTest::cleanup()
{
    m_sheet.reset();
}

void DisplayTypeTest::setValues(const QVariantMap& values) const
{
    for (auto value = values.cbegin(); value != values.cend(); ++value) {
        item().setProperty(value.key().toLatin1(), value.value());
    }
}

QRectF DisplayTypeTest::content() const
{
    return m_type.content ? m_type.content(item()) : QRectF(QPointF(0, 0), item().size());
}

QRectF DisplayTypeTest::outline() const
{
    return m_type.outline ? m_type.outline(item()) : content();
}

QImage DisplayTypeTest::painted() const
{
    return m_sheet->painted(content(), [this](QPainter* painter) { m_type.paint(item(), painter); });
}

bool DisplayTypeTest::looksAsPainted() const
{
    return DisplaySheet::difference(m_sheet->running(), painted()) <= Tolerance;
}

bool DisplayTypeTest::isBlank() const
{
    const QImage blank = m_sheet->painted(content(), [](QPainter*) {});
    return DisplaySheet::difference(m_sheet->running(), blank) == 0;
}

void DisplayTypeTest::theTableNamesEveryProperty()
{
    const QStringList declared = declaredProperties(item());
    QVERIFY(!declared.isEmpty());
    QCOMPARE(QStringList(m_type.defaults.keys()), declared);
    const QStringList changed = m_type.changes.keys();
    for (const QString& property : declared) {
        QVERIFY2(changed.contains(property), qPrintable(property));
    }
}

void DisplayTypeTest::defaultsAreThoseOfTheElement()
{
    for (auto value = m_type.defaults.cbegin(); value != m_type.defaults.cend(); ++value) {
        QCOMPARE(item().property(value.key().toLatin1()), value.value());
    }
    QCOMPARE(item().property("fixedPoint").toString(), QStringLiteral("Center"));
}

void DisplayTypeTest::looksAsPaintedOnTheCanvas()
{
    QVERIFY(rc::check("the same picture", [this] {
        sheet().group()->setPosition(QPointF(real(-20, 60), real(-20, 60)));
        item().setPosition(QPointF(real(-20, 100), real(-20, 60)));
        setValues(m_type.someValues());
        RC_ASSERT(DisplaySheet::pixelsThatDiffer(sheet().running(), painted(), Tolerance) <= m_type.strayPixels);
    }));
}

void DisplayTypeTest::looksAsPaintedWhenTurned()
{
    QVERIFY(rc::check("the same picture at every angle", [this] {
        sheet().group()->setPosition(QPointF(real(20, 60), real(20, 60)));
        sheet().group()->setSize(QSizeF(real(20, 160), real(20, 120)));
        sheet().group()->setRotation(*rc::gen::element(0.0, 0.0, 15.0));
        item().setPosition(QPointF(real(0, 60), real(0, 40)));
        item().setRotation(*rc::gen::element(90.0, 180.0, 360.0, -90.0, 45.0, real(-360, 360)));
        item().setProperty("fixedPoint", someFixedPoint());
        setValues(m_type.someValues());
        RC_ASSERT(DisplaySheet::pixelsThatDiffer(sheet().running(), painted(), Tolerance)
                  <= m_type.strayPixelsWhenTurned);
    }));
}

void DisplayTypeTest::followsItsAncestors()
{
    setValues(m_type.sample);
    QVERIFY(!isBlank());
    for (double offset : {0.0, 0.25, 0.5, 7.9, -3.3}) {
        sheet().group()->setX(offset);
        QVERIFY(looksAsPainted());
        sheet().group()->setRotation(offset);
        QVERIFY(looksAsPainted());
    }
}

void DisplayTypeTest::everyPropertyIsLive_data()
{
    QTest::addColumn<QString>("property");
    QTest::addColumn<QVariant>("value");
    QVariantMap changes = m_type.changes;
    changes.insert(QStringLiteral("x"), 70.4);
    changes.insert(QStringLiteral("y"), 50.7);
    changes.insert(QStringLiteral("rotation"), 50.0);
    changes.insert(QStringLiteral("fixedPoint"), QStringLiteral("TopLeft"));
    for (auto change = changes.cbegin(); change != changes.cend(); ++change) {
        QTest::newRow(qPrintable(change.key())) << change.key() << change.value();
    }
}

void DisplayTypeTest::everyPropertyIsLive()
{
    QFETCH(QString, property);
    QFETCH(QVariant, value);
    setValues(m_type.sample);
    item().setRotation(property == QLatin1String("fixedPoint") ? 30 : 0);
    const QImage before = sheet().running();
    const QMetaProperty meta = metaProperty(item(), property);
    QVERIFY(meta.isValid());
    const auto changed = spyOn(item(), meta);
    QVERIFY(meta.write(&item(), value));
    QCOMPARE(changed->count(), 1);
    QCOMPARE(meta.read(&item()), value);
    const bool shows = property != QLatin1String("fixedPoint") || !content().isNull();
    QCOMPARE(DisplaySheet::pixelsThatDiffer(before, sheet().running(), Tolerance) > 0, shows);
    QVERIFY(looksAsPainted());
}

void DisplayTypeTest::sameValueIsNoChange()
{
    setValues(m_type.sample);
    const QStringList properties = declaredProperties(item()) + QStringList{QStringLiteral("fixedPoint")};
    for (const QString& property : properties) {
        const QMetaProperty meta = metaProperty(item(), property);
        const auto changed = spyOn(item(), meta);
        QVERIFY(meta.write(&item(), meta.read(&item())));
        QVERIFY2(changed->isEmpty(), qPrintable(property));
    }
}

void DisplayTypeTest::hiddenChangesShowLater()
{
    setValues(m_type.sample);
    QVERIFY(!isBlank());
    item().setVisible(false);
    QVERIFY(isBlank());
    setValues(m_type.changes);
    sheet().group()->setX(4.5);
    QVERIFY(isBlank());
    item().setVisible(true);
    QVERIFY(!isBlank());
    QVERIFY(looksAsPainted());
}

void DisplayTypeTest::repaintsOnlyWhenItsPixelsChange()
{
    setValues(m_type.sample);
    item().setPosition(QPointF(40.25, 30));
    static_cast<void>(sheet().running());
    const QQuickItem* painter = item().childItems().constFirst();
    const QSizeF size = painter->size();
    const QPointF position = painter->position();
    // By whole pixels the same picture moves along.
    item().setX(52.25);
    QVERIFY(looksAsPainted());
    QCOMPARE(painter->size(), size);
    QCOMPARE(painter->position(), position);
}

void DisplayTypeTest::unknownFixedPointIsRefused()
{
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("there is no point \"Middle\"")));
    item().setProperty("fixedPoint", QStringLiteral("Middle"));
    QCOMPARE(item().property("fixedPoint").toString(), QStringLiteral("Center"));
}

void DisplayTypeTest::aHugeItemIsPaintedWhereItShows()
{
    setValues(m_type.sample);
    setValues(m_type.huge);
    const QSizeF size = outline().size();
    QVERIFY(size.width() > 10 * sheet().screen()->width() && size.height() > 10 * sheet().screen()->height());
    const QPointF middle(0.5 * size.width(), 0.5 * size.height());
    const std::pair<QPointF, bool> places[] = {
        {QPointF(150, 100) - middle, true}, // the middle fills the screen
        {QPointF(150 - middle.x(), 30), true}, // the top
        {QPointF(30, 100.5 - middle.y()), true}, // the left end
        {QPointF(250 - size.width(), 100) - QPointF(0, middle.y()), true}, // the right end
        {QPointF(400, 0), false},
        {QPointF(-400, 0) - QPointF(size.width(), 0), false},
    };
    for (const auto& [position, shows] : places) {
        item().setPosition(position - outline().topLeft());
        QVERIFY(looksAsPainted());
        QCOMPARE(isBlank(), !shows);
        const QQuickItem* painter = item().childItems().constFirst();
        QVERIFY(painter->width() <= sheet().screen()->width());
        QVERIFY(painter->height() <= sheet().screen()->height());
    }
}

void DisplayTypeTest::extremeValuesAreDrawnAsOnTheCanvas_data()
{
    addValues(m_type.extremes);
}

void DisplayTypeTest::extremeValuesAreDrawnAsOnTheCanvas()
{
    QFETCH(QString, property);
    QFETCH(QVariant, value);
    setValues(m_type.sample);
    item().setProperty(property.toLatin1(), value);
    QVERIFY(looksAsPainted());
    item().setRotation(30);
    QVERIFY(looksAsPainted());
}

void DisplayTypeTest::senselessValuesShowNothing_data()
{
    addValues(m_type.invisible);
}

void DisplayTypeTest::senselessValuesShowNothing()
{
    QFETCH(QString, property);
    QFETCH(QVariant, value);
    setValues(m_type.sample);
    QVERIFY(!isBlank());
    item().setProperty(property.toLatin1(), value);
    QVERIFY(isBlank());
    item().setRotation(30);
    QVERIFY(isBlank());
    // It has not lost its way.
    item().setProperty(property.toLatin1(), m_type.changes.value(property));
    QVERIFY(!isBlank());
    QVERIFY(looksAsPainted());
}
