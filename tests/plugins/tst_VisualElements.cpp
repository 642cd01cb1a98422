#include "host/core/objects/DesignerObject.h"
#include "host/core/plugins/IDesignerFactory.h"
#include "host/core/plugins/PluginVerification.h"

#include <QFile>
#include <QLibrary>
#include <QPluginLoader>
#include <QtTest>

using namespace Korvex::Meridane::Designer;

/// The plug-in as the host meets it: through its library, its two entry points and its factory interface.
class tst_VisualElements : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QVERIFY2(m_library.load(), qPrintable(m_library.errorString()));
        m_instance = reinterpret_cast<QObject* (*)()>(m_library.resolve("qt_plugin_instance"));
        QVERIFY(m_instance);
    }

    void theEntryPointReturnsTheSameObjectUntilItIsDeleted()
    {
        QPointer<QObject> first = m_instance();
        QVERIFY(first);
        QCOMPARE(m_instance(), first.data());
        QVERIFY(!first->parent());
        delete first.data();
        QVERIFY(!first);
        QObject* next = m_instance();
        QVERIFY(next);
        QVERIFY(qobject_cast<IDesignerFactory*>(next));
        QCOMPARE(m_instance(), next);
    }

    void theVerificationTextHasItsFourLines()
    {
        const auto query = reinterpret_cast<const char* (*)()>(m_library.resolve("qt_plugin_query_verification_data"));
        QVERIFY(query);
        const QStringList lines = QString::fromLatin1(query()).split(QLatin1Char('\n'));
        QCOMPARE(lines.size(), 4);
        QCOMPARE(lines.at(0), QStringLiteral("pattern=QT_PLUGIN_VERIFICATION_DATA"));
        QCOMPARE(lines.at(1), QStringLiteral("version=" QT_VERSION_STR));
        QCOMPARE(lines.at(2), QStringLiteral("debug=") + PluginVerification::ofHost().debug);
        QCOMPARE(lines.at(3), QStringLiteral("buildkey=") + PluginVerification::ofHost().buildKey);
    }

    void theMetaCastAnswersThreeNames()
    {
        QObject* root = m_instance();
        QCOMPARE(QLatin1String(root->metaObject()->className()),
                 QLatin1String("Korvex::Meridane::Designer::VisualElements"));
        QCOMPARE(root->qt_metacast("Korvex::Meridane::Designer::VisualElements"), static_cast<void*>(root));
        void* byName = root->qt_metacast("IDesignerFactory");
        void* byIdentifier = root->qt_metacast("korvex.meridane.designer.IDesignerFactory/1.0");
        QVERIFY(byName);
        QCOMPARE(byName, byIdentifier);
        QVERIFY(byName != static_cast<void*>(root));
        QCOMPARE(root->qt_metacast("QObject"), static_cast<void*>(root));
        QCOMPARE(root->qt_metacast("Rectangle"), nullptr);
        QCOMPARE(root->qt_metacast(nullptr), nullptr);
    }

    void theRootHasNoSignalsSlotsOrPropertiesOfItsOwn()
    {
        const QMetaObject* meta = m_instance()->metaObject();
        QCOMPARE(meta->methodCount(), meta->methodOffset());
        QCOMPARE(meta->propertyCount(), meta->propertyOffset());
    }

    void theListsFollowTheOrderOfTheNameTables_data()
    {
        QTest::addColumn<QString>("table");
        QTest::addColumn<QStringList>("listed");
        QTest::newRow("data objects") << QStringLiteral("dataObjects") << factory()->dataObjectClassNames();
        QTest::newRow("canvas items") << QStringLiteral("graphicsItems") << factory()->graphicsItemClassNames();
        QTest::newRow("editors") << QStringLiteral("propertyEditors") << factory()->propertyEditorClassNames();
    }

    void theListsFollowTheOrderOfTheNameTables()
    {
        QFETCH(QString, table);
        QFETCH(QStringList, listed);
        QStringList expected = names(table);
        QVERIFY(!expected.isEmpty());
        // A class that is not built yet is not listed; those that are stand in the table's order, each once.
        expected.removeIf([&listed](const QString& name) { return !listed.contains(name); });
        QCOMPARE(listed, expected);
    }

    void exactlyTheListedDataObjectsAreBuilt()
    {
        const QStringList listed = factory()->dataObjectClassNames();
        QVERIFY(listed.contains(QLatin1String("Rectangle")));
        for (const QString& name : names(QStringLiteral("dataObjects"))) {
            QObject parent;
            DesignerObject* object = factory()->createDataObject(name, &parent);
            QCOMPARE(object != nullptr, listed.contains(name));
            if (!object)
                continue;
            QCOMPARE(object->className(), name);
            QCOMPARE(object->parent(), &parent);
        }
    }

    void thePropertyAndOtherListsAreEmpty()
    {
        QVERIFY(factory()->propertyClassNames().isEmpty());
        QVERIFY(factory()->otherClassNames().isEmpty());
        QVERIFY(!factory()->createProperty(QStringLiteral("SizeProperty"), nullptr));
        QVERIFY(!factory()->createOther(QStringLiteral("Rectangle")));
    }

    void unknownNamesYieldNull_data()
    {
        QTest::addColumn<QString>("name");
        QTest::newRow("lower case") << QStringLiteral("rectangle");
        QTest::newRow("trailing blank") << QStringLiteral("Rectangle ");
        QTest::newRow("leading blank") << QStringLiteral(" Rectangle");
        QTest::newRow("empty") << QString();
        QTest::newRow("the host's canvas item") << QStringLiteral("GraphicsRectangle");
        QTest::newRow("the abstract gradient") << QStringLiteral("GradientElement");
    }

    void unknownNamesYieldNull()
    {
        QFETCH(QString, name);
        QVERIFY(!factory()->createDataObject(name, nullptr));
        QVERIFY(!factory()->createGraphicsItem(name, nullptr));
        QVERIFY(!factory()->createPropertyEditor(name, nullptr));
        QVERIFY(!factory()->dataObjectClassNames().contains(name));
    }

private:
    IDesignerFactory* factory() { return qobject_cast<IDesignerFactory*>(m_instance()); }

    static QStringList names(const QString& table)
    {
        QFile file(QStringLiteral(MERIDANE_TEST_DATA "/%1.txt").arg(table));
        if (!file.open(QIODevice::ReadOnly))
            return {};
        return QString::fromUtf8(file.readAll()).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    }

    QLibrary m_library{QStringLiteral(MERIDANE_PLUGIN_FILE)};
    QObject* (*m_instance)() = nullptr;
};

QTEST_MAIN(tst_VisualElements)
#include "tst_VisualElements.moc"
