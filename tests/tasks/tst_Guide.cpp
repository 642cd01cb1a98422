#include "app/CommandSource.h"
#include "app/HelpActions.h"
#include "tests/app/TestWindow.h"
#include "tests/tasks/GuidePictures.h"

#include <QDir>
#include <QRegularExpression>
#include <QSet>

using namespace Korvex::Meridane::Designer;
using Test::GuidePictures;
using Test::TestWindow;

namespace {

QString sources()
{
    return QStringLiteral(MERIDANE_SOURCE_DIR);
}

QString guide()
{
    return sources() + QStringLiteral("/docs/guide");
}

QString textOf(const QString& file)
{
    QFile text(file);
    return text.open(QIODevice::ReadOnly) ? QString::fromUtf8(text.readAll()) : QString();
}

/// The pages of the guide and the page that leads to it.
QStringList pages()
{
    QStringList files{sources() + QStringLiteral("/README.md")};
    const QStringList names = QDir(guide()).entryList({QStringLiteral("*.md")}, QDir::Files, QDir::Name);
    for (const QString& name : names)
        files.append(guide() + QLatin1Char('/') + name);
    return files;
}

struct Link
{
    QString text;
    QString target;
    bool isPicture;
};

QList<Link> linksOf(const QString& markdown)
{
    static const QRegularExpression form(QStringLiteral(R"((!?)\[([^\]]*)\]\(([^)\s]+)\))"));
    QList<Link> links;
    for (auto match = form.globalMatch(markdown); match.hasNext();) {
        const QRegularExpressionMatch found = match.next();
        links.append({found.captured(2), found.captured(3), !found.captured(1).isEmpty()});
    }
    return links;
}

/// The places of \a markdown that a link can name: its headings in lower case, without punctuation, with hyphens.
QSet<QString> anchorsOf(const QString& markdown)
{
    static const QRegularExpression heading(QStringLiteral("^#+ (.+)$"), QRegularExpression::MultilineOption);
    static const QRegularExpression dropped(QStringLiteral("[^\\w\\- ]"));
    QSet<QString> anchors;
    for (auto match = heading.globalMatch(markdown); match.hasNext();) {
        QString name = match.next().captured(1).toLower().remove(dropped);
        anchors.insert(name.replace(QLatin1Char(' '), QLatin1Char('-')));
    }
    return anchors;
}

/// Whether only some systems know \a keys, as one more shortcut for what the others have, too.
bool isOfOneSystem(const QKeySequence& keys)
{
    static const QStringList known{QStringLiteral("Alt+Backspace"), QStringLiteral("Ctrl+F4"), QStringLiteral("F14"),
                                   QStringLiteral("F16"),           QStringLiteral("F18"),     QStringLiteral("F20")};
    return known.contains(keys.toString(QKeySequence::PortableText));
}

/// The shortcuts that the window comes with, as rows of a table.
QStringList shortcutRows(const MainWindow* window)
{
    QStringList rows;
    const QList<Command> commands = CommandSource::actions(window);
    for (const Command& command : commands) {
        const QString name = command.id.section(QLatin1Char(':'), 1);
        const auto* action = window->findChild<QAction*>(name);
        if (!action || action->shortcuts().isEmpty())
            continue;
        QStringList keys;
        const QList<QKeySequence> shortcuts = action->shortcuts();
        for (const QKeySequence& each : shortcuts) {
            if (isOfOneSystem(each))
                continue;
            keys.append(QLatin1Char('`') + each.toString(QKeySequence::PortableText) + QLatin1Char('`'));
        }
        QString text = command.text;
        rows.append(QStringLiteral("| %1 | %2 | %3 |")
                        .arg(command.path, text.remove(QChar(0x2026)).trimmed(), keys.join(QLatin1String(", "))));
    }
    return rows;
}

} // namespace

