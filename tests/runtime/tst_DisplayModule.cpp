#include <QDir>
#include <QProcess>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

namespace {
QString importPath()
{
    return QCoreApplication::applicationDirPath() + QLatin1String("/../qml");
}

QString run(const QString& program, const QStringList& arguments, int* exitCode)
{
    QProcess process;
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start(program, arguments);
    if (!process.waitForFinished()) {
        *exitCode = -1;
        return process.errorString();
    }
    *exitCode = process.exitCode();
    return QString::fromLocal8Bit(process.readAll());
}

const QByteArray Sample = R"(import Meridane.Display

Screen {
	id: main
	width: 800
	height: 480
	color: "#ffffff"

	Group {
		id: group1
		x: 20.5
		y: 30
		rotation: 30
		fixedPoint: "TopLeft"

		Rectangle2 {
			id: rectangle1
			x: 10
			y: 20
			width: 100
			height: 75
			color: "#f8971d"
			cornerRadius: 12
			borderWidth: 2
			borderColor: "#80000000"
		}
	}
}
)";
} // namespace

class TestDisplayModule : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void needsNoWidgets();
    void typesAreKnownToQmllint();
    void qmllintFindsMistakes();
    void importBringsNothingElse();
    void baseTypesCannotBeCreated();

private:
    QString lint(const QByteArray& text, int* exitCode) const;
};

QString TestDisplayModule::lint(const QByteArray& text, int* exitCode) const
{
    const QTemporaryDir folder;
    QFile file(folder.filePath(QStringLiteral("Sample.qml")));
    if (!file.open(QIODevice::WriteOnly) || file.write(text) != text.size() || !file.flush()) {
        return file.errorString();
    }
    return run(QStringLiteral(MERIDANE_QMLLINT), {QStringLiteral("-I"), importPath(), file.fileName()}, exitCode);
}

void TestDisplayModule::needsNoWidgets()
{
    const QDir module(importPath() + QLatin1String("/Meridane/Display"));
    const QStringList libraries = module.entryList({QStringLiteral("*.so")}, QDir::Files);
    QVERIFY(!libraries.isEmpty());
    for (const QString& library : libraries) {
        int exitCode = -1;
        // Everything that is loaded with it, directly or not.
        const QString needed = run(QStringLiteral("ldd"), {module.filePath(library)}, &exitCode);
        QCOMPARE(exitCode, 0);
        QVERIFY(needed.contains(QLatin1String("libQt6Quick")));
        QVERIFY(needed.contains(QLatin1String("libCommon")));
        QVERIFY(!needed.contains(QLatin1String("libQt6Widgets")));
        QVERIFY(!needed.contains(QLatin1String("not found")));
    }
}

void TestDisplayModule::typesAreKnownToQmllint()
{
    if (QByteArrayLiteral(MERIDANE_QMLLINT).isEmpty()) {
        QSKIP("qmllint is not at hand");
    }
    int exitCode = -1;
    const QString output = lint(Sample, &exitCode);
    QVERIFY2(exitCode == 0 && output.isEmpty(), qPrintable(output));
    const QString main = lint("import Meridane.Display\n\nDisplay {\n\twidth: 800\n\theight: 480\n"
                              "\tscreens: [ \"main\", \"settings\" ]\n}\n",
                              &exitCode);
    QVERIFY2(exitCode == 0 && main.isEmpty(), qPrintable(main));
}

void TestDisplayModule::qmllintFindsMistakes()
{
    if (QByteArrayLiteral(MERIDANE_QMLLINT).isEmpty()) {
        QSKIP("qmllint is not at hand");
    }
    int exitCode = -1;
    const QString output = lint(QByteArray(Sample).replace("cornerRadius", "cornerRadios"), &exitCode);
    QVERIFY(output.contains(QLatin1String("cornerRadios")));
}

void TestDisplayModule::importBringsNothingElse()
{
    QQmlEngine engine;
    engine.addImportPath(importPath());
    QQmlComponent ours(&engine);
    ours.setData(Sample, QUrl());
    QVERIFY2(ours.isReady(), qPrintable(ours.errorString()));
    QQmlComponent foreign(&engine);
    foreign.setData("import Meridane.Display\nRectangle { }\n", QUrl());
    QVERIFY(foreign.isError());
}

void TestDisplayModule::baseTypesCannotBeCreated()
{
    QQmlEngine engine;
    engine.addImportPath(importPath());
    for (const char* type : {"DisplayItem", "DisplayElement", "OutlinePainter"}) {
        QQmlComponent component(&engine);
        component.setData(QByteArray("import Meridane.Display\n") + type + " { }\n", QUrl());
        QVERIFY(component.isError());
    }
}

QTEST_MAIN(TestDisplayModule)
#include "tst_DisplayModule.moc"
