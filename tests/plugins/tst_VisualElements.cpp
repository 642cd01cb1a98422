#include "host/core/canvas/GraphicsItem.h"
#include "host/core/editors/PropertyEditor.h"
#include "host/core/objects/DesignerObject.h"
#include "host/core/plugins/IDesignerFactory.h"
#include "host/core/plugins/PluginVerification.h"

#include <QFile>
#include <QGraphicsItem>
#include <QLibrary>
#include <QPluginLoader>
#include <QtTest>

#include <memory>

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

    void theBasicShapesAreListed()
    {
        for (const char* name : {"Rectangle", "Ellipse", "Polygon"})
            QVERIFY2(factory()->dataObjectClassNames().contains(QLatin1String(name)), name);
        for (const char* name : {"GraphicsEllipse", "GraphicsPolygon"})
            QVERIFY2(factory()->graphicsItemClassNames().contains(QLatin1String(name)), name);
    }

    void exactlyTheListedDataObjectsAreBuilt()
    {
        const QStringList listed = factory()->dataObjectClassNames();
        for (const QString& name : names(QStringLiteral("dataObjects"))) {
            QObject parent;
            DesignerObject* object = factory()->createDataObject(name, &parent);
            QCOMPARE(object != nullptr, listed.contains(name));
            if (!object)
                continue;
            QCOMPARE(object->className(), name);
            QCOMPARE(object->parent(), &parent);
            // The host initialises it.
            QVERIFY(object->properties().isEmpty());
            QVERIFY(object->initialize());
            QVERIFY(!object->properties().isEmpty());
        }
    }

    void exactlyTheListedCanvasItemsAreBuilt()
    {
        const QStringList listed = factory()->graphicsItemClassNames();
        const QStringList items = names(QStringLiteral("graphicsItems"));
        const QStringList elements = names(QStringLiteral("graphicsItems"), 1);
        for (qsizetype i = 0; i < items.size(); ++i) {
            const std::unique_ptr<DesignerObject> object(factory()->createDataObject(elements.at(i), nullptr));
            if (object)
                QVERIFY(object->initialize());
            GraphicsItem* item = factory()->createGraphicsItem(items.at(i), object.get());
            const std::unique_ptr<QGraphicsItem> owner(item ? item->graphic() : nullptr);
            QCOMPARE(item != nullptr, listed.contains(items.at(i)));
            if (!item)
                continue;
            QCOMPARE(item->className(), items.at(i));
            QCOMPARE(item->dataObject(), object.get());
            QVERIFY(item->initialize());
            // It is not the item itself that comes back, but its second face.
            QVERIFY(static_cast<void*>(item) != static_cast<void*>(owner.get()));
            QCOMPARE(GraphicsItem::fromGraphic(owner.get()), item);
        }
    }

    void exactlyTheListedEditorsAreBuilt()
    {
        const QStringList listed = factory()->propertyEditorClassNames();
        for (const QString& name : names(QStringLiteral("propertyEditors"))) {
            QWidget parent;
            PropertyEditor* editor = factory()->createPropertyEditor(name, &parent);
            QCOMPARE(editor != nullptr, listed.contains(name));
            if (!editor)
                continue;
            QCOMPARE(editor->className(), name);
            QCOMPARE(editor->parentWidget(), &parent);
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
        QTest::newRow("empty") << QString();
        QTest::newRow("the host's canvas item") << QStringLiteral("GraphicsRectangle");
        QTest::newRow("the abstract gradient") << QStringLiteral("GradientElement");
        QTest::newRow("a base class") << QStringLiteral("VisualElement");
        QTest::newRow("a display type") << QStringLiteral("Rectangle2");
        QTest::newRow("two names") << QStringLiteral("Rectangle,Ellipse");
        QTest::newRow("with its namespace") << QStringLiteral("Korvex::Meridane::Designer::Ellipse");
        QTest::newRow("letters that look alike") << QString::fromUtf8("\u0415llipse");
    }

    void unknownNamesYieldNull()
    {
        QFETCH(QString, name);
        QVERIFY(isUnknown(name));
    }

    void namesAreComparedWholeAndWithTheirCase_data()
    {
        QTest::addColumn<QString>("name");
        for (const char* table : {"dataObjects", "graphicsItems", "propertyEditors"}) {
            for (const QString& name : names(QLatin1String(table)))
                QTest::addRow("%s", qPrintable(name)) << name;
        }
    }

    void namesAreComparedWholeAndWithTheirCase()
    {
        QFETCH(QString, name);
        QVERIFY(isUnknown(name.toLower()));
        QVERIFY(isUnknown(name.toUpper()));
        QVERIFY(isUnknown(name + QLatin1Char(' ')));
        QVERIFY(isUnknown(QLatin1Char(' ') + name));
        QVERIFY(isUnknown(name + QLatin1Char('\n')));
        QVERIFY(isUnknown(name + QChar(0)));
        QVERIFY(isUnknown(name.chopped(1)));
        QVERIFY(isUnknown(name.sliced(1)));
        QVERIFY(isUnknown(name + name));
    }

    void eachChainKnowsItsOwnNamesAlone()
    {
        for (const QString& name : factory()->dataObjectClassNames()) {
            QVERIFY2(!factory()->createGraphicsItem(name, nullptr), qPrintable(name));
            QVERIFY2(!factory()->createPropertyEditor(name, nullptr), qPrintable(name));
        }
        for (const QString& name : factory()->graphicsItemClassNames()) {
            QVERIFY2(!factory()->createDataObject(name, nullptr), qPrintable(name));
            QVERIFY2(!factory()->createPropertyEditor(name, nullptr), qPrintable(name));
        }
        for (const QString& name : factory()->propertyEditorClassNames()) {
            QVERIFY2(!factory()->createDataObject(name, nullptr), qPrintable(name));
            QVERIFY2(!factory()->createGraphicsItem(name, nullptr), qPrintable(name));
        }
    }

private:
    IDesignerFactory* factory() { return qobject_cast<IDesignerFactory*>(m_instance()); }

    bool isUnknown(const QString& name)
    {
        return !factory()->createDataObject(name, nullptr) && !factory()->createGraphicsItem(name, nullptr)
               && !factory()->createPropertyEditor(name, nullptr) && !factory()->createProperty(name, nullptr)
               && !factory()->createOther(name);
    }

    /// A column of a name table, cells separated by tabs.
    static QStringList names(const QString& table, int column = 0)
    {
        QFile file(QStringLiteral(MERIDANE_TEST_DATA "/%1.txt").arg(table));
        if (!file.open(QIODevice::ReadOnly))
            return {};
        QStringList cells;
        const QStringList lines = QString::fromUtf8(file.readAll()).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
        for (const QString& line : lines)
            cells.append(line.split(QLatin1Char('\t')).value(column));
        return cells;
    }

    QLibrary m_library{QStringLiteral(MERIDANE_PLUGIN_FILE)};
    QObject* (*m_instance)() = nullptr;
};

QTEST_MAIN(tst_VisualElements)
#include "tst_VisualElements.moc"
