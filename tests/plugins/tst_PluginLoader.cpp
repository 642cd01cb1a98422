#include "host/core/objects/DesignerObject.h"
#include "host/core/plugins/DesignerFactory.h"
#include "host/core/plugins/IDesignerFactory.h"
#include "host/core/plugins/PluginLoader.h"
#include "host/core/plugins/PluginVerification.h"

#include <QDir>
#include <QTemporaryDir>
#include <QtTest>

using namespace Korvex::Meridane::Designer;

class tst_PluginLoader : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aPluginThatDoesNotFitIsRefusedWithItsOwnMessage_data()
    {
        QTest::addColumn<QString>("file");
        QTest::addColumn<QStringList>("named");
        const PluginVerification host = PluginVerification::ofHost();
        const QString otherDebug =
            host.debug == QLatin1String("true") ? QStringLiteral("false") : QStringLiteral("true");
        QTest::newRow("another Qt version")
            << sample("OtherVersionPlugin")
            << QStringList{QStringLiteral("Qt 4.8.1"), QStringLiteral("Qt ") + host.version};
        QTest::newRow("another build key")
            << sample("OtherBuildKeyPlugin")
            << QStringList{QStringLiteral("Windows msvc release full-config"), host.buildKey};
        QTest::newRow("debug and release")
            << sample("OtherDebugPlugin")
            << QStringList{QStringLiteral("debug=") + otherDebug, QStringLiteral("debug=") + host.debug};
        QTest::newRow("no verification function")
            << sample("UnverifiedPlugin") << QStringList{QStringLiteral("qt_plugin_query_verification_data")};
        QTest::newRow("verification data that cannot be read")
            << sample("GarbledPlugin") << QStringList{QStringLiteral("verification data cannot be read")};
        QTest::newRow("no factory") << sample("FactorylessPlugin") << QStringList{QStringLiteral("no element factory")};
        QTest::newRow("no library") << notALibrary() << QStringList{QStringLiteral("not a library")};
        QTest::newRow("no file") << sample("MissingPlugin") << QStringList{QStringLiteral("not a library")};
    }

    void aPluginThatDoesNotFitIsRefusedWithItsOwnMessage()
    {
        QFETCH(QString, file);
        QFETCH(QStringList, named);
        const QStringList before = DesignerFactory::instance()->elementClassNames();
        QString message;
        QVERIFY(!DesignerFactory::instance()->loadPlugin(file, &message));
        QVERIFY2(message.contains(QFileInfo(file).fileName()), qPrintable(message));
        for (const QString& text : named)
            QVERIFY2(message.contains(text), qPrintable(message));
        QCOMPARE(DesignerFactory::instance()->elementClassNames(), before);
    }

    void everyRefusalHasAMessageOfItsOwn()
    {
        QSet<QString> reasons;
        const QStringList files{sample("OtherVersionPlugin"), sample("OtherBuildKeyPlugin"),
                                sample("OtherDebugPlugin"),   sample("UnverifiedPlugin"),
                                sample("GarbledPlugin"),      sample("FactorylessPlugin")};
        for (const QString& file : files) {
            QString message;
            QVERIFY(!PluginLoader::load(file, &message));
            reasons.insert(message.section(QStringLiteral(": "), 1));
        }
        QCOMPARE(reasons.size(), files.size());
    }

    void theHostGoesOnAfterRefusals()
    {
        QString message;
        QVERIFY(!DesignerFactory::instance()->loadPlugin(sample("OtherVersionPlugin"), &message));
        QVERIFY2(DesignerFactory::instance()->loadPlugin(QStringLiteral(MERIDANE_PLUGIN_FILE), &message),
                 qPrintable(message));
        const std::unique_ptr<DesignerObject> rectangle(
            DesignerFactory::instance()->createDataObject(QStringLiteral("Rectangle"), nullptr));
        QVERIFY(rectangle);
        QVERIFY(rectangle->getProperty(QStringLiteral("cornerRadius")));
        QCOMPARE(DesignerFactory::instance()->pluginName(QStringLiteral("Rectangle")),
                 QStringLiteral("VisualElements"));
    }

    void aClassThatExistsAlreadyIsRefused()
    {
        QString message;
        QVERIFY(!DesignerFactory::instance()->loadPlugin(sample("ClashingPlugin"), &message));
        QVERIFY2(message.contains(QLatin1String("\"GraphicsRectangle\" exists already")), qPrintable(message));
    }

    void aFolderOfPluginsLoadsWhatFitsAndReportsTheRest()
    {
        const QStringList messages = DesignerFactory::instance()->loadPlugins(QStringLiteral(MERIDANE_SAMPLES));
        QCOMPARE(messages.size(), 7);
        QVERIFY(DesignerFactory::instance()->elementClassNames().contains(QLatin1String("SampleElement")));
        // A second look loads nothing twice.
        QCOMPARE(DesignerFactory::instance()->loadPlugins(QStringLiteral(MERIDANE_SAMPLES)).size(), 7);
        QCOMPARE(DesignerFactory::instance()->elementClassNames().count(QLatin1String("SampleElement")), 1);
    }

    void aPatchLevelOfTheSameQtIsTaken()
    {
        PluginVerification plugin = PluginVerification::ofHost();
        plugin.version = plugin.version.section(QLatin1Char('.'), 0, 1) + QStringLiteral(".99");
        QVERIFY(PluginVerification::ofHost().accepts(plugin, nullptr));
    }

private:
    static QString sample(const char* name)
    {
        return QStringLiteral(MERIDANE_SAMPLES "/%1.so").arg(QLatin1String(name));
    }

    QString notALibrary()
    {
        QFile file(m_folder.filePath(QStringLiteral("Text.so")));
        if (file.open(QIODevice::WriteOnly))
            file.write("This is a text.\n");
        return file.fileName();
    }

    QTemporaryDir m_folder;
};

QTEST_MAIN(tst_PluginLoader)
#include "tst_PluginLoader.moc"