/// What the user guide says and shows is there.
class tst_Guide : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QVERIFY(TestWindow::isolate()); }

    void theProgramOpensTheFirstPageOfTheGuide()
    {
        QVERIFY(textOf(guide() + QStringLiteral("/README.md")).startsWith(QLatin1String("# ")));
        QVERIFY(QFileInfo(HelpActions::guideFile()).isFile());
    }

    void everyLinkLeadsSomewhere_data()
    {
        QTest::addColumn<QString>("page");
        const QStringList files = pages();
        for (const QString& file : files)
            QTest::newRow(qPrintable(QDir(sources()).relativeFilePath(file))) << file;
    }

    void everyLinkLeadsSomewhere()
    {
        QFETCH(QString, page);
        const QString text = textOf(page);
        QVERIFY(!text.isEmpty());
        const QList<Link> links = linksOf(text);
        for (const Link& link : links) {
            if (link.target.startsWith(QLatin1String("https://")))
                continue;
            const QString path = link.target.section(QLatin1Char('#'), 0, 0);
            const QString anchor = link.target.section(QLatin1Char('#'), 1);
            const QString file = path.isEmpty() ? page : QFileInfo(page).dir().filePath(path);
            QVERIFY2(QFileInfo::exists(file), qPrintable(link.target));
            if (!anchor.isEmpty())
                QVERIFY2(anchorsOf(textOf(file)).contains(anchor), qPrintable(link.target));
        }
    }

    void theGuideLeadsToNothingOutsideOfItself()
    {
        // It is installed as it stands, without what is beside it here.
        const QStringList files = pages();
        for (const QString& file : files) {
            const QList<Link> links = linksOf(textOf(file));
            for (const Link& link : links)
                QVERIFY2(QFileInfo(file).path() != guide() || !link.target.contains(QLatin1String("..")),
                         qPrintable(link.target));
        }
    }

    void everyPictureIsMadeByTheTestsAndShownSomewhere()
    {
        QSet<QString> shown;
        const QStringList files = pages();
        for (const QString& file : files) {
            const QList<Link> links = linksOf(textOf(file));
            for (const Link& link : links) {
                if (!link.isPicture)
                    continue;
                QVERIFY2(link.text.size() > 10, qPrintable(link.target + QStringLiteral(" lacks a description")));
                shown.insert(QFileInfo(link.target).completeBaseName());
            }
        }
        const QStringList names = GuidePictures::names();
        const QSet<QString> made(names.begin(), names.end());
        QCOMPARE((made - shown).values(), QStringList());
        QCOMPARE((shown - made).values(), QStringList());
        QStringList kept = QDir(guide() + QStringLiteral("/pictures")).entryList(QDir::Files, QDir::Name);
        kept.replaceInStrings(QStringLiteral(".png"), QString());
        QStringList expected = names;
        expected.sort();
        QCOMPARE(kept, expected);
    }

    void picturesAreSmallAndCanBeRead()
    {
        constexpr qint64 Most = 130'000; // bytes
        const QStringList names = GuidePictures::names();
        for (const QString& name : names) {
            const QString file = guide() + QStringLiteral("/pictures/%1.png").arg(name);
            QVERIFY2(!QImage(file).isNull(), qPrintable(name));
            QVERIFY2(QFileInfo(file).size() <= Most, qPrintable(name));
        }
    }

    void theTableOfShortcutsIsThatOfTheProgram()
    {
        const TestWindow test;
        const QStringList expected = shortcutRows(test.window.get());
        QVERIFY(expected.size() > 30);
        QStringList written;
        const QStringList lines = textOf(guide() + QStringLiteral("/shortcuts.md")).split(QLatin1Char('\n'));
        const qsizetype first = lines.indexOf(QStringLiteral("| Menu | Command | Keys |"));
        QVERIFY(first >= 0);
        for (qsizetype line = first + 2; line < lines.size() && lines.at(line).startsWith(QLatin1Char('|')); ++line)
            written.append(lines.at(line));
        if (written != expected)
            qInfo().noquote() << QLatin1String("The table should be\n") + expected.join(QLatin1Char('\n'));
        QCOMPARE(written, expected);
    }
};

QTEST_MAIN(tst_Guide)
#include "tst_Guide.moc"
