#include "app/CommandSearch.h"
#include "app/FuzzyMatch.h"

#include <QElapsedTimer>
#include <QtTest>

#include <rapidcheck.h>

using namespace Korvex::Meridane::Designer;

namespace {

Command command(const char* text, const char* path = "", const char* keywords = "", bool enabled = true)
{
    Command command;
    command.id = QString::fromLatin1(text);
    command.text = QString::fromLatin1(text);
    command.path = QString::fromLatin1(path);
    command.keywords = QString::fromLatin1(keywords);
    command.enabled = enabled;
    return command;
}

QList<Command> someCommands()
{
    return {command("New", "File", "create"),
            command("Open", "File"),
            command("Save", "File", "store"),
            command("Save As", "File"),
            command("Undo", "Edit", "back"),
            command("Duplicate", "Edit", "clone copy"),
            command("Delete", "Edit", "remove"),
            command("Zoom In", "View", "magnify"),
            command("Zoom Out", "View"),
            command("Import Images", "File", "picture"),
            command("Bring to Front", "Edit", "z-order layer"),
            command("Insert Rectangle", "Elements", "add"),
            command("Select labelTarget", "main", "labelTarget")};
}

/// A few letters of a small alphabet, so that texts and queries meet, with spaces and capitals among them.
rc::Gen<QString> fewLetters(int longest)
{
    return rc::gen::map(
        rc::gen::resize(longest, rc::gen::container<std::string>(rc::gen::elementOf(std::string("aabbccdeAB  1")))),
        [](const std::string& text) { return QString::fromStdString(text); });
}

} // namespace

