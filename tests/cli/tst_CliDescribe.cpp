#include "tests/cli/MeridaneProgram.h"

#include <QDir>
#include <QFile>
#include <QJsonDocument>
#include <QTemporaryDir>
#include <QTest>

namespace {

QJsonArray describe(const QStringList& classNames = {})
{
    const auto result =
        MeridaneProgram::run(QStringList{QStringLiteral("describe"), QStringLiteral("--json")} + classNames);
    if (result.status != 0 || !result.errors.isEmpty())
        return {};
    return QJsonDocument::fromJson(result.output).object().value(QLatin1String("classes")).toArray();
}

/// The rows of a table file that start with \a kind, without that first cell.
QList<QStringList> readTable(const QString& file, const QString& kind)
{
    QFile source(file);
    QList<QStringList> rows;
    if (!source.open(QIODevice::ReadOnly))
        return rows;
    const QStringList lines = QString::fromUtf8(source.readAll()).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    for (const QString& line : lines) {
        QStringList cells = line.split(QLatin1Char('\t'));
        if (cells.takeFirst() == kind)
            rows.append(cells);
    }
    return rows;
}

QString flag(const QJsonObject& object, const char* key)
{
    const QJsonValue value = object.value(QLatin1String(key));
    return value.isBool() ? QVariant(value.toBool()).toString() : QStringLiteral("no boolean");
}

QString number(const QJsonObject& object, const char* key)
{
    return QString::number(object.value(QLatin1String(key)).toInt(-1));
}

QString text(const QJsonObject& object, const char* key)
{
    const QJsonValue value = object.value(QLatin1String(key));
    return value.isString() ? value.toString() : QStringLiteral("no text");
}

} // namespace

class tst_CliDescribe : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aClassIsAsItsTableSays_data();
    void aClassIsAsItsTableSays();
    void everyClassHasTheSameKeys();
    void everyClassOfThePlugInIsThereInItsOrder();
    void askedClassesComeInTheOrderAsked();
    void propertiesComeByRank();
    void aTableIsReadable();
    void anUnknownClassIsNamedWithThoseThatExist_data();
    void anUnknownClassIsNamedWithThoseThatExist();
    void aPlugInThatIsRefusedIsNamed();
};

void tst_CliDescribe::aClassIsAsItsTableSays_data()
{
    QTest::addColumn<QString>("file");
    const QFileInfoList tables =
        QDir(QStringLiteral(MERIDANE_TEST_DATA)).entryInfoList({QStringLiteral("*.tsv")}, QDir::Files);
    QVERIFY(!tables.isEmpty());
    for (const QFileInfo& table : tables)
        QTest::addRow("%s", qPrintable(table.completeBaseName())) << table.filePath();
}

void tst_CliDescribe::aClassIsAsItsTableSays()
{
    QFETCH(QString, file);
    const QJsonArray classes = describe({QString::fromLatin1(QTest::currentDataTag())});
    QCOMPARE(classes.size(), 1);
    const QJsonObject element = classes.first().toObject();
    const QStringList identity{text(element, "className"), text(element, "displayName"), text(element, "qmlName"),
                               text(element, "graphicsItem"), text(element, "plugin")};
    QCOMPARE(readTable(file, QStringLiteral("class")), QList<QStringList>{identity});

    const QList<QStringList> properties = readTable(file, QStringLiteral("property"));
    const QJsonArray described = element.value(QLatin1String("properties")).toArray();
    QCOMPARE(described.size(), properties.size());
    for (qsizetype i = 0; i < properties.size(); ++i) {
        const QJsonObject property = described.at(i).toObject();
        QStringList expected = properties.at(i);
        const QByteArray parameters = expected.takeAt(7).toUtf8();
        const QStringList actual{number(property, "rank"), text(property, "id"),        text(property, "label"),
                                 text(property, "type"),   text(property, "default"),   number(property, "flags"),
                                 text(property, "editor"), flag(property, "validator"), flag(property, "qmlCreator")};
        QCOMPARE(actual, expected);
        QCOMPARE(property.value(QLatin1String("parameters")).toObject(), QJsonDocument::fromJson(parameters).object());
        QCOMPARE(flag(property, "allowInvalidValue"), QStringLiteral("true"));
    }

    const QList<QStringList> runtimeProperties = readTable(file, QStringLiteral("runtime"));
    const QJsonArray describedRuntime = element.value(QLatin1String("runtimeProperties")).toArray();
    QCOMPARE(describedRuntime.size(), runtimeProperties.size());
    for (qsizetype i = 0; i < runtimeProperties.size(); ++i) {
        const QJsonObject property = describedRuntime.at(i).toObject();
        const QStringList actual{text(property, "name"), text(property, "label"), number(property, "type"),
                                 flag(property, "flag")};
        QCOMPARE(actual, runtimeProperties.at(i));
    }
}

