#include "tests/architecture/LinkRules.h"

#include <QDir>
#include <QDirIterator>
#include <QFileInfo>
#include <QProcess>
#include <QTest>

using namespace Korvex::Meridane::Architecture;

namespace {

/// Standard output of a binary tool, or an empty text after a failed check.
QString outputOf(const QString& program, const QStringList& arguments)
{
    QProcess process;
    process.start(program, arguments);
    if (!process.waitForFinished() || process.exitStatus() != QProcess::NormalExit || process.exitCode() != 0) {
        QTest::qFail(qPrintable(program + QLatin1Char(' ') + arguments.join(QLatin1Char(' ')) + QLatin1String(": ")
                                + process.errorString() + QString::fromLocal8Bit(process.readAllStandardError())),
                     __FILE__, __LINE__);
        return {};
    }
    return QString::fromLocal8Bit(process.readAllStandardOutput());
}

QStringList neededBy(const QString& path)
{
    return LinkRules::neededLibraries(outputOf(QStringLiteral("readelf"), {QStringLiteral("--dynamic"), path}));
}

/// What @p path needs, by way of libraries of ours, too.
QStringList neededTransitively(const QString& path)
{
    QStringList found;
    QStringList open{path};
    while (!open.isEmpty()) {
        for (const QString& library : neededBy(open.takeFirst())) {
            if (found.contains(library))
                continue;
            found.append(library);
            const QString ours = QDir(QStringLiteral(MERIDANE_LIBRARY_DIR)).filePath(library);
            if (QFileInfo::exists(ours))
                open.append(ours);
        }
    }
    return found;
}

/// The shared libraries of the QML module that exported screens import.
QStringList displayLibraries()
{
    QStringList paths;
    QDirIterator files(QStringLiteral(MERIDANE_QML_DIR), {QStringLiteral("*.so")}, QDir::Files,
                       QDirIterator::Subdirectories);
    while (files.hasNext())
        paths.append(files.next());
    return paths;
}

} // namespace

/** What was built links and exports only what the design allows, and the parsers notice when it does not. */
class tst_LinkRules : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void commonLinksNoWidgets();
    void theDisplayModuleLinksNeitherWidgetsNorTheDesigner();
    void theDesignerCoreLinksNoPlugin();
    void theProgramsDoNotLinkThePlugin_data();
    void theProgramsDoNotLinkThePlugin();
    void nothingOfOursReachesTheNetwork_data();
    void nothingOfOursReachesTheNetwork();
    void thePluginExportsExactlyItsTwoEntryPoints();
    void neededLibrariesAreRead();
    void exportedSymbolsAreRead();
    void importedSymbolsAreRead();
    void forbiddenLibrariesAreFound();
};

void tst_LinkRules::commonLinksNoWidgets()
{
    const QStringList needed = neededTransitively(QStringLiteral(MERIDANE_COMMON));
    QVERIFY(needed.contains(QStringLiteral("libQt6Gui.so.6")));
    QCOMPARE(LinkRules::forbiddenLibraries(needed, {QStringLiteral("Qt6Widgets"), QStringLiteral("DesignerCore")}),
             QStringList());
}

void tst_LinkRules::theDisplayModuleLinksNeitherWidgetsNorTheDesigner()
{
    const QStringList libraries = displayLibraries();
    QVERIFY2(!libraries.isEmpty(), "No library of the QML module was built.");
    for (const QString& library : libraries) {
        const QStringList needed = neededTransitively(library);
        QCOMPARE(
            LinkRules::forbiddenLibraries(needed, {QStringLiteral("Qt6Widgets"), QStringLiteral("Qt6SvgWidgets"),
                                                   QStringLiteral("DesignerCore"), QStringLiteral("VisualElements")}),
            QStringList());
    }
}

void tst_LinkRules::theDesignerCoreLinksNoPlugin()
{
    const QStringList needed = neededTransitively(QStringLiteral(MERIDANE_DESIGNER_CORE));
    QVERIFY(needed.contains(QStringLiteral("libQt6Widgets.so.6")));
    QCOMPARE(LinkRules::forbiddenLibraries(needed, {QStringLiteral("VisualElements")}), QStringList());
}

void tst_LinkRules::theProgramsDoNotLinkThePlugin_data()
{
    QTest::addColumn<QString>("program");
    QTest::newRow("command line") << QStringLiteral(MERIDANE_CLI);
    QTest::newRow("application") << QStringLiteral(MERIDANE_APP);
}

void tst_LinkRules::theProgramsDoNotLinkThePlugin()
{
    QFETCH(QString, program);
    const QStringList needed = neededTransitively(program);
    QVERIFY(!LinkRules::forbiddenLibraries(needed, {QStringLiteral("DesignerCore")}).isEmpty());
    QCOMPARE(LinkRules::forbiddenLibraries(needed, {QStringLiteral("VisualElements")}), QStringList());
}

