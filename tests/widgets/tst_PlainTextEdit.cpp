#include "host/core/widgets/PlainTextEdit.h"
#include "tests/values/ValueGenerators.h"

#include <QtCore/QLoggingCategory>
#include <QtCore/QMimeData>
#include <QtGui/QClipboard>
#include <QtTest/QtTest>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QVBoxLayout>

using namespace Korvex::Meridane::Designer;

class tst_PlainTextEdit : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void textsAreKeptExactly_data();
    void textsAreKeptExactly();
    void anyTextIsKeptExactly();
    void aTextIsKeptWhenAnotherFollows();
    void settingATextIsNoModification();
    void settingTheSameTextKeepsTheCaret();
    void typingIsReported();
    void typingBehindASignIsPlain();
    void editsLeaveTheRestAsItWas();
    void pastedLinesEndInLineFeeds();
    void copiedTextIsTheTextItself();
    void undoIsTheProjects();
    void tabLeavesTheField();
    void theWheelScrollsTheFocusedFieldOnly();
    void focusIsReported();
    void mixedShowsADash();

private:
    std::unique_ptr<QWidget> m_window;
    PlainTextEdit* m_edit = nullptr;
    QLineEdit* m_other = nullptr;
};

void tst_PlainTextEdit::init()
{
    m_window = std::make_unique<QWidget>();
    auto* layout = new QVBoxLayout(m_window.get());
    m_edit = new PlainTextEdit;
    m_other = new QLineEdit;
    layout->addWidget(m_edit);
    layout->addWidget(m_other);
    m_window->show();
    m_window->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
    m_edit->setFocus();
}

void tst_PlainTextEdit::cleanup()
{
    m_window.reset();
}

void tst_PlainTextEdit::textsAreKeptExactly_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("empty") << QString();
    QTest::newRow("plain") << QStringLiteral("Hello");
    QTest::newRow("lines") << QStringLiteral("a\n\nb\n");
    QTest::newRow("only a line feed") << QStringLiteral("\n");
    QTest::newRow("CRLF") << QStringLiteral("a\r\nb\r\n");
    QTest::newRow("CR") << QStringLiteral("a\rb\r\r");
    QTest::newRow("no-break space") << QStringLiteral("1\u00a0000\u00a0");
    QTest::newRow("line separator") << QStringLiteral("a\u2028b");
    QTest::newRow("paragraph separator") << QStringLiteral("a\u2029b");
    QTest::newRow("NUL") << QString(QStringLiteral("a") + QChar(u'\0') + QStringLiteral("b"));
    QTest::newRow("markup") << QStringLiteral("<b>bold</b> &amp; <br/><script>x</script>");
    QTest::newRow("document's own characters") << QStringLiteral("\ufdd0\ufdd1\ufffc");
    QTest::newRow("the signs themselves") << QStringLiteral("\u2205\u21b5\u00b6\u00ab\u00bb\u25a1");
    QTest::newRow("a sign and its original") << QStringLiteral("\u21b5\r\u21b5");
    QTest::newRow("tabs and blanks") << QStringLiteral("\t a  b\t");
    QTest::newRow("lone surrogates") << QString(QChar(0xd800)) + u'x' + QChar(0xdc00);
    QTest::newRow("emoji") << QStringLiteral("\U0001F600\u200d");
    QTest::newRow("right to left") << QStringLiteral("\u202e\u05d0\u05d1");
    QTest::newRow("soft hyphen, BOM") << QStringLiteral("a\u00adb\ufeff");
}

void tst_PlainTextEdit::textsAreKeptExactly()
{
    QFETCH(QString, text);
    m_edit->setText(text);
    QCOMPARE(m_edit->plainText(), text);
}

void tst_PlainTextEdit::anyTextIsKeptExactly()
{
    // Random characters ask for scripts that no font of the machine has.
    QLoggingCategory::setFilterRules(QStringLiteral("*.warning=false"));
    const bool passed = rc::check("any text", [this] {
        const QString text = *Generators::text();
        m_edit->setText(text);
        RC_ASSERT(m_edit->plainText() == text);
    });
    QLoggingCategory::setFilterRules(QString());
    QVERIFY(passed);
}

void tst_PlainTextEdit::aTextIsKeptWhenAnotherFollows()
{
    m_edit->setText(QStringLiteral("a\rb"));
    m_edit->setText(QStringLiteral("\u21b5"));
    QCOMPARE(m_edit->plainText(), QStringLiteral("\u21b5"));
}

void tst_PlainTextEdit::settingATextIsNoModification()
{
    QSignalSpy modified(m_edit, &PlainTextEdit::userModified);
    QSignalSpy changed(m_edit, &QTextEdit::textChanged);
    m_edit->setText(QStringLiteral("a\r\nb"));
    QCOMPARE(changed.count(), 1);
    m_edit->setText(QStringLiteral("a\r\nb"));
    QCOMPARE(changed.count(), 1);
    QCOMPARE(modified.count(), 0);
}

