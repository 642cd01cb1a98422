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

	Ellipse {
		id: ellipse1
		x: 150.25
		y: 20
		rotation: -12.5
		fixedPoint: "BottomRight"
		width: 60.5
		height: 40
		color: "#80f8971d"
		borderWidth: 3
		borderColor: "#ffffff"
	}

	Polygon {
		id: polygon1
		x: 300
		y: 20
		edges: 8
		edgeLength: 24.5
		color: "#f8971d"
		borderWidth: 1
		borderColor: "#000000"
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
    void qmllintFindsMistakes_data();
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

void TestDisplayModule::qmllintFindsMistakes_data()
{
    QTest::addColumn<QByteArray>("name");
    // Properties of each type, of its bases and of the library below.
    for (const char* name : {"cornerRadius", "edgeLength", "borderColor", "fixedPoint", "rotation"}) {
        QTest::newRow(name) << QByteArray(name);
    }
}

void TestDisplayModule::qmllintFindsMistakes()
{
    if (QByteArrayLiteral(MERIDANE_QMLLINT).isEmpty()) {
        QSKIP("qmllint is not at hand");
    }
    QFETCH(QByteArray, name);
    QVERIFY(Sample.contains(name + ':'));
    const QByteArray mistake = name + 'X';
    int exitCode = -1;
    const QString output = lint(QByteArray(Sample).replace(name + ':', mistake + ':'), &exitCode);
    QVERIFY2(output.contains(QString::fromLatin1(mistake)), qPrintable(output));
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
    for (const char* type : {"BorderedItem", "DisplayItem", "DisplayElement", "OutlinePainter"}) {
        QQmlComponent component(&engine);
        component.setData(QByteArray("import Meridane.Display\n") + type + " { }\n", QUrl());
        QVERIFY(component.isError());
    }
}

QTEST_MAIN(TestDisplayModule)
#include "tst_DisplayModule.moc"