void tst_CliDescribe::everyClassHasTheSameKeys()
{
    const QStringList classKeys{QStringLiteral("className"),        QStringLiteral("displayName"),
                                QStringLiteral("graphicsItem"),     QStringLiteral("plugin"),
                                QStringLiteral("properties"),       QStringLiteral("qmlName"),
                                QStringLiteral("runtimeProperties")};
    const QStringList propertyKeys{QStringLiteral("allowInvalidValue"),
                                   QStringLiteral("default"),
                                   QStringLiteral("editor"),
                                   QStringLiteral("flags"),
                                   QStringLiteral("id"),
                                   QStringLiteral("label"),
                                   QStringLiteral("parameters"),
                                   QStringLiteral("qmlCreator"),
                                   QStringLiteral("rank"),
                                   QStringLiteral("type"),
                                   QStringLiteral("validator")};
    const QStringList runtimeKeys{QStringLiteral("flag"), QStringLiteral("label"), QStringLiteral("name"),
                                  QStringLiteral("type")};
    const QJsonArray classes = describe();
    QVERIFY(!classes.isEmpty());
    for (const QJsonValue& entry : classes) {
        const QJsonObject object = entry.toObject();
        QCOMPARE(object.keys(), classKeys);
        QVERIFY2(!text(object, "graphicsItem").isEmpty(), qPrintable(text(object, "className")));
        const QJsonArray properties = object.value(QLatin1String("properties")).toArray();
        QVERIFY(properties.size() > 2);
        for (const QJsonValue& property : properties)
            QCOMPARE(property.toObject().keys(), propertyKeys);
        const QJsonArray runtimeProperties = object.value(QLatin1String("runtimeProperties")).toArray();
        for (const QJsonValue& property : runtimeProperties)
            QCOMPARE(property.toObject().keys(), runtimeKeys);
    }
}

void tst_CliDescribe::everyClassOfThePlugInIsThereInItsOrder()
{
    QStringList names;
    const QJsonArray classes = describe();
    for (const QJsonValue& entry : classes)
        names.append(text(entry.toObject(), "className"));
    for (const char* name : {"Rectangle", "Ellipse", "Polygon"})
        QVERIFY2(names.contains(QLatin1String(name)), name);
    QStringList wanted{QStringLiteral("Rectangle"),
                       QStringLiteral("Ellipse"),
                       QStringLiteral("Image"),
                       QStringLiteral("Line"),
                       QStringLiteral("Polygon"),
                       QStringLiteral("IrregularPolygon"),
                       QStringLiteral("TextBox"),
                       QStringLiteral("PathElement"),
                       QStringLiteral("LinearGradientElement"),
                       QStringLiteral("RadialGradientElement"),
                       QStringLiteral("ConicalGradientElement")};
    wanted.removeIf([&names](const QString& name) { return !names.contains(name); });
    QCOMPARE(names, wanted);
}

void tst_CliDescribe::askedClassesComeInTheOrderAsked()
{
    const QJsonArray classes =
        describe({QStringLiteral("Screen"), QStringLiteral("Rectangle"), QStringLiteral("Screen")});
    QCOMPARE(classes.size(), 2);
    QCOMPARE(text(classes.at(0).toObject(), "className"), QStringLiteral("Screen"));
    QCOMPARE(text(classes.at(0).toObject(), "plugin"), QString());
    QCOMPARE(text(classes.at(1).toObject(), "className"), QStringLiteral("Rectangle"));
}