/// What is found for a few typed letters, and in which order.
class tst_CommandSearch : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aFewLettersFindTheCommand_data()
    {
        QTest::addColumn<QString>("query");
        QTest::addColumn<QString>("first");
        QTest::newRow("beginning") << "dup"
                                   << "Duplicate";
        QTest::newRow("initials") << "zi"
                                  << "Zoom In";
        QTest::newRow("initials in capitals") << "SAs"
                                              << "Save As";
        QTest::newRow("whole name") << "save"
                                    << "Save";
        QTest::newRow("two words in any order") << "out zoom"
                                                << "Zoom Out";
        QTest::newRow("left out letters") << "brfrnt"
                                          << "Bring to Front";
        QTest::newRow("keyword") << "clone"
                                 << "Duplicate";
        QTest::newRow("keyword and path") << "magn view"
                                          << "Zoom In";
        QTest::newRow("inner word of a name") << "target"
                                              << "Select labelTarget";
        QTest::newRow("initials within a name") << "lt"
                                                << "Select labelTarget";
    }

    void aFewLettersFindTheCommand()
    {
        QFETCH(QString, query);
        CommandSearch search;
        search.setCommands(someCommands(), {});
        const QList<int> found = search.find(query);
        QVERIFY(!found.isEmpty());
        QTEST(search.commands().at(found.first()).text, "first");
    }

    void wholeWordsWinOverLettersFromSeveral()
    {
        CommandSearch search;
        search.setCommands({command("Select ecoTrack"), command("Select All")}, {});
        QCOMPARE(search.find(QStringLiteral("select")), (QList<int>{1, 0}));
    }

    void lettersThatAreStrewnAboutFindNothing()
    {
        QVERIFY(FuzzyMatch::contains(QStringLiteral("dlt"), QStringLiteral("Duplicate")));
        QCOMPARE(FuzzyMatch::score(QStringLiteral("ulte"), QStringLiteral("Duplicatexe")), 0);
        CommandSearch search;
        search.setCommands(someCommands(), {});
        QVERIFY(search.find(QStringLiteral("xyzzy")).isEmpty());
    }

    void anEmptyQueryListsAllTheRecentOnesFirst()
    {
        CommandSearch search;
        search.setCommands(someCommands(), {QStringLiteral("Zoom Out"), QStringLiteral("Undo")});
        const QList<int> found = search.find(QStringLiteral("  "));
        QCOMPARE(found.size(), search.commands().size());
        QCOMPARE(search.commands().at(found.at(0)).text, QStringLiteral("Zoom Out"));
        QCOMPARE(search.commands().at(found.at(1)).text, QStringLiteral("Undo"));
        QCOMPARE(search.commands().at(found.at(2)).text, QStringLiteral("New"));
    }

    void whatWasUsedLastWinsAmongThoseThatFitAlike()
    {
        CommandSearch search;
        search.setCommands(someCommands(), {});
        QCOMPARE(search.commands().at(search.find(QStringLiteral("zoom")).first()).text, QStringLiteral("Zoom In"));
        search.setCommands(someCommands(), {QStringLiteral("Zoom Out")});
        QCOMPARE(search.commands().at(search.find(QStringLiteral("zoom")).first()).text, QStringLiteral("Zoom Out"));
    }

    void aNameTypedInFullWinsOverWhatWasUsedLast()
    {
        CommandSearch search;
        const QList<Command> commands{command("Select buttonPlus"), command("Select buttonPlusBar")};
        search.setCommands(commands, {commands.at(1).id});
        QCOMPARE(search.find(QStringLiteral("Select buttonPl")), (QList<int>{1, 0}));
        QCOMPARE(search.find(QStringLiteral("select  buttonplus ")), (QList<int>{0, 1}));
    }

    void whatCannotBeDoneComesAfterThat()
    {
        CommandSearch search;
        search.setCommands({command("Paste Here", "", "", false), command("Paste Them")}, {});
        QCOMPARE(search.find(QStringLiteral("paste")), (QList<int>{1, 0}));
    }

    void typingOnFindsWhatStartingAnewFinds()
    {
        QVERIFY(rc::check("incremental search = search", [] {
            QList<Command> commands;
            const auto texts = *rc::gen::container<std::vector<QString>>(fewLetters(12));
            for (const QString& text : texts) {
                Command each = command("", "bad", "cab dab");
                each.text = text;
                commands.append(each);
            }
            CommandSearch typed;
            typed.setCommands(commands, {});
            QString query;
            const QString letters = *fewLetters(8);
            for (const QChar letter : letters) {
                query += letter;
                CommandSearch fresh;
                fresh.setCommands(commands, {});
                RC_ASSERT(typed.find(query) == fresh.find(query));
            }
            query.chop(2);
            CommandSearch fresh;
            fresh.setCommands(commands, {});
            RC_ASSERT(typed.find(query) == fresh.find(query));
        }));
    }

    void aTextFitsItselfBest()
    {
        QVERIFY(rc::check("itself", [] {
            const QString text = *fewLetters(10);
            const QString other = *fewLetters(10);
            RC_PRE(!text.trimmed().isEmpty() && text.compare(other, Qt::CaseInsensitive) != 0);
            RC_PRE(FuzzyMatch::score(text, text) > 0);
            RC_ASSERT(FuzzyMatch::score(text, text) > FuzzyMatch::score(text, other));
            RC_ASSERT(FuzzyMatch::score(text, other) == 0 || FuzzyMatch::contains(text, other));
        }));
    }

    void tenThousandElementsAreSearchedWhileOneTypes()
    {
        QList<Command> commands = someCommands();
        for (int i = 0; i < 10000; ++i) {
            Command each = command("", "main");
            each.text = QStringLiteral("Select indicatorLamp%1").arg(i);
            each.keywords = QStringLiteral("indicatorLamp%1").arg(i);
            each.id = QStringLiteral("element:main/%1").arg(each.keywords);
            commands.append(each);
        }
        CommandSearch search;
        search.setCommands(commands, {});
        QElapsedTimer timer;
        qint64 slowest = 0;
        QString query;
        for (const QChar letter : QStringLiteral("indi 777")) {
            query += letter;
            timer.start();
            QVERIFY(search.find(query).size() <= CommandSearch::Limit);
            slowest = qMax(slowest, timer.elapsed());
        }
        QVERIFY(search.commands().at(search.find(query).first()).text.contains(QLatin1String("777")));
        // A person notices 100 ms; this is what a busy machine is given.
        QVERIFY2(slowest < 250, qPrintable(QString::number(slowest)));
        qInfo("slowest letter: %lld ms", slowest);
    }
};

QTEST_APPLESS_MAIN(tst_CommandSearch)
#include "tst_CommandSearch.moc"