void tst_PlainTextEdit::settingTheSameTextKeepsTheCaret()
{
    m_edit->setText(QStringLiteral("abcdef"));
    QTextCursor cursor = m_edit->textCursor();
    cursor.setPosition(3);
    m_edit->setTextCursor(cursor);
    m_edit->setText(QStringLiteral("abcdef"));
    QCOMPARE(m_edit->textCursor().position(), 3);
    m_edit->setText(QStringLiteral("abcxdef"));
    QCOMPARE(m_edit->textCursor().position(), 3);
    m_edit->setText(QStringLiteral("a"));
    QCOMPARE(m_edit->textCursor().position(), 1);
}

void tst_PlainTextEdit::typingIsReported()
{
    QSignalSpy modified(m_edit, &PlainTextEdit::userModified);
    QTest::keyClicks(m_edit, QStringLiteral("ab"));
    QTest::keyClick(m_edit, Qt::Key_Return);
    QTest::keyClicks(m_edit, QStringLiteral("c"));
    QCOMPARE(m_edit->plainText(), QStringLiteral("ab\nc"));
    QCOMPARE(modified.count(), 4);
}

void tst_PlainTextEdit::typingBehindASignIsPlain()
{
    m_edit->setText(QStringLiteral("\r"));
    m_edit->moveCursor(QTextCursor::End);
    QTest::keyClicks(m_edit, QStringLiteral("xy"));
    QCOMPARE(m_edit->plainText(), QStringLiteral("\rxy"));
}

void tst_PlainTextEdit::editsLeaveTheRestAsItWas()
{
    m_edit->setText(QStringLiteral("a\r\n1\u00a0000\u2028z\u2029"));
    m_edit->moveCursor(QTextCursor::Start);
    QTest::keyClicks(m_edit, QStringLiteral("b"));
    QCOMPARE(m_edit->plainText(), QStringLiteral("ba\r\n1\u00a0000\u2028z\u2029"));
    QTest::keyClick(m_edit, Qt::Key_End);
    QTest::keyClick(m_edit, Qt::Key_Backspace);
    QCOMPARE(m_edit->plainText(), QStringLiteral("ba\n1\u00a0000\u2028z\u2029"));
}

void tst_PlainTextEdit::pastedLinesEndInLineFeeds()
{
    QGuiApplication::clipboard()->setText(QStringLiteral("<i>a</i>\r\nb\rc\u2029d"));
    m_edit->setText(QStringLiteral("[]"));
    QTest::keyClick(m_edit, Qt::Key_Right);
    m_edit->paste();
    QVERIFY(m_edit->plainText().contains(QStringLiteral("<i>a</i>\nb\nc\nd")));
}

void tst_PlainTextEdit::copiedTextIsTheTextItself()
{
    m_edit->setText(QStringLiteral("1\r\n2\u00a03"));
    m_edit->selectAll();
    m_edit->copy();
    QCOMPARE(QGuiApplication::clipboard()->mimeData()->text(), QStringLiteral("1\r\n2\u00a03"));
}

void tst_PlainTextEdit::undoIsTheProjects()
{
    QTest::keyClicks(m_edit, QStringLiteral("ab"));
    QKeyEvent event(QEvent::ShortcutOverride, Qt::Key_Z, Qt::ControlModifier);
    event.ignore();
    QCoreApplication::sendEvent(m_edit, &event);
    QVERIFY(!event.isAccepted());
    QTest::keyClick(m_edit, Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(m_edit->plainText(), QStringLiteral("ab"));
}

void tst_PlainTextEdit::tabLeavesTheField()
{
    QTest::keyClick(m_edit, Qt::Key_Tab);
    QVERIFY(m_other->hasFocus());
    QCOMPARE(m_edit->plainText(), QString());
}

void tst_PlainTextEdit::theWheelScrollsTheFocusedFieldOnly()
{
    m_edit->setText(QString(500, u'\n'));
    m_edit->moveCursor(QTextCursor::Start);
    const auto turn = [this] {
        const QPointF center = QRectF(m_edit->viewport()->rect()).center();
        QWheelEvent event(center, m_edit->viewport()->mapToGlobal(center), {}, {0, -120}, Qt::NoButton, Qt::NoModifier,
                          Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(m_edit->viewport(), &event);
        return event.isAccepted();
    };
    m_other->setFocus();
    QVERIFY(!turn());
    m_edit->setFocus();
    QVERIFY(turn());
}

void tst_PlainTextEdit::focusIsReported()
{
    QSignalSpy in(m_edit, &PlainTextEdit::focusedIn);
    QSignalSpy out(m_edit, &PlainTextEdit::focusedOut);
    m_other->setFocus();
    m_edit->setFocus();
    QCOMPARE(in.count(), 1);
    QCOMPARE(out.count(), 1);
}

void tst_PlainTextEdit::mixedShowsADash()
{
    m_edit->setMixed(true);
    QCOMPARE(m_edit->placeholderText(), QStringLiteral("\u2014"));
    QTest::keyClicks(m_edit, QStringLiteral("a"));
    QVERIFY(!m_edit->isMixed());
    QVERIFY(m_edit->placeholderText().isEmpty());
}

QTEST_MAIN(tst_PlainTextEdit)
#include "tst_PlainTextEdit.moc"