void tst_CliDescribe::propertiesComeByRank()
{
    const QJsonArray classes = describe();
    for (const QJsonValue& entry : classes) {
        int last = 0;
        const QJsonArray properties = entry.toObject().value(QLatin1String("properties")).toArray();
        QCOMPARE(text(properties.at(0).toObject(), "id"), QStringLiteral("position"));
        QCOMPARE(text(properties.at(1).toObject(), "id"), QStringLiteral("rotation"));
        for (const QJsonValue& property : properties) {
            const int rank = property.toObject().value(QLatin1String("rank")).toInt();
            QVERIFY(rank >= last);
            last = rank;
        }
    }
}

void tst_CliDescribe::aTableIsReadable()
{
    const auto result = MeridaneProgram::run({QStringLiteral("describe"), QStringLiteral("Rectangle")});
    QCOMPARE(result.status, 0);
    QCOMPARE(result.errors, QByteArray());
    const QList<QByteArray> lines = result.output.split('\n');
    QCOMPARE(lines.at(0), QByteArray("Rectangle (Rectangle): QML type Rectangle2, canvas item GraphicsRectangle, "
                                     "plug-in VisualElements"));
    QCOMPARE(lines.at(1), QByteArray("  properties"));
    QVERIFY(lines.at(2).contains("default"));
    QVERIFY2(result.output.contains("maximum=100, minimum=0, showSlider=yes, suffix= px"), result.output.constData());
    // Every row of the properties has its id in the same column.
    const qsizetype column = lines.at(2).indexOf("id ");
    QCOMPARE(lines.at(3).indexOf("position"), column);
    QCOMPARE(lines.at(10).indexOf("cornerRadius"), column);
    QCOMPARE(lines.at(11), QByteArray("  run-time properties"));
}

void tst_CliDescribe::anUnknownClassIsNamedWithThoseThatExist_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::newRow("unknown") << QStringList{QStringLiteral("Teapot")};
    QTest::newRow("case") << QStringList{QStringLiteral("rectangle")};
    QTest::newRow("blank") << QStringList{QStringLiteral("Rectangle ")};
    QTest::newRow("abstract") << QStringList{QStringLiteral("GradientElement")};
    QTest::newRow("canvas item") << QStringList{QStringLiteral("GraphicsEllipse")};
    QTest::newRow("after a known one") << QStringList{QStringLiteral("Rectangle"), QStringLiteral("Teapot")};
    QTest::newRow("in JSON") << QStringList{QStringLiteral("--json"), QStringLiteral("Teapot")};
}

void tst_CliDescribe::anUnknownClassIsNamedWithThoseThatExist()
{
    QFETCH(QStringList, arguments);
    const auto result = MeridaneProgram::run(QStringList{QStringLiteral("describe")} + arguments);
    QCOMPARE(result.status, 1);
    QCOMPARE(result.output, QByteArray());
    QVERIFY2(result.errors.contains('"' + arguments.constLast().toUtf8() + '"'), result.errors.constData());
    QVERIFY2(result.saysError("There are: Rectangle"), result.errors.constData());
}

void tst_CliDescribe::aPlugInThatIsRefusedIsNamed()
{
    QTemporaryDir folder;
    QFile plugin(folder.filePath(QStringLiteral("Broken.so")));
    QVERIFY(plugin.open(QIODevice::WriteOnly));
    plugin.write("no library");
    plugin.close();
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("MERIDANE_PLUGIN_PATH"), folder.path());
    const auto result = MeridaneProgram::runIn(environment, {QStringLiteral("describe"), QStringLiteral("--json")});
    QCOMPARE(result.status, 1);
    QVERIFY2(result.saysError("Broken.so"), result.errors.constData());
    QVERIFY(!QJsonDocument::fromJson(result.output).object().value(QLatin1String("classes")).toArray().isEmpty());
}

QTEST_GUILESS_MAIN(tst_CliDescribe)
#include "tst_CliDescribe.moc"
