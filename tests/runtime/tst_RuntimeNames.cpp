#include "host/core/objects/VisualElement.h"
#include "host/core/plugins/DesignerFactory.h"
#include "host/core/properties/RuntimeProperty.h"

#include <QColor>
#include <QMetaProperty>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickItem>
#include <QSet>
#include <QTest>

#include <memory>

using namespace Korvex::Meridane;
using Common::EnumHelper;
using Designer::DesignerFactory;
using Designer::RuntimeProperty;
using Designer::VisualElement;

namespace {
/** The type of the QML property that goes with a published type; an unknown one for none. */
QMetaType qmlType(EnumHelper::VariableType type)
{
    switch (type) {
    case EnumHelper::Boolean:
        return QMetaType::fromType<bool>();
    case EnumHelper::Integer:
        return QMetaType::fromType<int>();
    case EnumHelper::Real:
        return QMetaType::fromType<double>();
    case EnumHelper::String:
        return QMetaType::fromType<QString>();
    case EnumHelper::Color:
        return QMetaType::fromType<QColor>();
    case EnumHelper::List:
        return QMetaType();
    }
    return QMetaType();
}

QSet<QString> propertyNames(const QMetaObject* meta, int first)
{
    QSet<QString> names;
    for (int i = first; i < meta->propertyCount(); ++i) {
        names.insert(QString::fromLatin1(meta->property(i).name()));
    }
    return names;
}

/** The element of the class called @p name; null when there is none. */
std::unique_ptr<VisualElement> makeElement(const QString& name)
{
    std::unique_ptr<QObject> object(DesignerFactory::instance()->createDataObject(name, nullptr));
    auto* element = qobject_cast<VisualElement*>(object.get());
    if (element) {
        (void)object.release();
    }
    return std::unique_ptr<VisualElement>(element);
}

QString listed(QSet<QString> names)
{
    QStringList list(names.cbegin(), names.cend());
    list.sort();
    return list.join(QLatin1String(", "));
}
} // namespace

/** What elements say that a display can change is what the display's types have, no more and no less. */
class TestRuntimeNames : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void typesDeclareWhatElementsPublish_data();
    void typesDeclareWhatElementsPublish();
    void everyNameIsPublishedOnce_data();
    void everyNameIsPublishedOnce();

private:
    static void addElements();
    std::unique_ptr<QObject> create(const VisualElement& element);

    QQmlEngine m_engine;
};

void TestRuntimeNames::initTestCase()
{
    QString message;
    QVERIFY2(DesignerFactory::instance()->loadPlugin(QStringLiteral(MERIDANE_PLUGIN_FILE), &message),
             qPrintable(message));
    m_engine.addImportPath(QCoreApplication::applicationDirPath() + QLatin1String("/../qml"));
}

void TestRuntimeNames::addElements()
{
    QTest::addColumn<QString>("className");
    const QStringList names = DesignerFactory::instance()->elementClassNames();
    QVERIFY(names.size() >= 3);
    for (const QString& name : names) {
        QTest::newRow(qPrintable(name)) << name;
    }
    QTest::newRow("Group") << QStringLiteral("Group");
}

std::unique_ptr<QObject> TestRuntimeNames::create(const VisualElement& element)
{
    QQmlComponent component(&m_engine);
    component.setData("import Meridane.Display\n" + element.qmlName().toUtf8() + " { }\n", QUrl());
    std::unique_ptr<QObject> object(component.create());
    if (!object) {
        qWarning("%s", qPrintable(component.errorString()));
    }
    return object;
}

void TestRuntimeNames::typesDeclareWhatElementsPublish_data()
{
    addElements();
}

void TestRuntimeNames::typesDeclareWhatElementsPublish()
{
    QFETCH(QString, className);
    const std::unique_ptr<VisualElement> element = makeElement(className);
    QVERIFY(element);
    const std::unique_ptr<QObject> item = create(*element);
    QVERIFY(item);
    const QMetaObject* meta = item->metaObject();
    QVERIFY(meta->inherits(&QQuickItem::staticMetaObject));

    QSet<QString> published;
    const QList<RuntimeProperty> properties = element->runtimeProperties();
    for (const RuntimeProperty& property : properties) {
        const QMetaProperty declared = meta->property(meta->indexOfProperty(property.name().toLatin1()));
        QVERIFY2(declared.isValid(), qPrintable(property.name()));
        QVERIFY2(declared.hasNotifySignal(), qPrintable(property.name()));
        QVERIFY2(declared.isWritable() || !property.isWritable(), qPrintable(property.name()));
        if (const QMetaType type = qmlType(property.type()); type.isValid()) {
            QCOMPARE(declared.metaType(), type);
        }
        published.insert(property.name());
    }
    QSet<QString> own = propertyNames(meta, QQuickItem::staticMetaObject.propertyCount());
    QVERIFY(own.remove(QStringLiteral("fixedPoint")));
    const QSet<QString> inherited = propertyNames(&QQuickItem::staticMetaObject, 0);
    QCOMPARE(listed(published - inherited), listed(own));
}

void TestRuntimeNames::everyNameIsPublishedOnce_data()
{
    addElements();
}

void TestRuntimeNames::everyNameIsPublishedOnce()
{
    QFETCH(QString, className);
    const std::unique_ptr<VisualElement> element = makeElement(className);
    QVERIFY(element);
    QSet<QString> names;
    const QList<RuntimeProperty> properties = element->runtimeProperties();
    for (const RuntimeProperty& property : properties) {
        QVERIFY2(!names.contains(property.name()), qPrintable(property.name()));
        QVERIFY2(!property.label().isEmpty(), qPrintable(property.name()));
        names.insert(property.name());
    }
    // What every element offers.
    for (const char* name : {"visible", "x", "y", "rotation"}) {
        QVERIFY2(names.contains(QLatin1String(name)), name);
    }
}

QTEST_MAIN(TestRuntimeNames)
#include "tst_RuntimeNames.moc"
