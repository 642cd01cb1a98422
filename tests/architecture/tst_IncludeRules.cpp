#include "tests/architecture/IncludeRules.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QTest>

using namespace Korvex::Meridane::Architecture;

namespace {

QString readText(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

/// The folders of the repository that hold sources of ours.
QStringList sourceFolders()
{
    QStringList folders;
    for (const char* folder : {"host", "plugin", "shapes", "lines", "text", "images", "gradients", "runtime", "cli",
                               "app", "translations", "tests", "benchmarks", "fuzz", "examples"})
        folders.append(QLatin1String(folder));
    return folders;
}

/// Paths of all sources and headers of ours, relative to the root.
QStringList sourcePaths()
{
    const QDir root(QStringLiteral(MERIDANE_SOURCE_DIR));
    QStringList paths;
    for (const QString& folder : sourceFolders()) {
        QDirIterator files(root.filePath(folder), {QStringLiteral("*.h"), QStringLiteral("*.cpp")}, QDir::Files,
                           QDirIterator::Subdirectories);
        while (files.hasNext())
            paths.append(root.relativeFilePath(files.next()));
    }
    paths.sort();
    return paths;
}

/// The headers of Qt's Widgets module, by both of their names.
QSet<QString> widgetHeaders()
{
    const QStringList names = QDir(QStringLiteral(MERIDANE_QT_WIDGETS_DIR)).entryList(QDir::Files);
    return {names.cbegin(), names.cend()};
}

/// A tree that has every folder once, for the samples.
QSet<QString> sampleTree()
{
    QSet<QString> files;
    for (const char* path :
         {"host/common/PaintHelper.h", "host/core/objects/Element.h", "plugin/VisualElements.h", "shapes/Ellipse.h",
          "lines/Line.h", "runtime/DisplayItem.h", "cli/Command.h", "app/MainWindow.h"})
        files.insert(QLatin1String(path));
    return files;
}

IncludeRules sampleRules()
{
    return {sampleTree(), {QStringLiteral("QWidget"), QStringLiteral("QStyleOptionGraphicsItem")}};
}

} // namespace

/** The include rules hold in the tree, and the checker notices when one does not. */
class tst_IncludeRules : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theTreeKeepsTheRules();
    void aBrokenRuleIsReported_data();
    void aBrokenRuleIsReported();
    void whatIsAllowedIsNotReported_data();
    void whatIsAllowedIsNotReported();
    void aSecondReaderOfAWidgetHeaderInCommonIsReported();
    void commentsAreNoCode();
    void theLineOfALiteralIsCounted();
};

void tst_IncludeRules::theTreeKeepsTheRules()
{
    const QStringList paths = sourcePaths();
    QVERIFY2(paths.size() > 100, "The sources were not found.");
    const QSet<QString> widgets = widgetHeaders();
    QVERIFY2(widgets.contains(QStringLiteral("QWidget")), "Qt's widget headers were not found.");

    QVector<SourceFile> files;
    for (const QString& path : paths)
        files.append(SourceFile(path, readText(QDir(QStringLiteral(MERIDANE_SOURCE_DIR)).filePath(path))));
    const IncludeRules rules({paths.cbegin(), paths.cend()}, widgets);
    const QStringList found = rules.violations(files);
    for (const QString& message : found)
        qWarning().noquote() << message;
    QCOMPARE(found.size(), 0);
}

