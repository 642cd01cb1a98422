#include "host/core/plugins/DesignerFactory.h"
#include "host/core/project/Project.h"
#include "host/core/project/ProjectStore.h"
#include "host/core/qml/QmlExporter.h"
#include "tests/project/ProjectTestSupport.h"

#include <QDir>
#include <QProcess>
#include <QtTest>

using namespace Korvex::Meridane::Designer;
using namespace Korvex::Meridane::Designer::Test;

/// Exports of the examples are QML to which Qt's own checker has nothing to say.
class tst_QmlLint : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void exportsPass_data();
    void exportsPass();
};

void tst_QmlLint::initTestCase()
{
    QString message;
    QVERIFY2(DesignerFactory::instance()->loadPlugin(QString::fromUtf8(MERIDANE_PLUGIN_FILE), &message),
             qUtf8Printable(message));
}

void tst_QmlLint::exportsPass_data()
{
    QTest::addColumn<QString>("folder");
    const QMap<QString, QString> examples = projectsBelow(QString::fromUtf8(MERIDANE_EXAMPLES));
    QVERIFY(!examples.isEmpty());
    for (auto example = examples.cbegin(); example != examples.cend(); ++example)
        QTest::newRow(qUtf8Printable(example.key())) << example.value();
}

void tst_QmlLint::exportsPass()
{
    QFETCH(QString, folder);
    const ProjectFixture fixture;
    const auto project = load(folder);
    QVERIFY(project);
    QCOMPARE(textOf(QmlExporter::exportProject(project.get(), fixture.path("export"))), QString());
    QStringList arguments{QStringLiteral("-I"), QString::fromUtf8(MERIDANE_QML_DIR)};
    const auto files = filesOf(fixture.path("export"));
    for (auto file = files.cbegin(); file != files.cend(); ++file) {
        if (file.key().endsWith(QLatin1String(".qml")))
            arguments.append(fixture.path("export/") + file.key());
    }
    QProcess lint;
    lint.setProcessChannelMode(QProcess::MergedChannels);
    lint.start(QString::fromUtf8(MERIDANE_QMLLINT), arguments);
    QVERIFY(lint.waitForFinished(120000));
    const QByteArray output = lint.readAll();
    QVERIFY2(lint.exitStatus() == QProcess::NormalExit && lint.exitCode() == 0, output.constData());
    QCOMPARE(output, QByteArray());
}

QTEST_MAIN(tst_QmlLint)
#include "tst_QmlLint.moc"
