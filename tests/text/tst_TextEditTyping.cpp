#include "tests/text/TextEditSheet.h"

#include <QClipboard>

#include <memory>

using namespace Korvex::Meridane::Designer;
using namespace Korvex::Meridane::Designer::Test;

/// Typing into the editor of the plug-in: the steps that it makes, and where the caret stands.
class tst_TextEditTyping : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_sheet = std::make_unique<TextEditSheet>(); }
    void cleanup() { m_sheet.reset(); }

    void typingIsOneStep()
    {
        auto* box = m_sheet->addAndSelect("text", QStringLiteral("Water"));
        m_sheet->typeAtEnd(QStringLiteral(" temperature\n60 "));
        QCOMPARE(TextEditSheet::text(box), QStringLiteral("Water temperature\n60 "));
        QCOMPARE(m_sheet->stack()->count(), 1);
        QCOMPARE(m_sheet->stack()->text(0), QStringLiteral("Change Text"));
        m_sheet->session->undo();
        QCOMPARE(TextEditSheet::text(box), QStringLiteral("Water"));
        QCOMPARE(edit()->plainText(), QStringLiteral("Water"));
        m_sheet->session->redo();
        QCOMPARE(edit()->plainText(), QStringLiteral("Water temperature\n60 "));
    }

    void everyKeyIsSavedAtOnce()
    {
        auto* box = m_sheet->addAndSelect("text", QString());
        edit()->setFocus();
        QString expected;
        for (const char key : {'a', 'B', ' ', '1'}) {
            QTest::keyClick(edit(), key);
            expected += QLatin1Char(key);
            QCOMPARE(TextEditSheet::text(box), expected);
        }
    }

    void aCharacterThatIsTypedAndDeletedIsWrittenTwice()
    {
        auto* box = m_sheet->addAndSelect("text", QStringLiteral("a"));
        QStringList written;
        connect(m_sheet->session->project(), &Project::objectPropertyChanged, this,
                [&](DesignerObject* object, const QSharedPointer<DesignerProperty>& property) {
                    if (object == box)
                        written.append(property->valueString());
                });
        m_sheet->typeAtEnd(QStringLiteral("b"));
        QTest::keyClick(edit(), Qt::Key_Backspace);
        QCOMPARE(written, QStringList({QStringLiteral("ab"), QStringLiteral("a")}));
        // The way back leaves no step.
        QCOMPARE(m_sheet->stack()->count(), 0);
    }

    void typingNothingWritesNothing()
    {
        m_sheet->addAndSelect("text", QStringLiteral("a\nb"));
        int changes = 0;
        connect(m_sheet->session->project(), &Project::objectPropertyChanged, this, [&changes] { ++changes; });
        edit()->setFocus();
        for (const Qt::Key key : {Qt::Key_Left, Qt::Key_End, Qt::Key_Down, Qt::Key_Shift, Qt::Key_F5})
            QTest::keyClick(edit(), key);
        QTest::keyClick(edit(), Qt::Key_A, Qt::ControlModifier);
        QTest::keyClick(edit(), Qt::Key_C, Qt::ControlModifier);
        QTest::keyClick(edit(), Qt::Key_V, Qt::ControlModifier); // the same over itself
        QTest::mouseClick(edit()->viewport(), Qt::LeftButton);
        QCOMPARE(changes, 0);
        QCOMPARE(m_sheet->stack()->count(), 0);
    }

    void lineBreaksAreKeptAsLineFeeds()
    {
        auto* box = m_sheet->addAndSelect("text", QString());
        edit()->setFocus();
        QTest::keyClicks(edit(), QStringLiteral("a"));
        QTest::keyClick(edit(), Qt::Key_Return);
        QTest::keyClick(edit(), Qt::Key_Return, Qt::ShiftModifier);
        QTest::keyClicks(edit(), QStringLiteral("b"));
        QCOMPARE(TextEditSheet::text(box), QStringLiteral("a\n\nb"));
        QCOMPARE(m_sheet->stack()->count(), 1);
    }

    void typedMarkupStaysText()
    {
        auto* box = m_sheet->addAndSelect("text", QString());
        edit()->setFocus();
        QTest::keyClicks(edit(), QStringLiteral("<b>x</b> &lt;"));
        QCOMPARE(TextEditSheet::text(box), QStringLiteral("<b>x</b> &lt;"));
        m_sheet->select({});
        m_sheet->select({box});
        QCOMPARE(edit()->plainText(), QStringLiteral("<b>x</b> &lt;"));
    }

    void pastedTextJoinsTheTyping()
    {
        auto* box = m_sheet->addAndSelect("text", QString());
        edit()->setFocus();
        QGuiApplication::clipboard()->setText(QStringLiteral("1\r\n2"));
        QTest::keyClicks(edit(), QStringLiteral("0 "));
        QTest::keyClick(edit(), Qt::Key_V, Qt::ControlModifier);
        QCOMPARE(TextEditSheet::text(box), QStringLiteral("0 1\n2"));
        QCOMPARE(m_sheet->stack()->count(), 1);
    }

    void anotherStepBeginsWhenTheFocusComesBack()
    {
        auto* box = m_sheet->addAndSelect("text", QStringLiteral("a"));
        m_sheet->typeAtEnd(QStringLiteral("bc"));
        QTest::keyClick(edit(), Qt::Key_Tab);
        m_sheet->typeAtEnd(QStringLiteral("de"));
        QCOMPARE(m_sheet->stack()->count(), 2);
        m_sheet->session->undo();
        QCOMPARE(TextEditSheet::text(box), QStringLiteral("abc"));
        m_sheet->session->undo();
        QCOMPARE(TextEditSheet::text(box), QStringLiteral("a"));
    }

    void anotherStepBeginsAfterAnotherEdit()
    {
        auto* box = m_sheet->addAndSelect("text", QStringLiteral("a"));
        m_sheet->typeAtEnd(QStringLiteral("b"));
        m_sheet->set(box, "color", QStringLiteral("#102030"));
        QTest::keyClicks(edit(), QStringLiteral("cd"));
        QCOMPARE(m_sheet->stack()->count(), 3);
        m_sheet->session->undo();
        QCOMPARE(TextEditSheet::text(box), QStringLiteral("ab"));
    }

    void anotherStepBeginsAfterUndoAndRedo()
    {
        auto* box = m_sheet->addAndSelect("text", QStringLiteral("a"));
        m_sheet->typeAtEnd(QStringLiteral("b"));
        m_sheet->set(box, "color", QStringLiteral("#102030"));
        m_sheet->session->undo();
        QTest::keyClicks(edit(), QStringLiteral("c")); // the step before is again the last one
        QCOMPARE(m_sheet->stack()->count(), 2);
        m_sheet->session->undo();
        QCOMPARE(TextEditSheet::text(box), QStringLiteral("ab"));
        m_sheet->session->undo();
        QCOMPARE(TextEditSheet::text(box), QStringLiteral("a"));
        m_sheet->session->redo();
        QCOMPARE(edit()->plainText(), QStringLiteral("ab"));
        QTest::keyClicks(edit(), QStringLiteral("d"));
        QCOMPARE(TextEditSheet::text(box), QStringLiteral("abd"));
        QCOMPARE(m_sheet->stack()->count(), 2);
        m_sheet->session->undo();
        QCOMPARE(TextEditSheet::text(box), QStringLiteral("ab"));
    }

    void anotherStepBeginsWhenTheLastOneCameBack()
    {
        auto* box = m_sheet->addAndSelect("text", QStringLiteral("a"));
        m_sheet->typeAtEnd(QStringLiteral("b"));
        m_sheet->session->undo();
        m_sheet->session->redo();
        QTest::keyClicks(edit(), QStringLiteral("cd"));
        QCOMPARE(TextEditSheet::text(box), QStringLiteral("abcd"));
        QCOMPARE(m_sheet->stack()->count(), 2);
    }

    void typingInAnotherElementIsAnotherStep()
    {
        auto* first = m_sheet->addWith("text", QStringLiteral("a"));
        auto* second = m_sheet->addWith("text", QStringLiteral("b"));
        m_sheet->select({first});
        m_sheet->typeAtEnd(QStringLiteral("1"));
        m_sheet->select({second});
        m_sheet->typeAtEnd(QStringLiteral("2"));
        QCOMPARE(TextEditSheet::text(first), QStringLiteral("a1"));
        QCOMPARE(TextEditSheet::text(second), QStringLiteral("b2"));
        QCOMPARE(m_sheet->stack()->count(), 2);
    }

    void undoWhileTypingKeepsTheCaretInItsPlace_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("caret");
        QTest::addColumn<QString>("typed");
        QTest::newRow("in the middle") << QStringLiteral("Hello world") << 5 << QStringLiteral(" nice");
        QTest::newRow("at the start") << QStringLiteral("aaaa") << 0 << QStringLiteral("aa");
        QTest::newRow("between equal letters") << QStringLiteral("aaaa") << 2 << QStringLiteral("aaa");
        QTest::newRow("at the end") << QStringLiteral("one\ntwo") << 7 << QStringLiteral("\n3");
        QTest::newRow("in an empty text") << QString() << 0 << QStringLiteral("abc");
    }

    void undoWhileTypingKeepsTheCaretInItsPlace()
    {
        QFETCH(QString, text);
        QFETCH(int, caret);
        QFETCH(QString, typed);
        m_sheet->addAndSelect("text", text);
        m_sheet->setCaret(caret);
        m_sheet->typeHere(typed);
        QCOMPARE(m_sheet->caret(), caret + typed.size());
        m_sheet->session->undo();
        QCOMPARE(edit()->plainText(), text);
        QCOMPARE(m_sheet->caret(), caret);
        QVERIFY(edit()->hasFocus());
        m_sheet->session->redo();
        QCOMPARE(m_sheet->caret(), caret + typed.size());
        // And what is typed next goes there.
        m_sheet->typeHere(QStringLiteral("!"));
        QCOMPARE(edit()->plainText(), text.left(caret) + typed + QLatin1Char('!') + text.mid(caret));
    }

    void anEditElsewhereLeavesTheCaretAtItsCharacters()
    {
        auto* box = m_sheet->addAndSelect("text", QStringLiteral("one two three"));
        m_sheet->setCaret(7); // behind "two"
        m_sheet->set(box, "text", QStringLiteral("ONE AND two three"));
        QCOMPARE(m_sheet->caret(), 11);
        m_sheet->set(box, "text", QStringLiteral("ONE AND two 3"));
        QCOMPARE(m_sheet->caret(), 11);
        m_sheet->set(box, "text", QStringLiteral("-"));
        QCOMPARE(m_sheet->caret(), 1);
        // Characters that are no more: behind those that have taken their place.
        m_sheet->set(box, "text", QStringLiteral("abcXYZdef"));
        m_sheet->setCaret(4);
        m_sheet->set(box, "text", QStringLiteral("abc12345def"));
        QCOMPARE(m_sheet->caret(), 8);
    }

    void theCaretNeverStandsWithinACharacter()
    {
        auto* box = m_sheet->addAndSelect("text", QStringLiteral("ab\U0001F600"));
        m_sheet->setCaret(1);
        m_sheet->set(box, "text", QStringLiteral("cd\U0001FA00")); // which ends with the same half
        QCOMPARE(m_sheet->caret(), 4);
    }

    void removingTheElementWhileTypingIsSafe()
    {
        auto* box = m_sheet->addAndSelect("text", QStringLiteral("a"));
        m_sheet->typeAtEnd(QStringLiteral("b"));
        m_sheet->session->removeElements({box});
        QCOMPARE(m_sheet->stack()->count(), 2);
        m_sheet->session->undo();
        m_sheet->select({box});
        QCOMPARE(edit()->plainText(), QStringLiteral("ab"));
    }

private:
    [[nodiscard]] PlainTextEdit* edit() const { return m_sheet->edit(); }

    std::unique_ptr<TextEditSheet> m_sheet;
};

QTEST_MAIN(tst_TextEditTyping)
#include "tst_TextEditTyping.moc"
