#include "tests/cli/MeridaneProgram.h"

#include <QRegularExpression>
#include <QTest>

namespace {

const QStringList commands{QStringLiteral("new"),    QStringLiteral("export"),   QStringLiteral("render"),
                           QStringLiteral("check"),  QStringLiteral("describe"), QStringLiteral("apply"),
                           QStringLiteral("preview")};

QStringList words(const char* text)
{
    return QString::fromUtf8(text).split(QLatin1Char(' '), Qt::SkipEmptyParts);
}

} // namespace

/// What can be said without a project: version, help and wrong usage.
class tst_CliUsage : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theVersionIsPrinted();
    void theVersionNeedsNoPlatform();
    void theHelpNamesEveryCommand();
    void everyCommandHasAHelp();
    void wrongUsageGivesStatusTwoAndTheUsage_data();
    void wrongUsageGivesStatusTwoAndTheUsage();
};

void tst_CliUsage::theVersionIsPrinted()
{
    for (const char* option : {"--version", "-v"}) {
        const auto result = MeridaneProgram::run(words(option));
        QCOMPARE(result.status, 0);
        QVERIFY(QRegularExpression(QStringLiteral("^meridane [0-9]+\\.[0-9]+\\.[0-9]+\n$"))
                    .match(QString::fromUtf8(result.output))
                    .hasMatch());
        QCOMPARE(result.errors, QByteArray());
    }
}

void tst_CliUsage::theVersionNeedsNoPlatform()
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("none-of-these"));
    QCOMPARE(MeridaneProgram::runIn(environment, words("--version")).status, 0);
    QCOMPARE(MeridaneProgram::runIn(environment, words("render --help")).status, 0);
}

void tst_CliUsage::theHelpNamesEveryCommand()
{
    for (const char* option : {"--help", "-h"}) {
        const auto result = MeridaneProgram::run(words(option));
        QCOMPARE(result.status, 0);
        for (const QString& command : commands)
            QVERIFY2(result.output.contains("\n  " + command.toUtf8() + ' '), qPrintable(command));
        QCOMPARE(result.errors, QByteArray());
    }
}

void tst_CliUsage::everyCommandHasAHelp()
{
    for (const QString& command : commands) {
        const auto result = MeridaneProgram::run({command, QStringLiteral("--help")});
        QCOMPARE(result.status, 0);
        QVERIFY2(result.output.startsWith("Usage: meridane " + command.toUtf8() + ' '), result.output.constData());
        QCOMPARE(result.errors, QByteArray());
    }
}

void tst_CliUsage::wrongUsageGivesStatusTwoAndTheUsage_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QByteArray>("message");

    const auto row = [](const char* arguments, const char* message) {
        QTest::newRow(arguments) << words(arguments) << QByteArray(message);
    };
    row("", "A command is missing");
    row("--", "A command is missing");
    row("--nonsense", "nonsense");
    row("-x", "x");
    row("--version=1", "version");
    row("--version new", "new");
    row("frobnicate", "There is no command \"frobnicate\"");
    row("Render a --output b", "There is no command \"Render\"");
    row("new", "FOLDER");
    row("new --", "FOLDER");
    row("new a b", "\"b\"");
    row("new a --size", "size");
    row("new a --size 10", "\"10\"");
    row("new a --size 0x10", "\"0x10\"");
    row("new a --size 10x20001", "\"10x20001\"");
    row("new a --size -1x5", "\"-1x5\"");
    row("new a --size 10.5x5", "\"10.5x5\"");
    row("new a --size 99999999999x5", "\"99999999999x5\"");
    row("new a --size 10x5 --size 20x5", "more than once");
    row("new a --unknown", "unknown");
    row("export a", "--output");
    row("export --output b", "PROJECT");
    row("export a b --output c", "\"b\"");
    row("render a", "--output");
    row("render --output b", "PROJECT");
    row("render a --output b --scale 0", "\"0\"");
    row("render a --output b --scale nan", "\"nan\"");
    row("render a --output b --scale -2", "\"-2\"");
    row("render a --output b --scale 1e9", "\"1e9\"");
    row("render a --output b --scale two", "\"two\"");
    row("render a --output b --tolerance 3", "--compare");
    row("render a --output b --compare c --tolerance 256", "\"256\"");
    row("render a --output b --compare c --tolerance -1", "\"-1\"");
    row("render a --output b --compare ./b", "the same");
    row("check", "PROJECT");
    row("check a b", "\"b\"");
    row("check a --format xml", "\"xml\"");
    row("check a --format", "format");
    row("describe --xml", "xml");
    row("describe --json=yes", "json");
    row("apply a", "EDITS");
    row("apply a b c", "\"c\"");
    row("apply a b --dry", "dry");
    row("preview", "PROJECT");
    row("preview a b", "\"b\"");
    row("preview a --grab", "grab");

    QTest::newRow("empty command") << QStringList{QString()} << QByteArray("There is no command \"\"");
    QTest::newRow("empty project") << QStringList{QStringLiteral("check"), QString()} << QByteArray("PROJECT");
    QTest::newRow("empty option") << QStringList{QStringLiteral("new"), QStringLiteral("a"), QStringLiteral("--name"),
                                                 QString()}
                                  << QByteArray("--name");
}

void tst_CliUsage::wrongUsageGivesStatusTwoAndTheUsage()
{
    QFETCH(QStringList, arguments);
    QFETCH(QByteArray, message);
    const auto result = MeridaneProgram::run(arguments);
    QCOMPARE(result.status, 2);
    QCOMPARE(result.output, QByteArray());
    QVERIFY2(result.errors.startsWith("meridane: "), result.errors.constData());
    QVERIFY2(result.errors.split('\n').constFirst().contains(message), result.errors.constData());
    QVERIFY2(result.errors.contains("\nUsage: meridane "), result.errors.constData());
}

QTEST_GUILESS_MAIN(tst_CliUsage)
#include "tst_CliUsage.moc"