void tst_IncludeRules::aBrokenRuleIsReported_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("expected");
    const auto row = [](const char* name, const char* path, const char* text, const char* expected) {
        QTest::newRow(name) << QString::fromLatin1(path) << QString::fromLatin1(text) << QString::fromLatin1(expected);
    };

    row("plug-in uses the application", "plugin/A.cpp", "#include \"app/MainWindow.h\"\n", "plugin may not use");
    row("plug-in uses the command line", "plugin/A.cpp", "#include \"cli/Command.h\"\n", "plugin may not use");
    row("plug-in uses the display", "plugin/A.cpp", "#include \"runtime/DisplayItem.h\"\n", "plugin may not use");
    row("element uses the display", "shapes/A.cpp", "#include \"runtime/DisplayItem.h\"\n", "shapes may not use");
    row("element uses the plug-in", "text/A.cpp", "#include \"plugin/VisualElements.h\"\n", "text may not use");
    row("element uses another element", "shapes/A.cpp", "#include \"lines/Line.h\"\n", "shapes may not use");
    row("core uses the plug-in", "host/core/A.cpp", "#include \"plugin/VisualElements.h\"\n", "host/core may not");
    row("core uses an element", "host/core/A.cpp", "#include \"shapes/Ellipse.h\"\n", "host/core may not use");
    row("common uses core", "host/common/A.cpp", "#include \"host/core/objects/Element.h\"\n", "host/common may not");
    row("common uses widgets", "host/common/A.cpp", "#include <QWidget>\n", "may not use widgets");
    row("common uses widgets by module", "host/common/A.cpp", "#include <QtWidgets/QWidget>\n", "may not use widgets");
    row("header of common uses a widget header", "host/common/A.h",
        "#pragma once\n#include <QStyleOptionGraphicsItem>\n", "A.h:2: host/common may not use widgets");
    row("display uses core", "runtime/A.cpp", "#include \"host/core/objects/Element.h\"\n", "runtime may not use");
    row("display uses widgets", "runtime/A.cpp", "#include <QtWidgets>\n", "may not use widgets");
    row("application uses an element", "app/A.cpp", "#include \"shapes/Ellipse.h\"\n", "app may not use");
    row("application uses the plug-in", "app/A.cpp", "#include \"plugin/VisualElements.h\"\n", "app may not use");
    row("command line uses an element", "cli/A.cpp", "#include \"lines/Line.h\"\n", "cli may not use");
    row("extractor uses the host", "translations/A.cpp", "#include \"host/common/PaintHelper.h\"\n",
        "translations may not use");
    row("host names an element", "host/core/A.cpp", "auto n = QStringLiteral(\"Ellipse\");\n", "class \"Ellipse\"");
    row("host names a canvas item", "host/core/A.cpp", "\n\nauto n = \"GraphicsEllipse\";\n",
        "A.cpp:3: the host names");
    row("host names an editor", "host/core/A.cpp", "f(\"PointListEditor\");\n", "class \"PointListEditor\"");
    row("header without pragma", "shapes/A.h", "#ifndef A\n#define A\n#endif\n", "starts with #pragma once");
    row("pragma after code", "shapes/A.h", "int a;\n#pragma once\n", "starts with #pragma once");
    row("include relative to the file", "shapes/A.cpp", "#include \"Ellipse.h\"\n", "no file of ours");
    row("include of what is not there", "shapes/A.cpp", "#include \"shapes/Gone.h\"\n", "no file of ours");
    row("our file in brackets", "shapes/A.cpp", "#  include <shapes/Ellipse.h>\n", "in brackets");
    row("private header of Qt", "host/core/A.cpp", "#include <private/qobject_p.h>\n", "private to Qt");
    row("private header of Qt by module", "tests/A.cpp", "#include <QtCore/private/qobject_p.h>\n", "private to Qt");
}

void tst_IncludeRules::aBrokenRuleIsReported()
{
    QFETCH(QString, path);
    QFETCH(QString, text);
    QFETCH(QString, expected);
    const QStringList found = sampleRules().violations(SourceFile(path, text));
    QCOMPARE(found.size(), 1);
    QVERIFY2(found.first().contains(expected), qPrintable(found.first()));
    QVERIFY2(found.first().startsWith(path), qPrintable(found.first()));
}