void tst_LinkRules::nothingOfOursReachesTheNetwork_data()
{
    QTest::addColumn<QString>("binary");
    for (const char* binary :
         {MERIDANE_COMMON, MERIDANE_DESIGNER_CORE, MERIDANE_PLUGIN, MERIDANE_CLI, MERIDANE_APP, MERIDANE_VIEWER})
        QTest::newRow(qPrintable(QFileInfo(QLatin1String(binary)).fileName())) << QString::fromLatin1(binary);
    const QStringList libraries = displayLibraries();
    for (const QString& library : libraries)
        QTest::newRow(qPrintable(QFileInfo(library).fileName())) << library;
}

void tst_LinkRules::nothingOfOursReachesTheNetwork()
{
    QFETCH(QString, binary);
    // Qt Qml itself links Qt Network; what counts is what our own code asks for.
    QCOMPARE(LinkRules::forbiddenLibraries(neededBy(binary), {QStringLiteral("Qt6Network"), QStringLiteral("curl")}),
             QStringList());
    const QStringList wanted = LinkRules::importedSymbols(
        outputOf(QStringLiteral("nm"), {QStringLiteral("--dynamic"), QStringLiteral("--undefined-only"), binary}));
    QVERIFY(!wanted.isEmpty());
    for (const char* symbol : {"socket", "connect", "getaddrinfo", "gethostbyname"})
        QVERIFY2(!wanted.contains(QLatin1String(symbol)), symbol);
}

void tst_LinkRules::thePluginExportsExactlyItsTwoEntryPoints()
{
    const QString output =
        outputOf(QStringLiteral("nm"),
                 {QStringLiteral("--dynamic"), QStringLiteral("--defined-only"), QStringLiteral(MERIDANE_PLUGIN)});
    const QStringList expected{QStringLiteral("qt_plugin_instance"),
                               QStringLiteral("qt_plugin_query_verification_data")};
    QCOMPARE(LinkRules::exportedSymbols(output), expected);
}

void tst_LinkRules::neededLibrariesAreRead()
{
    const QString output =
        QStringLiteral("\nDynamic section at offset 0x2d90 contains 30 entries:\n"
                       "  Tag        Type                         Name/Value\n"
                       " 0x0000000000000001 (NEEDED)             Shared library: [libQt6Widgets.so.6]\n"
                       " 0x0000000000000001 (NEEDED)             Shared library: [libCommon.so]\n"
                       " 0x000000000000000e (SONAME)             Library soname: [libDesignerCore.so]\n"
                       " 0x000000000000001d (RUNPATH)            Library runpath: [$ORIGIN]\n");
    const QStringList expected{QStringLiteral("libQt6Widgets.so.6"), QStringLiteral("libCommon.so")};
    QCOMPARE(LinkRules::neededLibraries(output), expected);
    QCOMPARE(LinkRules::neededLibraries(QString()), QStringList());
}

void tst_LinkRules::exportedSymbolsAreRead()
{
    const QString output = QStringLiteral("0000000000004a10 T qt_plugin_query_verification_data\n"
                                          "0000000000000000 A MERIDANE_1\n"
                                          "0000000000004a20 W _ZN4Leak4leakEv@@MERIDANE_1\n"
                                          "0000000000004a00 T qt_plugin_instance\n"
                                          "0000000000008010 u _ZN4Leak6uniqueE\n");
    const QStringList expected{QStringLiteral("_ZN4Leak4leakEv"), QStringLiteral("_ZN4Leak6uniqueE"),
                               QStringLiteral("qt_plugin_instance"),
                               QStringLiteral("qt_plugin_query_verification_data")};
    QCOMPARE(LinkRules::exportedSymbols(output), expected);
}

void tst_LinkRules::importedSymbolsAreRead()
{
    const QString output = QStringLiteral("                 w __cxa_finalize@GLIBC_2.2.5\n"
                                          "                 U connect@GLIBC_2.2.5\n"
                                          "                 U _ZN7QSocketC1Ev\n"
                                          "0000000000004a10 T socket\n");
    const QStringList expected{QStringLiteral("_ZN7QSocketC1Ev"), QStringLiteral("__cxa_finalize"),
                               QStringLiteral("connect")};
    QCOMPARE(LinkRules::importedSymbols(output), expected);
}

void tst_LinkRules::forbiddenLibrariesAreFound()
{
    const QStringList needed{QStringLiteral("libQt6Widgets.so.6"), QStringLiteral("libQt6Gui.so.6"),
                             QStringLiteral("/somewhere/plugins/VisualElements.so"),
                             QStringLiteral("libQt6WidgetsLookalike.so.1")};
    const QStringList expected{QStringLiteral("libQt6Widgets.so.6"),
                               QStringLiteral("/somewhere/plugins/VisualElements.so")};
    QCOMPARE(LinkRules::forbiddenLibraries(needed, {QStringLiteral("Qt6Widgets"), QStringLiteral("VisualElements")}),
             expected);
}

QTEST_GUILESS_MAIN(tst_LinkRules)
#include "tst_LinkRules.moc"