void tst_IncludeRules::whatIsAllowedIsNotReported_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("text");
    const auto row = [](const char* name, const char* path, const char* text) {
        QTest::newRow(name) << QString::fromLatin1(path) << QString::fromLatin1(text);
    };

    row("plug-in uses elements and host", "plugin/A.cpp",
        "#include \"shapes/Ellipse.h\"\n#include \"host/core/objects/Element.h\"\n#include <QWidget>\n");
    row("element uses itself and the host", "shapes/A.cpp",
        "#include \"shapes/Ellipse.h\"\n#include \"host/common/PaintHelper.h\"\n");
    row("display uses common", "runtime/A.cpp", "#include \"host/common/PaintHelper.h\"\n#include <QQuickItem>\n");
    row("a source of common reads the option", "host/common/A.cpp", "#include <QStyleOptionGraphicsItem>\n");
    row("… by its module", "host/common/A.cpp", "#include <QtWidgets/QStyleOptionGraphicsItem>\n");
    row("tests use everything", "tests/shapes/A.cpp", "#include \"shapes/Ellipse.h\"\n#include \"cli/Command.h\"\n");
    row("generated", "tests/A.cpp", "#include \"A.moc\"\n");
    row("comment before pragma", "shapes/A.h", "/* Why. */\n// More.\n\n#pragma once\n");
    row("the host's own item", "host/core/A.cpp", "f(QStringLiteral(\"GraphicsRectangle\"));\n");
    row("a text for the user", "host/core/A.cpp", "LocalizationHelper::coreString(QStringLiteral(\"Image\"));\n");
    row("element names itself", "shapes/A.cpp", "f(QStringLiteral(\"Ellipse\"));\n");
    row("part of a longer text", "host/core/A.cpp", "f(\"Line width\");\n");
}

void tst_IncludeRules::whatIsAllowedIsNotReported()
{
    QFETCH(QString, path);
    QFETCH(QString, text);
    QCOMPARE(sampleRules().violations(SourceFile(path, text)), QStringList());
}

void tst_IncludeRules::aSecondReaderOfAWidgetHeaderInCommonIsReported()
{
    const QString text = QStringLiteral("#include <QStyleOptionGraphicsItem>\n");
    const SourceFile first(QStringLiteral("host/common/A.cpp"), text);
    const SourceFile second(QStringLiteral("host/common/B.cpp"), text);
    QCOMPARE(sampleRules().violations(QVector<SourceFile>{first}), QStringList());
    const QStringList found = sampleRules().violations(QVector<SourceFile>{first, second});
    QCOMPARE(found.size(), 1);
    QVERIFY(found.first().contains(QLatin1String("host/common/A.cpp, host/common/B.cpp")));
}

void tst_IncludeRules::commentsAreNoCode()
{
    const QString text = QStringLiteral("// #include \"app/MainWindow.h\"\n/*\n#include \"cli/Command.h\"\n*/\n"
                                        "auto url = \"http://host\"; // \"Ellipse\"\nint n = 10'000; char c = '\"';\n"
                                        "auto raw = R\"(// \"Ellipse\" )\";\n#include <QObject>\n");
    const SourceFile file(QStringLiteral("host/core/A.cpp"), text);
    QCOMPARE(file.includes().size(), 1);
    QCOMPARE(file.includes().first().target, QStringLiteral("QObject"));
    QCOMPARE(file.includes().first().line, 8);
    QCOMPARE(file.literals().size(), 2);
    QCOMPARE(file.literals().first().text, QStringLiteral("http://host"));
    QCOMPARE(sampleRules().violations(file), QStringList());
}

void tst_IncludeRules::theLineOfALiteralIsCounted()
{
    const SourceFile file(QStringLiteral("host/core/A.cpp"), QStringLiteral("a(\"x\");\n\nb(\"y\", \"z\\\"\");\n"));
    QCOMPARE(file.literals().size(), 3);
    QCOMPARE(file.literals().at(0).line, 1);
    QCOMPARE(file.literals().at(1).line, 3);
    QCOMPARE(file.literals().at(2).text, QStringLiteral("z\\\""));
}

QTEST_GUILESS_MAIN(tst_IncludeRules)
#include "tst_IncludeRules.moc"
